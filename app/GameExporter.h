#pragma once

#include "games/Game.h"
#include "platform/Surroundings.h"

#include <windows.h>

#include <string>

// Gives the game of the Scorlet and its position to other chess programs. What is not understood of the game, and what
// goes wrong, is told in a message over `owner`. Nothing is done while the Scorlet is closed.
class GameExporter {
  public:
    // The game must outlive it.
    GameExporter(const Surroundings& around, const Game& game)
        : texts(around.Wording), messageBoxes(around.Boxes), game(game) {}

    // The whole game, onto the clipboard.
    void CopyGame(HWND owner) const;
    // The position in Forsyth-Edwards notation, onto the clipboard.
    void CopyPosition(HWND owner) const;
    // The whole game as it is when the players have named the file, in UTF-8. The clock goes on meanwhile.
    void Export(HWND owner) const;

  private:
    GameReading Read() const;
    std::wstring TextOf(const GameReading& reading) const;
    // An empty text where nothing is unclear.
    std::wstring Unclear(const GameReading& reading) const;
    bool Copy(HWND owner, const std::wstring& text) const;
    void Tell(HWND owner, const std::wstring& message) const;

    const Texts& texts;
    const MessageBoxes& messageBoxes;
    const Game& game;
};
