#include "recorder/RecordHistory.h"

#include "recorder/GameReading.h"

#include <algorithm>
#include <utility>

template <typename Sequence>
RecordHistory::Ending<Sequence>::Ending(const Sequence& whole, const Sequence& other)
    : Shared(static_cast<size_t>(std::ranges::mismatch(whole, other).in1 - whole.begin())),
      Rest(whole.begin() + static_cast<std::ptrdiff_t>(Shared), whole.end()) {}

template <typename Sequence>
Sequence RecordHistory::Ending<Sequence>::After(const Sequence& other) const {
    Sequence whole(other.begin(), other.begin() + static_cast<std::ptrdiff_t>(Shared));
    whole.insert(whole.end(), Rest.begin(), Rest.end());
    return whole;
}

RecordHistory::Step::Step(const Recorder& record, const Recorder& neighbour, const ChosenLines& chosen)
    : Record(record),
      Lists{{{record.lists[White].Entries(), neighbour.lists[White].Entries()},
             {record.lists[Black].Entries(), neighbour.lists[Black].Entries()}}},
      RunningText(record.runningText, neighbour.runningText),
      Chosen(chosen) {
    Record.lists = {};
    Record.runningText = {};
}

Recorder RecordHistory::Step::RecordBeside(const Recorder& neighbour) const {
    Recorder whole = Record;
    for (const Side side : BothSides) whole.lists[side] = MoveList(Lists[side].After(neighbour.lists[side].Entries()));
    whole.runningText = RunningText.After(neighbour.runningText);
    return whole;
}

void RecordHistory::Begin(const Recorder& record) {
    past.clear();
    future.clear();
    present = record;
}

void RecordHistory::Changed(const Recorder& record, const ChosenLines& chosen) {
    if (record == present) return;
    future.clear();
    past.emplace_back(present, record, chosen);
    present = record;
}

void RecordHistory::ClockAdded(const Recorder& record, const ClockAdditions& added) {
    for (Steps* steps : {&past, &future}) Add(*steps, present, record, added);
    present = record;
}

// The state next to the last step has changed.
void RecordHistory::Add(Steps& steps, const Recorder& before, const Recorder& after, const ClockAdditions& added) {
    if (steps.empty()) return;
    Step& last = steps.back();
    const ClockAdditions all = last.Added.With(added);
    last = Step(last.RecordBeside(before), after, last.Chosen);
    last.Added = all;
}

ChosenLines RecordHistory::Go(Steps& from, Steps& to, Recorder& record, const ChosenLines& chosen) {
    const Step step = std::move(from.back());
    from.pop_back();
    const Recorder left = step.RecordBeside(present);
    record = left;
    record.Take(step.Added);
    Add(from, left, record, step.Added);
    to.emplace_back(present, record, chosen);
    present = record;
    return step.Chosen;
}

namespace {

bool Written(const Recorder& record, const ChosenLine& line) {
    const auto& entries = record.List(line.List).Entries();
    return line.Index < entries.size() && entries[line.Index].IsWritten();
}

// What the lists of a record tell of the position after an entry.
std::optional<EarlierPosition> Read(const Recorder& record, const ChosenLine& line) {
    const GameReading game = ReadGame(record.Lists(), record.Position());
    const size_t moves = line.Index * 2 + static_cast<size_t>(line.List) + 1;
    const size_t clear = game.Finding == GameFinding::SeveralWays ? game.HalfMove : game.Moves.size();
    if (moves > clear) return std::nullopt;
    LegalPosition position;
    for (size_t i = 0; i + 1 < moves; ++i) Carry(position, game.Moves[i]);
    const LegalMove& last = game.Moves[moves - 1];
    const Move move = position.Pieces.Classify(last.Origin, last.Destination);
    Carry(position, last);
    position.Pieces.ShowMissingAsCaptured();
    return EarlierPosition{position.Pieces, move};
}

}  // namespace

std::optional<EarlierPosition> RecordHistory::PositionAfter(const ChosenLine& line) const {
    Recorder state = present;
    auto step = past.rbegin();
    // Before the entry was written for the last time, its line may have held another move.
    while (Written(state, line)) {
        if (state.LastLine() == line) return EarlierPosition{state.Position(), state.LastMove()};
        if (step == past.rend()) break;
        state = (step++)->RecordBeside(state);
    }
    auto read = Read(present, line);
    // A game that was loaded may have gone on with moves that are not legal.
    if (!read && step == past.rend()) read = Read(state, line);
    return read;
}
