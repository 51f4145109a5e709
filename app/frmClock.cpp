#include "app/frmClock.h"

#include "app/ClockButtons.h"
#include "app/ClockMenu.h"
#include "app/ClockNotices.h"
#include "clock/frmCorrection.h"
#include "platform/Ansi.h"
#include "platform/Dpi.h"
#include "platform/SystemError.h"
#include "resources/resource.h"
#include "settings/frmAbout.h"
#include "settings/frmSetup.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <utility>

namespace {

constexpr wchar_t ClassName[] = L"frmClock";

constexpr int32_t ClockCorrectedCode = 31740;  // of the log

}  // namespace

frmClock::frmClock(const Surroundings& around, const SettingsFile& settingsFile, Settings& settings, Game& game,
                   TickTimer& timer)
    : Form(around),
      settingsFile(settingsFile),
      settings(settings),
      game(game),
      store(around.System.SavedGamesFolder),
      help(around, *this),
      title(game.Clock(), captions),
      panels(*this, game.Clock(), settings, captions, around.System.Look.BackgroundColour),
      placer(around.System.DataFolder + L"Places.txt"),
      scorlet(around, *this, game, placer),
      printer(around, game),
      exporter(around, game),
      kept(around, *this, game),
      bringBack([this](const SavedGame& saved) { TakeGame(saved, {}, saved.ScorletLoaded); }) {
    timer.Calls([this] { Tick(); });
}

frmClock::~frmClock() {
    scorlet.Unload();
    // The window's last messages need the members of this class.
    if (Window()) DestroyWindow(Window());
}

void frmClock::Open() {
    const HICON icon = LoadIconW(GetModuleHandleW(nullptr), L"AAATORVANIX");
    Create(ClassName, captions(TextId::ProductTitle), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, icon);
    accelerators = MakeClockAccelerators();
    panels.Create();
    for (int id = cmdClock; id <= cmdPause + 1; ++id) ActOnPress(Control(id));
    LoadPictures();
    menu = MakeClockMenu(captions);
    SetMenu(Window(), menu);
    panels.ApplyTexts();
    game.Begin(*this);
    const bool maximised = placer.PlaceClock(Window(), settings.OpenScorletAtStart);
    ShowWindow(Window(), maximised ? SW_SHOWMAXIMIZED : SW_SHOWDEFAULT);
    UpdateWindow(Window());
    // As a command of its own: what stops it does not stop the clock.
    if (settings.OpenScorletAtStart) PostMessageW(Window(), WM_COMMAND, mnuShowScorlet, 0);
    PostMessageW(Window(), WM_OPENED, 0, 0);
}

void frmClock::LoadPictures() {
    // Without a picture the clock still runs.
    try {
        panels.LoadPictures();
    } catch (const SystemError& error) {
        problems.push_back(texts.Compose(TextId::PictureNotLoaded, error.Thing(), texts.Reason(error.Code())));
    }
}

void frmClock::TellProblems() {
    for (const std::wstring& problem : std::exchange(problems, {})) messageBoxes.Inform(Window(), problem);
}

bool frmClock::TakeMessage(MSG& message) {
    panels.Relay(message);
    const bool here = message.hwnd == Window() || IsChild(Window(), message.hwnd);
    if (here && fullScreen.On() && message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE) {
        ToggleFullScreen();
        return true;
    }
    if (const auto right = here ? PlayerKey(message) : std::nullopt) {
        // By way of the window, whose procedure ends all exceptions.
        SendMessageW(Window(), WM_PLAYERKEY, *right, 0);
        return true;
    }
    // A held Ctrl+T must not ask to reset the game that it has just started.
    const bool repeated = message.message == WM_KEYDOWN && HIWORD(message.lParam) & KF_REPEAT;
    // A minimised window is not sent the keys of its menu's entries. The Scorlet's window, which has no menu, passes
    // them on.
    const HWND target = IsIconic(Window()) && scorlet.Window() ? scorlet.Window() : Window();
    if (!repeated && !IsForField(message) && TranslateAcceleratorW(target, accelerators.get(), &message)) return true;
    if (scorlet.Loaded() && scorlet.Loaded()->TakeMessage(message)) return true;
    return IsDialogMessageW(Window(), &message);
}

void frmClock::ShowSetup() {
    if (!game.Clock().SetupEnabled())
        return messageBoxes.Inform(Window(), texts(TextId::HelpResetFirst) + L"\n" + texts(TextId::HelpSetup));
    frmSetup setup(around, settingsFile, settings, [this](HWND owner) { help.Open(owner, HelpPage::Settings); });
    setup.Open(Window());
    setup.RunModal();
    if (!setup.Accepted()) return;
    title.Set(Window(), captions(TextId::ProductTitle));
    panels.ShowSettings();
    game.TakeSettings();
}

