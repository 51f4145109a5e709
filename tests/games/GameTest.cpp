#include "games/Game.h"

#include "tests/base/Rows.h"
#include "tests/recorder/RecordText.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <map>
#include <sstream>
#include <utility>

namespace {

// The surroundings of a game without a window or a timer: they say what they were asked to do.
struct Around final : modClock::Timer, ClockView, RecordView {
    Settings Own;            // what a reading of the settings file gives
    Settings Options;        // of the game
    int32_t Handle = 32767;  // of the next timer
    int Timers = 0;
    bool KillWorks = true, Yes = false;
    std::function<void()> DuringSound = [] {};
    std::string Said, Kept;

    void Say(const std::string& what) { Said += (Said.empty() ? "" : ", ") + what; }
    int32_t Set() override {
        Timers += Handle != 0;
        return Handle;
    }
    int32_t Kill(int32_t) override {
        --Timers;
        return KillWorks;
    }
    void ClockChanged(const ClockChange& change) override {
        std::string what = "show";
        for (Side side : BothSides) what += !change.Faces[side] ? "" : side == White ? " W" : " B";
        Say(what + (change.Phase ? " all" : ""));
    }
    void PlaySound(ClockSound sound) override {
        Say(sound == ClockSound::Button ? "click" : "gong");
        if (const auto then = std::exchange(DuringSound, nullptr)) then();
    }
    void Inform(ClockEvent event) override {
        const std::map<ClockEvent, const char*> texts{
            {ClockEvent::TimerNotCreated, "not created"}, {ClockEvent::TimerNotResumed, "not resumed"},
            {ClockEvent::TimerNotKilled, "not killed"},   {ClockEvent::Overflow, "overflow"},
            {ClockEvent::GameNotBegun, "how to begin"},   {ClockEvent::GameOver, "how to restart"},
        };
        Say(texts.at(event));
    }
    bool AskReset() override {
        Say("ask");
        return Yes;
    }
    void GameChanged() override { Kept += "keep"; }
    void LosingGame() override { Kept += "aside "; }
    void ReadSettings() override {
        Say("read");
        Options = Own;
    }
    void RecordChanged(const ChosenLines& chosen) override {
        std::string what = "lists";
        for (Side side : BothSides)
            if (chosen[side]) what += (side == White ? " W" : " B") + std::to_string(*chosen[side]);
        Say(what);
    }
    void RecordReplaced() override { Say("new record"); }
};

SavedGame Saved(int32_t white, int32_t black, bool started) {
    SavedGame saved;
    saved.Options.Control.PeriodLimit.fill(600);
    saved.Clock.Control = saved.Options.Control;
    saved.Clock.MoveCount = {white, black};
    saved.Clock.PlayerTime = {white * 15, black * 15};
    saved.Clock.GameStarted = saved.Clock.TurnFlag = started;
    saved.Scorlet.Play(SquareNamed("d2"), SquareNamed("d4"));
    return saved;
}

// Plays the words of a script with 60 seconds for each side. The answer: what the last word made the windows do; for
// each side C where the clock button can be pressed, P where the pause button can, R where it reads "Resume", T for the
// turn marks, F for the fallen flag, and the blinking mark as m (to move) or p (paused); S where Setup can be opened;
// White's face; the lists, where there are any.
std::string Played(const std::string& script) {
    Around around;
    around.Own.SetClockType(0);
    around.Own.Control.PeriodLimit.fill(60);
    Game game(around.Options, around);
    game.Begin(around);
    Recorder* record = nullptr;
    const std::map<std::string, std::function<void()>> words{
        {"W", [&] { game.Press(White); }},
        {"B", [&] { game.Press(Black); }},
        {"space", [&] { game.PressEnabledButton(); }},
        {"start", [&] { game.Start(); }},
        {"pause", [&] { game.PauseOrResume(); }},
        {"pauseW", [&] { game.PauseOrResume(White); }},
        {"pauseB", [&] { game.PauseOrResume(Black); }},
        {"p", [&] { game.PressKeyP(); }},
        {"flag", [&] { game.AskedReset(); }},
        {"reset", [&] { game.AskedResetIfStarted(); }},
        {"setup", [&] { around.Options.Control.PeriodLimit[White] += 60, game.TakeSettings(); }},
        {"unload", [&] { game.Unload(); }},
        {"open", [&] { record = &game.OpenRecord(around); }},
        {"close", [&] { game.CloseRecord(); }},
        {"check", [&] { game.Declare(Declaration::Check); }},
        {"mate", [&] { game.Declare(Declaration::Mate); }},
        {"resign", [&] { game.Declare(Declaration::Resign); }},
        {"draw", [&] { game.Declare(Declaration::Draw); }},
        {"top", [&] { game.TopUpMoveLists(); }},
        {"load", [&] { game.TakeLoadedGame(Saved(3, 2, true)); }},
        {"loadW", [&] { game.TakeLoadedGame(Saved(3, 2, false)); }},
        {"load1", [&] { game.TakeLoadedGame(Saved(1, 0, false)); }},
        {"loadB", [&] { game.TakeLoadedGame(Saved(3, 3, false)); }},
        {"load0", [&] { game.TakeLoadedGame(Saved(0, 0, false)); }},
        {"yes", [&] { around.Yes = true; }},
        {"no-timer", [&] { around.Handle = 0; }},
        {"timer-1", [&] { around.Handle = 1; }},
        {"timer", [&] { around.Handle = 32767; }},
        {"no-kill", [&] { around.KillWorks = false; }},
        {"slow-sound", [&] { around.DuringSound = [&] { game.Tick(); }; }},
        {"great-bonus", [&] { around.Own.Control.MoveBonus.fill(std::numeric_limits<int32_t>::max()), game.Reset(); }},
        {"up", [&] {
             around.Own.Control.CountTimeDown = false;
             around.Own.Control.PeriodLimit.fill(std::numeric_limits<int32_t>::max());
             game.Reset();
         }}};
    std::istringstream stream(script);
    for (std::string word; stream >> word;) {
        around.Said.clear();
        if (word.ends_with("s") && isdigit(word[0]))
            for (int left = std::stoi(word); left > 0; --left) {
                around.Said.clear();
                game.Tick();
            }
        else if (word.size() == 4 && isdigit(word[1]) && isdigit(word[3]))
            record->Play(SquareNamed(word.substr(0, 2)), SquareNamed(word.substr(2)));
        else
            words.at(word)();
    }
    const ClockCommands& clock = game.Clock();
    std::string shown = (around.Said.empty() ? "nothing" : around.Said) + ";";
    for (Side side : BothSides) {
        const std::pair<bool, const char*> marks[] = {
            {clock.ClockButtonEnabled(side), "C"},
            {clock.PauseButtonEnabled(side), clock.ReadsResume(side) ? "R" : "P"},
            {clock.TurnMarksVisible(side), "T"},
            {clock.FlagFallen(side), "F"},
            {clock.BlinkingSide() == side, clock.BlinkText() == BlinkMark::Paused ? "p" : "m"}};
        std::string letters;
        for (const auto& [set, letter] : marks) letters += set ? letter : "";
        shown += " " + (letters.empty() ? "-" : letters);
    }
    shown += (clock.SetupEnabled() ? " S " : " ") + clock.Clock().Face(White);
    if (around.Timers != (clock.Clock().State().TimerRunning ? 1 : 0)) shown += " and a timer is left";
    return game.Record() ? shown + "; " + ListText(game.Record()->Lists()) : shown;
}

}  // namespace

