#pragma once

#include <string>
#include <string_view>

// Texts in windows are Unicode, those in files are in the system's ANSI code page. These functions are the only way
// from one to the other.
std::wstring FromAnsi(std::string_view text);

// Of a character that the code page lacks the nearest letters, "S" of a letter S with a cedilla; "?" if there are none.
std::string ToAnsi(std::wstring_view text);

// For the files that other programs read too, which are in UTF-8.
std::string ToUtf8(std::wstring_view text);

// Bytes that are no UTF-8 become replacement characters.
std::wstring FromUtf8(std::string_view text);
