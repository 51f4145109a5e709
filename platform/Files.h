#pragma once

#include "platform/Handles.h"

#include <windows.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Files by their full paths, of any length that the system can hold. Failures throw SystemError with the path.

// A path in the form that the system takes at any length.
std::wstring LongPath(const std::wstring& path);

// The first `limit` bytes of a file, or all of a shorter one; no value when there is no such file. More than 4 GB are
// not read at once, but fail.
std::optional<std::vector<uint8_t>> ReadFileBytes(const std::wstring& path,
                                                  size_t limit = std::numeric_limits<size_t>::max());

// Whether there is a file of that name; a folder is none.
bool FileExists(const std::wstring& path);

// A file as the listing of its folder tells of it.
struct FoundFile {
    std::wstring Name;
    uint64_t Changed;  // when it was last written to, in the system's count: the higher, the later
};

// The files that a path with a pattern in its last part finds; none where there is no such folder.
std::vector<FoundFile> FilesLike(const std::wstring& pattern);

// When a file was last written to, by the user's clock: of a file that was found, and of one by its path, which throws
// SystemError.
SYSTEMTIME LocalTimeOf(uint64_t changed);
SYSTEMTIME LastChangeOf(const std::wstring& path);

// Makes a folder if there is none. A failure is not reported: whatever uses the folder next will fail.
void MakeFolder(const std::wstring& path);

// Deletes a file if there is one.
void DeleteFileAt(const std::wstring& path);

// Throws SystemError when an existing file could not be replaced or deleted now: it is write-protected, or another
// program has it open.
void ExpectReplaceable(const std::wstring& path);

// Gives a file the name of another one, whose place it takes in one step.
void MoveOver(const std::wstring& from, const std::wstring& to);

// New content that waits beside a file until it takes the file's place. It is flushed to the disk first, so a crash
// leaves either the old file or the new one. Content that has not taken the place is removed with the object.
class FileBeside {
  public:
    // Throws as ExpectReplaceable does.
    FileBeside(const std::wstring& path, std::string_view bytes);
    ~FileBeside();
    FileBeside(FileBeside&& other) noexcept;
    FileBeside& operator=(FileBeside&&) = delete;

    void TakePlace();

    // What a program that ended in between has left beside a file: takes its place, or is removed, where it is there.
    static bool IsLeft(const std::wstring& path);
    static void TakePlaceLeft(const std::wstring& path);
    static void RemoveLeft(const std::wstring& path);

  private:
    std::wstring path;
    bool waiting = true;
};

// Opens a file, a new one where there is none, for reading and writing as long as no other program has it open. Null,
// and the code in GetLastError, where that fails.
UniqueFile OpenAlone(const std::wstring& path);

// Replaces the whole of a single file.
void ReplaceFileBytes(const std::wstring& path, std::string_view bytes);
