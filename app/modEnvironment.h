#pragma once

#include "platform/Environment.h"
#include "platform/clsFileSystem.h"
#include "texts/Texts.h"

#include <string>

// The start of the program up to the opening of the clock window.
namespace modEnvironment {

// The folder of the running program file, with its backslash.
std::wstring FindProgramFolder();

// Makes a folder that is missing. The status says why it could not be made.
HRESULT EnsureFolder(const clsFileSystem& fileSystem, const std::wstring& folder);

// Finds the paths, makes the folders that are missing and writes the start-up entries of the log.
Environment Establish(clsFileSystem& fileSystem, const Texts& texts);

}  // namespace modEnvironment
