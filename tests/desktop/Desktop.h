#pragma once

#include "platform/Handles.h"
#include "resources/resource.h"
#include "settings/Settings.h"

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

// Drives the real program from outside: its windows are found on the desktop, mouse and keys go through the system.
// What does not come about by its deadline is a std::runtime_error.

// Waits until the condition holds; false after the deadline.
// A busy machine is slow; only a test that fails waits so long.
inline constexpr int Patience = 30000;  // milliseconds
bool Eventually(const std::function<bool()>& condition, int milliseconds = Patience);

// Where the programs lie that the build makes, this one among them; with a trailing backslash.
std::wstring BuildFolder();

// Of a window of any process: the process, whether it is of a class, its text, the name that a screen reader says.
DWORD ProcessOf(HWND window);
bool IsKind(HWND window, const wchar_t* className);
std::wstring TextOf(HWND window);
std::wstring SpokenName(HWND control, LONG part = CHILDID_SELF);
size_t SpokenNamesAsked();

std::string Utf8(const std::wstring& text);
std::wstring Wide(const std::string& utf8);

// Where a window is on the screen, its middle, and the mouse put there.
RECT AreaOf(HWND window);
POINT MiddleOf(HWND window);
void MoveMouseTo(HWND window);
// A click at a place of the screen, where the mouse need not have come to rest.
void ClickAt(POINT place, bool rightButton = false);
void Click(HWND window, bool rightButton = false);
void SendKey(WORD key, DWORD flags = 0);
// A key down and up, with Ctrl held where it is asked for.
void Key(WORD key, bool control = false);

// A folder of its own for a test, removed with all it holds.
class TestFolder {
  public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    // With a trailing backslash.
    const std::wstring& Path() const { return path; }

  private:
    std::wstring path;
};

void Remove(const std::wstring& path);  // a file, or a folder with all it holds
void WriteFileText(const std::wstring& path, const std::string& bytes);
std::string ReadFileText(const std::wstring& path);  // empty where there is no such file
bool Exists(const std::wstring& path);

// The DEFAULT preset without sounds and without the Scorlet.
Settings QuietSettings();

// One run of the program at a path, ended with the object.
class ProgramRun {
  public:
    explicit ProgramRun(const std::wstring& path);
    ~ProgramRun();

    // Its visible windows, the one in front first.
    std::vector<HWND> Windows() const;
    // The one of a class, null where there is none.
    HWND FindWindowNow(const std::wstring& className) const;
    HWND Message() const { return FindWindowNow(L"#32770"); }  // the message box that is open
    HWND Clock();                                              // the clock window, waited for

    HWND Control(int id) { return GetDlgItem(Clock(), id); }
    HWND Focused();

    HANDLE Process() const { return process.get(); }

  private:
    UniqueFile process;
    HWND clock = nullptr;
};
