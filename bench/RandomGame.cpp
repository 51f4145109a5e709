#include "bench/RandomGame.h"

#include "base/AsciiCase.h"
#include "games/ExportedGame.h"
#include "recorder/LegalMoves.h"

std::string RandomGame(std::mt19937& random, size_t halfMoves) {
    LegalPosition position;
    std::string words;
    for (; halfMoves > 0; --halfMoves) {
        std::vector<LegalMove> moves = LegalMoves(position, static_cast<PieceKind>(random() % 6 + 1));
        if (moves.empty()) moves = LegalMoves(position);
        if (moves.empty()) break;
        const LegalMove move = moves[random() % moves.size()];
        for (const Square square : {move.Origin, move.Destination}) words += {FileLetter(square), RankDigit(square)};
        if (move.Promotion != PieceKind::None) words += AsciiLower(PieceLetter(move.Promotion));
        words += ' ';
        Carry(position, move);
    }
    return words.append(ResultOf(position));
}
