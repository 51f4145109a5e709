#include "settings/frmSetup.h"

#include "base/TimeText.h"
#include "platform/Ansi.h"
#include "platform/DialogSizes.h"
#include "platform/Subclass.h"
#include "platform/SystemError.h"
#include "platform/modSound.h"
#include "settings/SetupItems.h"
#include "settings/ShownName.h"
#include "settings/frmKeepAs.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <array>

namespace {

constexpr std::array Times{
    TimeBars{lblFirstCaption, lblFirstUnit, hsbFirstPeriod, lblFirstPeriod, FirstPeriodScale, 60,
             &TimeControl::PeriodLimit},
    TimeBars{lblSecondCaption, lblSecondUnit, hsbSecondPeriod, lblSecondPeriod, SecondPeriodScale, 60,
             &TimeControl::SecondPeriodTime},
    TimeBars{lblBonusCaption, lblBonusUnit, hsbBonus, lblBonusValue, BonusScale, 1, &TimeControl::MoveBonus},
};

constexpr std::array Checks{chkOpenScorlet, chkPGN, chkShowMoveNumber, chkTurnClock, chkCountTimeDown};

bool& CheckedBy(int box, Settings& settings) {
    switch (box) {
        case chkOpenScorlet: return settings.OpenScorletAtStart;
        case chkPGN: return settings.WritePgn;
        case chkShowMoveNumber: return settings.ShowMoveNumber;
        case chkTurnClock: return settings.TurnClock;
        default: return settings.Control.CountTimeDown;
    }
}

constexpr std::array Lists{cmbClockType,   cmbTimes,     cmbLanguage, cmbMoveAmount,
                           cmbButtonSound, cmbFlagSound, cmbLowTime};

// In the order of the lists.
constexpr std::array<int32_t, 3> Languages{English, French, Turkish};

constexpr std::array<int32_t, 5> LowTimes{0, 10, 30, 60, 300};  // seconds

constexpr int32_t ClockTypes = 4;

}  // namespace

frmSetup::frmSetup(const Surroundings& around, const SettingsFile& file, Settings& settings,
                   std::function<void(HWND)> openHelp)
    : Dialog(around, {around.System.Look.BackgroundColour, Look::Card}),
      file(file),
      settings(settings),
      draft(settings),
      timeControls(around.System.DataFolder, captions),
      openHelp(std::move(openHelp)) {
    DropFractions(draft);
}

void frmSetup::Open(HWND owner) {
    Create(owner, L"frmSetup", TextId::SetupTitle, L"AAATORVANIX", DialogSize::Setup, SetupItems::Items);
    if (const std::wstring problem = timeControls.Load(); !problem.empty()) messageBoxes.Inform(owner, problem);
    for (int list : Lists) Subclass<ListProcedure>(Control(list), Window());
    for (int bar = hsbFirstPeriod; bar <= hsbBonus + 1; ++bar) Subclass<BarProcedure>(Control(bar), this);
    FillLists();
    SetToolTips();
    ShowDraft();
    for (Side side : BothSides) SetText(ControlOf(txtName, side), NameOf(draft, side));
}

void frmSetup::FillLists() {
    for (int32_t i = 0; i < ClockTypes; ++i) AddEntry(cmbClockType, captions(RowAfter(TextId::ClockTypeNames, i)));
    for (int32_t language : Languages)
        AddEntry(cmbLanguage, captions.LookUp(TextIdentifier(TextId::LanguageNames, language)));
    for (int32_t moves = 1; moves <= MostMovesListed; ++moves) AddEntry(cmbMoveAmount, std::to_wstring(moves));
    FillTimeControls();
    for (size_t i = 0; i < ButtonSounds.size(); ++i)
        AddEntry(cmbButtonSound, captions(RowAfter(TextId::ButtonSoundNames, static_cast<int32_t>(i))));
    for (size_t i = 0; i < FlagSounds.size(); ++i)
        AddEntry(cmbFlagSound, captions(RowAfter(TextId::FlagSoundNames, static_cast<int32_t>(i))));
    for (size_t i = 0; i < LowTimes.size(); ++i)
        AddEntry(cmbLowTime, captions(RowAfter(TextId::LowTimeNames, static_cast<int32_t>(i))));
}

