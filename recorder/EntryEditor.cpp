#include "recorder/EntryEditor.h"

#include "platform/Ansi.h"

#include <utility>

void EntryEditor::Begin(const ChosenLine& line) {
    edited = Edited{line, recorder.List(line.List).Entries()[line.Index]};
    field.Show(FromAnsi(edited->Entry.Text));
}

std::optional<ChosenLine> EntryEditor::End(bool accept) {
    const auto ended = std::exchange(edited, std::nullopt);
    if (!ended) return std::nullopt;
    ChosenLine line = ended->Line;
    const bool wasResult = ended->Entry.IsResult();
    // A result moves to the end when lines are added, and goes when play goes on; moves stay where they are.
    const MoveList& list = recorder.List(line.List);
    if (wasResult && list.EndsWithResult()) line.Index = list.Entries().size() - 1;
    const bool unchanged = line.Index < list.Entries().size() && list.Entries()[line.Index].IsResult() == wasResult;
    if (accept && unchanged) recorder.Edit(line.List, line.Index, ToAnsi(field.Text()));
    field.Hide();
    return line;
}
