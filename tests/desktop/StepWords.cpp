#include "tests/desktop/Steps.h"

#include "app/WindowPlaces.h"
#include "platform/Ansi.h"
#include "platform/Process.h"
#include "settings/SettingsRecord.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <sstream>

// The words of the steps.

namespace {

const std::map<std::string, WORD> NamedKeys{
    {"Space", VK_SPACE},  {"Enter", VK_RETURN},  {"Esc", VK_ESCAPE}, {"Tab", VK_TAB},     {"Back", VK_BACK},
    {"Left", VK_LEFT},    {"Right", VK_RIGHT},   {"Up", VK_UP},      {"Down", VK_DOWN},   {"Home", VK_HOME},
    {"End", VK_END},      {"PageDown", VK_NEXT}, {"Apps", VK_APPS},  {"F1", VK_F1},       {"F4", VK_F4},
    {"F6", VK_F6},        {"F10", VK_F10},       {"F11", VK_F11},    {"Quote", VK_OEM_7}, {"Insert", VK_INSERT},
    {"Ctrl", VK_CONTROL},
};

WORD CodeOf(const std::string& key) { return key.size() == 1 ? static_cast<WORD>(key[0]) : NamedKeys.at(key); }

// "Ctrl+R", "Down*3".
void Stroke(const std::string& keys) {
    const bool control = keys.starts_with("Ctrl+");
    const size_t times = keys.find('*');
    const WORD code = CodeOf(keys.substr(control ? 5 : 0, times - (control ? 5 : 0)));
    for (int left = times == std::string::npos ? 1 : std::stoi(keys.substr(times + 1)); left > 0; --left)
        Key(code, control);
}

// A text of several lines, their ends as "|".
std::string InOneLine(std::string text) {
    for (size_t at; (at = text.find("\r\n")) != std::string::npos;) text.replace(at, 2, "|");
    return text;
}

void Until(const std::function<bool()>& condition, const std::string& otherwise, int milliseconds = Patience) {
    if (!Eventually(condition, milliseconds)) Fail(otherwise);
}

// "Field=value", or "Field=White's,Black's".
void Set(Settings& settings, const std::string& assigned) {
    const size_t sign = assigned.find('=');
    const std::string name = assigned.substr(0, sign), value = assigned.substr(sign + 1), black = "," + value;
    const int32_t number = std::atoi(value.c_str());
    const std::array<int32_t, 2> pair{number, std::atoi(black.c_str() + black.rfind(',') + 1)};
    const std::map<std::string, std::function<void()>> fields{
        {"White", [&] { settings.PlayerNames[White] = ToAnsi(Wide(value)); }},
        {"Black", [&] { settings.PlayerNames[Black] = ToAnsi(Wide(value)); }},
        {"ClockType", [&] { settings.SetClockType(number); }},
        {"FirstPeriod", [&] { settings.Control.PeriodLimit = pair; }},
        {"Bonus", [&] { settings.Control.MoveBonus = pair; }},
        {"CountDown", [&] { settings.Control.CountTimeDown = number; }},
        {"TurnClock", [&] { settings.TurnClock = number; }},
        {"Scorlet", [&] { settings.OpenScorletAtStart = number; }},
        {"Pgn", [&] { settings.WritePgn = number; }},
        {"Language", [&] { settings.LanguageIndex = number; }},
        {"LowTime", [&] { settings.LowTime = number; }},
        {"ButtonSound", [&] { settings.SetButtonSound(number); }},
        {"FlagSound", [&] { settings.SetFlagSound(number); }},
    };
    fields.at(name)();
}

// What the program has played, where the sound system of this machine writes it to a file.
std::wstring CaptureFile() {
    const wchar_t* path = _wgetenv(L"TORVANIX_SOUND_CAPTURE");
    return path ? path : throw std::runtime_error("TORVANIX_SOUND_CAPTURE names no file");
}

// Samples of the last sound played that are not silence: every sound begins the 16-bit stream anew.
size_t LoudSamples() {
    const std::string stream = ReadFileText(CaptureFile());
    std::vector<int16_t> samples(stream.size() / sizeof(int16_t));
    std::memcpy(samples.data(), stream.data(), samples.size() * sizeof(int16_t));
    return static_cast<size_t>(
        std::count_if(samples.begin(), samples.end(), [](int16_t sample) { return std::abs(sample) > 2000; }));
}

HWND EditorText() {
    const HWND editor = FindWindowW(L"Notepad", nullptr);
    return editor && IsWindowVisible(editor) ? GetWindow(editor, GW_CHILD) : nullptr;
}

Box BoxOf(HWND window) {
    const RECT area = AreaOf(window);
    return {area.left, area.top, area.right - area.left, area.bottom - area.top};
}

std::string TextOf(const Box& box) {
    std::ostringstream text;
    text << box.Left << ":" << box.Top << " " << box.Width << "x" << box.Height;
    return text.str();
}

DWORD ExitCodeOf(HANDLE process) {
    DWORD code = 0;
    GetExitCodeProcess(process, &code);
    return code;
}

// The help viewer, null until it shows its contents tree and is done with opening: before that it takes the foreground
// again.
HWND OpenViewer() {
    const HWND viewer = FindWindowW(L"HH Parent", nullptr);
    bool books = false;
    const auto lookForTree = [](HWND child, LPARAM found) -> BOOL {
        if (IsKind(child, WC_TREEVIEWW)) *reinterpret_cast<bool*>(found) = SendMessageW(child, TVM_GETCOUNT, 0, 0) > 0;
        return TRUE;
    };
    EnumChildWindows(viewer, lookForTree, reinterpret_cast<LPARAM>(&books));
    const UniqueFile process(OpenProcess(PROCESS_QUERY_INFORMATION | SYNCHRONIZE, FALSE, ProcessOf(viewer)));
    return books && WaitForInputIdle(process.get(), 0) == 0 && GetForegroundWindow() == viewer ? viewer : nullptr;
}

}  // namespace