TEST(GameTest, WhatEachCommandDoesToTheClockAndTheRecord) {
    ExpectRows(Played, R"(
        Presses.
        W => click, show B all; CPTm - 00:01:00
        B => click, show B all; CPTm - 00:01:00
        W W => click, show W all; - CPTm 00:01:00
        W B => nothing; CPTm - 00:01:00
        W space space => click, show B all; CPTm - 00:01:00
        W 1s => show W; CPTm - 00:00:59
        no-timer W => click, not created; CP CP S 00:01:00
        W 59s slow-sound W => click, show W all, gong; F - 00:00:00
        A press gives the side that then runs its line, once the other has written its move.
        open W => click, show B all, lists W0; CPTm - 00:01:00; 1. _ /
        open W W => click, show W all; - CPTm 00:01:00; 1. _ /
        open W e2e4 W => click, show W all, lists B0; - CPTm 00:01:00; 1. e4 / 1. _
        open W e2e4 W e7e5 B => click, show B all, lists W1; CPTm - 00:01:00; 1. e4|2. _ / e5
        W open W => click, show W all; - CPTm 00:01:00;  /
        open W e2e4 W close B => click, show B all; CPTm - 00:01:00
        Pause and resume.
        W W p => show all; - Rp 00:01:00
        W W p p => nothing; - Rp 00:01:00
        W W p B => nothing; - Rp 00:01:00
        W W pause no-timer pause => not resumed; - Rp 00:01:00
        W W pause pauseB => show all; - CPTm 00:01:00
        W pauseB => nothing; CPTm - 00:01:00
        W pauseW => show all; Rp - 00:01:00
        W pause timer-1 pause p => nothing; CPTm - 00:01:00
        p => nothing; CP CP S 00:01:00
        pauseB => how to begin; CP CP S 00:01:00
        A fallen flag writes the result.
        W 60s => show W all, gong; F - 00:00:00
        W W 60s => show B all, gong; - F 00:01:00
        open W 60s => lists, show W all, gong; F - 00:00:00; 1. _|[0-1] /
        open W e2e4 W 60s => lists, show B all, gong; - F 00:01:00; 1. e4 / 1. _|[1-0]
        open W 60s e2e4 e7e5 => nothing; F - 00:00:00; 1. e4|[0-1] / e5
        W 60s open draw e2e4 e7e5 => nothing; F - 00:00:00; 1. e4|[1/2-1/2] / e5
        open load1 draw d7d5 => nothing; F - 00:00:15; 1. d4 / d5|[1/2-1/2]
        W 60s W => how to restart; F - 00:00:00
        W 60s space => how to restart; F - 00:00:00
        W 60s pauseB => how to restart; F - 00:00:00
        W 60s p => nothing; F - 00:00:00
        Declarations: a result pauses the clock, and fills the lists where it ends the game at once.
        open W e2e4 check => lists; CPTm - 00:01:00; 1. e4+ /
        open W e2e4 mate => lists, show all; Rp - 00:01:00; 1. e4#|[1-0] /
        open W W resign => lists B0, show all; - Rp 00:01:00; 1. _|[0-1] / 1. _
        open W W B draw => lists W1 B0, show all; Rp - 00:01:00; 1. _|2. _|[1/2-1/2] / 1. _
        open draw => lists; CP CP S 00:01:00; [1/2-1/2] /
        open W draw pause resign => lists; CPTm - 00:01:00; 1. _|[1/2-1/2] /
        Saving fills the lists up to the counts.
        open W W B top => lists W1 B0; CPTm - 00:01:00; 1. _|2. _ / 1. _
        W W top => nothing; - CPTm 00:01:00
        Start, reset and setup.
        start => click, show B all; CPTm - 00:01:00
        W start => ask; CPTm - 00:01:00
        W yes start => ask, read, show W B all, click, show B all; CPTm - 00:01:00
        W pause no-timer pause timer start => read, show W B all, click, show B all; CPTm - 00:01:00
        W 60s start => read, show W B all, click, show B all; CPTm - 00:01:00
        reset => read, show W B all; CP CP S 00:01:00
        flag => ask; CP CP S 00:01:00
        open reset => new record, read, show W B all, lists; CP CP S 00:01:00;  /
        open e2e4 reset => ask; CP CP S 00:01:00; 1. e4 /
        open e2e4 yes flag => ask, new record, read, show W B all, lists; CP CP S 00:01:00;  /
        W 1s reset => ask; CPTm - 00:00:59
        W 1s yes reset => ask, read, show W B all; CP CP S 00:01:00
        W 60s reset => read, show W B all; CP CP S 00:01:00
        setup => show W B all; CP CP S 00:02:00
        open e2e4 setup => show W B all, lists; CP CP S 00:02:00; 1. e4 /
        setup reset => read, show W B all; CP CP S 00:01:00
        A loaded game takes the place of clock, record and settings.
        open W load => show W B all, new record; Rp - 00:00:45; 1. d4 /
        open load pause => show all; CPTm - 00:00:45; 1. d4 /
        open loadW => show W B all, new record; F - 00:00:45; 1. d4 /
        open load1 => show W B all, new record; F - 00:00:15; 1. d4 /
        open load0 setup => show W B all, lists; CP CP S 00:11:00; 1. d4 /
        open loadB => show W B all, new record; - F 00:00:45; 1. d4 /
        open W load0 => show W B all, new record; CP CP S 00:10:00; 1. d4 /
        open load0 start => click, show B all; CPTm - 00:10:00; 1. d4 /
        open load yes reset => ask, new record, read, show W B all, lists; CP CP S 00:01:00;  /
        What goes wrong.
        W unload => show all; Rm - 00:01:00
        W no-kill unload => not killed; Rm - 00:01:00
        up great-bonus W 1s => show W all, overflow; Rp - 00:00:00
        great-bonus W W => click, show B all, overflow; Rp - 00:01:00
    )");
}

TEST(GameTest, FilesAreFilledUpAndTheRecordIsNot) {
    Around around;
    Game game(around.Options, around);
    game.Begin(around);
    game.Press(White);
    EXPECT_FALSE(game.Encode({"Ann", "Bob"}, {2026, 11, 21})[MovesFile]) << "there is no record";
    Recorder& record = game.OpenRecord(around);
    game.Press(White);
    const GameFiles files = game.Encode({"Ann", "Bob"}, {2026, 11, 21});
    EXPECT_NE(files[MovesFile]->find("[White \"Ann\"]"), std::string::npos);
    EXPECT_NE(files[MovesFile]->find("1. ?\?-?\? 1... ?\?-?\? *"), std::string::npos);
    EXPECT_EQ(ListText(record.Lists()), " / ");
    EXPECT_EQ(around.Options.PlayerNames[White], "");
}
