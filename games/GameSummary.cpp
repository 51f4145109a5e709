#include "games/GameSummary.h"

#include "games/KeptGame.h"

#include <algorithm>

int32_t MovesMade(const SavedGame& game) {
    // The side whose turn it is has its move counted already.
    int32_t made = game.Clock.MoveCount[Other(game.Clock.SideByCounts())];
    for (const Side side : BothSides) {
        const auto last = game.Scorlet.List(side).LastWritten();
        if (last) made = std::max(made, static_cast<int32_t>(*last) + 1);
    }
    return made;
}

std::string OutcomeOf(const SavedGame& game) {
    if (game.Scorlet.HasResult()) return std::string(ResultToken(game.Scorlet.Lists()));
    if (IsUnderWay(game)) return "*";
    if (game.Clock.MoveCount[White] == 0) return {};
    return game.Clock.SideByCounts() == White ? "0-1" : "1-0";
}
