#pragma once

#include "recorder/Piece.h"
#include "recorder/Square.h"

#include <array>
#include <cstdint>

// How a move is written, and what it does besides moving a piece.
enum class MoveKind : uint8_t { Ordinary = 1, Capture = 2, EnPassant = 3, CastlingQueenSide = 5, CastlingKingSide = 6 };

struct Move {
    Square Origin;
    Square Destination;
    MoveKind Kind;
    Piece Moving;
    Piece Captured;     // Empty if none is captured
    Square CapturedOn;  // where the captured piece was, which is not the destination en passant
    Square RookOrigin;  // castling only, NoSquare otherwise
    Square RookDestination;
    bool operator==(const Move&) const = default;
};

// The kinds that have a tray of captured pieces, and how many pictures each tray holds.
inline constexpr std::array TrayKinds{PieceKind::Queen, PieceKind::Rook, PieceKind::Bishop, PieceKind::Knight,
                                      PieceKind::Pawn};
constexpr int TraySlots(PieceKind kind) {
    switch (kind) {
        case PieceKind::Queen: return 1;
        case PieceKind::Rook:
        case PieceKind::Bishop:
        case PieceKind::Knight: return 2;
        case PieceKind::Pawn: return 8;
        default: return 0;
    }
}

// A slot of a tray: its piece and its place in the tray.
struct TraySlot {
    Piece Captured;
    int Slot;
    bool operator==(const TraySlot&) const = default;
};

// The slots of all trays are numbered from 0: those of White's pieces in the order of TrayKinds, then those of Black's
// pieces.
inline constexpr int SlotsPerSide = 15;
TraySlot SlotOf(int number);

// The position that the players replay, with the captured pieces. It carries out captures, castling, en passant and
// promotion and judges no move: it is a scoring pad and not a referee.
class Board {
  public:
    Board() { Reset(); }
    bool operator==(const Board&) const = default;

    // Sets up the initial position of chess, with no piece captured.
    void Reset();

    Piece At(Square square) const { return cells[square]; }
    // By square; what is no square is Empty.
    const std::array<Piece, SquareIndexes>& Cells() const { return cells; }

    // What the move between two squares would be. The origin must hold a piece. Only the position counts; earlier moves
    // are not remembered.
    Move Classify(Square origin, Square destination) const;

    // Carries out a move that Classify gave for the present position.
    void Carry(const Move& move);

    // Puts a piece on a square, or empties it.
    void Put(Square square, Piece piece) { cells[square] = piece; }

    // Whether the piece is a pawn that has reached its last rank on that square, and so waits for its promotion.
    static constexpr bool ReachesLastRank(Piece piece, Square square) {
        return KindOf(piece) == PieceKind::Pawn && RankOf(square) == (SideOf(piece) == White ? 8 : 1);
    }

    // Captured pieces are shown slot by slot. Slots are numbered from 0.
    bool CapturedShown(Piece piece, int slot) const { return trays[static_cast<size_t>(piece)] >> slot & 1; }
    // Shows the first hidden slot of the piece's tray. Does nothing when all are shown or the piece has no tray.
    void AddCaptured(Piece piece);
    void HideCaptured(Piece piece, int slot);
    void HideAllCaptured() { trays = {}; }
    // Shows as captured what the position lacks of each kind, compared with the initial one. A pawn that has been
    // promoted is missing too.
    void ShowMissingAsCaptured();

  private:
    bool EnPassant(Square origin, Square destination, Piece moving) const;
    void Castling(Move& move) const;

    std::array<Piece, SquareIndexes> cells;
    std::array<uint8_t, 16> trays;  // a bit for each slot, by piece
};