// What is to be told comes over the window that is in front.
void frmClock::ShowHelp(HelpPage page) {
    const HWND front = GetActiveWindow();
    help.Open(front ? front : Window(), page);
}

void frmClock::ShowAbout() {
    frmAbout about(around);
    about.Open(Window());
    about.RunModal();
}

void frmClock::ShowCorrection() {
    if (!game.Clock().CanCorrect()) return;
    const modClock::ClockState& state = game.Clock().Clock().State();
    frmCorrection form(around, state, {Text(lblSide), Text(lblSide + 1)});
    form.Open(Window());
    form.RunModal();
    if (!form.Accepted()) return;
    const std::string before = TextOf(CorrectionOf(state));
    game.Correct(*form.Accepted());
    around.Log.WriteLog(ClockCorrectedCode, 0, FromAnsi(before + " > " + TextOf(CorrectionOf(state))));
}

void frmClock::TurnBoard() {
    game.TurnBoard();
    UpdateMenu();
    const std::wstring problem = settingsFile.SaveBoardTurned(settings.BoardTurned, texts);
    if (!problem.empty()) messageBoxes.Inform(Window(), problem);
}

void frmClock::ShowFiles(FilesMode mode) {
    frmFiles files(around, store, game, mode, [this](HWND owner) { help.Open(owner, HelpPage::SavedGames); });
    files.Open(Window());
    files.RunModal();
    if (files.Loaded()) TakeGame(files.Loaded()->Saved, files.Loaded()->Name, true);
}

void frmClock::TakeGame(const SavedGame& saved, const std::wstring& name, bool opensScorlet) {
    // First what can fail. No message may come between: the running game goes on while one is open.
    if (opensScorlet) LeaveFullScreen();
    const std::wstring problem = opensScorlet ? scorlet.Open() : L"";
    game.TakeLoadedGame(saved, name);
    panels.ShowSettings();
    std::wstring shown = captions(TextId::ProductTitle);
    if (!name.empty()) shown += L"- [" + name + texts(TextId::LoadedGame) + L"]";
    title.Set(Window(), shown);
    if (!problem.empty()) messageBoxes.Inform(Window(), problem);
    if (saved.Mismatched) messageBoxes.Inform(Window(), texts(TextId::FilesMismatched));
}

void frmClock::ClockChanged(const ClockChange& change) {
    panels.TimeBlinks();
    for (Side side : BothSides) {
        if (change.Faces[side]) panels.ShowFace(side);
    }
    if (change.Phase) ShowPhase();
    if (IsIconic(Window())) title.Show(Window());
}

void frmClock::ShowPhase() {
    const bool active = GetActiveWindow() == Window();
    const Phase phase = game.Clock().CurrentPhase();
    // Where the clock stops by itself, the change of focus would close an open menu and leave its name in the menu bar
    // highlighted.
    if (active && phase != Phase::Running) EndMenu();
    // A disabled button would swallow the keys.
    if (active && phase == Phase::Fallen) SetFocus(Window());
    panels.ShowPhase();
    // A press from the Scorlet must leave the keys there. The clock window puts its focus right when it is activated.
    if (active) FocusRightfulButton();

    Wakefulness::Show(phase);
    UpdateMenu();
}

void frmClock::UpdateMenu() {
    NamePauseEntry(menu, captions, game.Clock().CurrentPhase() == Phase::Paused);
    EnableEntry(menu, mnuCorrect, game.Clock().CanCorrect());
    EnableEntry(menu, mnuSetup, game.Clock().SetupEnabled());
    CheckMenuItem(menu, mnuTurnBoard, MF_BYCOMMAND | (settings.BoardTurned ? MF_CHECKED : MF_UNCHECKED));
    for (const int entry : {mnuCloseScorlet, mnuPrint, mnuCopyGame, mnuCopyPosition, mnuExportPgn})
        EnableEntry(menu, entry, scorlet.Loaded());
}

// What is asked for only here, so that no press waits for it.
void frmClock::OnOpenMenu() {
    EnableEntry(menu, mnuBringBack, kept.HasLast());
    EnableEntry(menu, mnuTakeBack, game.CanTakeBack());
    EnableEntry(menu, mnuRedo, game.CanRedo());
    EnableEntry(menu, mnuGoOn, game.CanGoOn());
}

void frmClock::Tick() {
    // The system calls this, and no exception may reach it.
    try {
        game.Tick();
    } catch (const std::exception& error) {
        ShowError(error);
    }
}

void frmClock::PlaySound(ClockSound sound) {
    if (sound == ClockSound::Flag && GetForegroundWindow() != Window()) ClockTitle::Flash(Window());
    PlaySoundOf(sound, settings);
}

