#include "recorder/MatchedMoves.h"

#include "tests/recorder/RecordText.h"

namespace {

// A position, the side and what is typed: "WKe1 WRa1 w O-O-O"; or for the initial position "w e4". Then the moves.
std::string Matched(const std::string& row) {
    const size_t before = row.rfind(' '), side = row.rfind(' ', before - 1);
    const bool initial = side == std::string::npos;
    const Board board = initial ? Board() : Position(row.substr(0, side));
    std::string text;
    for (const MatchedMove& match : MatchMoves(board, row[before - 1] == 'w' ? White : Black, row.substr(before + 1))) {
        text += FullText(match.Played) + " ";
        if (match.Promotion != PieceKind::None) text += std::string("=") + PieceLetter(match.Promotion) + " ";
    }
    return text;
}

}  // namespace

TEST(MatchedMovesTest, ByGeometryAndBlockedLines) {
    ExpectRows(Matched, R"(
        w e4 => e2-e4 | w e5 => | w e2e4 => e2-e4 | w e2-e4! => e2-e4 | w E4 => e2-e4 | b e5 => e7-e5 | b e4 => | w e3 => e2-e3
        w Nf3 => Ng1-f3 | w nf3 => Ng1-f3 | w g1f3 => Ng1-f3 | w Nd2 => | w Bb5 => | w Ke2 => | w O-O => | w Nb1c3 => Nb1-c3
        w Qd1 => | w d => | w 4 => | w exd3 => | w Ng1xf3 => | w e4=Q => | w zz => | w e9 => | w N => | w Nf3f3 => | w Pe4 =>
        Captures; the small b is a file or a Bishop.
        WPe4 BPd5 w exd5 => e4xd5 | WPe4 BPd5 w ed5 => e4xd5 | WPe4 BPd5 w d5 => e4xd5 | WPe4 BPd5 b dxe4 => d5xe4
        WPe5 BPd5 w exd6 => e5xd6ep | WPe5 BPd5 w exd6ep => e5xd6ep | WPe5 w exd6 => | WPe4 WPd5 w exd5 =>
        WPb4 BPc5 WBf2 w bxc5 => b4xc5 | WPb4 BPc5 WBf2 w Bxc5 => Bf2xc5 | WPb4 BPc5 WBf2 w bc5 => Bf2xc5 | WPb4 w b5 => b4-b5
        WPe4 BPe5 w e5 => | WPe2 BPe3 w e4 => | WPe3 w e5 => | BPe7 BPd6 b e5 => e7-e5
        Several, and what tells them apart.
        WNb1 WNf3 w Nd2 => Nb1-d2 Nf3-d2 | WNb1 WNf3 w Nbd2 => Nb1-d2 | WNb1 WNf3 w N3d2 => Nf3-d2 | WNb1 WNf3 w b1d2 => Nb1-d2
        WRa1 WRh1 w Rd1 => Ra1-d1 Rh1-d1 | WRa1 WRh1 w Rad1 => Ra1-d1 | WRa1 WRh1 WKe1 w Rd1 => Ra1-d1 | WPc4 WPe4 BPd5 w d5 => c4xd5 e4xd5
        WQa1 w Qh8 => Qa1-h8 | WQa1 BPd4 w Qh8 => | WQa1 w Qb3 => | WBa1 w Ba2 => | WRa1 w Rb2 => | WBa1 w a1h8 => Ba1-h8
        WRa1 BRa2 b Rxa1 => Ra2xa1 | WKe1 w Kf2 => Ke1-f2 | WKe1 w kf2 => Ke1-f2 | WKe1 w Ke3 => | WNa1 w Nb2 =>
        Castling and promotion.
        WKe1 WRh1 w O-O => O-O | WKe1 WRh1 w 0-0 => O-O | WKe1 WRa1 w o-o-o => O-O-O | WKe1 WRh1 w e1g1 => O-O | BKe8 BRh8 b O-O+ => O-O
        WKe1 WRh1 WBf1 w O-O => | WKe1 WRh1 b O-O => | WKe1 WRh1 w Kg1 => O-O
        WPe7 w e8=N => e7-e8 =N | WPe7 w e8N => e7-e8 =N | WPe7 w e7e8q => e7-e8 =Q | WPe7 w e7e8b => e7-e8 =B | WPe7 w e8 => e7-e8
        WPe7 BRd8 w exd8=Q+ => e7xd8 =Q | BPa2 b a1=r => a2-a1 =R | WPe7 w e8=K =>
    )");
}