void frmSetup::FillTimeControls() {
    SendMessageW(Control(cmbTimes), CB_RESETCONTENT, 0, 0);
    AddEntry(cmbTimes, captions(TextId::OtherTimes));
    for (const TimeControls::Entry& entry : timeControls.All()) AddEntry(cmbTimes, entry.Name);
}

void frmSetup::SetToolTips() {
    toolTips.Create();
    for (int unit : {lblFirstUnit, lblSecondUnit}) toolTips.Set(unit, captions(TextId::TipHoursMinutes));
    toolTips.Set(lblBonusUnit, captions(TextId::TipMinutesSeconds));
    for (int bar = hsbFirstPeriod; bar <= hsbBonus + 1; ++bar)
        toolTips.Set(bar, captions(bar < hsbBonus ? TextId::TipTypedTime : TextId::TipTypedBonus));
    for (int button : {cmdPreviewButton, cmdPreviewFlag}) toolTips.Set(button, captions(TextId::Preview));
}

void frmSetup::ShowDraft() {
    if (draft.Control.MovesFirstPeriod > MostMovesListed) {
        unlistedMoves = draft.Control.MovesFirstPeriod;
        SendMessageW(Control(cmbMoveAmount), CB_DELETESTRING, MostMovesListed, 0);
        AddEntry(cmbMoveAmount, std::to_wstring(unlistedMoves));
    }
    for (int list : Lists) SendMessageW(Control(list), CB_SETCURSEL, static_cast<WPARAM>(PositionOf(list)), 0);
    for (const int box : Checks)
        SendMessageW(Control(box), BM_SETCHECK, CheckedBy(box, draft) ? BST_CHECKED : BST_UNCHECKED, 0);
    for (const TimeBars& bars : Times) {
        for (Side side : BothSides) ShowTime(bars, side);
    }
    // Last: a range makes a scroll bar enabled.
    ShowClockType();
}

// What a list shows of the draft; -1 where it has no entry for it.
int frmSetup::PositionOf(int list) const {
    switch (list) {
        case cmbClockType: return draft.ClockType;
        case cmbTimes: {
            const auto matching = timeControls.Matching(TimesOf(draft), chosenTimes);
            return matching ? static_cast<int>(*matching) + 1 : 0;
        }
        case cmbLanguage: {
            const auto language = std::find(Languages.begin(), Languages.end(), settings.LanguageIndex);
            return language == Languages.end() ? -1 : static_cast<int>(language - Languages.begin());
        }
        case cmbMoveAmount: return std::min(draft.Control.MovesFirstPeriod - 1, MostMovesListed);
        case cmbButtonSound: return draft.ButtonSoundIndex;
        case cmbLowTime: {
            const auto low = std::find(LowTimes.begin(), LowTimes.end(), draft.LowTime);
            return low == LowTimes.end() ? -1 : static_cast<int>(low - LowTimes.begin());
        }
        default: return draft.FlagSoundIndex;
    }
}

// Which of the named ones the draft has.
void frmSetup::ShowTimeControl() {
    const int position = PositionOf(cmbTimes);
    if (SendMessageW(Control(cmbTimes), CB_GETCURSEL, 0, 0) != position)
        SendMessageW(Control(cmbTimes), CB_SETCURSEL, static_cast<WPARAM>(position), 0);
    SetEnabled(cmdKeepAs, draft.ClockType >= 0 && draft.ClockType < ClockTypes);
    SetEnabled(cmdRemoveTimes, position > 0 && timeControls.All()[static_cast<size_t>(position) - 1].Own);
}

void frmSetup::ShowClockType() {
    const TypeRules rules = RulesOf(draft.ClockType);
    ShowTimeRow(Times[0], true);
    ShowTimeRow(Times[1], rules.SecondPeriod);
    ShowTimeRow(Times[2], rules.Bonus);
    SetEnabled(lblMoveAmount, rules.MoveAmount);
    SetEnabled(cmbMoveAmount, rules.MoveAmount);
    ShowTimeControl();
}

void frmSetup::ShowTimeRow(const TimeBars& bars, bool has) {
    SetText(bars.Caption, has ? CaptionOf(bars) : L"");
    SetVisible(bars.Caption, has);
    SetVisible(bars.Measure, has);
    for (Side side : BothSides) {
        for (int pair : {bars.Bar, bars.Value}) {
            SetEnabled(ControlOf(pair, side), has);
            SetVisible(ControlOf(pair, side), has);
        }
    }
}

