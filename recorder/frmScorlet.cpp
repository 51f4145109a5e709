#include "recorder/frmScorlet.h"

#include "platform/Ansi.h"
#include "platform/Dpi.h"
#include "platform/SystemError.h"
#include "recorder/ListMenu.h"
#include "recorder/MatchedMoves.h"
#include "resources/resource.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <utility>

namespace {

constexpr wchar_t ClassName[] = L"frmScorlet";
constexpr DWORD Style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;

constexpr WORD OfAccelerator = 1;  // a WM_COMMAND: see there in the Win32 documentation

}  // namespace

frmScorlet::~frmScorlet() {
    if (Window()) DestroyWindow(Window());
    game.CloseRecord();
}

std::wstring frmScorlet::Open(const Box& place) {
    const HINSTANCE program = GetModuleHandleW(nullptr);
    handPointBlue.reset(static_cast<HCURSOR>(
        LoadImageW(program, L"HANDPOINTBLUE.CUR", IMAGE_CURSOR, 0, 0, LR_DEFAULTSIZE | LR_DEFAULTCOLOR)));
    Create(ClassName, captions(TextId::ScorletTitle), Style, LoadIconW(program, L"WPICON.ICO"));
    controls.Create();
    std::wstring problem;
    try {
        controls.Painter.LoadPictures();
    } catch (const SystemError& error) {
        problem = texts.Compose(TextId::PictureNotLoaded, error.Thing(), texts.Reason(error.Code()));
    }
    controls.ApplyTexts(captions);
    SetWindowPos(Window(), nullptr, place.Left, place.Top, place.Width, place.Height, SWP_NOZORDER | SWP_NOACTIVATE);
    ShowRecord();
    ShowWindow(Window(), SW_SHOWNOACTIVATE);
    UpdateWindow(Window());
    return problem;
}

void frmScorlet::ShowNames() {
    for (Side side : BothSides) {
        std::wstring name = game.FullName(side);
        if (name.empty()) name = FromAnsi(game.PlayerName(side));
        SetText(ControlOf(lblPlayer, side), name.empty() ? captions.SideName(side) : name);
    }
}

