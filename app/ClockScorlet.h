#pragma once

#include "clock/ClockCommands.h"
#include "recorder/frmScorlet.h"

#include <functional>
#include <memory>

// Posted to the clock window when the Scorlet's window is gone.
inline constexpr UINT WM_FORGETSCORLET = WM_APP + 3;

// The Scorlet beside the clock: opened, placed and closed, and told what the clock does.
class ClockScorlet final : private ScorletHost {
  public:
    // All of them must outlive it. `changed` is called when the Scorlet has opened or gone, `print` prints its lists.
    ClockScorlet(const Form& clock, ClockCommands& commands, const Texts& texts, const MessageBoxes& messageBoxes,
                 std::function<void()> changed, std::function<void()> print);

    // Null while it is not loaded.
    frmScorlet* Loaded() const { return scorlet.get(); }

    // Opens it, or brings it to the front, and tells which picture could not be loaded. Throws SystemError.
    void Show();
    // Opens it where it is not loaded; the text, empty on success, says which picture could not be loaded.
    std::wstring Open();
    void Close() { CloseScorlet(); }
    // From the clock to the Scorlet that is open, or back.
    void GoToOtherWindow();

    // Gives the form of a window that is gone up; for WM_FORGETSCORLET.
    void Forget();
    // Gives up the window too.
    void Unload() { scorlet.reset(); }

    void MoveBegun(bool firstPress, Side running);
    void RecordFlagFall(Side side);

  private:
    std::array<int32_t, 2> MoveCounts() const override { return commands.Clock().State().MoveCount; }
    void PressEnabledClock() override;
    void PauseForResult() override { commands.PauseIfRunning(); }
    void CloseScorlet() override;
    void ScorletDestroyed() override;
    void PrintMoveList() override { print(); }

    RECT PlaceBeside() const;

    const Form& clock;
    ClockCommands& commands;
    const Texts& texts;
    const MessageBoxes& messageBoxes;
    std::function<void()> changed, print;
    std::unique_ptr<frmScorlet> scorlet;
};