std::wstring frmSetup::CaptionOf(const TimeBars& bars) const {
    const bool one = draft.Control.MovesFirstPeriod == 1;
    const std::wstring moves = std::to_wstring(draft.Control.MovesFirstPeriod);
    if (bars.Bar == hsbBonus) return captions(TextId::BonusTime);
    if (bars.Bar == hsbSecondPeriod)
        return captions(TextId::SecondTimeBefore) + moves +
               captions(one ? TextId::SecondTimeAfterOne : TextId::SecondTimeAfter);
    if (!RulesOf(draft.ClockType).MoveAmount) return captions(TextId::CompleteGameTime);
    if (one) return captions(TextId::FirstTimeOne);
    return captions(TextId::FirstTimeBefore) + moves + captions(TextId::FirstTimeAfter);
}

// A bar's place says little: its time is said with it.
std::wstring frmSetup::SpokenName(int id) const {
    for (const TimeBars& bars : Times) {
        for (Side side : BothSides) {
            std::wstring time = captions.Duration((WithoutWhatTypeLacks(draft).Control.*bars.Time)[side]);
            if (id == ControlOf(bars.Value, side)) return time;
            if (id == ControlOf(bars.Bar, side))
                return CaptionOf(bars) + L", " + captions.SideName(side) + L", " + time;
        }
    }
    switch (id) {
        case lblFirstUnit:
        case lblSecondUnit: return captions(TextId::TipHoursMinutes);
        case lblBonusUnit: return captions(TextId::TipMinutesSeconds);
        // These have no label.
        case cmbLanguage: return captions(TextId::LanguageGroup);
        case cmbTimes: return captions(TextId::TimeControlGroup);
        case cmdPreviewButton: return captions(TextId::ButtonSound) + L" " + captions(TextId::Preview);
        case cmdPreviewFlag: return captions(TextId::FlagSound) + L" " + captions(TextId::Preview);
        default: return {};
    }
}

void frmSetup::ShowTime(const TimeBars& bars, Side side) {
    const int32_t seconds = (WithoutWhatTypeLacks(draft).Control.*bars.Time)[side];
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_RANGE | SIF_POS;
    info.nMin = bars.Scale.Least;
    info.nMax = bars.Scale.Most;
    info.nPos = seconds / bars.Unit;
    SetScrollInfo(Control(ControlOf(bars.Bar, side)), SB_CTL, &info, TRUE);
    SetText(ControlOf(bars.Value, side),
            FromAnsi(bars.Unit == 60 ? HoursMinutesText(seconds) : MinutesSecondsText(seconds)));
}

LRESULT frmSetup::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND: OnCommand(LOWORD(wParam), HIWORD(wParam)); return 0;
        case WM_HELP: openHelp(Window()); return TRUE;
        case WM_HSCROLL:
            if (!lParam) break;  // of the window's own bar
            OnScroll(GetDlgCtrlID(reinterpret_cast<HWND>(lParam)), LOWORD(wParam));
            return 0;
        case WM_MOUSEWHEEL:
            if (OnWheel(GET_WHEEL_DELTA_WPARAM(wParam), {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)})) return 0;
            break;
        default: break;
    }
    return Dialog::Handle(message, wParam, lParam);
}

int frmSetup::DefaultButton() const { return cmdOK; }

void frmSetup::OnCommand(int id, int notification) {
    switch (id) {
        case txtName:
        case txtName + 1:
            if (notification == EN_CHANGE) names[static_cast<size_t>(id - txtName)].OnChange();
            return;
        case cmbClockType:
        case cmbTimes:
        case cmbLanguage:
        case cmbMoveAmount:
        case cmbButtonSound:
        case cmbFlagSound:
        case cmbLowTime: return OnListNotification(id, notification);
        case cmdPreviewButton: return modSound::Play(draft.ButtonSoundName);
        case cmdPreviewFlag: return modSound::Play(draft.FlagSoundName);
        case cmdDefault: ApplyPreset(DefaultPreset, draft); return ShowDraft();
        case cmdBlitz: ApplyPreset(BlitzPreset, draft); return ShowDraft();
        case cmdKeepAs: return OnKeepAs();
        case cmdRemoveTimes: return OnRemoveTimes();
        case cmdOK: return OnOk();
        case cmdCancel: return Close();
        case cmdHelp: return openHelp(Window());
        default: break;
    }
    for (const int box : Checks) {
        if (box == id) CheckedBy(box, draft) = SendMessageW(Control(box), BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    if (id == chkCountTimeDown) ShowTimeControl();
}

// What is passed over in an open list has not been chosen.
void frmSetup::OnListNotification(int id, int notification) {
    const HWND list = Control(id);
    if (notification == CBN_SELENDCANCEL) SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(PositionOf(id)), 0);
    const bool open = SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0) != 0;
    if (notification != CBN_CLOSEUP && (notification != CBN_SELCHANGE || open)) return;
    const auto position = static_cast<int>(SendMessageW(list, CB_GETCURSEL, 0, 0));
    if (position >= 0 && position != PositionOf(id)) OnChoice(id, position);
}

