#include "bench/PressFigures.h"

#include "bench/RunningProgram.h"
#include "clock/frmClock.h"
#include "resources/resource.h"
#include "tests/desktop/Desktop.h"

#include <commctrl.h>

#include <stdexcept>

namespace {

Settings WithBonus() {
    Settings settings = QuietSettings();
    settings.MoveBonus.fill(1);
    return settings;
}

// When a face was last painted with another text than before.
struct PaintWatch {
    std::wstring before;
    double painted = 0;
};

LRESULT CALLBACK FaceProcedure(HWND face, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR watch) {
    const LRESULT result = DefSubclassProc(face, message, wParam, lParam);
    if (message == WM_PAINT) {
        GdiFlush();
        auto& seen = *reinterpret_cast<PaintWatch*>(watch);
        if (!seen.painted && TextOf(face) != seen.before) seen.painted = Now();
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
    modEnvironment::Environment environment;
    environment.appearance = AppearanceOf("NONE");
    frmClock form(environment, settingsFile, settings, texts, messageBoxes);
    form.Open();

    std::array<PaintWatch, 2> watches;
    for (Side side : BothSides)
        SetWindowSubclass(form.Control(ControlOf(lblFace, side)), FaceProcedure, 0,
                          reinterpret_cast<DWORD_PTR>(&watches[side]));
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
        while (!watch.painted && GetMessageW(&message, nullptr, 0, 0) > 0) {
            if (form.TakeMessage(message)) continue;
            DispatchMessageW(&message);
        }
        times.push_back(watch.painted - start);
        running = Other(running);
    }
    return times;
}

std::vector<double> MeasureKeys(int count) {
    const TestFolder folder;
    ProgramRun program(folder, WithBonus());
    program.Clock();
    program.Key(VK_SPACE);
    if (!Eventually([&] { return program.Focused() == ControlOf(cmdClock, White); }))
        throw std::runtime_error("the program does not take the space key");
    std::vector<double> times;
    Side running = White;
    while (times.size() < static_cast<size_t>(count)) {
        const HWND face = program.Control(ControlOf(lblFace, running));
        const std::wstring before = TextOf(face);
        const double start = Now();
        program.Key(VK_SPACE);
        while (TextOf(face) == before) {
            if (Now() - start > 10000) throw std::runtime_error("a press is lost");
        }
        times.push_back(Now() - start);
        running = Other(running);
        Sleep(5);
    }
    return times;
}
