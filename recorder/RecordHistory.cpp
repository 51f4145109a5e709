#include "recorder/RecordHistory.h"

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
