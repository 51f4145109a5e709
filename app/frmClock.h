#pragma once

#include "app/ClockPanels.h"
#include "app/ClockScorlet.h"
#include "app/ClockTitle.h"
#include "app/EditorPrinter.h"
#include "app/FullScreen.h"
#include "app/GameExporter.h"
#include "app/HelpWindow.h"
#include "app/KeptGames.h"
#include "app/Wakefulness.h"
#include "clock/TickTimer.h"
#include "games/Game.h"
#include "games/frmFiles.h"
#include "settings/SettingsFile.h"

#include <string>
#include <vector>

// The main window: two clock panels and the menus.
class frmClock : public Form, private ClockView {
  public:
    // All of them must outlive the window, which shows the game and calls it at each tick of the timer. `settings` are
    // those that the game was made with.
    frmClock(const Surroundings& around, const SettingsFile& settingsFile, Settings& settings, Game& game,
             TickTimer& timer);
    ~frmClock() override;

    // Loads the window with its pictures, texts and an idle clock, and shows it. Closing it ends the message loop.
    void Open();

    // Menu keys and the keys that move between controls. True: the message is done with.
    bool TakeMessage(MSG& message);

  private:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::wstring SpokenName(int id) const override { return panels.SpokenName(id); }
    bool HasPlainControls() const override { return true; }

    // ClockView
    void ClockChanged(const ClockChange& change) override;
    void PlaySound(ClockSound sound) override;
    void Inform(ClockEvent event) override;
    bool AskReset() override;
    void ReadSettings() override;
    void GameChanged() override;
    void LosingGame() override { kept.PutAside(); }

    void LoadPictures();
    void ShowSetup();
    void ShowAbout();
    void ShowCorrection();
    void ShowHelp(HelpPage page);
    void TurnBoard();
    void ShowFiles(FilesMode mode);
    void TakeGame(const SavedGame& saved, const std::wstring& name, bool opensScorlet);
    void UpdateMenu();
    void ToggleFullScreen();
    void LeaveFullScreen();
    void OnScreenChanged();
    void ShowPhase();
    void Tick();
    void TellProblems();

    void OnCommand(int id);
    void OnOpenMenu();
    void OnMouseDown(POINT point, bool rightButton);
    void OnButtonKey(int id, WPARAM key);
    void OnGetMinMaxInfo(MINMAXINFO& info) const;
    void OnTimer(UINT_PTR id);
    void FocusRightfulButton();
    void Unload();

    const SettingsFile& settingsFile;
    Settings& settings;
    Game& game;
    const GameStore store;

    HelpWindow help;
    ClockTitle title;
    ClockPanels panels;
    WindowPlacer placer;
    ClockScorlet scorlet;
    EditorPrinter printer;
    GameExporter exporter;
    KeptGames kept;
    const KeptGames::Take bringBack;  // a game that was kept takes the place of the present one
    bool toKeep = false;              // WM_KEEPGAME is on its way
    HMENU menu = nullptr;             // the window's own, shown or not
    FullScreen fullScreen{*this};
    Wakefulness wakefulness;
    UniqueAccelerators accelerators;
    std::vector<std::wstring> problems;  // of the opening or a reset, to be told
};
