#pragma once

#include "platform/WindowsVersion.h"
#include "platform/clsFileSystem.h"
#include "texts/Texts.h"

#include <string>

// Where everything lies, and what system this is; established once at start-up.
namespace modEnvironment {

// Every folder path ends with a backslash.
struct Environment {
    std::wstring ProductTitle;  // title of message boxes
    std::string OsName;         // "WINDOWSXP", or "NONE"
    Appearance Appearance;

    std::wstring ProgramFolder;
    std::wstring ImagesFolder;
    std::wstring SavedGamesFolder;
    std::wstring DataFolder;
    std::wstring WindowsFolder;
    std::wstring SystemFolder;
    std::wstring SystemDrive;
    std::wstring LogFilesFolder;
    std::wstring NotepadPath;     // empty when there is none
    std::wstring HelpViewerPath;  // empty when there is none

    HRESULT SavedGamesStatus = S_OK;  // why the folder of saved games could not be made
};

// The folder of the running program file, with its backslash.
std::wstring FindProgramFolder();

// Makes a folder that is missing. The status says why it could not be made.
HRESULT EnsureFolder(const clsFileSystem& fileSystem, const std::wstring& folder);

// The start procedure up to the opening of the clock window: finds the paths, makes the folders that are missing and
// writes the start-up entries of the log.
Environment Establish(clsFileSystem& fileSystem, const Texts& texts);

}  // namespace modEnvironment