void frmScorlet::Arrange() {
    RECT client{};
    GetClientRect(Window(), &client);
    if (client.right == 0 || client.bottom == 0) return;
    // The system tells the size of a window again when it is shown, and moving all the controls takes time.
    const Arrangement now{client.right, client.bottom, Dpi(), game.BoardTurned()};
    if (std::exchange(arranged, now) == now) return;
    controls.Place(static_cast<int>(client.right), static_cast<int>(client.bottom), Dpi(), game.BoardTurned());
    input.Turn(controls.Layout.Turned);
    boardWaits = true;
    RedrawWindow(Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void frmScorlet::ShowRecord(std::optional<ChosenLine> chosen) {
    lookBack.reset();
    input.ShowEarlier(std::nullopt);
    ShowNames();
    if (controls.Layout.Turned != game.BoardTurned()) Arrange();
    ShowBoard();
    ShowWhoseMove();
    controls.Lists.Show();
    if (chosen) controls.Lists.Choose(*chosen);
    controls.Picker.Show();
}

void frmScorlet::RecordChanged(const ChosenLines& chosen) {
    ShowRecord();
    // The later move last.
    const bool whiteIsLater = chosen[White] > chosen[Black];
    for (const Side side : {whiteIsLater ? Black : White, whiteIsLater ? White : Black}) {
        if (chosen[side]) controls.Lists.Choose({side, *chosen[side]});
    }
    controls.Lists.ShowLast();
}

void frmScorlet::RecordReplaced() {
    EndEdit(false);
    EndTyping(false);
    input.Reset();
    controls.Picker.Reset();
    controls.Lists.ChooseNone();
    ShowRecord();
}

void frmScorlet::RecordStepped(const ChosenLines& chosen) {
    EndEdit(false);
    EndTyping(false);
    input.Cancel();
    controls.Lists.ChooseNone();
    RecordChanged(chosen);
    TellSpokenName(picBoard);
}

void frmScorlet::ShowBoard() {
    controls.Board.Show();
    controls.Picker.ShowMark();
    mouse.Follow();
}

void frmScorlet::ShowWhoseMove() {
    if (lookBack)
        controls.WhoseMove.ShowLookBack(captions, *lookBack);
    else
        controls.WhoseMove.Show(captions, game.NextMove());
}

void frmScorlet::LookBackAtChosen(Side list) {
    EndLookBack();
    const auto chosen = controls.Lists.Chosen(list);
    if (!chosen || controls.Editor.Open()) return;
    const ChosenLine line{list, *chosen};
    // The last move leads to the game as it is; what is no move leads nowhere.
    if (recorder.LastLine() == line || !recorder.List(list).Entries()[line.Index].IsWritten()) return;
    const auto position = game.PositionAfter(line);
    // With the number in both lists.
    const MoveList& entries = recorder.List(list);
    const std::string text =
        std::to_string(line.Index + 1) + (list == White ? ". " : "... ") + entries.Entries()[line.Index].Text;
    lookBack = LookBack{list, text, position.has_value(), game.TimesAfter(line)};
    input.Cancel();
    input.ShowEarlier(position);
    ShowBoard();
    ShowWhoseMove();
}

void frmScorlet::EndLookBack() {
    if (!lookBack) return;
    lookBack.reset();
    input.ShowEarlier(std::nullopt);
    ShowBoard();
    ShowWhoseMove();
}

void frmScorlet::OnListKey(WPARAM key) {
    if (key == VK_END) return EndLookBack();
    if (const auto list = controls.Lists.Step(key == VK_RIGHT)) LookBackAtChosen(*list);
}

bool frmScorlet::TakeMessage(MSG& message) {
    if (message.hwnd != Window() && !IsChild(Window(), message.hwnd)) return false;
    if (message.message == WM_CHAR && IsPauseKey(message.wParam) && !IsOfKind(message.hwnd, WC_EDITW)) {
        // By way of the window, whose procedure ends all exceptions.
        SendMessageW(Window(), WM_CHAR, message.wParam, message.lParam);
        return true;
    }
    if (message.message == WM_KEYDOWN && message.wParam == VK_SPACE) {
        if (!IsOfKind(message.hwnd, WC_EDITW) && !IsOfKind(message.hwnd, WC_BUTTONW)) {
            if (!(HIWORD(message.lParam) & KF_REPEAT)) SendMessageW(Window(), WM_BOARDKEY, VK_SPACE, 0);
            return true;
        }
    }
    return IsDialogMessageW(Window(), &message);
}

LRESULT frmScorlet::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
            if (!lParam && HIWORD(wParam) == OfAccelerator)
                SendMessageW(shell, WM_COMMAND, wParam, 0);
            else
                OnCommand(LOWORD(wParam), HIWORD(wParam));
            return 0;
        case WM_LBUTTONDOWN: OnMouseDown({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}); return 0;
        case WM_MOUSEMOVE:
            mouse.Move({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
            ShowBoard();
            return 0;
        case WM_LBUTTONUP: {
            const bool puttingBack = input.Captured().has_value();
            ShowEntered(mouse.Release({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}), puttingBack);
            return 0;
        }
        case WM_CAPTURECHANGED:
            mouse.CaptureLost();
            ShowBoard();
            return 0;
        case WM_BOARDKEY: return OnBoardKey(wParam);
        case WM_BOARDCHARACTER: return OnBoardCharacter(static_cast<wchar_t>(wParam));
        case WM_LISTKEY: OnListKey(wParam); return 0;
        case WM_ENDTYPING: EndTyping(wParam != 0); return 0;
        case WM_CHAR:
            if (IsPauseKey(wParam)) game.PressKeyP();
            return 0;
        case WM_HELP: SendMessageW(shell, WM_COMMAND, mnuScorletHelp, 0); return TRUE;
        case WM_ENDEDIT: EndEdit(wParam != 0); return 0;
        case WM_CONTEXTMENU:
            if (OnContextMenu(reinterpret_cast<HWND>(wParam), {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)})) return 0;
            break;
        case WM_DRAWITEM: controls.Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)); return TRUE;
        case WM_CTLCOLORSTATIC:
            return reinterpret_cast<LRESULT>(
                controls.Colours(reinterpret_cast<HDC>(wParam), GetDlgCtrlID(reinterpret_cast<HWND>(lParam))));
        case WM_ERASEBKGND: {
            RECT client{};
            GetClientRect(Window(), &client);
            controls.Painter.DrawGround(reinterpret_cast<HDC>(wParam), client, controls.Layout);
            // Before its controls are asked one by one, but not over the field for typing, which may lie on the board.
            if (std::exchange(boardWaits, false) && !controls.Typing.Open()) controls.Board.DrawNow();
            return TRUE;
        }
        case WM_SIZE: Arrange(); return 0;
        case WM_GETMINMAXINFO: OnGetMinMaxInfo(*reinterpret_cast<MINMAXINFO*>(lParam)); return 0;
        case WM_SETCURSOR:
            if (LOWORD(lParam) == HTCLIENT && OnSetCursor()) return TRUE;
            break;
        case WM_ACTIVATE:
            if (LOWORD(wParam) != WA_INACTIVE) SetFocus(Control(controls.Editor.Open() ? txtMove : picBoard));
            return 0;
        case WM_CLOSE: SendMessageW(shell, WM_COMMAND, mnuCloseScorlet, 0); return 0;
        case WM_DESTROY:
            // Posted: the form is still in use further up the stack.
            PostMessageW(shell, WM_SCORLETGONE, 0, 0);
            return 0;
        default: break;
    }
    return Form::Handle(message, wParam, lParam);
}