void frmClock::Inform(ClockEvent event) { messageBoxes.Inform(Window(), NoticeOf(event, texts)); }

// No is preselected: the key that presses the clock must not throw a game away.
bool frmClock::AskReset() { return messageBoxes.Ask(Window(), texts(TextId::ResetQuestion), false); }

void frmClock::ReadSettings() {
    const std::wstring problem = settingsFile.Load(settings, texts);
    if (!problem.empty()) {
        problems.push_back(problem);
        // When the reset is done: the message must not stop it. A window that opens tells when all are open.
        if (IsWindowVisible(Window())) PostMessageW(Window(), WM_TELLPROBLEMS, 0, 0);
    }
    title.Set(Window(), captions(TextId::ProductTitle));
    panels.ShowSettings();
}

// When all is drawn: the press comes first.
void frmClock::GameChanged() {
    if (!std::exchange(toKeep, true)) PostMessageW(Window(), WM_KEEPGAME, 0, 0);
}

LRESULT frmClock::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND: OnCommand(LOWORD(wParam)); return 0;
        case WM_HELP:
            // F1, here or in the about box, which has no page of its own.
            ShowHelp(HelpPage::Contents);
            return TRUE;
        case WM_BUTTONKEY: OnButtonKey(static_cast<int>(lParam), wParam); return 0;
        case WM_PLAYERKEY: game.PressOwnKey(ButtonOfMouse(wParam != 0, settings.TurnClock)); return 0;
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
            OnMouseDown({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}, message == WM_RBUTTONDOWN);
            return 0;
        case WM_KEYDOWN:
            // The window itself has the focus only when no button can take it.
            if (wParam == VK_SPACE && !(HIWORD(lParam) & KF_REPEAT)) game.Press(White);
            return 0;
        case WM_TIMER: OnTimer(wParam); return 0;
        case WM_DRAWITEM: panels.Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)); return TRUE;
        case WM_CTLCOLORSTATIC:
            return reinterpret_cast<LRESULT>(
                panels.Colour(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam)));
        case WM_ERASEBKGND: return TRUE;
        case WM_PAINT: panels.PaintBackground(); return 0;
        case WM_SIZE:
            title.Show(Window());
            panels.TakeSize();
            return 0;
        case WM_MOUSEMOVE: fullScreen.OnMouseMove(GET_Y_LPARAM(lParam)); return 0;
        case WM_SYSCOMMAND:
            if ((wParam & 0xFFF0) != SC_KEYMENU) break;
            fullScreen.ShowMenu(true);
            Form::Handle(message, wParam, lParam);
            fullScreen.ShowMenu(false);
            return 0;
        case WM_DISPLAYCHANGE: PostMessageW(Window(), WM_SCREENCHANGED, 0, 0); break;
        case WM_SETTINGCHANGE:
            if (wParam == SPI_SETWORKAREA) PostMessageW(Window(), WM_SCREENCHANGED, 0, 0);
            break;
        case WM_SCREENCHANGED: OnScreenChanged(); return 0;
        case WM_GETMINMAXINFO: OnGetMinMaxInfo(*reinterpret_cast<MINMAXINFO*>(lParam)); return 0;
        case WM_SETCURSOR:
            if (LOWORD(lParam) == HTCLIENT && panels.ShowCursorOfPicture()) return TRUE;
            break;
        case WM_ACTIVATE:
            if (LOWORD(wParam) != WA_INACTIVE) FocusRightfulButton();
            return 0;
        case WM_TELLPROBLEMS: TellProblems(); return 0;
        case WM_OPENED:
            // One after the other.
            TellProblems();
            store.SettleAll();
            kept.Offer(bringBack);
            return 0;
        case WM_KEEPGAME:
            toKeep = false;
            kept.Keep();
            return 0;
        case WM_KEEPFAILED: kept.TellFailure(static_cast<DWORD>(wParam)); return 0;
        case WM_QUERYENDSESSION: kept.Keep(); return TRUE;
        case WM_ENDSESSION:
            if (!wParam) return 0;
            LeaveFullScreen();
            placer.Keep(Window(), scorlet.Window());
            kept.Finish();
            return 0;
        case WM_POWERBROADCAST: wakefulness.OnPower(wParam, game, Window()); return TRUE;
        case WM_TELLSLEEP: messageBoxes.Inform(Window(), texts(TextId::PausedForSleep)); return 0;
        case WM_INITMENUPOPUP: OnOpenMenu(); return 0;
        case WM_SCORLETGONE:
            scorlet.Forget();
            UpdateMenu();
            return 0;
        case WM_DESTROY:
            Unload();
            PostQuitMessage(0);
            return 0;
        default: break;
    }
    return Form::Handle(message, wParam, lParam);
}