std::string Steps::Face() const {
    const bool white = std::stoi(ValueOf("lblMoveCount.W")) > std::stoi(ValueOf("lblMoveCount.B"));
    return ValueOf(white ? "lblFace.W" : "lblFace.B");
}

void Steps::AddLooks() {
    const auto each = [this](const char* word, std::function<bool(HWND)> holds) {
        Add(word, [this, holds](Words& words) {
            for (std::string name; words.More();) Until([&] { return holds(Find(name)); }, name = words.Take());
        });
    };
    each("shown", [](HWND window) { return IsWindowVisible(window) != 0; });
    each("hidden", [](HWND window) { return !IsWindowVisible(window); });
    each("enabled", [](HWND window) { return IsWindowEnabled(window) != 0; });
    each("disabled", [](HWND window) { return window && !IsWindowEnabled(window); });
    // Its own thread knows it too: a key that comes before that could go to another window.
    each("in-front", [](HWND window) {
        GUITHREADINFO thread{};
        thread.cbSize = sizeof(thread);
        return window && window == GetForegroundWindow() &&
               GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &thread) && thread.hwndActive == window;
    });
    each("focus", [this](HWND window) { return window && window == program->Focused(); });
    each("shut", [](HWND list) { return !SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0); });
    Add("see", [this](Words& words) {
        const std::string name = words.Take();
        Await([&] { return ValueOf(name); }, words.Take());
    });
    // To a screen reader.
    Add("says", [this](Words& words) {
        const HWND control = Shown(words.Take());
        Await([&] { return Utf8(SpokenName(control)); }, words.Take());
    });
    // So does a row of a list, counted from 1.
    Add("says-row", [this](Words& words) {
        const HWND list = Shown(words.Take());
        const int row = words.Number();
        Await([&] { return Utf8(SpokenName(list, row)); }, words.Take());
    });
    // The first row that is in sight.
    Add("top-row", [this](Words& words) {
        const HWND list = Shown(words.Take());
        Await([&] { return std::to_string(SendMessageW(list, LB_GETTOPINDEX, 0, 0) + 1); }, words.Take());
    });
    Add("lists", [this](Words& words) {
        Await([this] { return ValueOf("lstMoves.W") + " / " + ValueOf("lstMoves.B"); }, words.Take());
    });
    // Both lists show their last row, or their first, and the same rows.
    const auto listsShow = [this](bool last) {
        std::array<LRESULT, 2> tops{};
        for (const int side : {0, 1}) {
            const HWND list = Find(side == 0 ? "lstMoves.W" : "lstMoves.B");
            RECT row{}, area{};
            SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(SendMessageW(list, LB_GETCOUNT, 0, 0) - 1),
                         reinterpret_cast<LPARAM>(&row));
            GetClientRect(list, &area);
            tops[side] = SendMessageW(list, LB_GETTOPINDEX, 0, 0);
            if (last ? row.bottom > area.bottom : tops[side] > 0) return false;
        }
        return tops[0] == tops[1];
    };
    Add("last-moves", [=](Words&) { Until([=] { return listsShow(true); }, "the last moves are not in sight"); });
    Add("first-moves", [=](Words&) { Until([=] { return listsShow(false); }, "the first moves are not in sight"); });
    Add("counts", [this](Words& words) { Await([this] { return Counts(); }, words.Take()); });
    // The move numbers while the clock runs, and all that shows whose turn it is.
    Add("turn", [this](Words& words) {
        const std::string white = words.Take(), black = words.Take(), runs = ". press pause focus !!!", waits = ". ";
        const bool turn = std::stoi(white) > std::stoi(black);
        Await([this] { return Turn(); }, white + (turn ? runs : waits) + black + (turn ? waits : runs));
    });
    // With the button that answers it, where one does. No other window takes input meanwhile.
    Add("message", [this](Words& words) {
        HWND box = nullptr;
        const auto text = [&] {
            // Anew, since one message may follow another.
            box = Shown("message");
            std::string all;
            for (HWND part = nullptr; (part = FindWindowExW(box, part, L"Static", nullptr)) != nullptr;)
                all += Utf8(TextOf(part));
            return all;
        };
        Await(text, words.Take());
        for (const char* form : {"frmClock", "frmScorlet", "frmSetup", "frmFiles"}) {
            if (IsWindowEnabled(Find(form))) Fail(std::string(form) + " is enabled beside it");
        }
        if (!words.More()) return;
        Click(Shown(words.Take()));
        Until([&] { return !IsWindow(box); }, "the message stays");
    });
    // Both windows lie in the work area, and neither covers the other.
    Add("apart", [this](Words&) {
        Until(
            [this] {
                const HWND clock = Find("frmClock"), scorlet = Find("frmScorlet");
                RECT work{};
                SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
                const Box area{work.left, work.top, work.right - work.left, work.bottom - work.top};
                return IsWindowVisible(clock) && IsWindowVisible(scorlet) &&
                       BothInSight({BoxOf(clock), BoxOf(scorlet)}, area, area);
            },
            "they are not");
    });
    // The places of windows, and that they come back there.
    Add("note-places", [this](Words& words) {
        for (std::string name; words.More();) places[name] = BoxOf(Shown(name = words.Take()));
    });
    Add("in-place", [this](Words& words) {
        for (std::string name; words.More();)
            Await([&] { return TextOf(BoxOf(Find(name))); }, TextOf(places.at(name = words.Take())));
    });
    // The client area of a window is the whole screen.
    Add("full-screen", [this](Words&) {
        Until(
            [this] {
                RECT client{};
                GetClientRect(Find("frmClock"), &client);
                return client.right == GetSystemMetrics(SM_CXSCREEN) && client.bottom == GetSystemMetrics(SM_CYSCREEN);
            },
            "it is not");
    });
    // Until what has been sent to the window so far has been dealt with.
    Add("settle", [this](Words&) { SendMessageW(program->Clock(), WM_NULL, 0, 0); });
    Add("runs", [this](Words&) { Until([this, before = Face()] { return Face() != before; }, "the clock stands"); });
    // For longer than a tick takes.
    Add("stands", [this](Words&) {
        if (Eventually([this, before = Face()] { return Face() != before; }, 1200)) Fail("the clock runs");
    });
    // How many samples of the last sound played are loud: none, or more than so many.
    Add("quiet", [](Words&) { Await([] { return std::to_string(LoudSamples()); }, "0"); });
    Add("loud", [](Words& words) {
        const auto wanted = static_cast<size_t>(words.Number());
        Until([&] { return LoudSamples() > wanted; }, "less");
    });
    // The viewer of the help, a new one each time that it opens.
    Add("help-opens", [this](Words&) {
        const HWND before = viewer;
        Until([&] { return (viewer = OpenViewer()) && viewer != before && !IsWindow(before); }, "no new viewer");
    });
    // The text in the editor, which then is ended.
    Add("editor", [](Words& words) {
        Until([] { return EditorText() != nullptr; }, "no editor");
        const UniqueFile editor(OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, ProcessOf(EditorText())));
        Await([] { return InOneLine(Utf8(TextOf(EditorText()))); }, words.Take());
        TerminateProcess(editor.get(), 0);
        WaitForSingleObject(editor.get(), 5000);
    });
    Add("ended", [this](Words& words) {
        Await([this] { return std::to_string(ExitCodeOf(program->Process())); }, words.Take());
    });
}