void frmScorlet::OnCommand(int id, int notification) {
    if (PromotionPicker::Has(id)) return Promote(PromotionPicker::KindOf(id));
    switch (id) {
        case cmbSay:
            if (notification == CBN_DROPDOWN) controls.Say.Fill(captions);
            if (const auto declaration = controls.Say.OnNotification(notification)) game.Declare(*declaration);
            return;
        case lstMoves:
        case lstMoves + 1:
            if (notification != LBN_SELCHANGE) return;
            controls.Lists.OnChoice(id == lstMoves ? White : Black);
            return LookBackAtChosen(id == lstMoves ? White : Black);
        case IDCANCEL: return EndLookBack();  // Esc outside the board and the fields
        case txtMove:
            if (notification == EN_CHANGE) controls.Editor.OnChange();
            return;
        case txtTypedMove:
            if (notification == EN_CHANGE) controls.Typing.OnChange();
            if (notification == EN_KILLFOCUS) EndTyping(false);
            return;
        case cmdOK: return EndEdit(true);
        case mnuTakeBack: return game.TakeBack();
        case mnuRedo: return game.Redo();
        case mnuEditMove:
            if (const auto chosen = controls.Lists.Chosen(menuList)) controls.Editor.Begin({menuList, *chosen});
            return;
        case mnuPrintMoveList: SendMessageW(shell, WM_COMMAND, mnuPrint, 0); return;
        case mnuDeleteLastMove:
            recorder.DeleteLast(menuList);
            ShowEdit();
            if (const size_t count = recorder.List(menuList).Entries().size(); count > 0)
                controls.Lists.Choose({menuList, count - 1});
            return;
        default: return;
    }
}

void frmScorlet::OnMouseDown(POINT point) {
    const int id = ChildAt(point);
    if (IsCell(id) || IsCaptured(id)) EndLookBack();
    if (IsCell(id)) {
        OnSquare(static_cast<Square>(id - picBoard));
    } else if (IsCaptured(id)) {
        const auto [piece, slot] = SlotOf(id - imgCapturedWQ);
        input.ClickCaptured(piece, slot);
        ShowBoard();
    } else {
        return;
    }
    SetFocus(Control(picBoard));
    mouse.Press(point);
}

void frmScorlet::OnSquare(Square square) {
    const bool puttingBack = input.Captured().has_value();
    ShowEntered(input.Click(square), puttingBack);
}

void frmScorlet::ShowEntered(const std::optional<ChosenLine>& line, bool puttingBack) {
    if (line) {
        ShowEdit(line);
        controls.Lists.ShowLast();
    } else {
        ShowBoard();
    }
    if (puttingBack) game.RecordEdited();
}

void frmScorlet::ShowEdit(std::optional<ChosenLine> chosen) {
    game.RecordEdited();
    ShowRecord(chosen);
}

void frmScorlet::Promote(PieceKind kind) {
    recorder.Promote(kind);
    ShowEdit();
    SetFocus(Control(picBoard));
}

bool frmScorlet::OnBoardCharacter(wchar_t character) {
    EndLookBack();
    if (const auto kind = controls.Picker.OnCharacter(character)) {
        Promote(*kind);
        TellSpokenName(picBoard);
    } else if (character < 128 && BeginsMove(static_cast<char>(character))) {
        controls.Typing.Show(character);
    } else {
        return false;
    }
    return true;
}