void frmSetup::OnChoice(int list, int position) {
    switch (list) {
        case cmbClockType: ChooseClockType(draft, position); return ShowDraft();
        case cmbTimes: return ChooseTimeControl(position);
        case cmbLanguage: settings.LanguageIndex = Languages[static_cast<size_t>(position)]; return;
        case cmbMoveAmount:
            // The last entry is an amount that the others do not reach.
            draft.Control.MovesFirstPeriod = position < MostMovesListed ? position + 1 : unlistedMoves;
            return ShowClockType();
        case cmbButtonSound: return draft.SetButtonSound(position);
        case cmbLowTime: draft.LowTime = LowTimes[static_cast<size_t>(position)]; return;
        default: return draft.SetFlagSound(position);
    }
}

void frmSetup::ChooseTimeControl(int position) {
    // "Other times" says what is there, and sets none.
    if (position == 0) return ShowTimeControl();
    chosenTimes = static_cast<size_t>(position) - 1;
    TakeTimes(timeControls.All()[*chosenTimes].Times, draft);
    ShowDraft();
}

void frmSetup::OnKeepAs() {
    const GameTimes times = TimesOf(draft);
    const auto matching = timeControls.Matching(times, chosenTimes);
    const bool own = matching && timeControls.All()[*matching].Own;
    frmKeepAs dialog(around);
    dialog.Open(Window(), own ? timeControls.All()[*matching].Name : L"");
    dialog.RunModal();
    const std::wstring& name = dialog.Name();
    if (name.empty()) return;
    const auto old = timeControls.OwnNamed(name);
    const bool replaces = old && timeControls.All()[*old].Times != times;
    if (replaces && !messageBoxes.Ask(Window(), texts.Compose(TextId::ReplaceTimes, name), false)) return;
    ChangeTimeControls([&] { timeControls.Keep(name, times); });
    chosenTimes = timeControls.OwnNamed(name);
    ShowTimeControl();
}

void frmSetup::OnRemoveTimes() {
    const std::wstring name = timeControls.All()[static_cast<size_t>(PositionOf(cmbTimes)) - 1].Name;
    if (!messageBoxes.Ask(Window(), texts.Compose(TextId::RemoveTimesQuestion, name), false)) return;
    ChangeTimeControls([&] { timeControls.Remove(name); });
    chosenTimes.reset();
    ShowTimeControl();
    // The button has become disabled.
    SetFocus(Control(cmbTimes));
}

void frmSetup::ChangeTimeControls(const std::function<void()>& change) {
    try {
        change();
    } catch (const SystemError& error) {
        messageBoxes.Inform(Window(),
                            texts.Compose(TextId::TimeControlsNotSaved, error.Thing(), texts.Reason(error.Code())));
    }
    FillTimeControls();
}

// A closed list leaves the wheel to the dialog: it would choose another entry under a mouse that is elsewhere.
LRESULT CALLBACK frmSetup::ListProcedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                         DWORD_PTR form) {
    if (message == WM_MOUSEWHEEL && !SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0))
        return SendMessageW(reinterpret_cast<HWND>(form), message, wParam, lParam);
    return DefSubclassProc(list, message, wParam, lParam);
}

// A change that the settings file could not hold is undone.
std::wstring frmSetup::TakeName(Side side, const std::wstring& text) {
    Settings changed = draft;
    SetName(changed, side, text);
    if (NamesFit(changed))
        draft = changed;
    else
        MessageBeep(MB_OK);
    return NameOf(draft, side);
}

