#include "platform/Files.h"

#include "platform/Handles.h"
#include "platform/SystemError.h"

namespace {

UniqueFile Open(const std::wstring& path, DWORD access, DWORD share, DWORD disposition) {
    const HANDLE file = CreateFileW(path.c_str(), access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    return UniqueFile(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

}  // namespace

std::optional<std::vector<uint8_t>> ReadFileBytes(const std::wstring& path, size_t limit) {
    const UniqueFile file =
        Open(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING);
    if (!file) {
        const DWORD code = GetLastError();
        if (code == ERROR_FILE_NOT_FOUND || code == ERROR_PATH_NOT_FOUND) return std::nullopt;
        throw SystemError(code, path);
    }
    std::vector<uint8_t> bytes(limit);
    DWORD read = 0;
    size_t total = 0;
    do {
        if (!ReadFile(file.get(), bytes.data() + total, static_cast<DWORD>(limit - total), &read, nullptr))
            throw SystemError(GetLastError(), path);
        total += read;
    } while (read > 0 && total < limit);
    bytes.resize(total);
    return bytes;
}

void ReplaceFileBytes(const std::wstring& path, std::string_view bytes) {
    const std::wstring beside = path + L".new";
    const auto fail = [&](DWORD code) {
        DeleteFileW(beside.c_str());
        throw SystemError(code, path);
    };
    // Not every system refuses to move a file over one that is write-protected.
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && attributes & FILE_ATTRIBUTE_READONLY)
        throw SystemError(ERROR_ACCESS_DENIED, path);

    UniqueFile file = Open(beside, GENERIC_WRITE, 0, CREATE_ALWAYS);
    if (!file) throw SystemError(GetLastError(), path);
    DWORD written = 0;
    const bool complete = WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
                          written == bytes.size() && FlushFileBuffers(file.get());
    const DWORD code = complete ? ERROR_SUCCESS : GetLastError();
    file.reset();
    if (!complete) fail(code == ERROR_SUCCESS ? ERROR_DISK_FULL : code);
    if (!MoveFileExW(beside.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        fail(GetLastError());
}
