#include "recorder/WhoseMoveLine.h"

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

void WhoseMoveLine::Create() { form.AddControl(WC_STATICW, lblWhoseMove, WS_VISIBLE | SS_NOPREFIX); }

void WhoseMoveLine::Show(const Texts& texts, const WhoseMove& next) {
    warns = next.Kind != WhoseMoveKind::Agrees;
    form.SetText(lblWhoseMove, texts.Compose(RowOf(next.Kind), texts.SideName(next.Mover), std::to_wstring(next.Number),
                                             std::to_wstring(next.ClockNumber)));
}

HBRUSH WhoseMoveLine::Colours(HDC dc) const {
    if (!warns) return nullptr;
    SetTextColor(dc, WarningInk);
    return ground.get();
}
