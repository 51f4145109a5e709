#pragma once

#include "recorder/EarlierPosition.h"
#include "recorder/WhoseMove.h"

#include <optional>

// A window that shows the record.
class RecordView {
  public:
    // The game has added to the record, or what it says of players and board has changed; the lines are to be shown as
    // chosen.
    virtual void RecordChanged(const ChosenLines& chosen) = 0;
    // The record has become another one: what was under way in the window is over.
    virtual void RecordReplaced() = 0;
    // A step of Take Back or Redo has made it another of its states, with these lines chosen.
    virtual void RecordStepped(const ChosenLines& chosen) = 0;
    // The lines that the window shows as chosen. After a change that it does not show yet, those from before.
    virtual ChosenLines Chosen() const = 0;
    // The record or the clock has changed, and with it the move that is expected.
    virtual void ShowWhoseMove() = 0;

  protected:
    ~RecordView() = default;
};

// The key that pauses a running clock: the letter in either case, since Caps Lock may be on.
constexpr bool IsPauseKey(uint64_t character) { return character == 'p' || character == 'P'; }

// What the Scorlet needs from the game: its record, and what concerns the clock too.
class ScorletGame {
  public:
    // A new record, which lasts until CloseRecord. There is at most one.
    virtual Recorder& OpenRecord(RecordView& view) = 0;
    virtual void CloseRecord() = 0;
    // In the ANSI code page; empty where the player has none.
    virtual std::string PlayerName(Side side) const = 0;
    // In UTF-16, where the code page lacks letters of the name; otherwise empty.
    virtual std::wstring FullName(Side side) const = 0;
    virtual bool BoardTurned() const = 0;  // Black's side is below

    virtual void RecordEdited() = 0;  // the window has changed the record, and does not show it yet
    // The record before the players' last change of it, and after it again. Without one they do nothing.
    virtual void TakeBack() = 0;
    virtual void Redo() = 0;
    virtual bool CanTakeBack() const = 0;
    virtual bool CanRedo() const = 0;
    // The position after a written entry; no value where it is not known.
    virtual std::optional<EarlierPosition> PositionAfter(const ChosenLine& line) const = 0;
    // What the face of each side showed then, in seconds, by side.
    virtual std::array<std::optional<int32_t>, 2> TimesAfter(const ChosenLine& line) const = 0;
    virtual WhoseMove NextMove() const = 0;  // there must be a record
    virtual void Declare(Declaration declaration) = 0;
    virtual void PressEnabledButton() = 0;  // the clock button that can be pressed
    virtual void PressKeyP() = 0;           // pauses a running clock

  protected:
    ~ScorletGame() = default;
};
