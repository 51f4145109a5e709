#pragma once

#include "platform/Handles.h"
#include "resources/resource.h"
#include "settings/Settings.h"

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

// Drives the real program from outside: its windows are found on the desktop, mouse and keys go through the system.
// What does not come about by its deadline is a std::runtime_error.

// Waits until the condition holds; false after the deadline.
bool Eventually(const std::function<bool()>& condition, int milliseconds = 10000);

// Where the programs lie that the build makes, this one among them; with a trailing backslash.
std::wstring BuildFolder();

// Of a window of any process: its text, the lines of a list box, the name that a screen reader says.
std::wstring TextOf(HWND window);
std::vector<std::wstring> LinesOf(HWND list);
std::wstring SpokenName(HWND control);

std::string Utf8(const std::wstring& text);
std::wstring Wide(const std::string& utf8);

// The middle of a window on the screen, and the mouse put there.
POINT MiddleOf(HWND window);
void MoveMouseTo(HWND window);
// A click at a place of the screen, where the mouse need not have come to rest.
void ClickAt(POINT place, bool rightButton = false);
void Click(HWND window, bool rightButton = false);
void SendKey(WORD key, bool up);
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

// A file, or a folder with all it holds, write-protected or not.
void Remove(const std::wstring& path);
void WriteFileText(const std::wstring& path, const std::string& bytes);
std::string ReadFileText(const std::wstring& path);  // empty where there is no such file
bool Exists(const std::wstring& path);

// What the program has played, where the sound system of this machine writes it to a file.
std::wstring CaptureFile();
// Samples of the last sound played that are not silence: every sound begins the 16-bit stream anew.
size_t LoudSamples();

// Whether programs that start from now on find no sound device. Only Wine can be told so; elsewhere they find what
// there is.
void HideSoundDevice(bool hidden);

// The DEFAULT preset without sounds, and without the Scorlet where it is not asked for.
Settings QuietSettings(bool withScorlet = false);
// The settings file of a program in that folder.
void WriteSettingsFile(const std::wstring& programFolder, const Settings& settings);

// One run of torvanix.exe.
class ProgramRun {
  public:
    // Copies the program into the folder, and the settings when given, and starts it.
    explicit ProgramRun(const TestFolder& folder, const std::optional<Settings>& settings = std::nullopt);
    // Starts a program file where it is.
    explicit ProgramRun(const std::wstring& program);
    ~ProgramRun();
    ProgramRun(const ProgramRun&) = delete;
    ProgramRun& operator=(const ProgramRun&) = delete;

    // Its visible windows, the one in front first.
    std::vector<HWND> Windows() const;
    // The one of a class, null where there is none; and waited for.
    HWND FindWindowNow(const std::wstring& className) const;
    HWND WaitWindow(const std::wstring& className) const;
    HWND Message() const { return FindWindowNow(L"#32770"); }  // the message box that is open
    HWND Clock();                                              // the clock window, waited for once

    HWND Control(int id) { return GetDlgItem(Clock(), id); }
    std::wstring Text(int id) { return TextOf(Control(id)); }
    // Number of the control with the focus, -1 for a window without number, 0 for none.
    int Focused();

    // Closes the clock window; false when the process has not ended by the deadline.
    bool Close();
    bool WaitEnd(int milliseconds = 10000) const;
    DWORD ExitCode() const;
    HANDLE Process() const { return process.get(); }

  private:
    UniqueFile process;
    HWND clock = nullptr;
};
