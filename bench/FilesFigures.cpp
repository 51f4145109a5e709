#include "bench/FilesFigures.h"

#include "bench/RunningProgram.h"
#include "games/GameCodec.h"
#include "platform/Ansi.h"
#include "tests/desktop/Desktop.h"

#include <stdexcept>

namespace {

// A folder of games with all their four files.
void FillFolder(const std::wstring& folder, int games) {
    Settings settings = QuietSettings();
    settings.WritePgn = true;
    modClock::ClockState clock;
    clock.Control = settings.Control;
    clock.PlayerTime = settings.Control.PeriodLimit;
    const Recorder scorlet;
    const GameFiles files = EncodeGame(settings, clock, &scorlet, {2024, 3, 9});
    CreateDirectoryW(folder.c_str(), nullptr);
    for (int i = 0; i < games; ++i) {
        for (GameFile file : AllGameFiles)
            WriteFileText(folder + L"game" + std::to_wstring(i) + FromAnsi(ExtensionOf(file)), *files[file]);
    }
}

HWND OpenFiles(ProgramRun& program, int entry) {
    PostMessageW(program.Clock(), WM_COMMAND, static_cast<WPARAM>(entry), 0);
    while (!program.FindWindowNow(L"frmFiles")) Sleep(1);
    const HWND files = program.FindWindowNow(L"frmFiles");
    SendMessageW(files, WM_NULL, 0, 0);
    return files;
}

void CloseFiles(HWND files) {
    PostMessageW(files, WM_CLOSE, 0, 0);
    if (!Eventually([&] { return !IsWindow(files); })) throw std::runtime_error("the file dialog does not close");
}

// Milliseconds from Yes until the condition holds.
double MeasureAction(ProgramRun& program, HWND files, int button, const wchar_t* name,
                     const std::function<bool()>& done) {
    SendMessageW(GetDlgItem(files, txtGameName), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name));
    PostMessageW(files, WM_COMMAND, static_cast<WPARAM>(button), 0);
    if (!Eventually([&] { return program.Message() != nullptr; })) throw std::runtime_error("no question");
    const HWND question = program.Message();
    const double start = Now();
    PostMessageW(question, WM_COMMAND, IDYES, 0);
    while (!done()) {
        if (Now() - start > 60000) throw std::runtime_error("the file dialog does not end its work");
        Sleep(1);
    }
    return Now() - start;
}

// Milliseconds for choosing a game, the first one apart.
double MeasureChoosing(HWND files) {
    const HWND list = GetDlgItem(files, lstGames);
    std::vector<double> times;
    for (WPARAM game = 0; game < 10; ++game) {
        SendMessageW(list, LB_SETCURSEL, game, 0);
        const double start = Now();
        SendMessageW(files, WM_COMMAND, MAKEWPARAM(lstGames, LBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
        if (game > 0) times.push_back(Now() - start);
    }
    return Percentile(times, 50);
}

}  // namespace

FilesTimes MeasureFiles(int games) {
    const Installed installed(WithScorlet());
    FillFolder(installed.Folder() + L"SavedGames\\", games);
    ProgramRun program(installed.Path());
    SendMessageW(program.Clock(), WM_COMMAND, mnuStart, 0);
    FilesTimes times{};
    std::vector<double> opens;
    HWND files = nullptr;
    while (opens.size() < 9) {
        if (files) CloseFiles(files);
        const double start = Now();
        files = OpenFiles(program, mnuSave);
        opens.push_back(Now() - start);
    }
    times.Open = Percentile(opens, 50);
    times.Choose = MeasureChoosing(files);
    times.Save = MeasureAction(program, files, cmdSave, L"new game", [&] { return !IsWindow(files); });
    files = OpenFiles(program, mnuDelete);
    const HWND list = GetDlgItem(files, lstGames);
    const LRESULT listed = SendMessageW(list, LB_GETCOUNT, 0, 0);
    if (listed != games + 1) throw std::runtime_error("the list does not hold every game");
    times.Delete = MeasureAction(program, files, cmdDelete, L"game7",
                                 [&] { return SendMessageW(list, LB_GETCOUNT, 0, 0) == listed - 1; });
    CloseFiles(files);
    return times;
}
