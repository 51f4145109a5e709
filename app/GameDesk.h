#pragma once

#include "app/ClockPanels.h"
#include "app/ClockScorlet.h"
#include "app/EditorPrinter.h"
#include "app/HelpWindow.h"
#include "app/modEnvironment.h"
#include "games/frmFiles.h"

// Set on the clock window while printing is under way.
inline constexpr UINT_PTR PrintTimer = 3;

// Saving, loading, deleting and printing of the game that stands on the clock and the Scorlet.
class GameDesk final : private GameHost {
  public:
    // All of them must outlive it.
    GameDesk(const Form& clock, ClockCommands& commands, ClockScorlet& scorlet, ClockPanels& panels, Settings& settings,
             const modEnvironment::Environment& environment, HelpWindow& help, const Texts& texts,
             const MessageBoxes& messageBoxes);

    // Opens the file dialog. Throws SystemError.
    void Open(FilesMode mode);

    // Prints the lists of the Scorlet while it is loaded and no printing is under way.
    void Print();
    // For the timer PrintTimer of the clock window.
    void ContinuePrinting();

  private:
    GameFiles FilesOfGame() override;
    void GameSaved() override;
    const Settings& PresentSettings() const override { return settings; }
    void TakeGame(const std::wstring& name, SavedGame& game) override;
    void OpenHelp(HWND owner) override { help.Open(owner, HelpPage::SavedGames); }

    const Form& clock;
    ClockCommands& commands;
    ClockScorlet& scorlet;
    ClockPanels& panels;
    Settings& settings;
    const modEnvironment::Environment& environment;
    HelpWindow& help;
    const Texts& texts;
    const MessageBoxes& messageBoxes;
    const GameStore games;
    EditorPrinter printer;
};
