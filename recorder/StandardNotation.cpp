#include "recorder/StandardNotation.h"

#include "base/AsciiCase.h"
#include "recorder/Notation.h"

namespace {

std::string SquareText(Square square) { return {FileLetter(square), RankDigit(square)}; }

// Nothing where no other piece of the kind can go there.
std::string OriginText(const LegalPosition& before, const LegalMove& move) {
    const PieceKind kind = KindOf(before.Pieces.At(move.Origin));
    bool another = false, onFile = false, onRank = false;
    for (const LegalMove& other : LegalMoves(before, kind, move.Destination)) {
        if (other.Origin == move.Origin) continue;
        another = true;
        onFile = onFile || FileOf(other.Origin) == FileOf(move.Origin);
        onRank = onRank || RankOf(other.Origin) == RankOf(move.Origin);
    }
    if (!another) return "";
    if (!onFile) return {FileLetter(move.Origin)};
    if (!onRank) return {RankDigit(move.Origin)};
    return SquareText(move.Origin);
}

std::string PlacementText(const Board& board) {
    std::string text;
    for (int rank = 8; rank >= 1; --rank) {
        int empty = 0;
        const auto writeEmpty = [&] {
            if (empty > 0) text += std::to_string(empty);
            empty = 0;
        };
        for (int file = 1; file <= 8; ++file) {
            const Piece piece = board.At(SquareAt(file, rank));
            if (piece == Piece::Empty) {
                ++empty;
                continue;
            }
            writeEmpty();
            const char letter = PieceLetter(KindOf(piece));
            text += SideOf(piece) == White ? letter : AsciiLower(letter);
        }
        writeEmpty();
        if (rank > 1) text += '/';
    }
    return text;
}

}  // namespace

std::string StandardText(const LegalPosition& before, const LegalMove& move) {
    const Move whole = before.Pieces.Classify(move.Origin, move.Destination);
    const PieceKind kind = KindOf(whole.Moving);
    std::string text;
    if (whole.RookOrigin != NoSquare) {
        text = WriteMove(before.Pieces, whole).View();
    } else {
        const bool captures = whole.Captured != Piece::Empty;
        if (kind != PieceKind::Pawn)
            text = PieceLetter(kind) + OriginText(before, move);
        else if (captures)
            text = FileLetter(move.Origin);
        if (captures) text += 'x';
        text += SquareText(move.Destination);
    }
    if (move.Promotion != PieceKind::None) SetPromotion(text, move.Promotion);
    LegalPosition after = before;
    Carry(after, move);
    if (InCheck(after)) text += LegalMoves(after).empty() ? '#' : '+';
    return text;
}

std::string ForsythText(const LegalPosition& position) {
    std::string castling;
    for (const Side side : BothSides) {
        if (position.KingSide[side]) castling += side == White ? 'K' : 'k';
        if (position.QueenSide[side]) castling += side == White ? 'Q' : 'q';
    }
    return PlacementText(position.Pieces) + (position.ToMove == White ? " w " : " b ") +
           (castling.empty() ? "-" : castling) + " " +
           (position.PassedOver == NoSquare ? "-" : SquareText(position.PassedOver)) + " " +
           std::to_string(position.QuietHalfMoves) + " " + std::to_string(position.Number);
}

LegalPosition PositionOf(const Board& board, Side toMove) {
    LegalPosition position;
    position.Pieces = board;
    position.ToMove = toMove;
    for (const Side side : BothSides) {
        const int rank = side == White ? 1 : 8;
        const auto holds = [&](int file, PieceKind kind) {
            return board.At(SquareAt(file, rank)) == PieceOf(side, kind);
        };
        const bool king = holds(5, PieceKind::King);
        position.KingSide[side] = king && holds(8, PieceKind::Rook);
        position.QueenSide[side] = king && holds(1, PieceKind::Rook);
    }
    return position;
}
