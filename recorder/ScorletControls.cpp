#include "recorder/ScorletControls.h"

#include "platform/Ansi.h"
#include "recorder/SpokenBoard.h"
#include "resources/resource.h"

#include <commctrl.h>

namespace {

constexpr bool IsList(int id) { return id == lstMoves || id == lstMoves + 1; }
constexpr Side SideOfList(int id) { return id == lstMoves ? White : Black; }

std::wstring WithoutAccessKey(std::wstring caption) {
    std::erase(caption, L'&');
    return caption;
}

}  // namespace

void ScorletControls::Create() {
    // The field for typing may cover cells, which therefore leave it out when they draw.
    Typing.Create(WM_ENDTYPING);
    // The order is the reading and the tab order.
    Board.Create();
    form.AddControl(WC_STATICW, lblCaptured, WS_VISIBLE | SS_CENTERIMAGE);
    Board.CreateCaptured();
    form.AddControl(WC_STATICW, lblSay, WS_VISIBLE | SS_CENTERIMAGE);
    Say.Create();
    WhoseMove.Create();
    for (Side side : BothSides)
        form.AddControl(WC_STATICW, ControlOf(lblPlayer, side),
                        WS_VISIBLE | SS_CENTERIMAGE | SS_NOPREFIX | SS_ENDELLIPSIS);
    Lists.Create();
    Editor.Create(WM_ENDEDIT);
    Picker.Create();
}

void ScorletControls::ApplyTexts(const Texts& texts) const {
    form.SetText(lblCaptured, texts(TextId::CapturedPieces));
    form.SetText(lblSay, texts(TextId::Say));
    form.SetText(cmdOK, texts(TextId::ButtonOk));
    Picker.ApplyTexts(texts);
    Say.Fill(texts);
}

void ScorletControls::Place(int width, int height, int dpi, bool turned) {
    Layout = LayOutScorlet(width, height, dpi, turned);
    Painter.SetLayout(Layout);
    const auto place = [&](int id, const Box& box) {
        SetWindowPos(form.Control(id), nullptr, box.Left, box.Top, box.Width, box.Height,
                     SWP_NOZORDER | SWP_NOACTIVATE);
        SendMessageW(form.Control(id), WM_SETFONT, reinterpret_cast<WPARAM>(Painter.Font()), FALSE);
    };
    Board.Place(Layout);
    place(txtTypedMove, Layout.TypedMove);
    place(lblTypedMove, Layout.TypedReason);
    place(lblCaptured, Layout.CapturedTitle);
    place(lblSay, Layout.SayLabel);
    // The height of a drop-down list counts its open part.
    place(cmbSay, {Layout.Say.Left, Layout.Say.Top, Layout.Say.Width, 8 * Layout.Say.Height});
    SetShutHeight(form.Control(cmbSay), Layout.Say.Height);
    place(lblWhoseMove, Layout.WhoseMove);
    for (Side side : BothSides) {
        place(ControlOf(lblPlayer, side), Layout.ListHeads[side]);
        SendMessageW(form.Control(ControlOf(lblPlayer, side)), WM_SETFONT, reinterpret_cast<WPARAM>(Painter.HeadFont()),
                     FALSE);
        place(ControlOf(lstMoves, side), Layout.Lists[side]);
        SendMessageW(form.Control(ControlOf(lstMoves, side)), LB_SETITEMHEIGHT, 0, Layout.Type * 4 / 3);
    }
    place(txtMove, Layout.Edit);
    place(cmdOK, Layout.EditOk);
    place(lblPromotion, Layout.PromotionTitle);
    for (int i = 0; i < 4; ++i) place(imgPromotionQ + i, Layout.Promotion[static_cast<size_t>(i)]);
    Lists.Show();
}

void ScorletControls::Draw(const DRAWITEMSTRUCT& item) const {
    const int id = static_cast<int>(item.CtlID);
    if (IsList(id)) return Lists.Draw(item, SideOfList(id));
    if (PromotionPicker::Has(id)) return Picker.Draw(item);
    if (id == lblWhoseMove) return WhoseMove.Draw(item);
    Board.Draw(item);
}

HBRUSH ScorletControls::Colours(HDC dc, int id) const {
    return Painter.LabelColours(dc, id == lblPlayer || id == lblPlayer + 1 ? LabelGround::Sheet : LabelGround::Plain);
}

std::wstring ScorletControls::SpokenName(const Texts& texts, int id) const {
    if (id == picBoard) return Picker.TakesKeys() ? Picker.SpokenText(texts) : SpokenBoard(texts, input);
    if (IsCell(id)) return SpokenSquare(texts, input, static_cast<Square>(id - picBoard));
    if (IsCaptured(id)) {
        const auto [piece, slot] = SlotOf(id - imgCapturedWQ);
        return SpokenCaptured(texts, input, piece, slot);
    }
    if (IsList(id)) return texts.SideName(SideOfList(id)) + L", " + texts(TextId::MovesOfSide);
    switch (id) {
        case txtMove: return WithoutAccessKey(texts(TextId::EditMove));
        case txtTypedMove: return Typing.SpokenText(texts);
        default: return {};
    }
}

std::wstring ScorletControls::SpokenPart(int id, int part) const {
    if (!IsList(id)) return {};
    const MoveList& list = recorder.List(SideOfList(id));
    const auto index = static_cast<size_t>(part - 1);
    // With the number in both lists, as in White's.
    return index < list.Entries().size() ? FromAnsi(list.Line(index, White)) : L"";
}
