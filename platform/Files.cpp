#include "platform/Files.h"

#include "platform/Handles.h"
#include "platform/SystemError.h"

#include <algorithm>
#include <utility>

namespace {

constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::wstring Beside(const std::wstring& path) { return LongPath(path) + L".new"; }

UniqueFile Open(const std::wstring& longPath, DWORD access, DWORD share, DWORD disposition) {
    const HANDLE file =
        CreateFileW(longPath.c_str(), access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    return UniqueFile(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

uint64_t CountOf(const FILETIME& time) { return uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime; }

bool IsMissing(DWORD code) { return code == ERROR_FILE_NOT_FOUND || code == ERROR_PATH_NOT_FOUND; }

}  // namespace

// The form in which the system takes paths of any length (Maximum Path Length Limitation, Win32 documentation).
std::wstring LongPath(const std::wstring& path) {
    if (path.rfind(L"\\\\?\\", 0) == 0) return path;
    if (path.rfind(L"\\\\", 0) == 0) return L"\\\\?\\UNC" + path.substr(1);
    return L"\\\\?\\" + path;
}

std::optional<std::vector<uint8_t>> ReadFileBytes(const std::wstring& path, size_t limit) {
    const UniqueFile file = Open(LongPath(path), GENERIC_READ, ShareAll, OPEN_EXISTING);
    if (!file) {
        const DWORD code = GetLastError();
        if (IsMissing(code)) return std::nullopt;
        throw SystemError(code, path);
    }
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file.get(), &size)) throw SystemError(GetLastError(), path);
    const size_t wanted = std::min(limit, static_cast<size_t>(size.QuadPart));
    if (wanted > MAXDWORD) throw SystemError(ERROR_FILE_TOO_LARGE, path);
    std::vector<uint8_t> bytes(wanted);
    size_t total = 0;
    while (total < bytes.size()) {
        DWORD read = 0;
        if (!ReadFile(file.get(), bytes.data() + total, static_cast<DWORD>(bytes.size() - total), &read, nullptr))
            throw SystemError(GetLastError(), path);
        if (read == 0) break;
        total += read;
    }
    bytes.resize(total);
    return bytes;
}

bool FileExists(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(LongPath(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

std::vector<FoundFile> FilesLike(const std::wstring& pattern) {
    std::vector<FoundFile> files;
    WIN32_FIND_DATAW found;
    // Without short names, and many at a time: a folder may hold thousands.
    const HANDLE search = FindFirstFileExW(LongPath(pattern).c_str(), FindExInfoBasic, &found, FindExSearchNameMatch,
                                           nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (search == INVALID_HANDLE_VALUE) return files;
    do {
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
            files.push_back({found.cFileName, CountOf(found.ftLastWriteTime)});
    } while (FindNextFileW(search, &found));
    FindClose(search);
    return files;
}

SYSTEMTIME LocalTimeOf(uint64_t changed) {
    const FILETIME time{static_cast<DWORD>(changed), static_cast<DWORD>(changed >> 32)};
    SYSTEMTIME universal{}, local{};
    FileTimeToSystemTime(&time, &universal);
    SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local);
    return local;
}

SYSTEMTIME LastChangeOf(const std::wstring& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExW(LongPath(path).c_str(), GetFileExInfoStandard, &data))
        throw SystemError(GetLastError(), path);
    return LocalTimeOf(CountOf(data.ftLastWriteTime));
}

void MakeFolder(const std::wstring& path) { CreateDirectoryW(LongPath(path).c_str(), nullptr); }

void ExpectReplaceable(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(LongPath(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return;
    // Not every system refuses to move a file over one that is write-protected.
    if (attributes & FILE_ATTRIBUTE_READONLY) throw SystemError(ERROR_ACCESS_DENIED, path);
    if (attributes & FILE_ATTRIBUTE_DIRECTORY) throw SystemError(ERROR_ALREADY_EXISTS, path);
    // Older systems do not replace a file that is open, however it is shared.
    if (!Open(LongPath(path), GENERIC_WRITE | DELETE, 0, OPEN_EXISTING)) throw SystemError(GetLastError(), path);
}

void DeleteFileAt(const std::wstring& path) {
    if (DeleteFileW(LongPath(path).c_str())) return;
    const DWORD code = GetLastError();
    if (!IsMissing(code)) throw SystemError(code, path);
}

void MoveOver(const std::wstring& from, const std::wstring& to) {
    constexpr DWORD flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    // A virus scanner or an indexer may have opened a file that has just been written, for a moment.
    for (int tries = 1; !MoveFileExW(LongPath(from).c_str(), LongPath(to).c_str(), flags); ++tries) {
        const DWORD code = GetLastError();
        if (tries == 20 || (code != ERROR_ACCESS_DENIED && code != ERROR_SHARING_VIOLATION))
            throw SystemError(code, to);
        Sleep(25);
    }
}

FileBeside::FileBeside(const std::wstring& path, std::string_view bytes) : path(path) {
    ExpectReplaceable(path);
    UniqueFile file = Open(Beside(path), GENERIC_WRITE, 0, CREATE_ALWAYS);
    if (!file) throw SystemError(GetLastError(), path);
    DWORD written = 0, code = ERROR_SUCCESS;
    if (!WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr))
        code = GetLastError();
    else if (written < bytes.size())
        code = ERROR_DISK_FULL;  // a partial write comes with no other code
    else if (!FlushFileBuffers(file.get()))
        code = GetLastError();
    if (code == ERROR_SUCCESS) return;
    file.reset();
    DeleteFileW(Beside(path).c_str());
    throw SystemError(code, path);
}

FileBeside::~FileBeside() {
    if (waiting) DeleteFileW(Beside(path).c_str());
}

FileBeside::FileBeside(FileBeside&& other) noexcept
    : path(std::move(other.path)), waiting(std::exchange(other.waiting, false)) {}

void FileBeside::TakePlace() {
    if (!IsLeft(path)) throw SystemError(ERROR_FILE_NOT_FOUND, path);
    TakePlaceLeft(path);
    waiting = false;
}

bool FileBeside::IsLeft(const std::wstring& path) {
    return GetFileAttributesW(Beside(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

void FileBeside::TakePlaceLeft(const std::wstring& path) {
    if (IsLeft(path)) MoveOver(Beside(path), path);
}

void FileBeside::RemoveLeft(const std::wstring& path) { DeleteFileW(Beside(path).c_str()); }

UniqueFile OpenAlone(const std::wstring& path) {
    return Open(LongPath(path), GENERIC_READ | GENERIC_WRITE, 0, OPEN_ALWAYS);
}

void ReplaceFileBytes(const std::wstring& path, std::string_view bytes) { FileBeside(path, bytes).TakePlace(); }
