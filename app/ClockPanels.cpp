#include "app/ClockPanels.h"

#include "base/TimeText.h"
#include "platform/Ansi.h"
#include "platform/Painting.h"
#include "platform/modResource.h"
#include "resources/resource.h"
#include "settings/ShownName.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr int HandImageSize = 256;
constexpr UINT BlinkInterval = 500;  // milliseconds

static_assert(cmdClock % 2 == 0, "pairs of controls begin at even numbers");

// Sets the text of a drawn control straight where it is kept: whether the control takes a new text for a reason to be
// drawn is its own affair.
void SetDrawnText(HWND control, const std::wstring& text) {
    DefWindowProcW(control, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

std::wstring DrawnText(HWND control) {
    std::array<wchar_t, 64> text{};
    const int length = GetWindowTextW(control, text.data(), static_cast<int>(text.size()));
    return {text.data(), static_cast<size_t>(length)};
}

}  // namespace

Place PlaceOf(int id) {
    if (id >= shpTurn && id < shpTurn + 2 * TurnMarksPerSide) return {shpTurn, id < TurnMark(Black, 0) ? White : Black};
    return {id & ~1, id & 1 ? Black : White};
}

void ClockPanels::Create() {
    constexpr DWORD drawn = WS_VISIBLE | SS_OWNERDRAW;
    constexpr DWORD text = WS_VISIBLE | SS_NOPREFIX | SS_CENTERIMAGE | SS_ENDELLIPSIS;
    for (Side side : BothSides) {
        const auto add = [&](const wchar_t* kind, int pair, DWORD style) {
            form.AddControl(kind, ControlOf(pair, side), style);
        };
        // The order is the reading and the tab order; a label comes before what it names.
        const auto addMark = [&](int mark) { form.AddControl(WC_STATICW, TurnMark(side, mark), SS_OWNERDRAW); };
        addMark(1);
        add(WC_STATICW, imgFlagUp, drawn);
        add(WC_STATICW, imgFlagDown, SS_OWNERDRAW);
        add(WC_STATICW, lblSide, text);
        addMark(0);
        add(WC_STATICW, lblBlink, drawn);
        add(WC_STATICW, lblFace, drawn);
        add(WC_STATICW, imgHand, drawn);
        add(WC_BUTTONW, cmdClock, WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW);
        add(WC_BUTTONW, cmdPause, WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW);
        add(WC_STATICW, lblMoveNumber, text);
        add(WC_STATICW, lblMoveCount, text);
        for (int pair : {lblPeriod, lblPeriodTime, lblBonus, lblBonusTime}) add(WC_STATICW, pair, text | SS_RIGHT);
        add(WC_STATICW, lblStage, text);
        addMark(2);
    }
}

void ClockPanels::LoadPictures() {
    const auto cursor = [](const wchar_t* name) {
        return static_cast<HCURSOR>(
            LoadImageW(GetModuleHandleW(nullptr), name, IMAGE_CURSOR, 0, 0, LR_DEFAULTSIZE | LR_DEFAULTCOLOR));
    };
    handHit.reset(cursor(L"HANDHIT.CUR"));
    handPointBlue.reset(cursor(L"HANDPOINTBLUE.CUR"));
    hand = Picture::OfIcon(L"HAND", HandImageSize);
    flagUp = Picture(*modResource::LoadResourcePicture("FLAGUP"));
    flagDown = Picture(*modResource::LoadResourcePicture("FLAGDOWN"));
}

void ClockPanels::ApplyTexts() {
    for (Side side : BothSides) {
        form.SetText(ControlOf(cmdClock, side), texts(TextId::ClockButton));
        form.SetText(ControlOf(lblMoveNumber, side), texts(TextId::MoveNumber));
        form.SetText(ControlOf(lblBonus, side), texts(TextId::BonusTime));
    }
}

void ClockPanels::Arrange() {
    RECT client{};
    GetClientRect(form.Window(), &client);
    if (client.right == 0 || client.bottom == 0) return;
    arranged = client;
    layout = LayOutClock(static_cast<int>(client.right), static_cast<int>(client.bottom));
    painter.SetLayout(layout);
    painter.FitNames({ShownName(settings, texts, White), ShownName(settings, texts, Black)});
    for (Side side : BothSides) ArrangePanel(side);
    // Drawn controls show more or less at another size, so what they showed is no longer good.
    RedrawWindow(form.Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void ClockPanels::TakeSize() {
    // Sizes that the window takes before it is shown come and go, and moving every control takes time.
    if (!IsWindowVisible(form.Window())) return;
    RECT client{};
    GetClientRect(form.Window(), &client);
    if (!EqualRect(&client, &arranged)) Arrange();
}

void ClockPanels::ArrangePanel(Side side) {
    const PanelLayout& panel = layout.Panels[side];
    const auto move = [&](int id, const Box& box) {
        SetWindowPos(form.Control(id), nullptr, box.Left, box.Top, box.Width, box.Height,
                     SWP_NOZORDER | SWP_NOACTIVATE);
    };
    const auto place = [&](int pair, const Box& box, HFONT font = nullptr) {
        const int id = ControlOf(pair, side);
        if (font) SendMessageW(form.Control(id), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
        move(id, box);
    };
    place(lblSide, panel.Name, painter.NameFont());
    place(lblBlink, panel.Blink, painter.BlinkFont());
    place(lblFace, panel.Face);
    place(imgFlagUp, panel.Flag);
    place(imgFlagDown, panel.Flag);
    place(imgHand, panel.Hand);
    place(cmdClock, panel.ClockButton, painter.ButtonFont());
    place(cmdPause, panel.PauseButton, painter.PauseFont());
    // The number follows its caption, which is shorter in some languages.
    Box caption = panel.MoveNumber, count = panel.MoveCount;
    caption.Width = std::min(caption.Width, painter.TextWidth(texts(TextId::MoveNumber)) + layout.TextType / 4);
    count.Left = caption.Right();
    place(lblMoveNumber, caption, painter.TextFont());
    place(lblMoveCount, count, painter.TextFont());
    place(lblPeriod, panel.Period, painter.TextFont());
    place(lblPeriodTime, panel.PeriodTime, painter.TextFont());
    place(lblBonus, panel.Bonus, painter.TextFont());
    place(lblBonusTime, panel.BonusTime, painter.TextFont());
    place(lblStage, panel.Stage, painter.TextFont());
    const HWND stage = form.Control(ControlOf(lblStage, side));
    const LONG_PTR style = GetWindowLongPtrW(stage, GWL_STYLE) & ~LONG_PTR{SS_TYPEMASK};
    SetWindowLongPtrW(stage, GWL_STYLE, style | (panel.StageAtRight ? SS_RIGHT : SS_LEFT));
    for (int mark = 0; mark < TurnMarksPerSide; ++mark)
        move(TurnMark(side, mark), panel.TurnMarks()[static_cast<size_t>(mark)]);

    const auto tip = [&](int pair, const Box& box, TextId row) {
        toolTips.SetArea(ControlOf(pair, side), RectOf(box), texts(row));
    };
    tip(imgFlagUp, panel.Flag, TextId::TipFlag);
    tip(imgHand, panel.Hand, TextId::TipHand);
    tip(lblPeriodTime, panel.PeriodTime, TextId::TipHoursMinutes);
    tip(lblBonusTime, panel.BonusTime, TextId::TipMinutesSeconds);
}

bool ClockPanels::HasSecondPeriod(Side side) const {
    return settings.Control.SecondPeriodEnabled && settings.Control.SecondPeriodTime[side] > 0;
}

int32_t ClockPanels::PeriodTime(Side side) const {
    return HasSecondPeriod(side) ? settings.Control.SecondPeriodTime[side] : settings.Control.PeriodLimit[side];
}

void ClockPanels::ShowSettings() {
    const std::wstring ordinal = texts.Compose(OrdinalRow(settings.Control.MovesFirstPeriod, texts.LanguageIndex()),
                                               std::to_wstring(settings.Control.MovesFirstPeriod));
    for (Side side : BothSides) {
        const std::wstring caption =
            HasSecondPeriod(side) ? texts.Compose(TextId::AfterNthMove, ordinal) : texts(TextId::CompleteGameTime);
        const int32_t bonus = settings.Control.MoveBonus[side];
        form.SetText(ControlOf(lblSide, side), ShownName(settings, texts, side));
        form.SetText(ControlOf(lblPeriod, side), caption);
        // A loaded game may have a time that Setup cannot set; it is shown as it counts.
        const int32_t seconds = PeriodTime(side) % 60;
        const std::string rest = seconds > 0 ? ":" + TwoDigitText(seconds) : "";
        form.SetText(ControlOf(lblPeriodTime, side), FromAnsi(HoursMinutesText(PeriodTime(side)) + rest));
        form.SetText(ControlOf(lblBonusTime, side), FromAnsi(MinutesSecondsText(bonus)));
        for (int pair : {lblBonus, lblBonusTime}) form.SetVisible(ControlOf(pair, side), bonus > 0);
        form.SetVisible(ControlOf(lblStage, side), HasSecondPeriod(side));
        for (int pair : {lblMoveNumber, lblMoveCount}) form.SetVisible(ControlOf(pair, side), settings.ShowMoveNumber);
    }
    // The type of a name depends on its length.
    Arrange();
}

void ClockPanels::ShowFace(Side side) {
    const HWND face = form.Control(ControlOf(lblFace, side));
    const std::wstring before = DrawnText(face), text = FromAnsi(commands.Clock().Face(side));
    if (text == before) return;
    SetDrawnText(face, text);
    // Before the many other controls that a press changes, and no more of it than the digits that are new.
    DrawNow(ControlOf(lblFace, side), painter.ChangedPart(before, text));
}

void ClockPanels::ShowPhase() {
    for (Side side : BothSides) {
        for (int mark = 0; mark < TurnMarksPerSide; ++mark)
            form.SetVisible(TurnMark(side, mark), commands.TurnMarksVisible(side));
        form.SetVisible(ControlOf(imgFlagUp, side), !commands.FlagFallen(side));
        form.SetVisible(ControlOf(imgFlagDown, side), commands.FlagFallen(side));
        form.SetText(ControlOf(cmdPause, side), texts(commands.ReadsResume(side) ? TextId::Resume : TextId::Pause));
        form.SetEnabled(ControlOf(cmdClock, side), commands.ClockButtonEnabled(side));
        form.SetEnabled(ControlOf(cmdPause, side), commands.PauseButtonEnabled(side));
        const int32_t moves = commands.Clock().State().MoveCount[side];
        form.SetText(ControlOf(lblMoveCount, side), std::to_wstring(moves) + L".");
        form.SetText(ControlOf(lblStage, side), Stage(side));
        // What says nothing should not be there for a screen reader.
        form.SetVisible(ControlOf(lblBlink, side), commands.BlinkingSide() == side);
    }
    ShowWord();
    for (Side side : BothSides) {
        ShowMark(side);
        if (std::exchange(shown[side], commands.LookOf(side)) == commands.LookOf(side)) continue;
        const RECT area = RectOf(layout.Panels[side].Panel);
        RedrawWindow(form.Window(), &area, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    }
    // At once: what follows may take time, the flag's sound for example.
    RedrawWindow(form.Window(), nullptr, nullptr, RDW_ALLCHILDREN | RDW_UPDATENOW);
}

void ClockPanels::ShowWord() {
    const auto side = commands.BlinkingSide();
    const auto blinks = side ? std::optional(std::pair(*side, BlinkRow())) : std::nullopt;
    // Only a word that is new begins anew: another change may come with a tick, and so together with a blink.
    if (std::exchange(blinking, blinks) == blinks) return;
    for (Side panel : BothSides) {
        const HWND label = form.Control(ControlOf(lblBlink, panel));
        SetDrawnText(label, side == panel ? texts(BlinkRow()) : L"");
        InvalidateRect(label, nullptr, FALSE);
    }
}

void ClockPanels::ShowMark(Side side) {
    const FaceMark mark = commands.MarkOf(side);
    if (std::exchange(shownMarks[side], mark) == mark) return;
    const HWND face = form.Control(ControlOf(lblFace, side));
    InvalidateRect(face, nullptr, FALSE);
    if (mark != FaceMark::None) NotifyWinEvent(EVENT_SYSTEM_ALERT, face, OBJID_CLIENT, CHILDID_SELF);
}

std::wstring ClockPanels::Stage(Side side) const {
    const modClock::ClockState& state = commands.Clock().State();
    if (state.InSecondPeriod(side)) return texts(TextId::SecondStage);
    const int32_t made = std::max(state.MoveCount[side] - 1, 0);
    return texts.Compose(TextId::FirstStage, std::to_wstring(state.Control.MovesFirstPeriod - made));
}

void ClockPanels::TimeBlinks() {
    const Phase phase = commands.CurrentPhase();
    if (std::exchange(timed, phase) == phase) return;
    if (commands.BlinkingSide())
        ::SetTimer(form.Window(), BlinkTimer, BlinkInterval, nullptr);
    else
        KillTimer(form.Window(), BlinkTimer);
}

void ClockPanels::Blink() {
    const auto side = commands.BlinkingSide();
    if (!side) return;
    const int id = ControlOf(lblBlink, *side);
    const HWND label = form.Control(id);
    SetDrawnText(label, GetWindowTextLengthW(label) == 0 ? texts(BlinkRow()) : L"");
    // The mark of a paused clock keeps its own word.
    if (commands.LookOf(*side) == PanelLook::Paused) return;
    const Box& place = layout.Panels[*side].Blink;
    DrawNow(id, {0, 0, place.Width, place.Height});
}

void ClockPanels::DrawNow(int id, const RECT& part) const {
    // Sends the message with which the system asks for a whole control. To make the part invalid and wait to be asked
    // takes longer, and this happens twice in each second.
    const HWND control = form.Control(id);
    const WindowDc dc(control);
    IntersectClipRect(dc.Dc(), part.left, part.top, part.right, part.bottom);
    if (!RectVisible(dc.Dc(), &part)) return;
    DRAWITEMSTRUCT item{ODT_STATIC, static_cast<UINT>(id), 0, ODA_DRAWENTIRE, 0, control, dc.Dc(), {}, 0};
    GetClientRect(control, &item.rcItem);
    SendMessageW(form.Window(), WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
}

TextId ClockPanels::BlinkRow() const {
    return commands.BlinkText() == BlinkMark::ToMove ? TextId::ToMove : TextId::Pause;
}

std::wstring ClockPanels::SpokenName(int id) const {
    const auto [pair, side] = PlaceOf(id);
    const bool fallen = commands.FlagFallen(side);
    const auto of = [&, side = side](const std::wstring& text) { return texts.SideName(side) + L", " + text; };
    switch (pair) {
        case lblFace: {
            const modClock::ClockState& state = commands.Clock().State();
            const int32_t minutes = state.TimeHours[side] * 60 + state.TimeMinutes[side];
            std::wstring time = of(texts.Duration(minutes * 60 + state.TimeSeconds[side]));
            if (fallen) return time + L", " + texts(TextId::FlagFallen);
            switch (commands.MarkOf(side)) {
                case FaceMark::PeriodBegan: return time + L", " + texts(TextId::SecondStageBegins);
                case FaceMark::TimeLow: return time + L", " + texts(TextId::LowTime);
                default: return time;
            }
        }
        case lblBlink: return of(texts(BlinkRow()));  // while the mark is off too
        case shpTurn: return of(texts(TextId::ToMove));
        case imgFlagUp:
        case imgFlagDown: return of(texts(fallen ? TextId::FlagFallen : TextId::FlagUp));
        case imgHand:
        case cmdClock: return of(texts(TextId::TipHand));
        case cmdPause: return of(texts(commands.ReadsResume(side) ? TextId::Resume : TextId::Pause));
        case lblPeriodTime: return texts.Duration(PeriodTime(side));
        case lblBonusTime: return texts.Duration(settings.Control.MoveBonus[side]);
        default: return {};
    }
}

Place ClockPanels::PlaceAt(POINT point) const {
    const HWND child = ChildWindowFromPointEx(form.Window(), point, CWP_SKIPINVISIBLE);
    return child && child != form.Window() ? PlaceOf(GetDlgCtrlID(child)) : Place{};
}

bool ClockPanels::ShowCursorOfPicture() const {
    POINT point{};
    GetCursorPos(&point);
    ScreenToClient(form.Window(), &point);
    HCURSOR cursor = nullptr;
    switch (PlaceAt(point).Pair) {
        case imgHand: cursor = handHit.get(); break;
        case imgFlagUp:
        case imgFlagDown: cursor = handPointBlue.get(); break;
        default: break;
    }
    if (cursor) ::SetCursor(cursor);
    return cursor != nullptr;
}

std::wstring ClockPanels::MarkWord(Side side) const {
    const PanelLook look = commands.LookOf(side);
    if (look == PanelLook::Paused) return texts(TextId::MarkPaused);
    return look == PanelLook::Fallen ? texts(TextId::MarkFallen) : L"";
}

void ClockPanels::Draw(const DRAWITEMSTRUCT& item) {
    const int id = static_cast<int>(item.CtlID);
    const auto [pair, side] = PlaceOf(id);
    const PanelLook look = commands.LookOf(side);
    const std::wstring text = DrawnText(item.hwndItem);
    switch (pair) {
        case lblFace: return painter.DrawFace(item, side, look, commands.MarkOf(side), text);
        case lblBlink: {
            // The mark of a paused clock keeps its word while the caption blinks.
            const bool own = look == PanelLook::Paused || text.empty();
            return painter.DrawMarkWord(item, look, own ? MarkWord(side) : text);
        }
        case shpTurn: return painter.DrawTurnMark(item, side, static_cast<size_t>(id - TurnMark(side, 0)));
        case imgFlagUp: return painter.DrawFlag(item, flagUp, false);
        case imgFlagDown: return painter.DrawFlag(item, flagDown, true);
        case imgHand: return painter.DrawHand(item, side, hand, commands.ClockButtonEnabled(side));
        case cmdClock: return painter.DrawClockButton(item, side, text);
        case cmdPause: return painter.DrawPauseButton(item, text);
        default: return;
    }
}

HBRUSH ClockPanels::Colour(HDC dc, HWND control) const {
    const auto [pair, side] = PlaceOf(GetDlgCtrlID(control));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, pair == lblSide ? ClockPainter::NameColour(commands.LookOf(side)) : ClockPainter::LabelColour());
    return painter.CardBrush();
}

void ClockPanels::PaintBackground() const {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(form.Window(), &paint);
    FillRect(dc, &paint.rcPaint, painter.BackgroundBrush());
    for (Side side : BothSides) {
        const RECT area = RectOf(layout.Panels[side].Panel);
        if (RectVisible(dc, &area)) painter.DrawPanel(dc, side, commands.LookOf(side), MarkWord(side));
    }
    EndPaint(form.Window(), &paint);
}
