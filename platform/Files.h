#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The first `limit` bytes of a file, all of a shorter one; nothing when there is no such file.
// Throws SystemError when it is there and cannot be read.
std::optional<std::vector<uint8_t>> ReadFileBytes(const std::wstring& path, size_t limit);

// Replaces the file whole: the bytes are written beside it and flushed to the disk before they take its place, so a
// crash leaves the old file or the new one. Throws SystemError with the old file untouched.
void ReplaceFileBytes(const std::wstring& path, std::string_view bytes);
