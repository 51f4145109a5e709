#include "clock/frmClock.h"

#include "clock/ClockMenu.h"
#include "clock/TimeText.h"
#include "platform/Ansi.h"
#include "platform/Dpi.h"
#include "platform/SystemError.h"
#include "resources/resource.h"
#include "settings/modResource.h"
#include "settings/modSound.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <utility>

namespace {

constexpr wchar_t ClassName[] = L"frmClock";

constexpr UINT_PTR BlinkTimer = 1, HelpTimer = 2;
constexpr UINT BlinkInterval = 500, HelpInterval = 500;  // milliseconds

// Messages of the window to itself: a button was pressed with this key (0: the mouse); a kept message is due.
constexpr UINT WM_BUTTONKEY = WM_APP + 1, WM_PENDINGMESSAGE = WM_APP + 2;

constexpr int HandImageSize = 256;

// The pair of controls that a number belongs to, and its side.
struct Place {
    int pair;
    Side side;
};

Place PlaceOf(int id) {
    if (id >= shpTurn && id < shpTurn + 2 * TurnMarksPerSide) return {shpTurn, id < TurnMark(Black, 0) ? White : Black};
    return {id & ~1, id & 1 ? Black : White};
}

static_assert(cmdClock % 2 == 0, "pairs of controls begin at even numbers");

void Move(HWND control, const Box& box) {
    SetWindowPos(control, nullptr, box.left, box.top, box.width, box.height, SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

frmClock::frmClock(const modEnvironment::Environment& environment, const SettingsFile& settingsFile, Settings& settings,
                   const Texts& texts, const MessageBoxes& messageBoxes)
    : Form(texts, messageBoxes),
      environment(environment),
      settingsFile(settingsFile),
      settings(settings),
      commands(*this),
      timer([this] { commands.Tick(); }),
      help(texts, messageBoxes, environment.HelpViewerPath, environment.ProgramFolder),
      painter(environment.appearance.backgroundColour) {}

frmClock::~frmClock() {
    // The window's last messages need the members of this class.
    if (Window()) DestroyWindow(Window());
}

void frmClock::Open() {
    icon.reset(LoadIconW(GetModuleHandleW(nullptr), L"AAATORVANIX"));
    Create(ClassName, texts(TextId::ProductTitle), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, icon.get());
    dpi = DpiOf(Window());
    accelerators = MakeClockAccelerators();
    CreateControls();
    LoadPictures();
    ApplyTexts();
    PlaceWindow();
    commands.Initialise();
    ::SetTimer(Window(), BlinkTimer, BlinkInterval, nullptr);
    ::SetTimer(Window(), HelpTimer, HelpInterval, nullptr);
    ShowWindow(Window(), SW_SHOWDEFAULT);
    UpdateWindow(Window());
}

bool frmClock::TakeMessage(MSG& message) {
    if (TranslateAcceleratorW(Window(), accelerators.get(), &message)) return true;
    return IsDialogMessageW(Window(), &message);
}

void frmClock::CreateControls() {
    constexpr DWORD drawn = WS_VISIBLE | SS_OWNERDRAW;
    constexpr DWORD text = WS_VISIBLE | SS_NOPREFIX | SS_CENTERIMAGE | SS_ENDELLIPSIS;
    for (Side side : BothSides) {
        // The order is the reading and the tab order; a label comes before what it names.
        AddControl(WC_STATICW, ControlOf(lblSide, side), text);
        AddControl(WC_STATICW, ControlOf(lblBlink, side), text | SS_RIGHT);
        for (int mark = 0; mark < TurnMarksPerSide; ++mark) AddControl(WC_STATICW, TurnMark(side, mark), SS_OWNERDRAW);
        AddControl(WC_STATICW, ControlOf(lblFace, side), drawn);
        AddControl(WC_STATICW, ControlOf(imgFlagUp, side), drawn);
        AddControl(WC_STATICW, ControlOf(imgFlagDown, side), SS_OWNERDRAW);
        AddControl(WC_STATICW, ControlOf(imgHand, side), drawn);
        for (int pair : {cmdClock, cmdPause}) {
            const int id = ControlOf(pair, side);
            const HWND button = AddControl(WC_BUTTONW, id, WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW);
            SetWindowSubclass(button, ButtonProcedure, static_cast<UINT_PTR>(id), reinterpret_cast<DWORD_PTR>(this));
        }
        AddControl(WC_STATICW, ControlOf(lblMoveNumber, side), text);
        AddControl(WC_STATICW, ControlOf(lblMoveCount, side), text);
        AddControl(WC_STATICW, ControlOf(lblPeriod, side), text | SS_RIGHT);
        AddControl(WC_STATICW, ControlOf(lblPeriodTime, side), text | SS_RIGHT);
        AddControl(WC_STATICW, ControlOf(lblBonus, side), text | SS_RIGHT);
        AddControl(WC_STATICW, ControlOf(lblBonusTime, side), text | SS_RIGHT);
    }
    toolTips = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0,
                               0, 0, Window(), nullptr, GetModuleHandleW(nullptr), nullptr);
}

void frmClock::LoadPictures() {
    const HINSTANCE program = GetModuleHandleW(nullptr);
    handHit.reset(LoadCursorW(program, L"HANDHIT.CUR"));
    handPointBlue.reset(LoadCursorW(program, L"HANDPOINTBLUE.CUR"));
    // Without a picture the clock still runs.
    try {
        flagUp = Picture(*modResource::LoadResourcePicture("FLAGUP"));
        flagDown = Picture(*modResource::LoadResourcePicture("FLAGDOWN"));
        hand = Picture::OfIcon(L"HAND", HandImageSize);
    } catch (const SystemError& error) {
        pendingMessage = texts.Compose(TextId::PictureNotLoaded, error.Thing(), texts.Reason(error.Code()));
        PostMessageW(Window(), WM_PENDINGMESSAGE, 0, 0);
    }
}

void frmClock::PlaceWindow() {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoW(MonitorFromWindow(Window(), MONITOR_DEFAULTTOPRIMARY), &monitor);
    const RECT& screen = monitor.rcWork;
    const int screenWidth = screen.right - screen.left, screenHeight = screen.bottom - screen.top;

    // What frame, caption and menu add is known only of a window that has a size.
    const int width = Scaled(DesignWidth, dpi), height = Scaled(DesignHeight, dpi);
    SetWindowPos(Window(), nullptr, screen.left, screen.top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
    RECT client{};
    GetClientRect(Window(), &client);
    const int windowWidth = std::min(2 * width - static_cast<int>(client.right), screenWidth);
    const int windowHeight = std::min(2 * height - static_cast<int>(client.bottom), screenHeight);
    SetWindowPos(Window(), nullptr, screen.left + (screenWidth - windowWidth) / 2,
                 screen.top + (screenHeight - windowHeight) / 2, windowWidth, windowHeight,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void frmClock::Arrange() {
    RECT client{};
    GetClientRect(Window(), &client);
    if (client.right == 0 || client.bottom == 0) return;
    layout = LayOutClock(static_cast<int>(client.right), static_cast<int>(client.bottom));
    painter.SetLayout(layout);

    for (Side side : BothSides) {
        const PanelLayout& panel = layout.panels[side];
        const auto place = [&](int pair, const Box& box, HFONT font) {
            const HWND control = Control(ControlOf(pair, side));
            SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
            Move(control, box);
        };
        place(lblSide, panel.side, painter.NameFont(side, NameOf(side), panel.side.width));
        place(lblBlink, panel.blink, painter.BlinkFont());
        place(cmdClock, panel.clockButton, painter.ButtonFont());
        place(cmdPause, panel.pauseButton, painter.PauseFont());
        place(lblMoveNumber, panel.moveNumber, painter.TextFont());
        place(lblMoveCount, panel.moveCount, painter.TextFont());
        place(lblPeriod, panel.period, painter.TextFont());
        place(lblPeriodTime, panel.periodTime, painter.TextFont());
        place(lblBonus, panel.bonus, painter.TextFont());
        place(lblBonusTime, panel.bonusTime, painter.TextFont());
        Move(Control(ControlOf(lblFace, side)), panel.face);
        Move(Control(ControlOf(imgFlagUp, side)), panel.flag);
        Move(Control(ControlOf(imgFlagDown, side)), panel.flag);
        Move(Control(ControlOf(imgHand, side)), panel.hand);
        for (int mark = 0; mark < TurnMarksPerSide; ++mark)
            Move(Control(TurnMark(side, mark)), panel.turnMarks[static_cast<size_t>(mark)]);

        const auto tip = [&](int pair, const Box& box, TextId row) {
            std::wstring text = texts(row);
            TOOLINFOW tool{};
            tool.cbSize = TTTOOLINFOW_V1_SIZE;
            tool.uFlags = TTF_SUBCLASS;
            tool.hwnd = Window();
            tool.uId = static_cast<UINT_PTR>(ControlOf(pair, side));
            tool.rect = {box.left, box.top, box.Right(), box.Bottom()};
            tool.lpszText = text.data();
            SendMessageW(toolTips, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
            SendMessageW(toolTips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
        };
        tip(imgFlagUp, panel.flag, TextId::TipFlag);
        tip(imgHand, panel.hand, TextId::TipHand);
        tip(lblPeriodTime, panel.periodTime, TextId::TipHoursMinutes);
        tip(lblBonusTime, panel.bonusTime, TextId::TipMinutesSeconds);
    }
    InvalidateRect(Window(), nullptr, TRUE);
}

void frmClock::ApplyTexts() {
    title = texts(TextId::ProductTitle);
    SetWindowTextW(Window(), title.c_str());
    SetMenu(Window(), MakeClockMenu(texts));
    for (Side side : BothSides) {
        SetText(ControlOf(cmdClock, side), texts(TextId::ClockButton));
        SetText(ControlOf(cmdPause, side), texts(TextId::Pause));
        SetText(ControlOf(lblMoveNumber, side), texts(TextId::MoveNumber));
        SetText(ControlOf(lblBonus, side), texts(TextId::BonusTime));
    }
}

void frmClock::ShowSettings() {
    const std::wstring ordinal = texts.Compose(OrdinalRow(settings.MovesFirstPeriod, texts.LanguageIndex()),
                                               std::to_wstring(settings.MovesFirstPeriod));
    for (Side side : BothSides) {
        SetText(ControlOf(lblSide, side), NameOf(side));
        const bool second = settings.SecondPeriodEnabled;
        SetText(ControlOf(lblPeriod, side),
                second ? texts.Compose(TextId::AfterNthMove, ordinal) : texts(TextId::CompleteGameTime));
        SetText(ControlOf(lblPeriodTime, side),
                FromAnsi(HoursMinutesText(second ? settings.SecondPeriodTime[side] : settings.PeriodLimit[side])));

        SetText(ControlOf(lblBonusTime, side), FromAnsi(MinutesSecondsText(settings.MoveBonus[side])));
        for (int pair : {lblBonus, lblBonusTime}) SetVisible(ControlOf(pair, side), settings.MoveBonus[side] > 0);
        for (int pair : {lblMoveNumber, lblMoveCount}) SetVisible(ControlOf(pair, side), settings.ShowMoveNumber);
    }
    Arrange();
}

std::wstring frmClock::NameOf(Side side) const {
    const std::string& name = settings.PlayerNames[side];
    return name.empty() ? texts(side == White ? TextId::White : TextId::Black) : FromAnsi(name);
}

void frmClock::FaceChanged(Side side) { SetText(ControlOf(lblFace, side), FromAnsi(commands.Clock().Face(side))); }

void frmClock::MoveNumbersChanged() {
    for (Side side : BothSides)
        SetText(ControlOf(lblMoveCount, side), std::to_wstring(commands.Clock().State().MoveCount[side]) + L".");
}

void frmClock::PhaseChanged() {
    for (Side side : BothSides) {
        for (int mark = 0; mark < TurnMarksPerSide; ++mark)
            SetVisible(TurnMark(side, mark), commands.TurnMarksVisible(side));
        SetVisible(ControlOf(imgFlagUp, side), !commands.FlagFallen(side));
        SetVisible(ControlOf(imgFlagDown, side), commands.FlagFallen(side));
        SetText(ControlOf(cmdPause, side), texts(commands.ReadsResume(side) ? TextId::Resume : TextId::Pause));
        SetEnabled(ControlOf(cmdClock, side), commands.ClockButtonEnabled(side));
        SetEnabled(ControlOf(cmdPause, side), commands.PauseButtonEnabled(side));
        SetText(ControlOf(lblBlink, side), L"");
    }
    ShowBlink();
    UpdateMenu();
    // A disabled button would swallow the keys.
    if (commands.CurrentPhase() == Phase::Fallen) SetFocus(Window());

    // Sleep would stop the ticks.
    const EXECUTION_STATE awake = SideRuns(White) || SideRuns(Black) ? ES_SYSTEM_REQUIRED | ES_DISPLAY_REQUIRED : 0;
    SetThreadExecutionState(ES_CONTINUOUS | awake);

    RedrawWindow(Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

void frmClock::ShowBlink() {
    const auto side = commands.BlinkingSide();
    if (!side) return;
    const int id = ControlOf(lblBlink, *side);
    const bool empty = GetWindowTextLengthW(Control(id)) == 0;
    const TextId text = commands.BlinkText() == BlinkMark::ToMove ? TextId::ToMove : TextId::Pause;
    SetText(id, empty ? texts(text) : L"");
}

void frmClock::UpdateMenu() {
    const bool resumes = commands.CurrentPhase() == Phase::Paused;
    const std::wstring pause = texts(resumes ? TextId::MenuResume : TextId::MenuPause);
    ModifyMenuW(GetMenu(Window()), mnuPause, MF_BYCOMMAND | MF_STRING, mnuPause, pause.c_str());
}

void frmClock::FocusClockButton(Side side) { SetFocus(Control(ControlOf(cmdClock, side))); }
void frmClock::FocusPauseButton(Side side) { SetFocus(Control(ControlOf(cmdPause, side))); }
void frmClock::PlayButtonSound() { modSound::Play(settings.ButtonSoundName); }
void frmClock::PlayFlagSound() { modSound::Play(settings.FlagSoundName); }

void frmClock::Inform(Notice notice) { messageBoxes.Inform(Window(), NoticeText(notice)); }

std::wstring frmClock::NoticeText(Notice notice) const {
    switch (notice) {
        case Notice::TimerNotKilled: return texts(TextId::TimerNotKilled);
        case Notice::TimerNotCreated: return texts(TextId::TimerNotCreated);
        case Notice::TimerNotCreatedEnding: return texts(TextId::TimerNotCreatedEnding);
        case Notice::Overflow: return texts(TextId::ClockOverflow);
        case Notice::HowToBegin: return texts(TextId::HelpToBegin) + WaysToBegin();
        case Notice::HowToRestart: break;
    }
    return texts(TextId::HelpResetFirst) + L"\n" + texts(TextId::HelpThenBegin) + WaysToBegin();
}

std::wstring frmClock::WaysToBegin() const {
    return texts(TextId::HelpPushButton) + texts(TextId::HelpSelectStart) + texts(TextId::HelpSpace) +
           texts(TextId::HelpMouse);
}

// No is preselected: the key that presses the clock must not throw a game away.
bool frmClock::AskReset() { return messageBoxes.Ask(Window(), texts(TextId::ResetQuestion), false); }

modClock::TimeControl frmClock::ReadTimeControl() {
    const std::wstring problem = settingsFile.Load(settings, texts);
    if (!problem.empty()) {
        pendingMessage = problem;
        PostMessageW(Window(), WM_PENDINGMESSAGE, 0, 0);
    }
    ShowSettings();
    modClock::TimeControl control;
    control.PeriodLimit = settings.PeriodLimit;
    control.SecondPeriodTime = settings.SecondPeriodTime;
    control.MoveBonus = settings.MoveBonus;
    control.CountTimeDown = settings.CountTimeDown;
    control.SecondPeriodEnabled = settings.SecondPeriodEnabled;
    control.MovesFirstPeriod = settings.MovesFirstPeriod;
    return control;
}

LRESULT frmClock::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND: OnCommand(LOWORD(wParam)); return 0;
        case WM_BUTTONKEY: OnButtonKey(static_cast<int>(lParam), wParam); return 0;
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
            OnMouseDown({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}, message == WM_RBUTTONDOWN);
            return 0;
        case WM_KEYDOWN:
            // The window itself has the focus only when no button can take it.
            if (wParam == VK_SPACE && !(HIWORD(lParam) & KF_REPEAT)) commands.Press(White);
            return 0;
        case WM_TIMER: OnTimer(wParam); return 0;
        case WM_DRAWITEM: OnDrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)); return TRUE;
        case WM_CTLCOLORSTATIC:
            return reinterpret_cast<LRESULT>(OnColour(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam)));
        case WM_ERASEBKGND: return TRUE;
        case WM_PAINT: OnPaint(); return 0;
        case WM_SIZE: Arrange(); return 0;
        case WM_GETMINMAXINFO: OnGetMinMaxInfo(*reinterpret_cast<MINMAXINFO*>(lParam)); return 0;
        case WM_DPICHANGED: {
            dpi = HIWORD(wParam);
            const RECT& wanted = *reinterpret_cast<const RECT*>(lParam);
            SetWindowPos(Window(), nullptr, wanted.left, wanted.top, wanted.right - wanted.left,
                         wanted.bottom - wanted.top, SWP_NOZORDER | SWP_NOACTIVATE);
            return 0;
        }
        case WM_SETCURSOR:
            if (LOWORD(lParam) == HTCLIENT && OnSetCursor()) return TRUE;
            break;
        case WM_ACTIVATE:
            if (LOWORD(wParam) != WA_INACTIVE) FocusRightfulButton();
            return 0;
        case WM_PENDINGMESSAGE:
            if (!pendingMessage.empty()) messageBoxes.Inform(Window(), std::exchange(pendingMessage, {}));
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
        case mnuStart: return commands.Start();
        case mnuExit: DestroyWindow(Window()); return;
        case mnuReset: return commands.AskedResetIfStarted();
        case mnuPause: return commands.PauseOrResume();
        case mnuContents: return help.Open(Window(), TextId::HelpContents);
        case cmdPause:
        case cmdPause + 1: return commands.PauseOrResume(PlaceOf(id).side);
        default: return;
    }
}

void frmClock::OnMouseDown(POINT point, bool rightButton) {
    const HWND child = ChildWindowFromPointEx(Window(), point, CWP_SKIPINVISIBLE);
    if (!child || child == Window()) return;
    const auto [pair, side] = PlaceOf(GetDlgCtrlID(child));
    switch (pair) {
        case lblFace:
        case lblSide:
        case lblPeriod:
        case lblPeriodTime:
        case lblBonus:
        case lblBonusTime: return commands.Press(ButtonOfMouse(rightButton, settings.TurnClock));
        default: break;
    }
    if (rightButton) return;
    switch (pair) {
        case imgHand:
        case cmdClock:  // only a disabled button leaves the mouse to the window
            return commands.Press(side);
        case cmdPause: return commands.PauseOrResume(side);
        case imgFlagUp:
        case imgFlagDown: return commands.AskedReset();
        default: return;
    }
}

void frmClock::OnButtonKey(int id, WPARAM key) {
    const auto [pair, side] = PlaceOf(id);
    if (key == 'p') return commands.PressKeyP();
    if (pair == cmdClock) return commands.Press(side);
    commands.PauseOrResume(side);
}

LRESULT CALLBACK frmClock::ButtonProcedure(HWND button, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                           DWORD_PTR self) {
    const auto* form = reinterpret_cast<const frmClock*>(self);
    const bool isClock = PlaceOf(static_cast<int>(id)).pair == cmdClock;
    // By way of the window, whose procedure ends all exceptions.
    const auto act = [&](WPARAM key) -> LRESULT {
        return SendMessageW(form->Window(), WM_BUTTONKEY, key, static_cast<LPARAM>(id));
    };
    switch (message) {
        case WM_GETDLGCODE: {
            // All characters, and Enter before the dialog keys take it.
            const auto* key = reinterpret_cast<const MSG*>(lParam);
            const bool enter = key && key->message == WM_KEYDOWN && key->wParam == VK_RETURN;
            return DefSubclassProc(button, message, wParam, lParam) | DLGC_WANTCHARS | (enter ? DLGC_WANTMESSAGE : 0);
        }
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            if (isClock) return act(0);
            break;
        case WM_KEYDOWN:
            if (wParam == VK_RETURN || (isClock && wParam == VK_SPACE))
                return HIWORD(lParam) & KF_REPEAT ? 0 : act(wParam);
            break;
        case WM_KEYUP:
            if (isClock && wParam == VK_SPACE) return 0;
            break;
        case WM_CHAR:
            if (isClock && wParam == 'p') return act(wParam);
            break;
        default: break;
    }
    return DefSubclassProc(button, message, wParam, lParam);
}

bool frmClock::OnSetCursor() {
    POINT point{};
    GetCursorPos(&point);
    ScreenToClient(Window(), &point);
    const HWND child = ChildWindowFromPointEx(Window(), point, CWP_SKIPINVISIBLE);
    if (!child || child == Window()) return false;
    switch (PlaceOf(GetDlgCtrlID(child)).pair) {
        case imgHand: ::SetCursor(handHit.get()); return true;
        case imgFlagUp:
        case imgFlagDown: ::SetCursor(handPointBlue.get()); return true;
        default: return false;
    }
}

void frmClock::OnDrawItem(const DRAWITEMSTRUCT& item) {
    const int id = static_cast<int>(item.CtlID);
    const auto [pair, side] = PlaceOf(id);
    const bool running = SideRuns(side);
    wchar_t text[64];
    GetWindowTextW(item.hwndItem, text, 64);
    switch (pair) {
        case lblFace: return painter.DrawFace(item, side, text, commands.FlagFallen(side));
        case shpTurn: return painter.DrawTurnMark(item, id == TurnMark(side, 0));
        case imgFlagUp: return painter.DrawPicture(item, flagUp, running);
        case imgFlagDown: return painter.DrawPicture(item, flagDown, running);
        case imgHand: return painter.DrawPicture(item, hand, running);
        case cmdClock: return painter.DrawClockButton(item, text, running);
        case cmdPause: return painter.DrawPauseButton(item, text, running);
        default: return;
    }
}

HBRUSH frmClock::OnColour(HDC dc, HWND control) const {
    SetBkMode(dc, TRANSPARENT);
    return painter.PanelBrush(SideRuns(PlaceOf(GetDlgCtrlID(control)).side));
}

void frmClock::OnPaint() {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(Window(), &paint);
    FillRect(dc, &paint.rcPaint, painter.BackgroundBrush());
    for (Side side : BothSides) painter.DrawPanel(dc, layout.panels[side].panel, SideRuns(side));
    EndPaint(Window(), &paint);
}

void frmClock::OnGetMinMaxInfo(MINMAXINFO& info) const {
    RECT window{}, client{};
    GetWindowRect(Window(), &window);
    GetClientRect(Window(), &client);
    const LONG frameWidth = window.right - window.left - client.right;
    const LONG frameHeight = window.bottom - window.top - client.bottom;
    const LONG designed = MulDiv(environment.appearance.windowHeight, dpi, 1440);
    info.ptMinTrackSize.x = Scaled(LeastWidth, dpi) + frameWidth;
    info.ptMinTrackSize.y = std::max(Scaled(LeastHeight, dpi) + frameHeight, designed);
}

void frmClock::OnTimer(UINT_PTR id) {
    if (id == BlinkTimer) ShowBlink();
    if (id == HelpTimer) help.Watch(GetWindow(Window(), GW_HWNDFIRST));
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
    help.Close();
    commands.Unload();
    SetThreadExecutionState(ES_CONTINUOUS);
}
