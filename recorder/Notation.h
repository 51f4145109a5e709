#pragma once

#include "recorder/Board.h"

#include <array>
#include <string>
#include <string_view>

// A short text without allocation: the longest written move with its number fits.
class MoveText {
  public:
    std::string_view View() const { return {characters.data(), length}; }
    void Append(char character) { characters[length++] = character; }
    void Append(std::string_view text) {
        for (char character : text) Append(character);
    }
    void Append(Square square) {
        Append(FileLetter(square));
        Append(RankDigit(square));
    }

  private:
    std::array<char, 32> characters;
    size_t length = 0;
};

// A missing or unreadable move.
inline constexpr std::string_view MissingMove = "\?\?-\?\?";

// Writes a move in short algebraic notation: "Nf3", "exd5", "Rad8", "exd6ep", "O-O". `before` is the position for which
// Classify gave the move. Check, mate and the piece of a promotion are not written: the players declare and choose
// them.
MoveText WriteMove(const Board& before, const Move& move);

// The move in long form: "e2-e4", "e4xd5", "e5xd6ep", "O-O".
MoveText WriteLongForm(const Move& move);

// The letter that tells a Queen, Rook, Bishop or Knight from another of its kind that could reach the destination: the
// origin's file, or 0 if there is no other. It is deliberately never the rank, even if both are on one file.
char Disambiguation(const Board& before, const Move& move);

// Adds "=" and the piece's letter to a written move; if the move has one already, only the letter after the "=" is
// replaced, and the marks stay.
void SetPromotion(std::string& moveText, PieceKind kind);

// "1-0", "0-1" or "1/2-1/2".
bool IsResult(std::string_view text);

// Removes one result mark, "*" included, from the end of a game's text.
void RemoveResultMark(std::string& gameText);

// Corrects a typed or edited move: castling with zeros or small letters, and the case of files and pieces. An empty
// text becomes MissingMove.
std::string NormaliseMove(std::string_view typed);
