#pragma once

#include "games/GameCodec.h"
#include "games/SmallBoard.h"
#include "platform/Form.h"

#include <string>

// What the file dialog shows of the game that is chosen: a small board and lines of text, or a note instead.
class SummaryPane {
  public:
    // Both must outlive it. The form has the controls.
    SummaryPane(Form& form, const Texts& texts) : form(form), texts(texts) {}

    void ShowNote(const std::wstring& note);
    // `changed` is when the game was saved, see FoundFile. Throws SystemError.
    void ShowGame(const SavedGame& game, uint64_t changed, bool turned);

    void DrawBoard(const DRAWITEMSTRUCT& item) const { board.Draw(item); }
    std::wstring SpokenBoard() const { return board.Spoken(texts); }
    // All that is shown but the board, in one text.
    const std::wstring& Spoken() const { return spoken; }

  private:
    void ShowLines(bool visible) const;

    Form& form;
    const Texts& texts;
    SmallBoard board;
    std::wstring spoken;
};
