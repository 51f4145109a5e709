#pragma once

#include "platform/Dialog.h"
#include "resources/resource.h"

#include <array>

// The controls of the setup dialog and where they are.
namespace SetupItems {

constexpr int LineHeight = 18, OpenListHeight = 240;
// Of fields, lists and the buttons beside them. A label is this far above what it names.
constexpr int FieldHeight = DialogItem::FieldHeight, LabelPitch = 19;

// Two columns of cards, what they hold, and the row of buttons.
constexpr int Left = 12, LeftWidth = 416, Right = 438, RightWidth = 302;
constexpr int InLeft = Left + 16, InLeftWidth = LeftWidth - 32, InRight = Right + 16, InRightWidth = RightWidth - 32;
constexpr int ButtonRow = 510;
// The columns of the two sides.
constexpr int SideWidth = 184, WhiteLeft = InLeft, BlackLeft = InLeft + InLeftWidth - SideWidth;

constexpr DialogItem Group(int id, Box box, TextId text) {
    return {id, WC_BUTTONW, BS_GROUPBOX, box, text, Look::Heading};
}
constexpr DialogItem Label(int id, int left, int top, int width, TextId text) {
    return {id, WC_STATICW, SS_LEFT, {left, top, width, LineHeight}, text};
}
// A text that begins with a blank, which is no wider than this.
constexpr int Blank = 4;
constexpr DialogItem BlankLabel(int id, int left, int top, int width, TextId text) {
    return Label(id, left - Blank, top, width + Blank, text);
}
constexpr DialogItem CheckBox(int id, int top, TextId text) {
    return {id, WC_BUTTONW, WS_TABSTOP | BS_AUTOCHECKBOX, {InRight, top, InRightWidth, 20}, text};
}
constexpr DialogItem List(int id, int left, int top, int width) {
    return {id, WC_COMBOBOXW, WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, {left, top, width, OpenListHeight}};
}
// `first` of those that the arrow keys go between.
constexpr DialogItem Button(int id, Box box, TextId text, bool first = false) {
    return {id, WC_BUTTONW, WS_TABSTOP | BS_PUSHBUTTON | (first ? DWORD{WS_GROUP} : 0), box, text};
}
constexpr DialogItem Name(int id, int left, int top) {
    return {id, WC_EDITW, WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL, {left, top, SideWidth, FieldHeight}};
}
// A caption over the scroll bars of both sides; what it says, and whether there is anything, depends on the clock type.
constexpr DialogItem TimeCaption(int id, int top) {
    return {id, WC_STATICW, SS_NOPREFIX, {InLeft, top, InLeftWidth - 84, LineHeight}};
}
constexpr DialogItem Unit(int id, int top, TextId text) {
    return {id,   WC_STATICW,     SS_RIGHT | SS_NOTIFY, {InLeft + InLeftWidth - 84, top, 84, LineHeight},
            text, Look::QuietText};
}
// Its edge shows how far it reaches: in some styles of the system the track has the colour of the card.
constexpr DialogItem Bar(int id, int left, int top) {
    return {id, WC_SCROLLBARW, WS_TABSTOP | WS_BORDER | SBS_HORZ, {left, top, 96, 22}};
}
// Next to its own bar, and as wide as the longest time that a settings file can hold.
constexpr DialogItem Value(int id, int left, int top) {
    return {id, WC_STATICW, SS_LEFT, {left + 104, top + 2, SideWidth - 104, 20}, std::nullopt, Look::Value};
}

constexpr std::array Items{
    Group(fraClockType, {Left, 12, LeftWidth, 82}, TextId::ClockTypeGroup),
    BlankLabel(lblClockType, InLeft, 38, InLeftWidth, TextId::SelectClockType),
    List(cmbClockType, InLeft, 38 + LabelPitch, InLeftWidth),
    Group(fraPlayers, {Left, 104, LeftWidth, 318}, TextId::PlayersGroup),
    BlankLabel(lblName, WhiteLeft, 130, SideWidth, TextId::WhiteName),
    Name(txtName, WhiteLeft, 130 + LabelPitch),
    BlankLabel(lblName + 1, BlackLeft, 130, SideWidth, TextId::BlackName),
    Name(txtName + 1, BlackLeft, 130 + LabelPitch),
    TimeCaption(lblFirstCaption, 205),
    Unit(lblFirstUnit, 205, TextId::HoursMinutes),
    Bar(hsbFirstPeriod, WhiteLeft, 227),
    Value(lblFirstPeriod, WhiteLeft, 227),
    Bar(hsbFirstPeriod + 1, BlackLeft, 227),
    Value(lblFirstPeriod + 1, BlackLeft, 227),
    TimeCaption(lblSecondCaption, 283),
    Unit(lblSecondUnit, 283, TextId::HoursMinutes),
    Bar(hsbSecondPeriod, WhiteLeft, 305),
    Value(lblSecondPeriod, WhiteLeft, 305),
    Bar(hsbSecondPeriod + 1, BlackLeft, 305),
    Value(lblSecondPeriod + 1, BlackLeft, 305),
    TimeCaption(lblBonusCaption, 362),
    Unit(lblBonusUnit, 362, TextId::MinutesSeconds),
    Bar(hsbBonus, WhiteLeft, 384),
    Value(lblBonusValue, WhiteLeft, 384),
    Bar(hsbBonus + 1, BlackLeft, 384),
    Value(lblBonusValue + 1, BlackLeft, 384),
    Group(fraTimes, {Left, 432, LeftWidth, 66}, TextId::TimeControlGroup),
    List(cmbTimes, InLeft, 461, 184),
    Button(cmdKeepAs, {InLeft + 192, 461, 108, FieldHeight}, TextId::KeepAs, true),
    Button(cmdRemoveTimes, {InLeft + 308, 461, 76, FieldHeight}, TextId::RemoveTimes),
    Group(frameLanguage, {Right, 12, RightWidth, 66}, TextId::LanguageGroup),
    List(cmbLanguage, InRight, 41, InRightWidth),
    Group(fraScorlet, {Right, 88, RightWidth, 130}, TextId::ScorletGroup),
    CheckBox(chkOpenScorlet, 114, TextId::OpenScorlet),
    CheckBox(chkPGN, 136, TextId::SavePgn),
    Label(lblMoveAmount, InRight, 162, InRightWidth, TextId::MoveAmount),
    List(cmbMoveAmount, InRight, 162 + LabelPitch, 100),
    Group(fraSound, {Right, 228, RightWidth, 130}, TextId::SoundGroup),
    Label(lblButtonSound, InRight, 254, InRightWidth, TextId::ButtonSound),
    List(cmbButtonSound, InRight, 254 + LabelPitch, 170),
    Button(cmdPreviewButton, {InRight + InRightWidth - 92, 254 + LabelPitch, 92, FieldHeight}, TextId::Preview, true),
    Label(lblFlagSound, InRight, 302, InRightWidth, TextId::FlagSound),
    List(cmbFlagSound, InRight, 302 + LabelPitch, 170),
    Button(cmdPreviewFlag, {InRight + InRightWidth - 92, 302 + LabelPitch, 92, FieldHeight}, TextId::Preview, true),
    Group(fraMiscellaneous, {Right, 368, RightWidth, 130}, TextId::MiscellaneousGroup),
    CheckBox(chkShowMoveNumber, 394, TextId::ShowMoveNumber),
    CheckBox(chkTurnClock, 416, TextId::TurnClock),
    CheckBox(chkCountTimeDown, 438, TextId::CountTimeDown),
    Label(lblLowTime, InRight, 464, InRightWidth - 112, TextId::LowTimeWarning),
    List(cmbLowTime, InRight + InRightWidth - 104, 461, 104),
    Button(cmdDefault, {Left, ButtonRow, 116, 30}, TextId::ButtonDefault, true),
    Button(cmdBlitz, {Left + 126, ButtonRow, 116, 30}, TextId::ButtonBlitz),
    DialogItem{cmdOK, WC_BUTTONW, WS_TABSTOP | BS_DEFPUSHBUTTON, {408, ButtonRow, 104, 30}, TextId::ButtonSetupOk},
    Button(cmdCancel, {522, ButtonRow, 104, 30}, TextId::ButtonCancel),
    Button(cmdHelp, {636, ButtonRow, 104, 30}, TextId::ButtonHelp),
};

}  // namespace SetupItems
