#pragma once

#include "platform/Handles.h"

#include <windows.h>

#include <oaidl.h>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

// The result of an operation, with its status: success or the system's failure code.
template <typename Value>
struct Outcome {
    HRESULT Status;
    Value Result;
};

// Folders, files and the program's log, by way of the scripting runtime's file-system object. Its members are called by
// name, so the program starts on a system that lacks it; every operation then reports that as its status.
class clsFileSystem {
  public:
    enum class DateKind { Created, LastModified, LastAccessed };

    // COM must be initialised for as long as the object lives.
    clsFileSystem();

    Outcome<std::vector<std::wstring>> SubfolderNames(const std::wstring& folder) const;
    Outcome<std::vector<std::wstring>> FileNames(const std::wstring& folder) const;
    Outcome<bool> FileExists(const std::wstring& file) const;
    Outcome<bool> DriveExists(const std::wstring& drive) const;
    Outcome<bool> FolderExists(const std::wstring& folder) const;
    HRESULT CreateFolder(const std::wstring& folder) const;
    HRESULT DeleteFolder(const std::wstring& folder) const;
    Outcome<DATE> FileDate(const std::wstring& file, DateKind kind) const;
    Outcome<DATE> FolderDate(const std::wstring& folder, DateKind kind) const;

    // The folder of WriteLog's log, with its trailing backslash.
    void SetLogFolder(const std::wstring& folder) { logFolder = folder; }

    // Appends an entry to TORVANIX.log in the log folder, with the status and the text that belong to the event.
    // Without the folder nothing is written, and that is a success.
    HRESULT WriteLog(int32_t code, int32_t status = 0, const std::wstring& text = {});

    // The text of the last entry's message line.
    const std::wstring& LastMessage() const { return lastMessage; }

  private:
    Outcome<bool> Exists(const wchar_t* member, const std::wstring& path) const;
    Outcome<std::vector<std::wstring>> Names(const std::wstring& folder, const wchar_t* collection) const;
    Outcome<DATE> Date(const wchar_t* getter, const std::wstring& path, DateKind kind) const;

    UniqueCom<IDispatch> fileSystem;
    HRESULT created;
    std::wstring logFolder;
    std::wstring lastMessage;
};
