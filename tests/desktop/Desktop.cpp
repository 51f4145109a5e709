#include "tests/desktop/Desktop.h"

#include "platform/Ansi.h"
#include "recorder/Square.h"
#include "settings/SettingsRecord.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace {

void RemoveFolder(const std::wstring& path) {
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((path + L"*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        const std::wstring name = found.cFileName;
        if (name == L"." || name == L"..") continue;
        SetFileAttributesW((path + name).c_str(), FILE_ATTRIBUTE_NORMAL);
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
            RemoveFolder(path + name + L"\\");
        else
            DeleteFileW((path + name).c_str());
    } while (FindNextFileW(search, &found));
    FindClose(search);
    RemoveDirectoryW(path.c_str());
}

void Send(std::vector<INPUT> inputs) { SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT)); }

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

POINT MiddleOf(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

INPUT Stroke(WORD key, bool up) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
    return input;
}

}  // namespace

void MoveMouseTo(HWND window) {
    // A window that has just opened may not lie under the mouse yet, and an earlier movement may still be under way.
    int settled = 0;
    const bool there = Eventually([&] {
        const POINT wanted = MiddleOf(window);
        POINT mouse{};
        GetCursorPos(&mouse);
        if (mouse.x != wanted.x || mouse.y != wanted.y) {
            SetCursorPos(wanted.x, wanted.y);
            settled = 0;
            return false;
        }
        const bool onTop = GetAncestor(WindowFromPoint(wanted), GA_ROOT) == GetAncestor(window, GA_ROOT);
        settled = onTop ? settled + 1 : 0;
        return settled >= 3;
    });
    EXPECT_TRUE(there) << "the mouse does not reach the window";
}

void ClickAt(POINT place, bool rightButton) {
    Send({MouseAt(place, rightButton ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN),
          MouseAt(place, rightButton ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP)});
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
        Sleep(15);
    }
    return true;
}

std::wstring TextOf(HWND window) {
    std::array<wchar_t, 1024> text{};
    DWORD_PTR length = 0;
    SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), SMTO_NORMAL, 5000,
                        &length);
    return text.data();
}

bool Becomes(HWND window, const std::wstring& text) {
    const bool reached = Eventually([&] { return TextOf(window) == text; });
    EXPECT_TRUE(reached) << "got " << testing::PrintToString(TextOf(window)) << ", want "
                         << testing::PrintToString(text);
    return reached;
}

std::vector<std::wstring> LinesOf(HWND list) {
    std::vector<std::wstring> lines(static_cast<size_t>(SendMessageW(list, LB_GETCOUNT, 0, 0)));
    for (size_t i = 0; i < lines.size(); ++i) {
        std::array<wchar_t, 256> line{};
        SendMessageW(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(line.data()));
        lines[i] = line.data();
    }
    return lines;
}

bool ComesToFront(HWND window) {
    return Eventually([&] { return GetForegroundWindow() == window; });
}

TestFolder::TestFolder() {
    std::array<wchar_t, MAX_PATH> temporary{};
    GetTempPathW(MAX_PATH, temporary.data());
    static int number = 0;
    path = std::wstring(temporary.data()) + L"tvxtest" + std::to_wstring(GetCurrentProcessId()) + L"_" +
           std::to_wstring(++number) + L"\\";
    RemoveFolder(path);
    CreateDirectoryW(path.c_str(), nullptr);
}

TestFolder::~TestFolder() { RemoveFolder(path); }

void WriteFileText(const std::wstring& path, const std::string& bytes) {
    std::ofstream file(path.c_str(), std::ios::binary);
    file << bytes;
    ASSERT_TRUE(file.good());
}

