#include "recorder/WhoseMoveLine.h"

#include "base/TimeText.h"
#include "platform/Ansi.h"
#include "resources/resource.h"

#include <commctrl.h>

namespace {

TextId RowOf(WhoseMoveKind kind) {
    switch (kind) {
        case WhoseMoveKind::Behind: return TextId::PadBehind;
        case WhoseMoveKind::FarApart: return TextId::PadFarApart;
        case WhoseMoveKind::OtherColour: return TextId::OtherColourMoved;
        default: return TextId::WhoseMove;
    }
}

}  // namespace

void WhoseMoveLine::Create() { form.AddControl(WC_STATICW, lblWhoseMove, WS_VISIBLE | SS_OWNERDRAW); }

void WhoseMoveLine::Show(const Texts& texts, const WhoseMove& next) {
    ShowText(texts.Compose(RowOf(next.Kind), texts.SideName(next.Mover), std::to_wstring(next.Number),
                           std::to_wstring(next.ClockNumber)),
             next.Kind == WhoseMoveKind::Agrees ? LineLook::Expected : LineLook::Warning, next.Mover);
}

void WhoseMoveLine::ShowLookBack(const Texts& texts, const LookBack& lookBack) {
    const std::wstring entry = FromAnsi(lookBack.Entry);
    const auto& [white, black] = lookBack.Times;
    std::wstring text = texts.Compose(lookBack.Known ? TextId::LookBack : TextId::PositionNotKnown, entry);
    if (lookBack.Known && white && black)
        text = texts.Compose(TextId::LookBackWithTimes, entry, FromAnsi(HoursMinutesSecondsText(*white)),
                             FromAnsi(HoursMinutesSecondsText(*black)));
    ShowText(text, LineLook::LookBack, lookBack.List);
}

void WhoseMoveLine::ShowText(const std::wstring& text, LineLook newLook, Side newSide) {
    if (text == form.Text(lblWhoseMove) && newLook == look && newSide == side) return;
    look = newLook;
    side = newSide;
    form.SetText(lblWhoseMove, text);
    InvalidateRect(form.Control(lblWhoseMove), nullptr, FALSE);
}

void WhoseMoveLine::Draw(const DRAWITEMSTRUCT& item) const {
    painter.DrawWhoseMove(item, form.Text(lblWhoseMove), look, side);
}
