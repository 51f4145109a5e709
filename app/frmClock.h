#pragma once

#include "app/ClockPanels.h"
#include "app/ClockScorlet.h"
#include "app/GameDesk.h"
#include "app/HelpWindow.h"
#include "app/modEnvironment.h"
#include "clock/ClockCommands.h"
#include "clock/TickTimer.h"
#include "platform/Form.h"
#include "settings/Settings.h"
#include "settings/SettingsFile.h"

#include <string>
#include <vector>

// The main window: two clock panels side by side and the menus.
class frmClock : public Form, private ClockView {
  public:
    // All of them must outlive the window.
    frmClock(const modEnvironment::Environment& environment, const SettingsFile& settingsFile, Settings& settings,
             const Texts& texts, const MessageBoxes& messageBoxes);
    ~frmClock() override;

    // Loads the window with its pictures, texts and an idle clock, and shows it. Closing it ends the message loop.
    void Open();

    // Menu keys and the keys that move between controls. True: the message is done with.
    bool TakeMessage(MSG& message);

  private:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::wstring SpokenName(int id) const override { return panels.SpokenName(id); }

    // ClockView
    int32_t SetTimer() override { return timer.Set(); }
    int32_t KillTimer(int32_t handle) override { return timer.Kill(handle); }
    void FaceChanged(Side side) override { panels.ShowFace(side); }
    void MoveNumbersChanged() override { panels.ShowMoveNumbers(); }
    void PhaseChanged() override;
    void FocusClockButton(Side side) override;
    void FocusPauseButton(Side side) override;
    void PlayButtonSound() override;
    void PlayFlagSound() override;
    void Inform(Notice notice) override;
    bool AskReset() override;
    bool MovesWritten() const override { return scorlet.Loaded() && scorlet.Loaded()->Record().MovesWritten(); }
    void MoveBegun(bool firstPress, Side running) override { scorlet.MoveBegun(firstPress, running); }
    void RecordFlagFall(Side side) override { scorlet.RecordFlagFall(side); }
    void ResetRecorder() override {
        if (scorlet.Loaded()) scorlet.Loaded()->ResetRecord();
    }
    TimeControl ReadTimeControl() override;
    void TellReadingProblems() override;

    void LoadPictures();
    void ShowSetup();
    void ShowAbout();
    TimeControl ShownTimeControl();
    void UpdateMenu();
    void PlaceWindow();
    void Tick();
    std::wstring NoticeText(Notice notice) const;
    std::wstring WaysToBegin() const;

    void OnCommand(int id);
    void OnMouseDown(POINT point, bool rightButton);
    void OnButtonKey(int id, WPARAM key);
    bool OnSetCursor();
    void OnGetMinMaxInfo(MINMAXINFO& info) const;
    void OnTimer(UINT_PTR id);
    void FocusRightfulButton();
    void FocusWhileActive(HWND control) const;
    void Unload();

    // Clock and pause buttons act when the mouse button or the key goes down.
    static LRESULT CALLBACK ButtonProcedure(HWND button, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                            DWORD_PTR self);

    const modEnvironment::Environment& environment;
    const SettingsFile& settingsFile;
    Settings& settings;

    ClockCommands commands;
    TickTimer timer;
    HelpWindow help;
    ClockPanels panels;
    ClockScorlet scorlet;
    GameDesk games;
    UniqueCursor handHit, handPointBlue;
    UniqueAccelerators accelerators;
    std::vector<std::wstring> problems;  // of the opening or a reset, to be told
};
