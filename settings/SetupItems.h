#pragma once

#include "platform/Dialog.h"
#include "resources/resource.h"

#include <array>

// The controls of the setup dialog and where they are.
namespace SetupItems {

constexpr int Width = 752, Height = 552;
constexpr int LineHeight = 18, OpenListHeight = 240;

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
    return {id, WC_EDITW, WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL, {left, top, SideWidth, 23}};
}
// A caption over the scroll bars of both sides; what it says, and whether there is anything, depends on the clock type.
constexpr DialogItem TimeCaption(int id, int top) {
    return {id, WC_STATICW, SS_NOPREFIX, {InLeft, top, InLeftWidth - 84, LineHeight}};
}
constexpr DialogItem Unit(int id, int top, TextId text) {
    return {id,   WC_STATICW,     SS_RIGHT | SS_NOTIFY, {InLeft + InLeftWidth - 84, top, 84, LineHeight},
            text, Look::QuietText};
}
constexpr DialogItem Bar(int id, int left, int top) {
    return {id, WC_SCROLLBARW, WS_TABSTOP | SBS_HORZ, {left, top, 100, 20}};
}
// As wide as the longest time that a settings file can hold.
constexpr DialogItem Value(int id, int left, int top) {
    return {id, WC_STATICW, SS_RIGHT, {left + 104, top, SideWidth - 104, 20}, std::nullopt, Look::Value};
}

constexpr std::array Items{
    Group(fraClockType, {Left, 12, LeftWidth, 92}, TextId::ClockTypeGroup),
    BlankLabel(lblClockType, InLeft, 42, InLeftWidth, TextId::SelectClockType),
    List(cmbClockType, InLeft, 62, InLeftWidth),
    Group(fraPlayers, {Left, 114, LeftWidth, 302}, TextId::PlayersGroup),
    BlankLabel(lblName, WhiteLeft, 142, SideWidth, TextId::WhiteName),
    Name(txtName, WhiteLeft, 162),
    BlankLabel(lblName + 1, BlackLeft, 142, SideWidth, TextId::BlackName),
    Name(txtName + 1, BlackLeft, 162),
    TimeCaption(lblFirstCaption, 208),
    Unit(lblFirstUnit, 208, TextId::HoursMinutes),
    Bar(hsbFirstPeriod, WhiteLeft, 230),
    Value(lblFirstPeriod, WhiteLeft, 230),
    Bar(hsbFirstPeriod + 1, BlackLeft, 230),
    Value(lblFirstPeriod + 1, BlackLeft, 230),
    TimeCaption(lblSecondCaption, 276),
    Unit(lblSecondUnit, 276, TextId::HoursMinutes),
    Bar(hsbSecondPeriod, WhiteLeft, 298),
    Value(lblSecondPeriod, WhiteLeft, 298),
    Bar(hsbSecondPeriod + 1, BlackLeft, 298),
    Value(lblSecondPeriod + 1, BlackLeft, 298),
    TimeCaption(lblBonusCaption, 344),
    Unit(lblBonusUnit, 344, TextId::MinutesSeconds),
    Bar(hsbBonus, WhiteLeft, 366),
    Value(lblBonusValue, WhiteLeft, 366),
    Bar(hsbBonus + 1, BlackLeft, 366),
    Value(lblBonusValue + 1, BlackLeft, 366),
    Group(fraTimes, {Left, 426, LeftWidth, 72}, TextId::TimeControlGroup),
    List(cmbTimes, InLeft, 455, 184),
    Button(cmdKeepAs, {InLeft + 192, 454, 108, 24}, TextId::KeepAs, true),
    Button(cmdRemoveTimes, {InLeft + 308, 454, 76, 24}, TextId::RemoveTimes),
    Group(frameLanguage, {Right, 12, RightWidth, 68}, TextId::LanguageGroup),
    List(cmbLanguage, InRight, 42, InRightWidth),
    Group(fraScorlet, {Right, 90, RightWidth, 132}, TextId::ScorletGroup),
    CheckBox(chkOpenScorlet, 118, TextId::OpenScorlet),
    CheckBox(chkPGN, 141, TextId::SavePgn),
    Label(lblMoveAmount, InRight, 167, InRightWidth, TextId::MoveAmount),
    List(cmbMoveAmount, InRight, 186, 100),
    Group(fraSound, {Right, 232, RightWidth, 128}, TextId::SoundGroup),
    Label(lblButtonSound, InRight, 260, InRightWidth, TextId::ButtonSound),
    List(cmbButtonSound, InRight, 279, 170),
    Button(cmdPreviewButton, {InRight + InRightWidth - 92, 278, 92, 24}, TextId::Preview, true),
    Label(lblFlagSound, InRight, 307, InRightWidth, TextId::FlagSound),
    List(cmbFlagSound, InRight, 326, 170),
    Button(cmdPreviewFlag, {InRight + InRightWidth - 92, 325, 92, 24}, TextId::Preview, true),
    Group(fraMiscellaneous, {Right, 370, RightWidth, 128}, TextId::MiscellaneousGroup),
    CheckBox(chkShowMoveNumber, 396, TextId::ShowMoveNumber),
    CheckBox(chkTurnClock, 419, TextId::TurnClock),
    CheckBox(chkCountTimeDown, 442, TextId::CountTimeDown),
    Label(lblLowTime, InRight, 470, InRightWidth - 112, TextId::LowTimeWarning),
    List(cmbLowTime, InRight + InRightWidth - 104, 466, 104),
    Button(cmdDefault, {Left, ButtonRow, 116, 30}, TextId::ButtonDefault, true),
    Button(cmdBlitz, {Left + 126, ButtonRow, 116, 30}, TextId::ButtonBlitz),
    DialogItem{cmdOK, WC_BUTTONW, WS_TABSTOP | BS_DEFPUSHBUTTON, {408, ButtonRow, 104, 30}, TextId::ButtonSetupOk},
    Button(cmdCancel, {522, ButtonRow, 104, 30}, TextId::ButtonCancel),
    Button(cmdHelp, {636, ButtonRow, 104, 30}, TextId::ButtonHelp),
};

}  // namespace SetupItems
