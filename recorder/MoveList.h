#pragma once

#include "base/Side.h"
#include "recorder/Notation.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// A line of a move list: a move with its number, a place that waits for one, or, without a number, the game's result.
struct MoveEntry {
    int32_t Number;  // 0: a result
    std::string Text;

    bool operator==(const MoveEntry&) const = default;
    bool IsResult() const { return Number == 0; }
    bool IsWaiting() const { return !IsResult() && Text == MissingMove; }
    bool IsWritten() const { return !IsResult() && Text != MissingMove; }
};

// The moves of one side, entry i being its move i + 1; a result can only be the last.
class MoveList {
  public:
    MoveList() = default;
    explicit MoveList(std::vector<MoveEntry> entries) : entries(std::move(entries)) {}
    bool operator==(const MoveList&) const = default;
    const std::vector<MoveEntry>& Entries() const { return entries; }
    bool Empty() const { return entries.empty(); }
    size_t Moves() const { return entries.size() - (EndsWithResult() ? 1 : 0); }
    bool EndsWithResult() const { return !entries.empty() && entries.back().IsResult(); }
    bool EndsWithWaiting() const { return !entries.empty() && entries.back().IsWaiting(); }
    bool EndsWithWritten() const { return !entries.empty() && entries.back().IsWritten(); }

    // The last entry that holds a move; no value if none does.
    std::optional<size_t> LastWritten() const;

    // Writes into a line, or into a new one after the last. A result stays at the end.
    void Write(size_t index, std::string_view move);
    size_t AddWaiting();  // returns the new line, which comes before a result
    void AddResult(std::string_view result);
    // A text that is no result makes a move of an entry that was one.
    void SetText(size_t index, const std::string& text) { entries[index] = {static_cast<int32_t>(index) + 1, text}; }
    void SetResult(size_t index, const std::string& result) { entries[index] = {0, result}; }
    void RemoveLast() { entries.pop_back(); }

    // What the list of a side shows: White's moves with their numbers, Black's without, and waiting lines with the
    // number in both lists.
    std::string Line(size_t index, Side side) const;

  private:
    std::vector<MoveEntry> entries;
};

// The list of White's moves, then that of Black's.
using MoveLists = std::array<MoveList, 2>;
