#include "recorder/Board.h"

#include <algorithm>

TraySlot SlotOf(int number) {
    const Side side = number < SlotsPerSide ? White : Black;
    int rest = number % SlotsPerSide;
    for (const PieceKind kind : TrayKinds) {
        if (rest < TraySlots(kind)) return {PieceOf(side, kind), rest};
        rest -= TraySlots(kind);
    }
    return {Piece::Empty, 0};
}

void Board::Reset() {
    constexpr std::array backRank{PieceKind::Rook, PieceKind::Knight, PieceKind::Bishop, PieceKind::Queen,
                                  PieceKind::King, PieceKind::Bishop, PieceKind::Knight, PieceKind::Rook};
    cells.fill(Piece::Empty);
    for (int file = 1; file <= 8; ++file) {
        const PieceKind kind = backRank[static_cast<size_t>(file - 1)];
        cells[SquareAt(file, 1)] = PieceOf(White, kind);
        cells[SquareAt(file, 2)] = PieceOf(White, PieceKind::Pawn);
        cells[SquareAt(file, 7)] = PieceOf(Black, PieceKind::Pawn);
        cells[SquareAt(file, 8)] = PieceOf(Black, kind);
    }
    HideAllCaptured();
}

Move Board::Classify(Square origin, Square destination) const {
    const Piece moving = cells[origin];
    Move move{origin, destination, MoveKind::Ordinary, moving, cells[destination], destination, NoSquare, NoSquare};
    if (move.Captured != Piece::Empty) {
        move.Kind = MoveKind::Capture;
    } else if (KindOf(moving) == PieceKind::Pawn && EnPassant(origin, destination, moving)) {
        move.Kind = MoveKind::EnPassant;
        move.CapturedOn = SquareAt(FileOf(destination), RankOf(origin));
        move.Captured = cells[move.CapturedOn];
    } else if (KindOf(moving) == PieceKind::King) {
        Castling(move);
    }
    return move;
}

// Only the places of the pawns count: whether the other one has just made its double step is deliberately not
// remembered.
bool Board::EnPassant(Square origin, Square destination, Piece moving) const {
    const bool white = SideOf(moving) == White;
    const int fromRank = white ? 5 : 4, toRank = white ? 6 : 3;
    const int files = FileOf(destination) - FileOf(origin);
    return RankOf(origin) == fromRank && RankOf(destination) == toRank && (files == 1 || files == -1) &&
           cells[SquareAt(FileOf(destination), fromRank)] == PieceOf(Other(SideOf(moving)), PieceKind::Pawn);
}

void Board::Castling(Move& move) const {
    const Side side = SideOf(move.Moving);
    const int rank = side == White ? 1 : 8;
    const auto empty = [&](int file) { return cells[SquareAt(file, rank)] == Piece::Empty; };
    const auto rook = [&](int file) { return cells[SquareAt(file, rank)] == PieceOf(side, PieceKind::Rook); };
    if (move.Origin != SquareAt(5, rank)) return;
    if (move.Destination == SquareAt(7, rank) && rook(8) && empty(6)) {
        move.Kind = MoveKind::CastlingKingSide;
        move.RookOrigin = SquareAt(8, rank);
        move.RookDestination = SquareAt(6, rank);
    } else if (move.Destination == SquareAt(3, rank) && rook(1) && empty(2) && empty(4)) {
        move.Kind = MoveKind::CastlingQueenSide;
        move.RookOrigin = SquareAt(1, rank);
        move.RookDestination = SquareAt(4, rank);
    }
}

void Board::Carry(const Move& move) {
    if (move.Captured != Piece::Empty) {
        cells[move.CapturedOn] = Piece::Empty;
        AddCaptured(move.Captured);
    }
    cells[move.Origin] = Piece::Empty;
    cells[move.Destination] = move.Moving;
    if (move.RookOrigin != NoSquare) {
        cells[move.RookDestination] = cells[move.RookOrigin];
        cells[move.RookOrigin] = Piece::Empty;
    }
}

void Board::AddCaptured(Piece piece) {
    uint8_t& tray = trays[static_cast<size_t>(piece)];
    // The lowest bit that is not set, cut off where the tray ends.
    const auto next = static_cast<uint8_t>(~tray & (tray + 1));
    if (next < 1 << TraySlots(KindOf(piece))) tray = static_cast<uint8_t>(tray | next);
}

void Board::HideCaptured(Piece piece, int slot) {
    uint8_t& tray = trays[static_cast<size_t>(piece)];
    tray = static_cast<uint8_t>(tray & ~(1 << slot));
}

void Board::ShowMissingAsCaptured() {
    HideAllCaptured();
    for (const Side side : BothSides) {
        for (const PieceKind kind : TrayKinds) {
            const Piece piece = PieceOf(side, kind);
            for (auto left = std::count(cells.begin(), cells.end(), piece); left < TraySlots(kind); ++left)
                AddCaptured(piece);
        }
    }
}
