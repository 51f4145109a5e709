#include "platform/modResource.h"

#include "platform/Ansi.h"
#include "platform/SystemError.h"

#include <array>
#include <string_view>

namespace modResource {

namespace {

constexpr DWORD BufferSize = 255;
using Buffer = std::array<char, BufferSize + 1>;

std::string UpToNul(const Buffer& buffer) { return std::string(buffer.data()); }

// For a folder whose name the ANSI code page cannot write: its short name has ASCII letters only.
std::string ShortTemporaryFolder() {
    std::array<wchar_t, MAX_PATH + 1> folder{}, shortName{};
    GetTempPathW(MAX_PATH, folder.data());
    const DWORD length = GetShortPathNameW(folder.data(), shortName.data(), MAX_PATH);
    return ToAnsi({shortName.data(), length});
}

}  // namespace

UniqueCom<IPicture> LoadResourcePicture(const std::string& resourceName, const std::string& resourceType,
                                        std::string temporaryFile) try {
    if (temporaryFile.empty()) temporaryFile = MakeTemporaryFileName("", "~tvx", 0);
    // Deleted whatever happens next.
    struct Deleter {
        const std::string& File;
        ~Deleter() { DeleteFileA(File.c_str()); }
    } const deleter{temporaryFile};

    WriteResourceToFile(resourceName, resourceType, temporaryFile);
    void* picture = nullptr;
    std::wstring path = FromAnsi(temporaryFile);
    const HRESULT status = OleLoadPicturePath(path.data(), nullptr, 0, 0, IID_IPicture, &picture);
    if (FAILED(status)) throw SystemError(CodeOf(status), FromAnsi(resourceName));
    return UniqueCom<IPicture>(static_cast<IPicture*>(picture));
} catch (const SystemError& error) {
    // Whichever step failed, the picture is what the caller asked for.
    throw SystemError(error.Code(), FromAnsi(resourceName));
}

std::string MakeTemporaryFileName(const std::string& folder, const std::string& prefix, uint16_t uniqueNumber) {
    std::string in = folder;
    if (in.empty()) {
        Buffer buffer{};
        const DWORD length = GetTempPathA(BufferSize, buffer.data());
        if (length == 0) throw SystemError(GetLastError(), FromAnsi(prefix));
        if (length > BufferSize) throw SystemError(ERROR_FILENAME_EXCED_RANGE, FromAnsi(prefix));
        in = UpToNul(buffer);
        if (GetFileAttributesA(in.c_str()) == INVALID_FILE_ATTRIBUTES) in = ShortTemporaryFolder();
    }
    // GetTempFileName writes up to MAX_PATH characters whatever the buffer, and refuses longer folders.
    std::array<char, MAX_PATH + 1> name{};
    if (GetTempFileNameA(in.c_str(), prefix.c_str(), uniqueNumber, name.data()) == 0)
        throw SystemError(GetLastError(), FromAnsi(in));
    return std::string(name.data());
}

void WriteResourceToFile(const std::string& resourceName, const std::string& resourceType,
                         const std::string& fileName) {
    const HRSRC resource = FindResourceA(nullptr, resourceName.c_str(), resourceType.c_str());
    const HGLOBAL data = resource ? LoadResource(nullptr, resource) : nullptr;
    if (!data) throw SystemError(GetLastError(), FromAnsi(resourceName));
    const DWORD size = SizeofResource(nullptr, resource);

    const HANDLE opened =
        CreateFileA(fileName.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_TEMPORARY, nullptr);
    if (opened == INVALID_HANDLE_VALUE) throw SystemError(GetLastError(), FromAnsi(fileName));
    const UniqueFile file(opened);
    DWORD written = 0;
    if (!WriteFile(file.get(), LockResource(data), size, &written, nullptr))
        throw SystemError(GetLastError(), FromAnsi(fileName));
    if (written != size) throw SystemError(ERROR_DISK_FULL, FromAnsi(fileName));
}

}  // namespace modResource
