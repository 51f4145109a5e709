#pragma once

#include "recorder/EarlierPosition.h"
#include "recorder/Recorder.h"

// The earlier states of a record, for Take Back, and those that have been taken back, for Redo. Of each state it keeps
// what differs from its neighbour, so that a long game takes little memory. What the clock adds, it adds to all states:
// taking back a move takes back no press.
class RecordHistory {
  public:
    // Forgets what was, and begins with this state.
    void Begin(const Recorder& record);

    // The players have changed the record: unless it is as it was, that is a step, which ends Redo. `chosen` are the
    // lines that were chosen before it.
    void Changed(const Recorder& record, const ChosenLines& chosen);
    // The clock has added to the record.
    void ClockAdded(const Recorder& record, const ClockAdditions& added);

    bool CanTakeBack() const { return !past.empty(); }
    bool CanRedo() const { return !future.empty(); }

    // These make the record what it was before the last step, or after the one that was taken back; there must be one.
    // `chosen` are the lines that are chosen now. They return those that were chosen in that state.
    ChosenLines TakeBack(Recorder& record, const ChosenLines& chosen) { return Go(past, future, record, chosen); }
    ChosenLines Redo(Recorder& record, const ChosenLines& chosen) { return Go(future, past, record, chosen); }

    // The position after a written entry of the present state. It is that of the last state on the way here in which
    // the entry's move was the last one. Where the history does not go back so far, the legal game that the lists tell
    // is looked for; no value where there is none, or more than one.
    std::optional<EarlierPosition> PositionAfter(const ChosenLine& line) const;

  private:
    // A sequence without what another one begins with too.
    template <typename Sequence>
    struct Ending {
        size_t Shared;
        Sequence Rest;
        Ending(const Sequence& whole, const Sequence& other);
        Sequence After(const Sequence& other) const;
    };

    struct Step {
        Step(const Recorder& record, const Recorder& neighbour, const ChosenLines& chosen);
        Recorder RecordBeside(const Recorder& neighbour) const;

        Recorder Record;  // without its lists and its running text
        std::array<Ending<std::vector<MoveEntry>>, 2> Lists;
        Ending<std::string> RunningText;
        ChosenLines Chosen;
        ClockAdditions Added;  // since the record was left
    };
    // The last one is next to the present state, each other one next to the one after it.
    using Steps = std::vector<Step>;

    static void Add(Steps& steps, const Recorder& before, const Recorder& after, const ClockAdditions& added);
    ChosenLines Go(Steps& from, Steps& to, Recorder& record, const ChosenLines& chosen);

    Recorder present;
    Steps past, future;
};
