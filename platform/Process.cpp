#include "platform/Process.h"

#include "platform/SystemError.h"

UniqueFile StartProgram(const std::wstring& path, std::wstring commandLine, const std::wstring& folder) {
    const auto orNone = [](const std::wstring& text) { return text.empty() ? nullptr : text.c_str(); };
    if (commandLine.empty()) commandLine = L"\"" + path + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(orNone(path), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, orNone(folder), &startup,
                        &started))
        throw SystemError(GetLastError(), path.empty() ? commandLine : path);
    CloseHandle(started.hThread);
    return UniqueFile(started.hProcess);
}