void frmScorlet::EndTyping(bool enter) {
    if (!controls.Typing.Open()) return;
    if (enter) {
        const auto match = controls.Typing.Match(recorder, captions);
        if (!match) return TellSpokenName(txtTypedMove);
        input.Cancel();
        const ChosenLine line = recorder.Play(match->Played.Origin, match->Played.Destination);
        if (match->Promotion != PieceKind::None) recorder.Promote(match->Promotion);
        ShowEntered(line, false);
    }
    // Before it is hidden: a window that is hidden gives the focus to its form.
    if (GetFocus() == Control(txtTypedMove)) SetFocus(Control(picBoard));
    controls.Typing.Hide();
}

bool frmScorlet::OnBoardKey(WPARAM key) {
    if (lookBack && (key == VK_ESCAPE || key == VK_END)) {
        EndLookBack();
        TellSpokenName(picBoard);
        return true;
    }
    std::optional<PieceKind> chosen;
    if (controls.Picker.OnKey(key, chosen)) {
        if (chosen) Promote(*chosen);
        TellSpokenName(picBoard);
        return true;
    }
    switch (key) {
        case VK_LEFT: input.MoveCursor(-1, 0); break;
        case VK_RIGHT: input.MoveCursor(1, 0); break;
        case VK_UP: input.MoveCursor(0, 1); break;
        case VK_DOWN: input.MoveCursor(0, -1); break;
        case VK_ESCAPE: input.Cancel(); break;
        case VK_INSERT:
            EndLookBack();
            input.PickNextCaptured();
            break;
        case VK_RETURN:
            EndLookBack();
            OnSquare(input.Cursor());
            break;
        case VK_SPACE:
            if (!input.PiecePicked()) {
                game.PressEnabledButton();
                return true;
            }
            OnSquare(input.Cursor());
            break;
        default: return false;
    }
    ShowBoard();
    TellSpokenName(picBoard);
    return true;
}

bool frmScorlet::OnContextMenu(HWND control, POINT point) {
    const int id = GetDlgCtrlID(control);
    if (id != lstMoves && id != lstMoves + 1) return false;
    if (controls.Editor.Open()) return true;
    menuList = id == lstMoves ? White : Black;
    if (point.x == -1 && point.y == -1) {
        // By the keyboard: at the list's corner.
        RECT area{};
        GetWindowRect(control, &area);
        point = {area.left, area.top};
    } else {
        POINT inside = point;
        ScreenToClient(control, &inside);
        const LRESULT row = SendMessageW(control, LB_ITEMFROMPOINT, 0, MAKELPARAM(inside.x, inside.y));
        if (HIWORD(row) == 0 && LOWORD(row) < recorder.List(menuList).Entries().size())
            controls.Lists.Choose({menuList, LOWORD(row)});
    }
    ShowListMenu(Window(), point, captions, game, controls.Lists.Chosen(menuList).has_value());
    return true;
}

void frmScorlet::EndEdit(bool accept) {
    const auto line = controls.Editor.End(accept);
    if (!line) return;
    ShowEdit(line);
    SetFocus(Control(picBoard));
}

int frmScorlet::ChildAt(POINT point) const {
    const HWND child = ChildWindowFromPointEx(Window(), point, CWP_SKIPINVISIBLE);
    return child && child != Window() ? GetDlgCtrlID(child) : 0;
}

bool frmScorlet::OnSetCursor() const {
    POINT point{};
    GetCursorPos(&point);
    ScreenToClient(Window(), &point);
    const int id = ChildAt(point);
    const bool piece = IsCell(id) && recorder.Position().At(static_cast<Square>(id - picBoard)) != Piece::Empty;
    if (!piece && !IsCaptured(id)) return false;
    ::SetCursor(handPointBlue.get());
    return true;
}

void frmScorlet::OnGetMinMaxInfo(MINMAXINFO& info) const {
    const RECT frame = FrameOf(Style, false, Dpi()), screen = WorkArea(Window());
    const LONG width = Scaled(ScorletLeastWidth, Dpi()) + frame.right - frame.left;
    const LONG height = Scaled(ScorletLeastHeight, Dpi()) + frame.bottom - frame.top;
    info.ptMinTrackSize = {std::min(width, screen.right - screen.left), std::min(height, screen.bottom - screen.top)};
}
