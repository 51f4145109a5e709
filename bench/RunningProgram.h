#pragma once

#include "platform/Handles.h"
#include "settings/Settings.h"
#include "tests/desktop/Desktop.h"

#include <windows.h>

#include <string>
#include <vector>

// The system's performance counter in milliseconds.
double Now();

// The value that so many hundredths of the values do not exceed. There must be at least one value.
double Percentile(std::vector<double> values, int hundredths);

// The settings of the tests, with the Scorlet opened at the start.
Settings WithScorlet();

// A folder with the program and its settings.
class Installed {
  public:
    explicit Installed(const Settings& settings);
    const std::wstring& Folder() const { return folder.Path(); }  // with a trailing backslash
    std::wstring Path() const { return Folder() + L"torvanix.exe"; }

  private:
    TestFolder folder;
};

// A program that is measured from outside. It is ended with the object.
class RunningProgram {
  public:
    // Starts it and waits until its window of that class is visible and answers. Throws std::exception.
    RunningProgram(const std::wstring& path, const wchar_t* windowClass);
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    HWND Window() const { return window; }
    HWND WaitWindow(const wchar_t* windowClass) const;

    // Milliseconds from the start until the window was visible, and until it had been drawn and answered.
    double Visible() const { return visible; }
    double Ready() const { return ready; }
    // The same until it has dealt with all messages for the first time, and so has drawn all that it opens by itself.
    double WaitIdle() const;

    // Milliseconds of processor time that its threads have used.
    double CpuTime() const;

    // Bytes.
    size_t WorkingSet() const;
    size_t PrivateBytes() const;

  private:
    UniqueFile process;
    DWORD processId = 0;
    HWND window = nullptr;
    double start = Now(), visible = 0, ready = 0;
};
