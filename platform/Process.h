#pragma once

#include "platform/Handles.h"

#include <string>

// Starts a program, shown as its own, and gives its process. `path` may be empty where the command line names it; an
// empty command line is the path alone; `folder` is the one that it starts in, that of this program where it is empty.
// Throws SystemError with the path, or else the command line.
UniqueFile StartProgram(const std::wstring& path, std::wstring commandLine = {}, const std::wstring& folder = {});
