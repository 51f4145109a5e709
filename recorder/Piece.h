#pragma once

#include "base/Side.h"

#include <cstdint>
#include <optional>
#include <string_view>

enum class PieceKind : uint8_t { None, King, Queen, Rook, Bishop, Knight, Pawn };

// What is on a square: a kind in the low bits, with Black's bit above them; 0 for nothing.
enum class Piece : uint8_t { Empty = 0 };

constexpr Piece PieceOf(Side side, PieceKind kind) {
    return static_cast<Piece>(static_cast<uint8_t>(kind) | (side == Black ? 8 : 0));
}
constexpr PieceKind KindOf(Piece piece) { return static_cast<PieceKind>(static_cast<uint8_t>(piece) & 7); }
// The side of a piece, which must not be Empty.
constexpr Side SideOf(Piece piece) { return static_cast<uint8_t>(piece) & 8 ? Black : White; }

// "K", "Q", "R", "B", "N" or "P".
constexpr char PieceLetter(PieceKind kind) { return "OKQRBNP"[static_cast<uint8_t>(kind)]; }

// The kind that a letter means, none for any other character.
constexpr PieceKind KindOfLetter(char letter) {
    constexpr std::string_view letters = "OKQRBNP";
    const size_t at = letters.find(letter, 1);
    return at == std::string_view::npos ? PieceKind::None : static_cast<PieceKind>(at);
}

// The code that names a piece and its picture, "WK" to "BP"; "O" for an empty square.
constexpr std::string_view PieceCode(Piece piece) {
    constexpr std::string_view codes = "WKWQWRWBWNWP  BKBQBRBBBNBP";
    if (piece == Piece::Empty) return "O";
    const auto index = static_cast<size_t>(piece);
    return codes.substr((index < 8 ? index - 1 : index - 2) * 2, 2);
}

// The piece of a code; no value for a text that is no code.
constexpr std::optional<Piece> PieceOfCode(std::string_view code) {
    if (code == "O") return Piece::Empty;
    if (code.size() != 2 || (code[0] != 'W' && code[0] != 'B')) return std::nullopt;
    const PieceKind kind = KindOfLetter(code[1]);
    if (kind == PieceKind::None) return std::nullopt;
    return PieceOf(code[0] == 'W' ? White : Black, kind);
}
