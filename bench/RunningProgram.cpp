#include "bench/RunningProgram.h"

#include "platform/Process.h"
#include "settings/SettingsFile.h"

#include <psapi.h>
#include <tlhelp32.h>

#include <algorithm>
#include <stdexcept>

double Now() {
    LARGE_INTEGER count, frequency;
    QueryPerformanceCounter(&count);
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(count.QuadPart) * 1000 / static_cast<double>(frequency.QuadPart);
}

double Percentile(std::vector<double> values, int hundredths) {
    std::sort(values.begin(), values.end());
    return values[(values.size() - 1) * static_cast<size_t>(hundredths) / 100];
}

Settings WithScorlet() {
    Settings settings = QuietSettings();
    settings.OpenScorletAtStart = true;
    return settings;
}

Installed::Installed(const Settings& settings) {
    CopyFileW((BuildFolder() + L"torvanix.exe").c_str(), Path().c_str(), FALSE);
    const std::wstring data = Folder() + L"Data\\";
    CreateDirectoryW(data.c_str(), nullptr);
    SettingsFile(data).Save(settings);
}

RunningProgram::RunningProgram(const std::wstring& path, const wchar_t* windowClass) {
    process = StartProgram(path);
    processId = GetProcessId(process.get());
    window = WaitWindow(windowClass);
    visible = Now() - start;
    SendMessageW(window, WM_NULL, 0, 0);
    ready = Now() - start;
}

double RunningProgram::WaitIdle() const {
    if (WaitForInputIdle(process.get(), 30000) != 0) throw std::runtime_error("a program does not come to rest");
    return Now() - start;
}

RunningProgram::~RunningProgram() {
    PostMessageW(window, WM_CLOSE, 0, 0);
    if (WaitForSingleObject(process.get(), 10000) == WAIT_TIMEOUT) TerminateProcess(process.get(), 1);
}

HWND RunningProgram::WaitWindow(const wchar_t* windowClass) const {
    for (const double end = Now() + 30000; Now() < end; Sleep(1)) {
        HWND found = nullptr;
        while ((found = FindWindowExW(nullptr, found, windowClass, nullptr)) != nullptr) {
            DWORD owner = 0;
            GetWindowThreadProcessId(found, &owner);
            if (owner == processId && IsWindowVisible(found)) return found;
        }
    }
    throw std::runtime_error("a window does not open");
}

double RunningProgram::CpuTime() const {
    // The threads' times are added up, since Wine tells those of another process, but not the time of the process
    // itself.
    const UniqueFile threads(CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0));
    THREADENTRY32 entry{};
    entry.dwSize = sizeof(entry);
    double total = 0;
    for (BOOL more = Thread32First(threads.get(), &entry); more; more = Thread32Next(threads.get(), &entry)) {
        if (entry.th32OwnerProcessID != processId) continue;
        const UniqueFile thread(OpenThread(THREAD_QUERY_INFORMATION, FALSE, entry.th32ThreadID));
        FILETIME created, ended, kernel, user;
        if (!thread || !GetThreadTimes(thread.get(), &created, &ended, &kernel, &user)) continue;
        for (const FILETIME& time : {kernel, user})
            total += static_cast<double>(ULARGE_INTEGER{{time.dwLowDateTime, time.dwHighDateTime}}.QuadPart) / 10000;
    }
    return total;
}

namespace {

PROCESS_MEMORY_COUNTERS MemoryOf(HANDLE process) {
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(process, &counters, sizeof(counters));
    return counters;
}

}  // namespace

size_t RunningProgram::WorkingSet() const { return MemoryOf(process.get()).WorkingSetSize; }

size_t RunningProgram::PrivateBytes() const { return MemoryOf(process.get()).PagefileUsage; }
