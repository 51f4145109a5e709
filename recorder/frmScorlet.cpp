#include "recorder/frmScorlet.h"

#include "platform/Ansi.h"
#include "platform/Dpi.h"
#include "platform/SystemError.h"
#include "recorder/ListMenu.h"
#include "recorder/MatchedMoves.h"
#include "recorder/SpokenBoard.h"
#include "resources/resource.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <array>

namespace {

constexpr wchar_t ClassName[] = L"frmScorlet";
constexpr DWORD Style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;

std::wstring WithoutAccessKey(std::wstring caption) {
    std::erase(caption, L'&');
    return caption;
}

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
    CreateControls();
    std::wstring problem;
    try {
        painter.LoadPictures();
    } catch (const SystemError& error) {
        problem = texts.Compose(TextId::PictureNotLoaded, error.Thing(), texts.Reason(error.Code()));
    }
    ApplyTexts();
    SetWindowPos(Window(), nullptr, place.Left, place.Top, place.Width, place.Height, SWP_NOZORDER | SWP_NOACTIVATE);
    ShowRecord();
    ShowWindow(Window(), SW_SHOWNOACTIVATE);
    UpdateWindow(Window());
    return problem;
}

void frmScorlet::CreateControls() {
    // The field for typing may cover cells, which therefore leave it out when they draw.
    typing.Create(WM_ENDTYPING);
    // The order is the reading and the tab order.
    board.Create();
    AddControl(WC_STATICW, lblCaptured, WS_VISIBLE | SS_CENTERIMAGE);
    board.CreateCaptured();
    AddControl(WC_STATICW, lblSay, WS_VISIBLE | SS_CENTERIMAGE);
    say.Create();
    whoseMove.Create();
    for (Side side : BothSides)
        AddControl(WC_STATICW, ControlOf(lblPlayer, side), WS_VISIBLE | SS_CENTERIMAGE | SS_NOPREFIX | SS_ENDELLIPSIS);
    lists.Create();
    field.Create(WM_ENDEDIT);
    picker.Create();
}

void frmScorlet::ApplyTexts() {
    SetText(lblCaptured, captions(TextId::CapturedPieces));
    SetText(lblSay, captions(TextId::Say));
    SetText(cmdOK, captions(TextId::ButtonOk));
    picker.ApplyTexts(captions);
    say.Fill(captions);
}

void frmScorlet::ShowNames() {
    for (Side side : BothSides) {
        const std::wstring name = FromAnsi(game.PlayerName(side));
        SetText(ControlOf(lblPlayer, side), name.empty() ? captions.SideName(side) : name);
    }
}

