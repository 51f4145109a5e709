#include "bench/PressFigures.h"

#include "app/frmClock.h"
#include "bench/RunningProgram.h"
#include "platform/BackgroundFile.h"
#include "platform/Painting.h"
#include "resources/resource.h"
#include "tests/desktop/Desktop.h"

#include <optional>
#include <stdexcept>
#include <utility>

namespace {

constexpr DWORD BetweenPresses = 20;  // milliseconds

Settings WithBonus() {
    Settings settings = QuietSettings();
    settings.Control.MoveBonus.fill(1);
    return settings;
}

// Notes when a face is drawn with a text other than the last one.
struct FaceWatch {
    int Face = 0;
    std::wstring Before;
    double Drawn = 0;
};
FaceWatch watch;

// Replaces the form's own procedure directly: the common controls look up a subclass at each message, which would count
// as the program's time.
LRESULT CALLBACK WatchingProcedure(HWND form, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto own = reinterpret_cast<WNDPROC>(GetClassLongPtrW(form, GCLP_WNDPROC));
    const LRESULT result = CallWindowProcW(own, form, message, wParam, lParam);
    if (message == WM_DRAWITEM && wParam == static_cast<WPARAM>(watch.Face) && !watch.Drawn) {
        GdiFlush();
        if (TextOf(GetDlgItem(form, watch.Face)) != watch.Before) watch.Drawn = Now();
    }
    return result;
}

// The clock's window in this process, over a folder of its own.
struct ClockHere {
    const TestFolder Folder;
    Settings Options = WithBonus();
    const SettingsFile File{Folder.Path()};
    const Texts Words{Options.LanguageIndex};
    const MessageBoxes Boxes{Words};
    Environment System;
    clsFileSystem Log;
    TickTimer Timer;
    Game Played{Options, Timer};
    std::optional<frmClock> Form;

    ClockHere() {
        File.Save(Options);
        System.Look = AppearanceOf("NONE");
        System.DataFolder = Folder.Path();
        Form.emplace(Surroundings{Words, Boxes, System, Log}, File, Options, Played, Timer);
        Form->Open();
    }
};

// What waits in the queue. Keeping begins when a window has been told that it is open.
void DealWithMessages(bool keeping) {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (keeping || message.message != WM_OPENED) DispatchMessageW(&message);
    }
}

}  // namespace

std::vector<double> MeasurePresses(int count, bool keeping) {
    ClockHere here;
    frmClock& form = *here.Form;
    SetWindowLongPtrW(form.Window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(WatchingProcedure));
    // The first press starts White's clock; every later one adds the bonus of the side that made it.
    SendMessageW(form.Control(cmdClock), WM_LBUTTONDOWN, 0, 0);
    std::vector<double> times;
    Side running = White;
    while (times.size() < static_cast<size_t>(count)) {
        DealWithMessages(keeping);
        // Players are slower than the writing of a kept game.
        Sleep(BetweenPresses);
        const int face = ControlOf(lblFace, running);
        watch = {face, TextOf(form.Control(face)), 0};
        const double start = Now();
        PostMessageW(form.Control(ControlOf(cmdClock, running)), WM_LBUTTONDOWN, 0, 0);
        MSG message;
        while (!watch.Drawn && GetMessageW(&message, nullptr, 0, 0) > 0) {
            if (form.TakeMessage(message)) continue;
            DispatchMessageW(&message);
        }
        times.push_back(watch.Drawn - start);
        running = Other(running);
    }
    return times;
}

KeepCosts MeasureKeeping(int count) {
    ClockHere here;
    here.Options.WritePgn = true;
    DealWithMessages(true);
    SendMessageW(here.Form->Window(), WM_COMMAND, mnuShowScorlet, 0);
    SavedGame saved{here.Options, here.Played.Clock().Clock().State(), {}, true};
    for (int move = 0; move < MovesOfKeptGame; move += 2) {
        for (const auto& [origin, destination] : {std::pair{"g1", "f3"}, {"g8", "f6"}, {"f3", "g1"}, {"f6", "g8"}})
            saved.Scorlet.Play(SquareNamed(origin), SquareNamed(destination));
    }
    saved.Clock.MoveCount.fill(MovesOfKeptGame);
    saved.Clock.PlayerTime = saved.Clock.Control.PeriodLimit;
    saved.Clock.GameStarted = true;
    here.Played.TakeLoadedGame(saved);
    DealWithMessages(true);

    const std::wstring path = here.Folder.Path() + L"Game1.kept";
    BackgroundFile file(here.Folder.Path() + L"Game2.kept", [](DWORD) {});
    KeepCosts costs;
    for (int i = 0; i < count; ++i) {
        Sleep(50);  // until the last one is on the disk
        double start = Now();
        SendMessageW(here.Form->Window(), WM_KEEPGAME, 0, 0);
        costs.Window.push_back(Now() - start);
        Sleep(50);
        const std::string bytes = ReadFileText(path);
        costs.Bytes = bytes.size();
        start = Now();
        file.Replace(bytes);
        file.Finish();
        costs.Writer.push_back(Now() - start);
    }
    return costs;
}

std::vector<double> MeasureBareControl(int count) {
    const HWND window = CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 700, 400, nullptr,
                                        nullptr, nullptr, nullptr);
    const HWND face = CreateWindowExW(0, L"STATIC", L"00:20:00", WS_CHILD | WS_VISIBLE | SS_CENTER, 10, 10, 500, 190,
                                      window, nullptr, nullptr, nullptr);
    const UniqueFont font = MakeFont(120, true);
    SendMessageW(face, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
    std::vector<double> times;
    for (int i = 0; i < count; ++i) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
        const double start = Now();
        PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, 0);
        while (GetMessageW(&message, nullptr, 0, 0) > 0 && message.message != WM_LBUTTONDOWN)
            DispatchMessageW(&message);
        SetWindowTextW(face, i % 2 ? L"00:20:00" : L"00:20:01");
        UpdateWindow(face);
        GdiFlush();
        times.push_back(Now() - start);
    }
    DestroyWindow(window);
    return times;
}

std::vector<double> MeasureKeys(int count) {
    const Installed installed(WithBonus());
    ProgramRun program(installed.Path());
    program.Clock();
    Key(VK_SPACE);
    if (!Eventually([&] { return program.Focused() == program.Control(cmdClock); }))
        throw std::runtime_error("the program does not take the space key");
    std::vector<double> times;
    Side running = White;
    while (times.size() < static_cast<size_t>(count)) {
        const HWND face = program.Control(ControlOf(lblFace, running));
        const std::wstring before = TextOf(face);
        const double start = Now();
        Key(VK_SPACE);
        while (TextOf(face) == before) {
            if (Now() - start > 10000) throw std::runtime_error("a press is lost");
        }
        times.push_back(Now() - start);
        running = Other(running);
        Sleep(5);
    }
    return times;
}
