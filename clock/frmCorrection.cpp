#include "clock/frmCorrection.h"

#include "base/TimeText.h"
#include "platform/Ansi.h"
#include "resources/resource.h"

#include <commctrl.h>

#include <charconv>

namespace {

constexpr Extent Size{422, 176};

constexpr DialogItem Head(Side side) {
    return {
        ControlOf(lblCorrectionOf, side), WC_STATICW, SS_NOPREFIX | SS_ENDELLIPSIS, {166 + 126 * side, 16, 116, 20}};
}
constexpr DialogItem Caption(int id, int top) { return {id, WC_STATICW, SS_LEFT, {20, top + 2, 140, 18}}; }
constexpr DialogItem Field(int id, Side side, int top, DWORD style = 0) {
    return {ControlOf(id, side),
            WC_EDITW,
            WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL | style,
            {166 + 126 * side, top, 110, DialogItem::FieldHeight}};
}

constexpr std::array Items{
    Head(White),
    Head(Black),
    Caption(lblCorrectTime, 46),
    Field(txtCorrectTime, White, 46),
    Field(txtCorrectTime, Black, 46),
    Caption(lblCorrectMove, 80),
    Field(txtCorrectMove, White, 80, ES_NUMBER),
    Field(txtCorrectMove, Black, 80, ES_NUMBER),
    DialogItem{cmdOK, WC_BUTTONW, WS_TABSTOP | BS_DEFPUSHBUTTON, {184, 126, 104, 30}, TextId::ButtonSetupOk},
    DialogItem{cmdCancel, WC_BUTTONW, WS_TABSTOP | BS_PUSHBUTTON, {298, 126, 104, 30}, TextId::ButtonCancel},
};

constexpr int LongestTime = 12, LongestNumber = 5;

}  // namespace

TextId frmCorrection::TimeCaption() const {
    return state.Control.CountTimeDown ? TextId::CorrectTimeLeft : TextId::CorrectTimeUsed;
}

void frmCorrection::Open(HWND owner) {
    Create(owner, L"frmCorrection", TextId::CorrectionTitle, L"AAATORVANIX", Size, Items);
    SetText(lblCorrectTime, captions(TimeCaption()));
    SetText(lblCorrectMove, captions(TextId::CorrectMove));
    const Correction shown = CorrectionOf(state);
    for (Side side : BothSides) {
        SetText(ControlOf(lblCorrectionOf, side), names[side]);
        SetText(ControlOf(txtCorrectTime, side), FromAnsi(HoursMinutesSecondsText(shown.Time[side])));
        SetText(ControlOf(txtCorrectMove, side), std::to_wstring(shown.MoveCount[side]));
        SendMessageW(Control(ControlOf(txtCorrectTime, side)), EM_SETLIMITTEXT, LongestTime, 0);
        SendMessageW(Control(ControlOf(txtCorrectMove, side)), EM_SETLIMITTEXT, LongestNumber, 0);
    }
}

LRESULT frmCorrection::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_COMMAND) return Dialog::Handle(message, wParam, lParam);
    if (LOWORD(wParam) == cmdOK) OnOk();
    if (LOWORD(wParam) == cmdCancel) Close();
    return 0;
}

int frmCorrection::DefaultButton() const { return cmdOK; }

std::wstring frmCorrection::SpokenName(int id) const {
    const auto named = [&](int first, TextId caption) {
        return names[static_cast<size_t>(id - first)] + L", " + captions(caption);
    };
    if (id == txtCorrectTime || id == txtCorrectTime + 1) return named(txtCorrectTime, TimeCaption());
    if (id == txtCorrectMove || id == txtCorrectMove + 1) return named(txtCorrectMove, TextId::CorrectMove);
    return {};
}

void frmCorrection::OnOk() {
    Correction set;
    for (Side side : BothSides) {
        const std::wstring time = Text(ControlOf(txtCorrectTime, side));
        const auto seconds = ReadTime(ToAnsi(time));
        if (!seconds)
            return Refuse(ControlOf(txtCorrectTime, side), texts.Compose(TextId::NotATime, names[side], time));
        set.Time[side] = *seconds;
        const std::string number = ToAnsi(Text(ControlOf(txtCorrectMove, side)));
        const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), set.MoveCount[side]);
        if (error != std::errc() || end != number.data() + number.size())
            return Refuse(ControlOf(txtCorrectMove, side), texts.Compose(TextId::NotAMoveNumber, names[side]));
    }
    if (const auto fault = FaultOf(set, state)) {
        const Side side = fault->Where;
        switch (fault->What) {
            case CorrectionFault::NoTime:
                return Refuse(
                    ControlOf(txtCorrectTime, side),
                    texts.Compose(state.Control.CountTimeDown ? TextId::NoTimeLeftSet : TextId::TooMuchTimeUsed,
                                  names[side]));
            case CorrectionFault::NoMove:
                return Refuse(ControlOf(txtCorrectMove, side), texts.Compose(TextId::NotAMoveNumber, names[side]));
            case CorrectionFault::OutOfStep:
                return Refuse(ControlOf(txtCorrectMove, side), texts(TextId::MovesOutOfStep));
        }
    }
    accepted = set;
    Close();
}

void frmCorrection::Refuse(int field, const std::wstring& what) const {
    messageBoxes.Inform(Window(), what);
    SetFocus(Control(field));
    SendMessageW(Control(field), EM_SETSEL, 0, -1);
}
