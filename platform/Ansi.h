#pragma once

#include <optional>
#include <string>
#include <string_view>

// Texts in windows are Unicode, those in files are in the system's ANSI code page. These functions are the only way
// from one to the other.
std::wstring FromAnsi(std::string_view text);

// A character that the code page lacks becomes the code page's replacement character.
std::string ToAnsi(std::wstring_view text);

// No value if the code page cannot give every character back.
std::optional<std::string> ToAnsiExactly(std::wstring_view text);

// For the files that other programs read too, which are in UTF-8.
std::string ToUtf8(std::wstring_view text);

// Bytes that are no UTF-8 become replacement characters.
std::wstring FromUtf8(std::string_view text);
