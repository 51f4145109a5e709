#pragma once

#include <string>
#include <string_view>

// Windows are Unicode, files are in the system's ANSI code page. These two are the only way from one to the other.
std::wstring FromAnsi(std::string_view text);

// A character that the code page lacks becomes the code page's replacement character.
std::string ToAnsi(std::wstring_view text);