void frmClock::OnCommand(int id) {
    switch (id) {
        case mnuStart: return game.Start();
        case mnuLoad: return ShowFiles(FilesMode::Load);
        case mnuSave: return ShowFiles(FilesMode::Save);
        case mnuDelete: return ShowFiles(FilesMode::Delete);
        case mnuBringBack: return kept.BringBackLast(bringBack);
        case mnuExit: DestroyWindow(Window()); return;
        case mnuReset: return game.AskedResetIfStarted();
        case mnuPause: return game.PauseOrResume();
        case mnuCorrect: return ShowCorrection();
        case mnuFullScreen: return ToggleFullScreen();
        case mnuShowScorlet:
            LeaveFullScreen();
            scorlet.Show();
            UpdateMenu();
            return;
        case mnuNextWindow: return scorlet.GoToOtherWindow();
        case mnuCloseScorlet: LeaveFullScreen(); return scorlet.Close();
        case mnuTakeBack: return game.TakeBack();
        case mnuRedo: return game.Redo();
        case mnuGoOn: return game.GoOnAtClocksMove();
        case mnuTurnBoard: return TurnBoard();
        case mnuPrint: return printer.Print(Window());
        case mnuCopyGame: return exporter.CopyGame(Window());
        case mnuCopyPosition: return exporter.CopyPosition(Window());
        case mnuExportPgn: return exporter.Export(Window());
        case mnuSetup:
        case mnuSetupByKey: return ShowSetup();
        case mnuContents: return ShowHelp(HelpPage::Contents);
        case mnuScorletHelp: return ShowHelp(HelpPage::Scorlet);
        case mnuAbout: return ShowAbout();
        case cmdPause:
        case cmdPause + 1: return game.PauseOrResume(PlaceOf(id).Panel);
        default: return;
    }
}

void frmClock::OnMouseDown(POINT point, bool rightButton) {
    const auto [pair, side] = panels.PlaceAt(point);
    switch (pair) {
        case lblFace:
        case lblSide:
        case lblPeriod:
        case lblPeriodTime:
        case lblBonus:
        case lblBonusTime: return game.Press(ButtonOfMouse(rightButton, settings.TurnClock));
        default: break;
    }
    if (rightButton) return;
    switch (pair) {
        case imgHand:
        case cmdClock:  // only a disabled button leaves the mouse to the window
            return game.Press(side);
        case cmdPause: return game.PauseOrResume(side);
        case imgFlagUp:
        case imgFlagDown: return game.AskedReset();
        default: return;
    }
}

void frmClock::OnButtonKey(int id, WPARAM key) {
    const auto [pair, side] = PlaceOf(id);
    if (key == 'p') return game.PressKeyP();
    if (pair == cmdClock) return game.Press(side);
    game.PauseOrResume(side);
}

void frmClock::OnGetMinMaxInfo(MINMAXINFO& info) const {
    WindowPlacer::LimitClock(Window(), info);
    const RECT screen = WorkArea(Window());
    const LONG designed = MulDiv(around.System.Look.WindowHeight, Dpi(), 1440);
    info.ptMinTrackSize.y = std::max(info.ptMinTrackSize.y, std::min(designed, screen.bottom - screen.top));
}

void frmClock::ToggleFullScreen() {
    if (fullScreen.On()) return LeaveFullScreen();
    if (IsIconic(Window())) ShowWindow(Window(), SW_RESTORE);
    fullScreen.Begin();
    SetForegroundWindow(Window());
}

void frmClock::LeaveFullScreen() {
    if (fullScreen.On() && fullScreen.End()) OnScreenChanged();
}

void frmClock::OnScreenChanged() {
    if (fullScreen.On()) return fullScreen.OnScreenChanged();
    WindowPlacer::OnScreenChanged(Window(), scorlet.Window());
}

void frmClock::OnTimer(UINT_PTR id) {
    if (id == BlinkTimer) panels.Blink();
    if (id == PrintTimer) printer.Continue(Window());
    if (id == HelpTimer) help.OnTimer();
}

void frmClock::FocusRightfulButton() {
    for (int pair : {cmdClock, cmdPause}) {
        for (Side side : BothSides) {
            const HWND button = Control(ControlOf(pair, side));
            if (button && IsWindowEnabled(button)) {
                SetFocus(button);
                return;
            }
        }
    }
    SetFocus(Window());
}

void frmClock::Unload() {
    LeaveFullScreen();
    placer.Keep(Window(), scorlet.Window());
    kept.Finish();
    help.Close();
    game.Unload();
    Wakefulness::Show(Phase::Idle);
}
