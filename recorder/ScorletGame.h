#pragma once

#include "recorder/Recorder.h"

// A window that shows the record.
class RecordView {
  public:
    // The game has added to the record, or what it says of players and board has changed; the lines are to be shown as
    // chosen.
    virtual void RecordChanged(const ChosenLines& chosen) = 0;
    // The record has become another one: what was under way in the window is over.
    virtual void RecordReplaced() = 0;

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
    virtual bool BoardTurned() const = 0;  // Black's side is below

    virtual void RecordEdited() = 0;  // the window has changed the record
    virtual void Declare(Declaration declaration) = 0;
    virtual void PressEnabledButton() = 0;  // the clock button that can be pressed
    virtual void PressKeyP() = 0;           // pauses a running clock

  protected:
    ~ScorletGame() = default;
};
