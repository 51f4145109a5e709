#include "bench/PressFigures.h"

#include "app/frmClock.h"
#include "bench/RunningProgram.h"
#include "platform/Painting.h"
#include "resources/resource.h"
#include "tests/desktop/Desktop.h"

#include <stdexcept>

namespace {

Settings WithBonus() {
    Settings settings = QuietSettings();
    settings.Control.MoveBonus.fill(1);
    return settings;
}

// Notes when a face is painted with a text other than the last one.
struct PaintWatch {
    std::wstring Before;
    double Painted = 0;
};

// Replaces the face's own procedure directly: the common controls look up a subclass at each message, which would count
// as the program's time.
LRESULT CALLBACK FaceProcedure(HWND face, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto own = reinterpret_cast<WNDPROC>(GetClassLongPtrW(face, GCLP_WNDPROC));
    const LRESULT result = CallWindowProcW(own, face, message, wParam, lParam);
    if (message == WM_PAINT) {
        GdiFlush();
        auto& watch = *reinterpret_cast<PaintWatch*>(GetWindowLongPtrW(face, GWLP_USERDATA));
        if (!watch.Painted && TextOf(face) != watch.Before) watch.Painted = Now();
    }
    return result;
}

}  // namespace

std::vector<double> MeasurePresses(int count) {
    const TestFolder folder;
    Settings settings = WithBonus();
    const SettingsFile settingsFile(folder.Path());
    settingsFile.Save(settings);
    const Texts texts(settings.LanguageIndex);
    const MessageBoxes messageBoxes(texts);
    Environment environment;
    environment.Look = AppearanceOf("NONE");
    TickTimer timer;
    Game game(settings, timer);
    frmClock form({texts, messageBoxes, environment}, settingsFile, settings, game, timer);
    form.Open();

    std::array<PaintWatch, 2> watches;
    for (Side side : BothSides) {
        const HWND face = form.Control(ControlOf(lblFace, side));
        SetWindowLongPtrW(face, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&watches[side]));
        SetWindowLongPtrW(face, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(FaceProcedure));
    }
    // The first press starts White's clock; every later one adds the bonus of the side that made it.
    SendMessageW(form.Control(cmdClock), WM_LBUTTONDOWN, 0, 0);
    std::vector<double> times;
    Side running = White;
    while (times.size() < static_cast<size_t>(count)) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
        PaintWatch& watch = watches[running];
        watch = {TextOf(form.Control(ControlOf(lblFace, running))), 0};
        const double start = Now();
        PostMessageW(form.Control(ControlOf(cmdClock, running)), WM_LBUTTONDOWN, 0, 0);
        while (!watch.Painted && GetMessageW(&message, nullptr, 0, 0) > 0) {
            if (form.TakeMessage(message)) continue;
            DispatchMessageW(&message);
        }
        times.push_back(watch.Painted - start);
        running = Other(running);
    }
    return times;
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
    const TestFolder folder;
    WriteSettingsFile(folder.Path(), WithBonus());
    ProgramRun program(PutProgramInto(folder));
    program.Clock();
    Key(VK_SPACE);
    if (!Eventually([&] { return program.Focused() == ControlOf(cmdClock, White); }))
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
