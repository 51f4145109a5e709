#include "tests/desktop/Steps.h"

#include "platform/Process.h"

#include <array>
#include <cstring>
#include <filesystem>

// The words that break things: kills, locks, refusals of the system, other programs.

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
    // Does steps again and again until a file of theirs is no longer empty: a machine that is busy kills late.
    Add("until-written", [this](Words& words) {
        const std::wstring path = folder.Path() + Wide(words.Take());
        const std::string steps = words.Take();
        for (int left = 15; ReadFileText(path).empty(); --left) {
            if (left == 0) return Fail("nothing is written");
            Do(steps);
        }
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