std::string ReadFileText(const std::wstring& path) {
    std::ifstream file(path.c_str(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

bool Exists(const std::wstring& path) { return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES; }

std::wstring CaptureFile() {
    const wchar_t* path = _wgetenv(L"TORVANIX_SOUND_CAPTURE");
    return path ? path : L"";
}

size_t LoudSamples() {
    const std::string stream = ReadFileText(CaptureFile());
    size_t count = 0;
    for (size_t i = 0; i + 1 < stream.size(); i += 2) {
        const auto sample =
            static_cast<int16_t>(static_cast<uint8_t>(stream[i]) | static_cast<uint8_t>(stream[i + 1]) << 8);
        if (std::abs(sample) > 2000) ++count;
    }
    return count;
}

NoSoundDevice::NoSoundDevice() {
    if (RegOpenKeyExW(HKEY_CURRENT_USER, L"Software\\Wine\\Drivers", 0, KEY_QUERY_VALUE | KEY_SET_VALUE, &drivers) != 0)
        return;
    std::array<wchar_t, 64> value{};
    DWORD bytes = sizeof(value) - sizeof(wchar_t);
    RegQueryValueExW(drivers, L"Audio", nullptr, nullptr, reinterpret_cast<BYTE*>(value.data()), &bytes);
    before = value.data();
    RegSetValueExW(drivers, L"Audio", 0, REG_SZ, reinterpret_cast<const BYTE*>(L""), sizeof(wchar_t));
}

NoSoundDevice::~NoSoundDevice() {
    if (!drivers) return;
    RegSetValueExW(drivers, L"Audio", 0, REG_SZ, reinterpret_cast<const BYTE*>(before.c_str()),
                   static_cast<DWORD>((before.size() + 1) * sizeof(wchar_t)));
    RegCloseKey(drivers);
}

HWND EditorText() {
    HWND text = nullptr;
    EXPECT_TRUE(Eventually([&] {
        const HWND editor = FindWindowW(L"Notepad", nullptr);
        return editor && IsWindowVisible(editor) && (text = GetWindow(editor, GW_CHILD)) != nullptr;
    })) << "no editor";
    return text;
}

void EndEditor() {
    DWORD process = 0;
    GetWindowThreadProcessId(EditorText(), &process);
    const UniqueFile handle(OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, process));
    TerminateProcess(handle.get(), 0);
    WaitForSingleObject(handle.get(), 5000);
}

HiddenFile::HiddenFile(std::wstring path)
    : path(std::move(path)), renamed(MoveFileW(this->path.c_str(), (this->path + L".away").c_str()) != 0) {}

HiddenFile::~HiddenFile() {
    if (renamed) MoveFileW((path + L".away").c_str(), path.c_str());
}

Settings QuietSettings(bool withScorlet) {
    Settings settings;
    settings.SetButtonSound(0);
    settings.SetFlagSound(0);
    settings.OpenScorletAtStart = withScorlet;
    return settings;
}

void WriteSettingsFile(const std::wstring& programFolder, const Settings& settings) {
    CreateDirectoryW((programFolder + L"Data").c_str(), nullptr);
    WriteFileText(programFolder + L"Data\\TORVANIX.set", EncodeRecord(EncodeSettings(settings)));
}

namespace {

std::wstring PutInto(const std::wstring& folder, const std::optional<Settings>& settings) {
    CopyFileW((BuildFolder() + L"torvanix.exe").c_str(), (folder + L"torvanix.exe").c_str(), FALSE);
    if (settings) WriteSettingsFile(folder, *settings);
    return folder + L"torvanix.exe";
}

}  // namespace

ProgramRun::ProgramRun(const TestFolder& folder, const std::optional<Settings>& settings)
    : ProgramRun(PutInto(folder.Path(), settings)) {}

ProgramRun::ProgramRun(const std::wstring& program) {
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(program.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &started))
        ADD_FAILURE() << "torvanix.exe does not start: error " << GetLastError();
    process.reset(started.hProcess);
    CloseHandle(started.hThread);
    processId = started.dwProcessId;
}

ProgramRun::~ProgramRun() {
    if (WaitForSingleObject(process.get(), 0) == WAIT_TIMEOUT) {
        TerminateProcess(process.get(), 99);
        WaitForSingleObject(process.get(), 5000);
    }
}

HWND ProgramRun::FindWindowNow(const wchar_t* className) const {
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, className, nullptr)) != nullptr) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == processId && IsWindowVisible(window)) return window;
    }
    return nullptr;
}

HWND ProgramRun::WaitWindow(const wchar_t* className) const {
    HWND window = nullptr;
    Eventually([&] { return (window = FindWindowNow(className)) != nullptr; }, 20000);
    return window;
}