void frmScorlet::Arrange() {
    RECT client{};
    GetClientRect(Window(), &client);
    if (client.right == 0 || client.bottom == 0) return;
    layout = LayOutScorlet(static_cast<int>(client.right), static_cast<int>(client.bottom), Dpi(), game.BoardTurned());
    input.Turn(layout.Turned);
    painter.SetLayout(layout);
    const auto place = [&](int id, const Box& box) {
        SetWindowPos(Control(id), nullptr, box.Left, box.Top, box.Width, box.Height, SWP_NOZORDER | SWP_NOACTIVATE);
        SendMessageW(Control(id), WM_SETFONT, reinterpret_cast<WPARAM>(painter.Font()), FALSE);
    };
    board.Place(layout);
    place(txtTypedMove, layout.TypedMove);
    place(lblTypedMove, layout.TypedReason);
    place(lblCaptured, layout.CapturedTitle);
    place(lblSay, layout.SayLabel);
    // The height of a drop-down list counts its open part.
    place(cmbSay, {layout.Say.Left, layout.Say.Top, layout.Say.Width, 8 * layout.Say.Height});
    place(lblWhoseMove, layout.WhoseMove);
    for (Side side : BothSides) {
        place(ControlOf(lblPlayer, side), layout.ListHeads[side]);
        SendMessageW(Control(ControlOf(lblPlayer, side)), WM_SETFONT, reinterpret_cast<WPARAM>(painter.HeadFont()),
                     FALSE);
        place(ControlOf(lstMoves, side), layout.Lists[side]);
        SendMessageW(Control(ControlOf(lstMoves, side)), LB_SETITEMHEIGHT, 0, layout.Type * 4 / 3);
    }
    place(txtMove, layout.Edit);
    place(cmdOK, layout.EditOk);
    place(lblPromotion, layout.PromotionTitle);
    for (int i = 0; i < 4; ++i) place(imgPromotionQ + i, layout.Promotion[static_cast<size_t>(i)]);
    lists.Show();
    RedrawWindow(Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void frmScorlet::ShowRecord(std::optional<ChosenLine> chosen) {
    ShowNames();
    if (layout.Turned != game.BoardTurned()) Arrange();
    ShowBoard();
    ShowWhoseMove();
    lists.Show();
    if (chosen) lists.Choose(*chosen);
    picker.Show();
}

void frmScorlet::RecordChanged(const ChosenLines& chosen) {
    ShowRecord();
    for (Side side : BothSides) {
        if (chosen[side]) lists.Choose({side, *chosen[side]});
    }
    lists.ShowLast();
}

void frmScorlet::RecordReplaced() {
    EndEdit(false);
    EndTyping(false);
    input.Reset();
    picker.Reset();
    lists.ChooseNone();
    ShowRecord();
}

void frmScorlet::RecordStepped(const ChosenLines& chosen) {
    EndEdit(false);
    EndTyping(false);
    input.Cancel();
    lists.ChooseNone();
    RecordChanged(chosen);
    TellSpokenName(picBoard);
}

void frmScorlet::ShowBoard() {
    board.Show();
    picker.ShowMark();
    mouse.Follow();
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
        case WM_COMMAND: OnCommand(LOWORD(wParam), HIWORD(wParam)); return 0;
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
        case WM_ENDTYPING: EndTyping(wParam != 0); return 0;
        case WM_CHAR:
            if (IsPauseKey(wParam)) game.PressKeyP();
            return 0;
        case WM_HELP: SendMessageW(shell, WM_COMMAND, mnuScorletHelp, 0); return TRUE;
        case WM_ENDEDIT: EndEdit(wParam != 0); return 0;
        case WM_CONTEXTMENU:
            if (OnContextMenu(reinterpret_cast<HWND>(wParam), {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)})) return 0;
            break;
        case WM_DRAWITEM: OnDrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)); return TRUE;
        case WM_CTLCOLORSTATIC:
            return reinterpret_cast<LRESULT>(
                OnColour(reinterpret_cast<HDC>(wParam), GetDlgCtrlID(reinterpret_cast<HWND>(lParam))));
        case WM_ERASEBKGND: {
            RECT client{};
            GetClientRect(Window(), &client);
            FillRect(reinterpret_cast<HDC>(wParam), &client, painter.BackgroundBrush());
            painter.DrawTrays(reinterpret_cast<HDC>(wParam), layout);
            return TRUE;
        }
        case WM_SIZE: Arrange(); return 0;
        case WM_GETMINMAXINFO: OnGetMinMaxInfo(*reinterpret_cast<MINMAXINFO*>(lParam)); return 0;
        case WM_SETCURSOR:
            if (LOWORD(lParam) == HTCLIENT && OnSetCursor()) return TRUE;
            break;
        case WM_ACTIVATE:
            if (LOWORD(wParam) != WA_INACTIVE) SetFocus(Control(Editing() ? txtMove : picBoard));
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
            if (notification == CBN_DROPDOWN) say.Fill(captions);
            if (const auto declaration = say.OnNotification(notification)) game.Declare(*declaration);
            return;
        case lstMoves:
        case lstMoves + 1:
            if (notification == LBN_SELCHANGE) lists.OnChoice(id == lstMoves ? White : Black);
            return;
        case txtMove:
            if (notification == EN_CHANGE) field.OnChange();
            return;
        case txtTypedMove:
            if (notification == EN_CHANGE) typing.OnChange();
            if (notification == EN_KILLFOCUS) EndTyping(false);
            return;
        case cmdOK: return EndEdit(true);
        case mnuTakeBack: return game.TakeBack();
        case mnuRedo: return game.Redo();
        case mnuEditMove: return BeginEdit(menuList);
        case mnuPrintMoveList: SendMessageW(shell, WM_COMMAND, mnuPrint, 0); return;
        case mnuDeleteLastMove:
            recorder.DeleteLast(menuList);
            ShowEdit();
            if (const size_t count = recorder.List(menuList).Entries().size(); count > 0)
                lists.Choose({menuList, count - 1});
            return;
        default: return;
    }
}

