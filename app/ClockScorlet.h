#pragma once

#include "app/WindowPlacer.h"
#include "recorder/frmScorlet.h"

#include <memory>

// The Scorlet beside the clock: opened, placed and closed.
class ClockScorlet {
  public:
    // `clock`, the form of the clock window, `game` and `placer` must outlive it.
    ClockScorlet(const Surroundings& around, const Form& clock, ScorletGame& game, WindowPlacer& placer)
        : around(around), clock(clock), game(game), placer(placer) {}

    // Null while it is not loaded.
    frmScorlet* Loaded() const { return scorlet.get(); }
    // Its window, or null.
    HWND Window() const { return scorlet ? scorlet->Window() : nullptr; }

    // Opens it, or brings it to the front, and tells which picture could not be loaded. Throws SystemError.
    void Show();
    // Opens it where it is not loaded. The text, empty on success, says which picture could not be loaded.
    std::wstring Open();
    // Asks, and destroys its window on Yes.
    void Close();
    // From the clock to the Scorlet that is open, or back.
    void GoToOtherWindow();

    // Gives the form of a window that is gone up; for WM_SCORLETGONE.
    void Forget();
    // Gives up the window too.
    void Unload() { scorlet.reset(); }

  private:
    const Surroundings around;
    const Form& clock;
    ScorletGame& game;
    WindowPlacer& placer;
    std::unique_ptr<frmScorlet> scorlet;
};
