#include "recorder/LegalMoves.h"

#include "tests/base/Rows.h"
#include "tests/recorder/RecordText.h"

namespace {

// A position in Forsyth-Edwards notation; its last two numbers, of half-moves and of the move, are not read.
LegalPosition PositionOf(const std::string& notation) {
    const std::vector<std::string> fields = Words(notation);
    LegalPosition position;
    position.Pieces = Position("");
    int file = 1, rank = 8;
    for (const char letter : fields[0]) {
        if (letter == '/') {
            file = 1;
            --rank;
        } else if (letter >= '1' && letter <= '8') {
            file += letter - '0';
        } else {
            const char upper = AsciiUpper(letter);
            position.Pieces.Put(SquareAt(file++, rank), PieceOf(letter == upper ? White : Black, KindOfLetter(upper)));
        }
    }
    position.ToMove = fields[1] == "w" ? White : Black;
    const auto may = [&](char letter) { return fields[2].find(letter) != std::string::npos; };
    position.KingSide = {may('K'), may('k')};
    position.QueenSide = {may('Q'), may('q')};
    position.PassedOver = SquareNamed(fields[3]);
    return position;
}

size_t Count(const LegalPosition& position, int depth) {
    const std::vector<LegalMove> moves = LegalMoves(position);
    if (depth == 1) return moves.size();
    size_t count = 0;
    for (const LegalMove& move : moves) {
        LegalPosition after = position;
        Carry(after, move);
        count += Count(after, depth - 1);
    }
    return count;
}

// The number of games of each length, beginning with one half-move, up to four or to the first with more than 9,000.
std::string Counts(const std::string& notation) {
    const LegalPosition position = PositionOf(notation);
    std::string text;
    size_t count = 0;
    for (int depth = 1; depth <= 4 && count <= 9'000; ++depth) {
        count = Count(position, depth);
        text += std::to_string(count) + " ";
    }
    return text;
}

}  // namespace

TEST(LegalMovesTest, ThePublishedNumbersOfGames) {
    ExpectRows(Counts, R"(
        rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR w KQkq - 0 1 => 20 400 8902 197281
        r3k2r/p1ppqpb1/bn2pnp1/3PN3/1p2P3/2N2Q1p/PPPBBPPP/R3K2R w KQkq - 0 1 => 48 2039 97862
        8/2p5/3p4/KP5r/1R3p1k/8/4P1P1/8 w - - 0 1 => 14 191 2812 43238
        r3k2r/Pppp1ppp/1b3nbN/nP6/BBP1P3/q4N2/Pp1P2PP/R2Q1RK1 w kq - 0 1 => 6 264 9467
        rnbq1k1r/pp1Pbppp/2p5/8/2B5/8/PPP1NnPP/RNBQK2R w KQ - 1 8 => 44 1486 62379
        r4rk1/1pp1qppp/p1np1n2/2b1p1B1/2B1P1b1/P1NP1N2/1PP1QPPP/R4RK1 w - - 0 10 => 46 2079 89890
    )");
}
