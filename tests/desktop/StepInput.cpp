#include "tests/desktop/Steps.h"

#include "platform/Ansi.h"
#include "settings/SettingsRecord.h"

#include <array>
#include <cstdlib>

// The words that start the program and use it with mouse, keys and commands.

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
    // A window that has just come to the front may still be giving the focus to its right control.
    SendMessageTimeoutW(GetForegroundWindow(), WM_NULL, 0, 0, SMTO_NORMAL, 1000, nullptr);
    for (int left = times == std::string::npos ? 1 : std::stoi(keys.substr(times + 1)); left > 0; --left)
        Key(code, control);
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

}  // namespace

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
                // The name tells that a piece is picked, the text, which is asked for faster, that one has come.
                const auto look = [&] { return at == 0 ? SpokenName(square) : TextOf(square); };
                const std::wstring before = look();
                Click(square);
                // A mouse that goes on before the press is dealt with would drag the piece.
                Eventually([&] { return look() != before; }, 2000);
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
