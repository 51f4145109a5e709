#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Files by their full paths, of any length that the system can hold. What fails throws SystemError with the path.

// The first `limit` bytes of a file, all of a shorter one; nothing when there is no such file.
std::optional<std::vector<uint8_t>> ReadFileBytes(const std::wstring& path, size_t limit);

// Whether there is a file, not a folder.
bool FileExists(const std::wstring& path);

// Names of the files in a folder, given with its trailing backslash; none where there is no such folder.
std::vector<std::wstring> FilesIn(const std::wstring& folder);

// Makes a folder where there is none; failures are left to what is done in it.
void MakeFolder(const std::wstring& path);

void DeleteFileAt(const std::wstring& path);

// Throws SystemError when an existing file could not be replaced or deleted as things stand: it is write-protected, or
// another program has it open.
void ExpectReplaceable(const std::wstring& path);

// New content that waits beside a file until it takes its place: it is flushed to the disk before, so a crash leaves
// the old file or the new one. What has not taken its place is removed again.
class FileBeside {
  public:
    // Refused as by ExpectReplaceable.
    FileBeside(const std::wstring& path, std::string_view bytes);
    ~FileBeside();
    FileBeside(FileBeside&& other) noexcept;
    FileBeside& operator=(FileBeside&&) = delete;

    void TakePlace();

  private:
    std::wstring path;
    bool waiting = true;
};

// Replaces one file whole.
void ReplaceFileBytes(const std::wstring& path, std::string_view bytes);
