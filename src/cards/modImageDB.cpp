#include "cards/modImageDB.h"

#include "common/Errors.h"

#include <cstdlib>
#include <cstring>
#include <exception>
#include <memory>
#include <unistd.h>

namespace quillane::modImageDB {

namespace {

IPictureDecoder* gDecoder = nullptr;
std::string strTempPath;

std::string SystemTempFolder() {
    const char* dir = std::getenv("TMPDIR");
    return dir && *dir ? dir : "/tmp";
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
    std::string name = strTempPath + prefix + "XXXXXX.tmp";
    std::vector<char> buffer(name.begin(), name.end());
    buffer.push_back('\0');
    int fd = ::mkstemps(buffer.data(), 4);
    if (fd < 0)
        throw RuntimeError(75, "Path/File access error (" + name + ")");
    ::close(fd);
    return std::string(buffer.data());
}

void SetTempFolderSource(std::function<std::string()> source) {
    gTempFolderSource = source ? std::move(source) : SystemTempFolder;
    strTempPath.clear();
}

} // namespace quillane::modImageDB
