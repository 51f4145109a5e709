#include "tests/desktop/Desktop.h"

#include "platform/Process.h"

#include <oleacc.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace {

// With the place in the same event: a late echo of an earlier movement could otherwise come between.
INPUT MouseAt(POINT place, DWORD flags) {
    const auto normalized = [](LONG position, int metric) {
        const LONG extent = GetSystemMetrics(metric);
        return (position * 0x10000 + extent - 1) / extent;
    };
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    input.mi.dx = normalized(place.x, SM_CXSCREEN);
    input.mi.dy = normalized(place.y, SM_CYSCREEN);
    return input;
}

size_t namesAsked = 0;

}  // namespace

RECT AreaOf(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    return area;
}

POINT MiddleOf(HWND window) {
    const RECT area = AreaOf(window);
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

void MoveMouseTo(HWND window) {
    // A window that has just opened may not lie under the mouse yet, and an earlier movement may still be under way.
    int settled = 0;
    const bool there = Eventually([&] {
        const POINT wanted = MiddleOf(window);
        POINT mouse{};
        GetCursorPos(&mouse);
        const bool onTop = GetAncestor(WindowFromPoint(wanted), GA_ROOT) == GetAncestor(window, GA_ROOT);
        const bool over = onTop && mouse.x == wanted.x && mouse.y == wanted.y;
        if (!over) SetCursorPos(wanted.x, wanted.y);
        settled = over ? settled + 1 : 0;
        return settled >= 3;
    });
    if (!there) throw std::runtime_error("the mouse does not reach the window");
}

void ClickAt(POINT place, bool rightButton) {
    std::array inputs{MouseAt(place, rightButton ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN),
                      MouseAt(place, rightButton ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP)};
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

void Click(HWND window, bool rightButton) {
    MoveMouseTo(window);
    ClickAt(MiddleOf(window), rightButton);
}

void SendKey(WORD key, DWORD flags) {
    const bool character = flags & KEYEVENTF_UNICODE;
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = character ? 0 : key;
    input.ki.wScan = character ? key : static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof(INPUT));
}

void Key(WORD key, bool control) {
    if (control) SendKey(VK_CONTROL);
    SendKey(key);
    SendKey(key, KEYEVENTF_KEYUP);
    if (control) SendKey(VK_CONTROL, KEYEVENTF_KEYUP);
}

std::wstring BuildFolder() {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return path.substr(0, path.rfind(L'\\') + 1);
}

bool Eventually(const std::function<bool()>& condition, int milliseconds) {
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(milliseconds);
    while (!condition()) {
        if (GetTickCount64() > end) return false;
        Sleep(20);
    }
    return true;
}

DWORD ProcessOf(HWND window) {
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    return id;
}

bool IsKind(HWND window, const wchar_t* className) {
    std::array<wchar_t, 64> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return lstrcmpiW(name.data(), className) == 0;
}

std::wstring TextOf(HWND window) {
    std::array<wchar_t, 1024> text{};
    DWORD_PTR length = 0;
    SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), SMTO_NORMAL, 5000,
                        &length);
    return text.data();
}

std::wstring SpokenName(HWND control, LONG part) {
    ++namesAsked;
    // For what comes from another process.
    static const HRESULT library = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    void* pointer = nullptr;
    if (FAILED(library) ||
        FAILED(AccessibleObjectFromWindow(control, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), &pointer)))
        return {};
    const UniqueCom<IAccessible> object(static_cast<IAccessible*>(pointer));
    VARIANT asked{};
    asked.vt = VT_I4;
    asked.lVal = part;
    BSTR name = nullptr;
    object->get_accName(asked, &name);
    const std::wstring text = name ? name : L"";
    SysFreeString(name);
    return text;
}

size_t SpokenNamesAsked() { return namesAsked; }

std::string Utf8(const std::wstring& text) {
    const std::u8string bytes = std::filesystem::path(text).u8string();
    return {bytes.begin(), bytes.end()};
}

std::wstring Wide(const std::string& utf8) {
    return std::filesystem::path(std::u8string(utf8.begin(), utf8.end())).wstring();
}

// The name is found on the whole machine, outside of Wine too: the processor's time sets it apart from those of others.
TestFolder::TestFolder() {
    std::array<wchar_t, MAX_PATH> temporary{};
    GetTempPathW(MAX_PATH, temporary.data());
    LARGE_INTEGER time{};
    QueryPerformanceCounter(&time);
    path = std::wstring(temporary.data()) + L"tvx" + std::to_wstring(GetCurrentProcessId()) + L"_" +
           std::to_wstring(time.QuadPart) + L"\\";
    CreateDirectoryW(path.c_str(), nullptr);
}

TestFolder::~TestFolder() { Remove(path); }

void Remove(const std::wstring& path) {
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    if (DeleteFileW(path.c_str())) return;
    std::error_code failed;
    for (const auto& entry : std::filesystem::directory_iterator(path, failed)) Remove(entry.path().wstring());
    RemoveDirectoryW(path.c_str());
}

void WriteFileText(const std::wstring& path, const std::string& bytes) {
    std::ofstream file(path.c_str(), std::ios::binary);
    file << bytes;
    if (!file.good()) throw std::runtime_error("not written: " + Utf8(path));
}

std::string ReadFileText(const std::wstring& path) {
    std::ifstream file(path.c_str(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

bool Exists(const std::wstring& path) { return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES; }

Settings QuietSettings() {
    Settings settings;
    settings.SetButtonSound(0);
    settings.SetFlagSound(0);
    settings.OpenScorletAtStart = false;
    return settings;
}

ProgramRun::ProgramRun(const std::wstring& program) : process(StartProgram(program)) {}

ProgramRun::~ProgramRun() {
    if (WaitForSingleObject(process.get(), 0) == WAIT_TIMEOUT) {
        TerminateProcess(process.get(), 99);
        WaitForSingleObject(process.get(), 5000);
    }
}

std::vector<HWND> ProgramRun::Windows() const {
    std::pair<DWORD, std::vector<HWND>> found{GetProcessId(process.get()), {}};
    // Going from window to window would miss those after one that ends meanwhile.
    const auto take = [](HWND window, LPARAM to) -> BOOL {
        auto& [own, windows] = *reinterpret_cast<std::pair<DWORD, std::vector<HWND>>*>(to);
        if (ProcessOf(window) == own && IsWindowVisible(window)) windows.push_back(window);
        return TRUE;
    };
    EnumWindows(take, reinterpret_cast<LPARAM>(&found));
    return found.second;
}

HWND ProgramRun::FindWindowNow(const std::wstring& className) const {
    for (const HWND window : Windows()) {
        if (IsKind(window, className.c_str())) return window;
    }
    return nullptr;
}

HWND ProgramRun::Clock() {
    if (!clock && !Eventually([&] { return (clock = FindWindowNow(L"frmClock")) != nullptr; }))
        throw std::runtime_error("the clock does not open");
    return clock;
}

HWND ProgramRun::Focused() {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(GetWindowThreadProcessId(Clock(), nullptr), &info);
    return info.hwndFocus;
}
