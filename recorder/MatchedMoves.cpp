#include "recorder/MatchedMoves.h"

#include "base/AsciiCase.h"
#include "recorder/Notation.h"

#include <algorithm>
#include <cstdlib>

namespace {

// What a typed text asks of a move; 0 or None where it asks nothing.
struct TypedParts {
    PieceKind Kind = PieceKind::None;
    int OriginFile = 0, OriginRank = 0;
    Square Destination = NoSquare;
    PieceKind Promotion = PieceKind::None;
    bool Captures = false;
};

bool PathIsClear(const Board& board, Square origin, Square destination) {
    const auto sign = [](int number) { return (number > 0) - (number < 0); };
    const int files = sign(FileOf(destination) - FileOf(origin)), ranks = sign(RankOf(destination) - RankOf(origin));
    const int step = SquareAt(files, ranks);
    for (int square = origin + step; square != destination; square += step) {
        if (board.At(static_cast<Square>(square)) != Piece::Empty) return false;
    }
    return true;
}

bool PawnGoes(const Board& board, const Move& move) {
    const Side side = SideOf(move.Moving);
    const int files = FileOf(move.Destination) - FileOf(move.Origin);
    const int ranks = (RankOf(move.Destination) - RankOf(move.Origin)) * (side == White ? 1 : -1);
    if (move.Captured != Piece::Empty) return std::abs(files) == 1 && ranks == 1;
    const bool two = ranks == 2 && RankOf(move.Origin) == (side == White ? 2 : 7);
    return files == 0 && (ranks == 1 || two) && PathIsClear(board, move.Origin, move.Destination);
}

// Whether the piece goes like this.
bool Goes(const Board& board, const Move& move) {
    const int files = std::abs(FileOf(move.Destination) - FileOf(move.Origin));
    const int ranks = std::abs(RankOf(move.Destination) - RankOf(move.Origin));
    const bool straight = files == 0 || ranks == 0, diagonal = files == ranks;
    switch (KindOf(move.Moving)) {
        case PieceKind::Pawn: return PawnGoes(board, move);
        case PieceKind::Knight: return files * ranks == 2;
        case PieceKind::King: return (files <= 1 && ranks <= 1) || move.RookOrigin != NoSquare;
        case PieceKind::Bishop: return diagonal && PathIsClear(board, move.Origin, move.Destination);
        case PieceKind::Rook: return straight && PathIsClear(board, move.Origin, move.Destination);
        default: return (straight || diagonal) && PathIsClear(board, move.Origin, move.Destination);
    }
}

// Takes the last character of a text away if it is one of these.
char TakeLast(std::string& text, std::string_view characters) {
    if (text.empty() || characters.find(text.back()) == std::string_view::npos) return '\0';
    const char last = text.back();
    text.pop_back();
    return last;
}

bool ReadCastling(std::string_view text, Side side, TypedParts& wanted) {
    if (text != "O-O" && text != "O-O-O") return false;
    const int rank = side == White ? 1 : 8;
    wanted = {PieceKind::King, 5, rank, SquareAt(text.size() == 3 ? 7 : 3, rank)};
    return true;
}

// False for a text that is no move.
bool Read(std::string text, Side side, TypedParts& wanted) {
    while (TakeLast(text, "+#!?")) {
    }
    text = NormaliseMove(text);
    if (ReadCastling(text, side, wanted)) return true;
    if (text.ends_with("ep")) text.resize(text.size() - 2);
    if (const char piece = TakeLast(text, "QRBNb")) {
        wanted.Promotion = KindOfLetter(AsciiUpper(piece));
        TakeLast(text, "=");
    }
    if (text.size() < 2) return false;
    wanted.Destination = SquareNamed(std::string_view(text).substr(text.size() - 2));
    text.resize(text.size() - 2);
    wanted.Captures = TakeLast(text, "x:") != '\0';
    if (!wanted.Captures) TakeLast(text, "-");
    if (const char rank = TakeLast(text, "12345678")) wanted.OriginRank = rank - '0';
    if (const char file = TakeLast(text, "abcdefgh")) wanted.OriginFile = file - 'a' + 1;
    if (const char piece = TakeLast(text, "KkQRBN")) wanted.Kind = KindOfLetter(AsciiUpper(piece));
    return text.empty() && wanted.Destination != NoSquare;
}

bool Fits(const Move& move, const TypedParts& wanted) {
    // Without a letter a pawn is meant, or whatever is on a square that is named whole.
    const bool whole = wanted.OriginFile != 0 && wanted.OriginRank != 0;
    const PieceKind kind = wanted.Kind == PieceKind::None && !whole ? PieceKind::Pawn : wanted.Kind;
    const bool promotes = Board::ReachesLastRank(move.Moving, move.Destination);
    return (kind == PieceKind::None || kind == KindOf(move.Moving)) &&
           (wanted.OriginFile == 0 || wanted.OriginFile == FileOf(move.Origin)) &&
           (wanted.OriginRank == 0 || wanted.OriginRank == RankOf(move.Origin)) &&
           (!wanted.Captures || move.Captured != Piece::Empty) && (wanted.Promotion == PieceKind::None || promotes);
}

}  // namespace

std::vector<MatchedMove> MatchMoves(const Board& board, Side side, std::string_view typed) {
    TypedParts wanted;
    std::vector<MatchedMove> matches;
    if (!Read(std::string(typed), side, wanted)) return matches;
    const Piece there = board.At(wanted.Destination);
    if (there != Piece::Empty && SideOf(there) == side) return matches;
    for (int index = 0; index < SquareIndexes; ++index) {
        if (!IsSquare(index)) continue;
        const auto origin = static_cast<Square>(index);
        if (board.At(origin) == Piece::Empty || SideOf(board.At(origin)) != side) continue;
        const Move move = board.Classify(origin, wanted.Destination);
        if (Fits(move, wanted) && Goes(board, move)) matches.push_back({move, wanted.Promotion});
    }
    return matches;
}

std::string FullText(const Move& move) {
    const PieceKind kind = KindOf(move.Moving);
    const bool lettered = kind != PieceKind::Pawn && move.RookOrigin == NoSquare;
    return (lettered ? std::string(1, PieceLetter(kind)) : "") + std::string(WriteLongForm(move).View());
}

bool BeginsMove(char character) {
    return std::string_view("abcdefghnrqko0").find(AsciiLower(character)) != std::string_view::npos;
}
