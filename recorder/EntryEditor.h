#pragma once

#include "recorder/MoveField.h"
#include "recorder/Recorder.h"

#include <optional>

// The correction of an entry of the move lists, in the field that opens for it.
class EntryEditor {
  public:
    // Both must outlive the editor.
    EntryEditor(Form& form, Recorder& recorder) : recorder(recorder), field(form) {}

    // Makes the field, hidden. Enter and Esc in it send the form `endMessage` with 1 or 0 in wParam.
    void Create(UINT endMessage) { field.Create(endMessage); }

    bool Open() const { return edited.has_value(); }
    // Opens the field with an entry; there must be one in that line.
    void Begin(const ChosenLine& line);
    // Closes the field and returns the line that shows the entry then; no value if the field was not open. What was
    // accepted is written, unless the entry has become another one meanwhile.
    std::optional<ChosenLine> End(bool accept);
    // The field's notification of a change.
    void OnChange() { field.OnChange(); }

  private:
    // What is open in the field, and how it was.
    struct Edited {
        ChosenLine Line;
        MoveEntry Entry;
    };

    Recorder& recorder;
    MoveField field;
    std::optional<Edited> edited;
};
