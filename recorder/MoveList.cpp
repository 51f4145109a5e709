#include "recorder/MoveList.h"

std::optional<size_t> MoveList::LastWritten() const {
    for (size_t index = entries.size(); index-- > 0;) {
        if (entries[index].IsWritten()) return index;
    }
    return std::nullopt;
}

void MoveList::Write(size_t index, std::string_view move) {
    if (index == Moves()) AddWaiting();
    entries[index].Text = move;
}

size_t MoveList::AddWaiting() {
    const size_t index = Moves();
    entries.insert(entries.begin() + static_cast<std::ptrdiff_t>(index),
                   MoveEntry{static_cast<int32_t>(index) + 1, std::string(MissingMove)});
    return index;
}

void MoveList::AddResult(std::string_view result) { entries.push_back({0, std::string(result)}); }

std::string MoveList::Line(size_t index, Side side) const {
    const MoveEntry& entry = entries[index];
    const bool numbered = entry.IsWaiting() || (entry.IsWritten() && side == White);
    return numbered ? std::to_string(entry.Number) + ". " + entry.Text : entry.Text;
}
