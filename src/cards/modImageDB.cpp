#include "cards/modImageDB.h"

#include "common/Errors.h"
#include "common/Paths.h"

#include <cstring>
#include <exception>
#include <fstream>
#include <memory>
#include <random>

namespace quillane::modImageDB {

namespace {

IPictureDecoder* gDecoder = nullptr;
std::string strTempPath;

std::string SystemTempFolder() {
    std::error_code ec;
    return PathToUtf8(std::filesystem::temp_directory_path(ec));
}

std::function<std::string()> gTempFolderSource = SystemTempFolder;

bool StartsWith(const std::vector<unsigned char>& bytes, const char* magic, std::size_t size) {
    return bytes.size() >= size && std::memcmp(bytes.data(), magic, size) == 0;
}

bool LooksLikePicture(const std::vector<unsigned char>& bytes) {
    return StartsWith(bytes, "\x89PNG\r\n\x1a\n", 8) || StartsWith(bytes, "\xff\xd8\xff", 3) ||
           StartsWith(bytes, "GIF8", 4) || StartsWith(bytes, "BM", 2);
}

} // namespace

void SetDecoder(IPictureDecoder* decoder) {
    gDecoder = decoder;
}
IPictureDecoder* Decoder() {
    return gDecoder;
}

bool LoadPictureFromField(Picture& target, modDB::Recordset& recordSet,
                          const std::string& fieldName) {
    try {
        // The whole field in one chunk of its full length.
        long size = recordSet.ActualSize(fieldName);
        auto bytes =
            std::make_shared<std::vector<unsigned char>>(recordSet.GetChunk(fieldName, size));
        if (bytes->empty())
            throw RuntimeError(94, "Invalid use of Null");
        bool readable = gDecoder ? gDecoder->CanDecode(*bytes) : LooksLikePicture(*bytes);
        if (!readable)
            throw RuntimeError(481, "Invalid picture");
        target.descriptor = "card " + recordSet.Field("Id").AsString();
        try {
            target.description = recordSet.Field("Name").AsString();
        } catch (const RuntimeError&) {
            target.description.clear(); // a row set of pictures only
        }
        target.bytes = std::move(bytes);
        return true;
    } catch (const std::exception&) {
        target.descriptor.clear();
        target.bytes.reset();
        return false;
    }
}

std::string MakeTempFileName(const std::string& prefix) {
    if (strTempPath.empty()) {
        std::string folder = gTempFolderSource();
        if (folder.empty() || folder.back() != '/')
            folder += '/';
        strTempPath = folder;
    }
    // Six letters or digits drawn at random until a name is free. (The standard
    // library has no "create only if new"; with 62^6 names, another process
    // taking the same one between the test and the opening is left to chance.)
    static constexpr char kLetters[] =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    std::random_device random;
    std::uniform_int_distribution<std::size_t> pick(0, sizeof kLetters - 2);
    for (int attempt = 0; attempt < 100; ++attempt) {
        std::string name = strTempPath + prefix;
        for (int i = 0; i < 6; ++i)
            name += kLetters[pick(random)];
        name += ".tmp";
        const std::filesystem::path path = PathFromUtf8(name);
        std::error_code ec;
        if (std::filesystem::exists(path, ec) || ec)
            continue;
        if (std::ofstream(path, std::ios::binary))
            return name;
    }
    throw RuntimeError(75, "Path/File access error (" + strTempPath + prefix + "XXXXXX.tmp)");
}

void SetTempFolderSource(std::function<std::string()> source) {
    gTempFolderSource = source ? std::move(source) : SystemTempFolder;
    strTempPath.clear();
}

} // namespace quillane::modImageDB
