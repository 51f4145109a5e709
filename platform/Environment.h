#pragma once

#include "platform/WindowsVersion.h"

#include <windows.h>

#include <string>

// Where everything lies, and what system this is; established once at the start. Every folder path ends with a
// backslash.
struct Environment {
    std::wstring ProductTitle;  // the name of the program
    std::string OsName;         // "WINDOWSXP", or "NONE"
    Appearance Look{};

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
