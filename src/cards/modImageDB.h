#pragma once
// modImageDB: card pictures held as whole picture files in a long binary
// field. Pictures load straight from memory; no file is written.
#include "cards/Recordset.h"
#include "common/Picture.h"
#include "common/Services.h"

#include <functional>
#include <string>

namespace quillane::modImageDB {

// The decoder that decides whether bytes make a picture that can be shown.
// Without one, a picture is accepted when it starts as a PNG, JPEG, GIF or BMP
// file does.
void SetDecoder(IPictureDecoder* decoder);
IPictureDecoder* Decoder();

// Puts the picture of the current row's field into `target`: its descriptor
// becomes "card " and the row's Id, its bytes the field's bytes. On missing,
// empty or undecodable data, or with no current row, `target` is cleared and
// the result is false. Never throws.
bool LoadPictureFromField(Picture& target, modDB::Recordset& recordSet,
                          const std::string& fieldName);

// The full path of a new, unique, empty file in the temporary folder, named
// from the prefix. The folder is asked for once and kept, with a trailing '/'.
std::string MakeTempFileName(const std::string& prefix);

// Where MakeTempFileName asks for the temporary folder (default: the system's,
// TMPDIR or else "/tmp" on Linux). Setting a source forgets the folder kept so
// far.
void SetTempFolderSource(std::function<std::string()> source);

} // namespace quillane::modImageDB