void Steps::AddInput() {
    Add("settings", [this](Words& words) {
        Settings settings = QuietSettings();
        while (words.More()) Set(settings, words.Take());
        CreateDirectoryW((folder.Path() + L"Data").c_str(), nullptr);
        WriteFileText(folder.Path() + L"Data\\TORVANIX.set", EncodeRecord(EncodeSettings(settings)));
    });
    Add("start", [this](Words& words) {
        actions["settings"](words);
        // A game that was kept would be asked about; a program that still runs would keep it again.
        program.reset();
        DeleteFileW((folder.Path() + L"Data\\Game1.kept").c_str());
        Launch();
    });
    Add("restart", [this](Words&) { Launch(); });
    Add("close", [this](Words& words) { PostMessageW(Shown(words.Take()), WM_CLOSE, 0, 0); });
    Add("bring", [this](Words& words) { SetForegroundWindow(Shown(words.Take())); });
    Add("click", [this](Words& words) { Click(Shown(words.Take())); });
    Add("rclick", [this](Words& words) { Click(Shown(words.Take()), true); });
    // So many pixels from the right edge.
    Add("click-end", [this](Words& words) {
        const HWND control = Shown(words.Take());
        MoveMouseTo(control);
        ClickAt({AreaOf(control).right - words.Number(), MiddleOf(control).y});
    });
    Add("mouse-away", [](Words&) { SetCursorPos(0, 0); });
    Add("mouse-to", [this](Words& words) { MoveMouseTo(Shown(words.Take())); });
    Add("mouse-down", [](Words&) { mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0); });
    Add("mouse-up", [](Words&) { mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0); });
    Add("wheel", [](Words& words) {
        mouse_event(MOUSEEVENTF_WHEEL, 0, 0, static_cast<DWORD>(words.Number() * WHEEL_DELTA), 0);
    });
    Add("key", [](Words& words) {
        while (words.More()) Stroke(words.Take());
    });
    Add("key-down", [](Words& words) { SendKey(CodeOf(words.Take())); });
    Add("key-up", [](Words& words) { SendKey(CodeOf(words.Take()), KEYEVENTF_KEYUP); });
    Add("type", [](Words& words) {
        for (const wchar_t character : Wide(words.Take())) SendKey(character, KEYEVENTF_UNICODE);
    });
    // At once, as pasting does.
    Add("put", [this](Words& words) {
        const HWND field = Shown(words.Take());
        SendMessageW(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Wide(words.Take()).c_str()));
    });
    Add("command", [this](Words& words) {
        PostMessageW(program->Clock(), WM_COMMAND, static_cast<WPARAM>(IdOf(words.Take())), 0);
    });
    Add("drop", [this](Words& words) {
        const HWND list = Shown(words.Take());
        // A second click on the same place would be a double click.
        if (program->Focused() == list)
            Key(VK_F4);
        else
            Click(list);
        Until([&] { return SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0) != 0; }, "the list stays shut");
    });
    Add("play", [this](Words& words) {
        while (words.More()) {
            const std::string move = words.Take();
            for (const size_t at : {0, 2}) {
                const HWND square = Shown(move.substr(at, 2));
                const std::wstring before = SpokenName(square);
                Click(square);
                // A mouse that goes on before the press is dealt with would drag the piece.
                Eventually([&] { return SpokenName(square) != before; }, 2000);
            }
        }
    });
    // Moves by clicks, the clock pressed after each.
    Add("move", [this](Words& words) {
        while (words.More()) {
            const std::string move = words.Take(), before = Counts();
            Do("play " + move + " / see " + move.substr(0, 2) + " O / key Space");
            Until([&] { return Counts() != before; }, "the clock is not pressed after " + move);
        }
    });
    Add("minimise", [this](Words& words) { ShowWindowAsync(Shown(words.Take()), SW_MINIMIZE); });
    Add("restore", [this](Words& words) { ShowWindowAsync(Find(words.Take()), SW_RESTORE); });
    Add("screen", [](Words& words) {
        DEVMODEW mode{};
        mode.dmSize = sizeof(mode);
        mode.dmFields = DM_PELSWIDTH | DM_PELSHEIGHT;
        mode.dmPelsWidth = static_cast<DWORD>(words.Number());
        mode.dmPelsHeight = static_cast<DWORD>(words.Number());
        ChangeDisplaySettingsW(&mode, 0);
        Await([] { return std::to_string(GetSystemMetrics(SM_CXSCREEN)); }, std::to_string(mode.dmPelsWidth));
    });
    Add("resize", [this](Words& words) {
        const HWND window = Shown(words.Take());
        const int width = words.Number();
        SetWindowPos(window, nullptr, 0, 0, width, words.Number(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        UpdateWindow(window);
    });
}

void Steps::AddFaults() {
    // Lines of a shell of the Unix that the system lies on, run in the folder: they must end well. $W is the folder of
    // the system.
    Add("sh", [this](Words& words) { RunShell(words.Take()); });
    // Lines for the end of the scenario, however it ends.
    Add("at-end", [this](Words& words) { linesAtEnd = words.Take(); });
    // Saves by a Yes and measures it; or kills the program so many eighteenths of that time after the first change.
    Add("answer-yes", [this](Words& words) {
        const auto files = [this] {
            std::string names;
            for (const auto& entry : std::filesystem::directory_iterator(folder.Path() + L"SavedGames"))
                names += entry.path().filename().string();
            return names;
        };
        const std::string before = files();
        PostMessageW(program->Message(), WM_COMMAND, IDYES, 0);
        const auto start = Time::now();
        if (!words.More()) {
            Do("hidden frmFiles");
            savingTime = Time::now() - start;
            return;
        }
        while (files() == before && Time::now() < start + savingTime) {
        }
        const Time::time_point kill = Time::now() + savingTime * words.Number() / 18;
        while (Time::now() < kill) {
        }
        TerminateProcess(program->Process(), 99);
    });
    // Notes what the game has come to, when it has changed.
    Add("note", [this](Words&) {
        std::string now;
        const auto changed = [&] { return (now = State()) == State() && (states.empty() || now != states.back()); };
        Until(changed, "nothing changes");
        states.push_back(now);
    });
    // Does steps that lead from one noted state to the next, and kills the program so many tenths of a millisecond
    // later. What it brings back is one of the two; the steps are done again where it is the first.
    Add("killed-after", [this](Words& words) {
        const int left = SecondsLeft(), wait = words.Number();
        const std::string steps = words.Take(), before = states.at(compared), after = states.at(++compared);
        const Time::time_point begun = Time::now();
        Do(steps);
        for (const auto kill = Time::now() + std::chrono::microseconds(100) * wait; Time::now() < kill;) {
        }
        TerminateProcess(program->Process(), 99);
        const auto passed = std::chrono::duration_cast<std::chrono::seconds>(Time::now() - begun).count();
        Do("ended 99 / restart / message \"A game of *\" Yes");
        std::string now;
        Until([&] { return (now = State()) == before || now == after; }, "it is neither as before nor as after");
        const auto won = SecondsLeft() - (left - passed);
        cameBack[now == after] = true;
        if (won < -1 || won > 5) Fail(std::to_string(won) + " seconds are won");
        Do("command mnuPause / runs");
        if (now == before) Do(steps);
        Await([this] { return State(); }, after);
    });
    Add("both-came-back", [this](Words&) {
        if (!cameBack[0] || !cameBack[1]) Fail("the program was always killed too early, or too late");
    });
    // Another program begins beside this one; it, or this one again, is what the next steps are done with.
    Add("another", [this](Words&) {
        std::swap(program, other);
        Launch();
    });
    Add("swap", [this](Words&) { std::swap(program, other); });
    // Saves in both programs at once, where both ask.
    Add("both-yes", [this](Words&) {
        const HWND boxes[] = {program->Message(), other->Message()};
        for (const HWND box : boxes) PostMessageW(box, WM_COMMAND, IDYES, 0);
        Until([&] { return !IsWindow(boxes[0]) && !IsWindow(boxes[1]); }, "a question stays");
    });
    // A message to the clock window, its parameter, and the answer, which must come at once.
    Add("send", [this](Words& words) {
        const auto message = static_cast<UINT>(words.Number());
        const auto parameter = static_cast<WPARAM>(words.Number());
        DWORD_PTR answer = 0;
        SendMessageTimeoutW(program->Clock(), message, parameter, 0, SMTO_NORMAL, 1000, &answer);
        if (static_cast<int>(answer) != words.Number()) Fail("another answer");
    });
    Add("lock", [this](Words& words) {
        const std::wstring path = folder.Path() + Wide(words.Take());
        held.reset(CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    });
    Add("unlock", [this](Words&) { held.reset(); });
    Add("listen", [](Words&) { Remove(CaptureFile()); });
    Add("no-sound", [](Words&) { Await([] { return Exists(CaptureFile()) ? "a device" : ""; }, ""); });
    // A program by its path, with its parameters: it ends with that code.
    Add("run", [](Words& words) {
        const std::string code = words.Take(), path = words.Take();
        const UniqueFile process = StartProgram(Wide(path), Wide("\"" + path + "\" " + words.Take()));
        WaitForSingleObject(process.get(), 30000);
        Await([&] { return std::to_string(ExitCodeOf(process.get())); }, code);
    });
    Add("launch", [this](Words& words) { Launch(Wide(words.Take())); });
    // What the list of installed programs says.
    Add("listed", [](Words& words) {
        const std::wstring name = Wide(words.Take());
        const auto value = [&] {
            std::array<wchar_t, MAX_PATH * 2> text{};
            DWORD size = sizeof(text);
            RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\TORVANIX",
                         name.c_str(), RRF_RT_REG_SZ, nullptr, text.data(), &size);
            return Utf8(text.data());
        };
        Await(value, words.Take());
    });
    // The default button of another program's window.
    Add("press-default", [](Words& words) {
        const std::wstring title = Wide(words.Take());
        const auto button = [&] { return GetDlgItem(FindWindowW(nullptr, title.c_str()), IDOK); };
        Until([&] { return IsWindowVisible(button()) && IsWindowEnabled(button()); }, "no button");
        PostMessageW(button(), BM_CLICK, 0, 0);
    });
    Add("load-library", [](Words& words) {
        if (!FreeLibrary(LoadLibraryW(Wide(words.Take()).c_str()))) Fail("not loaded");
    });
    Add("take-clipboard", [](Words&) { Until([] { return OpenClipboard(nullptr) != 0; }, "it is held"); });
    Add("give-clipboard", [](Words&) { CloseClipboard(); });
    // The system's own function answers 0 in the program, or is itself again: it lies at one place in all programs.
    Add("timers", [this](Words& words) {
        void* const function = reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "SetTimer"));
        std::string code = "\x31\xC0\xC3";  // xor eax, eax; ret
        if (words.Take() != "refused") std::memcpy(code.data(), function, code.size());
        DWORD protection = 0;
        const HANDLE process = program->Process();
        VirtualProtectEx(process, function, code.size(), PAGE_EXECUTE_READWRITE, &protection);
        if (!WriteProcessMemory(process, function, code.data(), code.size(), nullptr)) Fail("not written");
        VirtualProtectEx(process, function, code.size(), protection, &protection);
        FlushInstructionCache(process, function, code.size());
    });
}