HWND ProgramRun::Clock() {
    if (!clock) {
        clock = WaitWindow(L"frmClock");
        EXPECT_TRUE(clock) << "the clock window does not open";
        // Input sent before the window is in front would go elsewhere.
        Eventually([&] { return GetForegroundWindow() == clock || HasMessage(); });
    }
    return clock;
}

int ProgramRun::Focused() {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    if (!GetGUIThreadInfo(GetWindowThreadProcessId(Clock(), nullptr), &info) || !info.hwndFocus) return 0;
    return info.hwndFocus == Clock() ? -1 : GetDlgCtrlID(info.hwndFocus);
}

bool ProgramRun::FocusComes(int id) {
    Clock();  // the start of the program has a deadline of its own
    const bool reached = Eventually([&] { return Focused() == id; });
    EXPECT_TRUE(reached) << "the focus is on " << Focused() << ", not on " << id;
    return reached;
}

int ProgramRun::Seconds(Side side) {
    int hours = 0, minutes = 0, seconds = 0;
    const std::wstring text = Text(ControlOf(lblFace, side));
    if (swscanf(text.c_str(), L"%d:%d:%d", &hours, &minutes, &seconds) != 3)
        ADD_FAILURE() << "no time on the face: " << std::string(text.begin(), text.end());
    return hours * 3600 + minutes * 60 + seconds;
}

std::string ProgramRun::Lines(Side side) const {
    std::string lines;
    for (const std::wstring& line : LinesOf(GetDlgItem(FindWindowNow(L"frmScorlet"), ControlOf(lstMoves, side))))
        lines += (lines.empty() ? "" : "|") + ToAnsi(line);
    return lines;
}

void ProgramRun::ExpectLists(const std::string& wanted) const {
    EXPECT_TRUE(Eventually([&] { return Lists() == wanted; })) << "got " << Lists() << "\nwant " << wanted;
}

void ProgramRun::Play(std::string_view move) const {
    const HWND scorlet = FindWindowNow(L"frmScorlet");
    for (const size_t at : {0, 2}) Click(GetDlgItem(scorlet, picBoard + static_cast<int>(SquareNamed(move.substr(at, 2)))));
}

void ProgramRun::Click(HWND window, bool rightButton) const {
    MoveMouseTo(window);
    ClickAt(MiddleOf(window), rightButton);
}

void ProgramRun::Key(WORD key, bool control) const {
    std::vector<INPUT> inputs{Stroke(key, false), Stroke(key, true)};
    if (control) {
        inputs.insert(inputs.begin(), Stroke(VK_CONTROL, false));
        inputs.push_back(Stroke(VK_CONTROL, true));
    }
    Send(inputs);
}

void ProgramRun::Choose(int menu, int entry) const {
    Key(VK_F10);
    for (int i = 0; i < menu; ++i) Key(VK_RIGHT);
    for (int i = 0; i <= entry; ++i) Key(VK_DOWN);
    Key(VK_RETURN);
}

std::wstring ProgramRun::MessageText() const {
    const HWND box = WaitWindow(L"#32770");
    if (!box) {
        ADD_FAILURE() << "no message box";
        return {};
    }
    // The icon is a static control too, without a text.
    std::wstring text;
    HWND control = nullptr;
    while ((control = FindWindowExW(box, control, L"Static", nullptr)) != nullptr) text += TextOf(control);
    return text;
}

void ProgramRun::Answer(int button) const {
    const HWND box = WaitWindow(L"#32770");
    ASSERT_TRUE(box) << "no message box";
    const HWND control = GetDlgItem(box, button);
    ASSERT_TRUE(control) << "the box has no button " << button;
    Click(control);
    EXPECT_TRUE(Eventually([&] { return !IsWindow(box); })) << "the message box stays open";
}

bool ProgramRun::Ended(HWND dialog) {
    return Eventually([&] { return !IsWindow(dialog) && IsWindowEnabled(Clock()); });
}

bool ProgramRun::Close() {
    PostMessageW(Clock(), WM_CLOSE, 0, 0);
    return WaitEnd();
}

bool ProgramRun::WaitEnd(int milliseconds) const {
    return WaitForSingleObject(process.get(), static_cast<DWORD>(milliseconds)) == WAIT_OBJECT_0;
}

DWORD ProgramRun::ExitCode() const {
    DWORD code = 0;
    GetExitCodeProcess(process.get(), &code);
    return code;
}
