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

// Waits until the condition holds; false after the deadline.
bool Eventually(const std::function<bool()>& condition, int milliseconds = 10000);

// Where the programs lie that the build makes, this one among them; with a trailing backslash.
std::wstring BuildFolder();

// Text of a window of any process, and whether it comes to be this one.
std::wstring TextOf(HWND window);
bool Becomes(HWND window, const std::wstring& text);
// The lines of a list box of any process.
std::vector<std::wstring> LinesOf(HWND list);
// Whether a window comes to the front.
bool ComesToFront(HWND window);

// Puts the mouse on the middle of a window.
void MoveMouseTo(HWND window);
// A click at a place of the screen, where the mouse need not have come to rest.
void ClickAt(POINT place, bool rightButton = false);

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

void WriteFileText(const std::wstring& path, const std::string& bytes);
std::string ReadFileText(const std::wstring& path);  // empty where there is no such file
bool Exists(const std::wstring& path);

// What the program has played, where the sound system of this machine writes it to a file; empty where it does not.
std::wstring CaptureFile();
// Samples of the last sound played that are not silence: every sound begins the 16-bit stream anew.
size_t LoudSamples();

// Programs that start within the scope find no sound device. Only Wine can be told so; elsewhere they find what there
// is.
class NoSoundDevice {
  public:
    NoSoundDevice();
    ~NoSoundDevice();
    NoSoundDevice(const NoSoundDevice&) = delete;
    NoSoundDevice& operator=(const NoSoundDevice&) = delete;

  private:
    HKEY drivers = nullptr;
    std::wstring before;
};

// The text field of the editor into which the program prints, waited for; and the end of that editor.
HWND EditorText();
void EndEditor();

// A file that is renamed for the life of the scope.
class HiddenFile {
  public:
    explicit HiddenFile(std::wstring path);
    ~HiddenFile();
    HiddenFile(const HiddenFile&) = delete;
    HiddenFile& operator=(const HiddenFile&) = delete;

  private:
    std::wstring path;
    bool renamed;
};

// The DEFAULT preset without sounds, and without the Scorlet where it is not asked for.
Settings QuietSettings(bool withScorlet = false);
// The settings file of a program in that folder.
void WriteSettingsFile(const std::wstring& programFolder, const Settings& settings);

// One run of torvanix.exe in a test folder.
class ProgramRun {
  public:
    // Copies the program into the folder, and the settings when given, and starts it.
    explicit ProgramRun(const TestFolder& folder, const std::optional<Settings>& settings = std::nullopt);
    // Starts a program file where it is.
    explicit ProgramRun(const std::wstring& program);
    ~ProgramRun();
    ProgramRun(const ProgramRun&) = delete;
    ProgramRun& operator=(const ProgramRun&) = delete;

    // The visible window of that class of the program; waits for it, null after the deadline.
    HWND WaitWindow(const wchar_t* className) const;
    HWND FindWindowNow(const wchar_t* className) const;
    HWND Clock();  // the clock window, waited for once

    HWND Control(int id) { return GetDlgItem(Clock(), id); }
    std::wstring Text(int id) { return TextOf(Control(id)); }
    bool Visible(int id) { return IsWindowVisible(Control(id)); }
    bool Enabled(int id) { return IsWindowEnabled(Control(id)); }
    int Focused();  // number of the control with the focus, -1 for a window without number, 0 for none
    bool FocusComes(int id);
    bool Becomes(int id, const std::wstring& text) { return ::Becomes(Control(id), text); }

    // Seconds on a side's face.
    int Seconds(Side side);

    // Of the Scorlet: the lines of a list as "1. e4|2. Nf3", both lists as "1. e4|2. Nf3 / e5", and a move given as
    // "e2e4" entered by clicks.
    std::string Lines(Side side) const;
    std::string Lists() const { return Lines(White) + " / " + Lines(Black); }
    void ExpectLists(const std::string& wanted) const;
    void Play(std::string_view move) const;

    // Real input.
    void Click(HWND window, bool rightButton = false) const;
    void Click(int id, bool rightButton = false) { Click(Control(id), rightButton); }
    void Key(WORD key, bool control = false) const;

    // Chooses an entry of the menu bar by the arrow keys: the menu and the entry by their places, separators not
    // counted.
    void Choose(int menu, int entry) const;

    // The message box that is open, waited for: its text, then the click on one of its buttons.
    std::wstring MessageText() const;
    void Answer(int button) const;
    bool HasMessage() const { return FindWindowNow(L"#32770") != nullptr; }

    // Waits until a dialog over the clock has ended.
    bool Ended(HWND dialog);

    // Closes the clock window; false when the process has not ended by the deadline.
    bool Close();
    bool WaitEnd(int milliseconds = 10000) const;
    DWORD ExitCode() const;
    HANDLE Process() const { return process.get(); }

  private:
    UniqueFile process;
    DWORD processId = 0;
    HWND clock = nullptr;
};
