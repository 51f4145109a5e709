#pragma once

#include "recorder/EntryField.h"
#include "recorder/MatchedMoves.h"
#include "recorder/Recorder.h"

#include <optional>
#include <string>

// The field on the board into which a move can be typed, with a line below it that says why a text is no move to enter.
class TypedMoveField {
  public:
    // The form must outlive the field.
    explicit TypedMoveField(Form& form);

    // Makes the controls, hidden, over all that is made later. Enter and Esc in the field send the form `endMessage`
    // with 1 or 0 in wParam.
    void Create(UINT endMessage);

    bool Open() const;
    // Opens with the character that has been typed on the board.
    void Show(wchar_t first) const;
    void Hide() const;
    // The one move of the record that the text means. Where there is none, or more than one, the line says so until the
    // text changes.
    std::optional<MatchedMove> Match(const Recorder& record, const Texts& texts) const;
    // The field's notification of a change.
    void OnChange() const { Explain({}); }
    // What the field is, and what the line says.
    std::wstring SpokenText(const Texts& texts) const;

  private:
    void Explain(const std::wstring& why) const;

    Form& form;
    EntryField entry;
};