void frmSetup::OnScroll(int bar, int request) {
    for (const TimeBars& bars : Times) {
        const int side = bar - bars.Bar;
        if (side != White && side != Black) continue;
        int32_t value = (draft.Control.*bars.Time)[static_cast<size_t>(side)] / bars.Unit;
        switch (request) {
            case SB_LINELEFT: value -= bars.Scale.SmallStep; break;
            case SB_LINERIGHT: value += bars.Scale.SmallStep; break;
            case SB_PAGELEFT: value -= bars.Scale.LargeStep; break;
            case SB_PAGERIGHT: value += bars.Scale.LargeStep; break;
            case SB_LEFT: value = bars.Scale.Least; break;
            case SB_RIGHT: value = bars.Scale.Most; break;
            case SB_THUMBTRACK:
            case SB_THUMBPOSITION: {
                SCROLLINFO info{};
                info.cbSize = sizeof(info);
                info.fMask = SIF_TRACKPOS;
                GetScrollInfo(Control(bar), SB_CTL, &info);
                value = info.nTrackPos;
                break;
            }
            default: return;
        }
        return SetTime(bars, static_cast<Side>(side), std::clamp(value, bars.Scale.Least, bars.Scale.Most));
    }
}

void frmSetup::OnCharacter(int bar, wchar_t character) {
    for (const TimeBars& bars : Times) {
        const int side = bar - bars.Bar;
        if (side != White && side != Black) continue;
        const int32_t shown = (draft.Control.*bars.Time)[static_cast<size_t>(side)] / bars.Unit;
        const auto value = typed.Type(character, bars.Scale, shown);
        if (!value) return void(MessageBeep(MB_OK));
        return SetTime(bars, static_cast<Side>(side), *value);
    }
}

void frmSetup::SetTime(const TimeBars& bars, Side side, int32_t value) {
    (draft.Control.*bars.Time)[side] = value * bars.Unit;
    ShowTime(bars, side);
    ShowTimeControl();
    TellSpokenName(ControlOf(bars.Bar, side));
}

// A scroll bar takes the keys that type its time.
LRESULT CALLBACK frmSetup::BarProcedure(HWND bar, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                        DWORD_PTR self) {
    auto& form = *reinterpret_cast<frmSetup*>(self);
    switch (message) {
        case WM_GETDLGCODE: return DefSubclassProc(bar, message, wParam, lParam) | DLGC_WANTCHARS;
        case WM_CHAR: form.OnCharacter(GetDlgCtrlID(bar), static_cast<wchar_t>(wParam)); return 0;
        case WM_KILLFOCUS: form.typed.End(); break;
        default: break;
    }
    return DefSubclassProc(bar, message, wParam, lParam);
}

// Turns the scroll bar that is seen under the mouse, else the one with the focus: a notch is a small step, forwards is
// more.
bool frmSetup::OnWheel(short delta, POINT screenPoint) {
    HWND bar = nullptr;
    for (int id = hsbFirstPeriod; id <= hsbBonus + 1; ++id) {
        RECT area{};
        GetWindowRect(Control(id), &area);
        const bool pointedAt = IsWindowVisible(Control(id)) && PtInRect(&area, screenPoint);
        if (pointedAt || (!bar && Control(id) == GetFocus())) bar = Control(id);
    }
    if (!bar || !IsWindowEnabled(bar)) return false;
    wheelRest += delta;
    for (; wheelRest >= WHEEL_DELTA; wheelRest -= WHEEL_DELTA) OnScroll(GetDlgCtrlID(bar), SB_LINERIGHT);
    for (; wheelRest <= -WHEEL_DELTA; wheelRest += WHEEL_DELTA) OnScroll(GetDlgCtrlID(bar), SB_LINELEFT);
    return true;
}

void frmSetup::OnOk() {
    draft.LanguageIndex = settings.LanguageIndex;
    const Settings chosen = WithoutWhatTypeLacks(draft);
    try {
        file.Save(chosen);
    } catch (const SystemError& error) {
        messageBoxes.Inform(Window(),
                            texts.Compose(TextId::SettingsNotSaved, error.Thing(), texts.Reason(error.Code())));
        return;
    }
    settings = chosen;
    accepted = true;
    Close();
}

void frmSetup::AddEntry(int list, const std::wstring& text) const {
    SendMessageW(Control(list), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
}
