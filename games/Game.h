#pragma once

#include "clock/ClockCommands.h"
#include "games/ExportedGame.h"
#include "games/GameCodec.h"
#include "recorder/RecordHistory.h"
#include "recorder/ScorletGame.h"
#include "settings/Settings.h"

#include <optional>

// What has changed on the clock.
struct ClockChange {
    std::array<bool, 2> Faces{};  // by side; to be drawn first
    bool Phase = false;           // buttons, marks, flags, captions and move numbers
};

enum class ClockSound { Button, Flag, PeriodBegan, TimeLow };

// The clock's window, as the game needs it.
class ClockView {
  public:
    virtual void ClockChanged(const ClockChange& change) = 0;
    virtual void PlaySound(ClockSound sound) = 0;  // returns when it has ended
    virtual void Inform(ClockEvent event) = 0;     // one that the players are to be told of
    virtual bool AskReset() = 0;                   // true: the players want the reset
    virtual void ReadSettings() = 0;               // the user's own, into those that the game was made with
    virtual void GameChanged() = 0;                // it is to be kept, soon
    virtual void LosingGame() = 0;                 // it is about to be thrown away

  protected:
    ~ClockView() = default;
};

// A game as one thing: the clock with its commands and, while the Scorlet is open, the record. What concerns both is
// said here: a press ends a move and gives the other side its line, a fallen flag writes the result, a result pauses
// the clock, saving fills the lists up to the clock's counts, and a load or a reset replaces both.
class Game final : public ScorletGame {
  public:
    // Both must outlive the game.
    Game(Settings& settings, modClock::Timer& timer) : settings(settings), clock(timer) {}
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    // Begins with an idle clock, shown in a window. It must come before everything else; the window may be gone after
    // Unload.
    void Begin(ClockView& view);

    const ClockCommands& Clock() const { return clock; }
    // Null while the Scorlet is closed.
    const Recorder* Record() const { return record ? &*record : nullptr; }
    const Settings& Options() const { return settings; }
    // Of the lines of the record that presses have ended, since it was opened or the game began or was loaded. A press
    // that the record is further from than one move ends none of its lines.
    const ShownTimes& TimesAtPresses() const { return timesAtPresses; }

    // The name under which the game was loaded or last saved; empty for none.
    const std::wstring& Name() const { return name; }

    // Whether the game was begun before it was loaded or brought back: the day is not known then.
    bool BegunEarlier() const { return begunEarlier; }

    void Press(Side button);
    // By the side's own key. Unlike a button, White's key does not begin a game: a second tap would end his first move.
    void PressOwnKey(Side side);
    void PressEnabledButton() override;  // White's where a flag has fallen: the players are told then
    void Start();
    void PauseOrResume() { Show(clock.PauseOrResume()); }
    void PauseOrResume(Side button) { Show(clock.PauseOrResume(button)); }
    void PressKeyP() override { Show(clock.PressKeyP()); }
    void Tick();

    // What an arbiter sets while the clock is paused; the moves that are written stay. Nothing happens for a correction
    // with a fault.
    void Correct(const Correction& correction);

    void AskedReset();           // asks first, as a click on a flag does
    void AskedResetIfStarted();  // asks first when there is a game to lose
    void Reset();
    // Whether a game is under way or moves are written.
    bool SomethingToLose() const;
    // Whether somebody has pressed or written, so that there is a game to be kept, a finished one too.
    bool WorthKeeping() const;
    // True: it ran, and is paused now.
    bool PauseIfRunning();
    void TurnBoard();
    // The settings have been changed while the clock was idle.
    void TakeSettings();

    Recorder& OpenRecord(RecordView& view) override;
    void CloseRecord() override;
    std::string PlayerName(Side side) const override { return settings.PlayerNames[side]; }
    std::wstring FullName(Side side) const override { return settings.FullNames[side]; }
    bool BoardTurned() const override { return settings.BoardTurned; }
    void RecordEdited() override;
    void TakeBack() override;
    void Redo() override;
    bool CanTakeBack() const override { return history.CanTakeBack(); }
    bool CanRedo() const override { return history.CanRedo(); }
    std::optional<EarlierPosition> PositionAfter(const ChosenLine& line) const override {
        return history.PositionAfter(line);
    }
    std::array<std::optional<int32_t>, 2> TimesAfter(const ChosenLine& line) const override;
    WhoseMove NextMove() const override;
    // A record that is behind a clock under way goes on at the clock's move; otherwise nothing happens.
    void GoOnAtClocksMove();
    bool CanGoOn() const { return record && NextMove().Behind > 0; }
    void Declare(Declaration declaration) override;
    // Fills the lists up to the clock's counts.
    void TopUpMoveLists();
    // The game has been saved under that name: its lists are filled up as those in the files are.
    void SavedAs(const std::wstring& newName);

    // The files of the game as it is, with its lists filled up to the clock's counts; the record itself stays as it is.
    // `shown` are the options with the names that the files get.
    GameFiles Encode(const Settings& shown, const CalendarDate& today) const;
    // Takes the place of what was, the settings included. Where it has a record the Scorlet must be open.
    void TakeLoadedGame(const SavedGame& saved, const std::wstring& itsName = {});

    // Stops the timer before the program ends.
    void Unload() { Show(clock.Unload()); }

  private:
    void Show(ClockEvent event, ClockChange change = {.Phase = true});
    void ShowWhole();
    void Changed();
    void RememberTime(Side side);
    void LeaveGame();
    void ReplaceRecord(const Recorder& other);
    void KeepResultIfFallen(Recorder& shown) const;
    void TakeStep();

    Settings& settings;
    ClockCommands clock;
    ClockView* clockView = nullptr;
    std::optional<Recorder> record;
    RecordHistory history;  // of the record; empty without one
    RecordView* recordView = nullptr;
    int ticksSinceChange = 0;
    ShownTimes timesAtPresses;
    std::wstring name;
    bool begunEarlier = false;
};
