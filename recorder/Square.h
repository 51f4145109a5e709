#pragma once

#include <string_view>

// A square of the board as file * 10 + rank, both 1 to 8: a1 is 11, e2 is 52, h8 is 88.
enum Square : int { NoSquare = 0 };

// The size of a table of squares, with room for every index up to that of h8.
inline constexpr int SquareIndexes = 89;

constexpr Square SquareAt(int file, int rank) { return static_cast<Square>(file * 10 + rank); }
constexpr int FileOf(Square square) { return square / 10; }
constexpr int RankOf(Square square) { return square % 10; }
constexpr bool IsLight(Square square) { return (FileOf(square) + RankOf(square)) % 2 != 0; }
constexpr bool OnBoard(int file, int rank) { return file >= 1 && file <= 8 && rank >= 1 && rank <= 8; }
constexpr bool IsSquare(int index) { return OnBoard(index / 10, index % 10); }

constexpr char FileLetter(Square square) { return static_cast<char>('a' + FileOf(square) - 1); }
constexpr char RankDigit(Square square) { return static_cast<char>('0' + RankOf(square)); }

// The square of a name, "e4"; NoSquare for any other text.
constexpr Square SquareNamed(std::string_view name) {
    if (name.size() != 2) return NoSquare;
    const int file = name[0] - 'a' + 1, rank = name[1] - '0';
    return OnBoard(file, rank) ? SquareAt(file, rank) : NoSquare;
}
