#include "recorder/LegalMoves.h"

#include "recorder/Directions.h"

#include <cstdlib>
#include <utility>

namespace {

constexpr std::array Promotions{PieceKind::Queen, PieceKind::Rook, PieceKind::Bishop, PieceKind::Knight};

bool Slides(PieceKind kind) { return kind == PieceKind::Queen || kind == PieceKind::Rook || kind == PieceKind::Bishop; }

constexpr int Forward(Side side) { return side == White ? 1 : -1; }
constexpr int HomeRank(Side side) { return side == White ? 1 : 8; }

bool Holds(const Board& board, int file, int rank, Piece piece) {
    return OnBoard(file, rank) && board.At(SquareAt(file, rank)) == piece;
}

bool Attacked(const Board& board, Square square, Side by) {
    const int file = FileOf(square), rank = RankOf(square);
    for (const int files : {-1, 1}) {
        if (Holds(board, file + files, rank - Forward(by), PieceOf(by, PieceKind::Pawn))) return true;
    }
    for (const auto& [files, ranks] : KnightJumps) {
        if (Holds(board, file + files, rank + ranks, PieceOf(by, PieceKind::Knight))) return true;
    }
    for (size_t i = 0; i < Directions.size(); ++i) {
        const auto [files, ranks] = Directions[i];
        const PieceKind slider = i < 4 ? PieceKind::Bishop : PieceKind::Rook;
        for (int steps = 1; OnBoard(file + steps * files, rank + steps * ranks); ++steps) {
            const Piece piece = board.At(SquareAt(file + steps * files, rank + steps * ranks));
            if (piece == Piece::Empty) continue;
            if (piece == PieceOf(by, slider) || piece == PieceOf(by, PieceKind::Queen)) return true;
            if (steps == 1 && piece == PieceOf(by, PieceKind::King)) return true;
            break;
        }
    }
    return false;
}

bool KingAttacked(const Board& board, Side side) {
    const Piece king = PieceOf(side, PieceKind::King);
    for (int file = 1; file <= 8; ++file) {
        for (int rank = 1; rank <= 8; ++rank) {
            const Square square = SquareAt(file, rank);
            if (board.At(square) == king) return Attacked(board, square, Other(side));
        }
    }
    return false;
}

// Collects the legal moves piece by piece.
class Generator {
  public:
    Generator(const LegalPosition& position, Square destination)
        : position(position), board(position.Pieces), side(position.ToMove), wanted(destination) {}

    std::vector<LegalMove> Take() { return std::move(moves); }

    void AddFrom(Square origin) {
        const PieceKind kind = KindOf(board.At(origin));
        if (kind == PieceKind::Pawn) return AddPawn(origin);
        for (const auto& [files, ranks] : StepsOf(kind)) {
            int file = FileOf(origin) + files, rank = RankOf(origin) + ranks;
            for (; OnBoard(file, rank); file += files, rank += ranks) {
                const Square square = SquareAt(file, rank);
                if (board.At(square) == Piece::Empty || Foreign(square)) Add(origin, square);
                if (board.At(square) != Piece::Empty || !Slides(kind)) break;
            }
        }
        if (kind == PieceKind::King && origin == SquareAt(5, HomeRank(side))) AddCastling(origin);
    }

  private:
    bool Foreign(Square square) const { return board.At(square) != Piece::Empty && SideOf(board.At(square)) != side; }
    bool Empty(int file, int rank) const { return Holds(board, file, rank, Piece::Empty); }

    void AddPawn(Square origin) {
        const int file = FileOf(origin), rank = RankOf(origin) + Forward(side);
        if (Empty(file, rank)) {
            Add(origin, SquareAt(file, rank));
            const bool first = RankOf(origin) == HomeRank(side) + Forward(side);
            if (first && Empty(file, rank + Forward(side))) Add(origin, SquareAt(file, rank + Forward(side)));
        }
        for (const int to : {file - 1, file + 1}) {
            if (!OnBoard(to, rank)) continue;
            const Square square = SquareAt(to, rank);
            if (Foreign(square) || square == position.PassedOver) Add(origin, square);
        }
    }

    void AddCastling(Square king) {
        const int rank = HomeRank(side);
        const Side other = Other(side);
        const auto safe = [&](int file) { return !Attacked(board, SquareAt(file, rank), other); };
        const auto rook = [&](int file) { return Holds(board, file, rank, PieceOf(side, PieceKind::Rook)); };
        if (position.KingSide[side] && rook(8) && Empty(6, rank) && Empty(7, rank) && safe(5) && safe(6))
            Add(king, SquareAt(7, rank));
        if (position.QueenSide[side] && rook(1) && Empty(2, rank) && Empty(3, rank) && Empty(4, rank) && safe(5) &&
            safe(4))
            Add(king, SquareAt(3, rank));
    }

    void Add(Square origin, Square destination) {
        if (wanted != NoSquare && destination != wanted) return;
        Board after = board;
        after.Carry(board.Classify(origin, destination));
        if (KingAttacked(after, side)) return;
        if (!Board::ReachesLastRank(board.At(origin), destination)) return moves.push_back({origin, destination});
        for (const PieceKind kind : Promotions) moves.push_back({origin, destination, kind});
    }

    const LegalPosition& position;
    const Board& board;
    const Side side;
    const Square wanted;
    std::vector<LegalMove> moves;
};

}  // namespace

bool InCheck(const LegalPosition& position) { return KingAttacked(position.Pieces, position.ToMove); }

std::vector<LegalMove> LegalMoves(const LegalPosition& position, PieceKind kind, Square destination) {
    Generator generator(position, destination);
    for (int file = 1; file <= 8; ++file) {
        for (int rank = 1; rank <= 8; ++rank) {
            const Square origin = SquareAt(file, rank);
            const Piece piece = position.Pieces.At(origin);
            if (piece == Piece::Empty || SideOf(piece) != position.ToMove) continue;
            if (kind == PieceKind::None || KindOf(piece) == kind) generator.AddFrom(origin);
        }
    }
    return generator.Take();
}

void Carry(LegalPosition& position, const LegalMove& move) {
    const Side side = position.ToMove;
    const Move whole = position.Pieces.Classify(move.Origin, move.Destination);
    position.Pieces.Carry(whole);
    if (move.Promotion != PieceKind::None) position.Pieces.Put(move.Destination, PieceOf(side, move.Promotion));

    for (const Side rooks : BothSides) {
        const int rank = HomeRank(rooks);
        for (const Square square : {move.Origin, move.Destination}) {
            if (square == SquareAt(5, rank) || square == SquareAt(8, rank)) position.KingSide[rooks] = false;
            if (square == SquareAt(5, rank) || square == SquareAt(1, rank)) position.QueenSide[rooks] = false;
        }
    }
    const bool pawn = KindOf(whole.Moving) == PieceKind::Pawn;
    const int middle = (RankOf(move.Origin) + RankOf(move.Destination)) / 2;
    const bool doubleStep = pawn && std::abs(RankOf(move.Origin) - RankOf(move.Destination)) == 2;
    position.PassedOver = doubleStep ? SquareAt(FileOf(move.Origin), middle) : NoSquare;
    position.QuietHalfMoves = pawn || whole.Captured != Piece::Empty ? 0 : position.QuietHalfMoves + 1;
    if (side == Black) ++position.Number;
    position.ToMove = Other(side);
}
