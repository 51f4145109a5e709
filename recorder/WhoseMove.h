#pragma once

#include "recorder/Recorder.h"

#include <optional>

// What a clock that is under way says: the side to move, and the number of the move that it is thinking about.
struct ClockTurn {
    Side Mover;
    int32_t Number;
};

enum class WhoseMoveKind {
    Agrees,  // with the clock, where there is one, or is at the move after the clock's
    // The rest are warnings.
    Behind,       // the record expects the move before the clock's
    FarApart,     // further behind or ahead
    OtherColour,  // a piece of the wrong side has just been moved
};

// The move that the record expects next, beside the clock's.
struct WhoseMove {
    Side Mover;
    int32_t Number;
    int32_t ClockNumber = 0;  // 0 without a clock
    int64_t Behind = 0;       // half-moves of the clock that the record lacks, below 0 when it is ahead
    WhoseMoveKind Kind = WhoseMoveKind::Agrees;
};

// Once the record has a result, no clock is compared with it.
WhoseMove WhoseMoveOf(const Recorder& record, const std::optional<ClockTurn>& clock);