void frmScorlet::OnMouseDown(POINT point) {
    const int id = ChildAt(point);
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
        lists.ShowLast();
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
    if (const auto kind = picker.OnCharacter(character)) {
        Promote(*kind);
        TellSpokenName(picBoard);
    } else if (character < 128 && BeginsMove(static_cast<char>(character))) {
        typing.Show(character);
    } else {
        return false;
    }
    return true;
}

void frmScorlet::EndTyping(bool enter) {
    if (!typing.Open()) return;
    if (enter) {
        const auto match = typing.Match(recorder, captions);
        if (!match) return TellSpokenName(txtTypedMove);
        input.Cancel();
        const ChosenLine line = recorder.Play(match->Played.Origin, match->Played.Destination);
        if (match->Promotion != PieceKind::None) recorder.Promote(match->Promotion);
        ShowEntered(line, false);
    }
    // Before it is hidden: a window that is hidden gives the focus to its form.
    if (GetFocus() == Control(txtTypedMove)) SetFocus(Control(picBoard));
    typing.Hide();
}

bool frmScorlet::OnBoardKey(WPARAM key) {
    std::optional<PieceKind> chosen;
    if (picker.OnKey(key, chosen)) {
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
        case VK_INSERT: input.PickNextCaptured(); break;
        case VK_RETURN: OnSquare(input.Cursor()); break;
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
    if (Editing()) return true;
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
            lists.Choose({menuList, LOWORD(row)});
    }
    ShowListMenu(Window(), point, captions, game, lists.Chosen(menuList).has_value());
    return true;
}

void frmScorlet::BeginEdit(Side side) {
    const auto chosen = lists.Chosen(side);
    if (!chosen) return;
    const ChosenLine line{side, *chosen};
    edited = Edited{line, recorder.List(side).Entries()[line.Index]};
    field.Show(FromAnsi(edited->Entry.Text));
}

void frmScorlet::EndEdit(bool accept) {
    if (!edited) return;
    ChosenLine line = edited->Line;
    const bool wasResult = edited->Entry.IsResult();
    edited.reset();
    // A result moves to the end when lines are added, and goes when play goes on; moves stay where they are.
    const MoveList& list = recorder.List(line.List);
    if (wasResult && list.EndsWithResult()) line.Index = list.Entries().size() - 1;
    const bool unchanged = line.Index < list.Entries().size() && list.Entries()[line.Index].IsResult() == wasResult;
    if (accept && unchanged) recorder.Edit(line.List, line.Index, ToAnsi(field.Text()));
    field.Hide();
    ShowEdit(line);
    SetFocus(Control(picBoard));
}

std::wstring frmScorlet::SpokenName(int id) const {
    if (id == picBoard)
        return picker.TakesKeys() ? picker.SpokenText(captions) : SpokenBoard(captions, recorder, input);
    if (IsCell(id)) return SpokenSquare(captions, recorder, input, static_cast<Square>(id - picBoard));
    if (IsCaptured(id)) {
        const auto [piece, slot] = SlotOf(id - imgCapturedWQ);
        return SpokenCaptured(captions, input, piece, slot);
    }
    switch (id) {
        case lstMoves:
        case lstMoves + 1:
            return captions.SideName(id == lstMoves ? White : Black) + L", " + captions(TextId::MovesOfSide);
        case txtMove: return WithoutAccessKey(captions(TextId::EditMove));
        case txtTypedMove: return typing.SpokenText(captions);
        default: return {};
    }
}

std::wstring frmScorlet::SpokenPart(int id, int part) const {
    if (id != lstMoves && id != lstMoves + 1) return {};
    const MoveList& list = recorder.List(id == lstMoves ? White : Black);
    const auto index = static_cast<size_t>(part - 1);
    // With the number in both lists, as in White's.
    return index < list.Entries().size() ? FromAnsi(list.Line(index, White)) : L"";
}

void frmScorlet::OnDrawItem(const DRAWITEMSTRUCT& item) const {
    const int id = static_cast<int>(item.CtlID);
    if (id == lstMoves || id == lstMoves + 1) return lists.Draw(item, id == lstMoves ? White : Black);
    if (PromotionPicker::Has(id)) return picker.Draw(item);
    board.Draw(item);
}

HBRUSH frmScorlet::OnColour(HDC dc, int id) const {
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    const HBRUSH warning = id == lblWhoseMove ? whoseMove.Colours(dc) : nullptr;
    return warning ? warning : painter.BackgroundBrush();
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
