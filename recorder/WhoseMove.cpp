#include "recorder/WhoseMove.h"

namespace {

WhoseMoveKind KindOfDistance(int64_t behind) {
    switch (behind) {
        case 0:
        case -1:  // the move is written, and the press comes after it
            return WhoseMoveKind::Agrees;
        case 1: return WhoseMoveKind::Behind;
        default: return WhoseMoveKind::FarApart;
    }
}

}  // namespace

WhoseMove WhoseMoveOf(const Recorder& record, const std::optional<ClockTurn>& clock) {
    const auto number = static_cast<int32_t>(record.NextLine()) + 1;
    WhoseMove next{record.SideToMove(), number};
    if (clock && !record.HasResult()) {
        next.ClockNumber = clock->Number;
        next.Behind = 2 * (int64_t{clock->Number} - number) + clock->Mover - next.Mover;
        next.Kind = KindOfDistance(next.Behind);
    }
    if (record.OtherColourMoved()) next.Kind = WhoseMoveKind::OtherColour;
    return next;
}
