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
    std::function<void()> DuringSound;
    std::string Said, Kept;
    ChosenLines Shown;  // as chosen in the lists

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
        Say(std::array{"click", "gong", "chime", "warn"}.at(static_cast<size_t>(sound)));
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
    void GameChanged() override { Kept += "keep "; }
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
        for (Side side : BothSides)
            if (chosen[side]) Shown[side] = chosen[side];
    }
    void RecordReplaced() override { Say("new record"); }
    void RecordStepped(const ChosenLines& chosen) override { Shown = {}, RecordChanged(chosen); }
    ChosenLines Chosen() const override { return Shown; }
    void ShowWhoseMove() override {}
};

// "load3,2" and, of a game that is on, "load3,2on".
SavedGame Saved(const std::string& word) {
    SavedGame saved;
    saved.Options.Control.PeriodLimit.fill(600);
    saved.Clock.Control = saved.Options.Control;
    saved.Clock.MoveCount = {word[4] - '0', word[6] - '0'};
    for (Side side : BothSides) saved.Clock.PlayerTime[side] = saved.Clock.MoveCount[side] * 15;
    saved.Clock.GameStarted = saved.Clock.TurnFlag = word.ends_with("on");
    Do(saved.Scorlet, "d2d4");
    return saved;
}

// A game with 60 seconds for each side, and the words that can be said to it.
struct Play {
    Around Beside;
    Game Played{Beside.Options, Beside};
    Recorder* Record = nullptr;

    Play() {
        Beside.Own.SetClockType(0);
        Beside.Own.Control.PeriodLimit.fill(60);
        Played.Begin(Beside);
    }

    void Say(const std::string& word) {
        const std::map<std::string, void (Game::*)()> commands{
            {"space", &Game::PressEnabledButton},  {"start", &Game::Start},        {"p", &Game::PressKeyP},
            {"reset", &Game::AskedResetIfStarted}, {"flag", &Game::AskedReset},    {"unload", &Game::Unload},
            {"close", &Game::CloseRecord},         {"top", &Game::TopUpMoveLists}, {"edited", &Game::RecordEdited}};
        const std::map<std::string, Declaration> declarations{{"check", Declaration::Check},
                                                              {"mate", Declaration::Mate},
                                                              {"resign", Declaration::Resign},
                                                              {"draw", Declaration::Draw}};
        TimeControl& control = Beside.Own.Control;
        if (const auto command = commands.find(word); command != commands.end()) return (Played.*command->second)();
        if (const auto said = declarations.find(word); said != declarations.end()) return Played.Declare(said->second);
        if (word == "W" || word == "B") return Played.Press(word == "W" ? White : Black);
        if (word == "pause") return Played.PauseOrResume();
        if (word.starts_with("pause")) return Played.PauseOrResume(word == "pauseW" ? White : Black);
        if (word.starts_with("key")) return Played.PressOwnKey(word == "keyW" ? White : Black);
        // "set30,40@2,1": times and move numbers.
        if (int time[2], moves[2]; std::sscanf(word.c_str(), "set%d,%d@%d,%d", time, time + 1, moves, moves + 1) == 4)
            return Played.Correct({{time[0], time[1]}, {moves[0], moves[1]}});
        if (word.starts_with("load")) return Played.TakeLoadedGame(Saved(word));
        if (word.starts_with("timer=")) Beside.Handle = std::stoi(word.substr(6));
        if (word == "back") Played.TakeBack();
        if (word == "redo") Played.Redo();
        if (word == "go") Played.GoOnAtClocksMove();
        if (word == "yes") Beside.Yes = true;
        if (word == "no-kill") Beside.KillWorks = false;
        if (word == "slow-sound") Beside.DuringSound = [&] { Played.Tick(); };
        if (word == "great-bonus") control.MoveBonus.fill(std::numeric_limits<int32_t>::max()), Played.Reset();
        if (word == "up") control.CountTimeDown = false;
        if (word == "up") control.PeriodLimit.fill(std::numeric_limits<int32_t>::max()), Played.Reset();
        if (word == "bonus") control.MoveBonus.fill(20), Played.Reset();
        if (word.starts_with("low=")) Beside.Own.LowTime = std::stoi(word.substr(4)), Played.Reset();
        if (word == "second") control.SecondPeriodEnabled = true, control.SecondPeriodTime.fill(30), Played.Reset();
        if (word == "turn") Played.TurnBoard();
        if (word == "up60") control.CountTimeDown = false, Played.Reset();
        if (word == "setup") Beside.Options.Control.PeriodLimit[White] += 60, Played.TakeSettings();
        if (word == "open") Record = &Played.OpenRecord(Beside);
        if (word.size() == 4 && isdigit(word[1]) && isdigit(word[3])) Do(*Record, word), Played.RecordEdited();
        for (int left = isdigit(word[0]) ? std::stoi(word) : 0; left > 0; --left) {
            Beside.Said.clear();
            Played.Tick();
        }
    }
    void SayAll(const std::string& script) {
        std::istringstream words(script);
        for (std::string word; words >> word; Say(word)) Beside.Said = Beside.Kept = "";
    }
};

// What the last word of a script made the windows do; for each side C where the clock button can be pressed, P where
// the pause button can, R where it reads "Resume", T for the turn marks, F for the fallen flag, 2 for a second period
// that begins, L for low time, and the blinking mark as m (to move) or p (paused); S where Setup can be opened; White's
// face; whether the board is turned; the lists, where there are any.
std::string StateAfter(const std::string& script) {
    Play play;
    play.SayAll(script);
    const ClockCommands& clock = play.Played.Clock();
    std::string shown = (play.Beside.Said.empty() ? "nothing" : play.Beside.Said) + ";";
    for (Side side : BothSides) {
        const std::pair<bool, const char*> marks[] = {
            {clock.ClockButtonEnabled(side), "C"},
            {clock.PauseButtonEnabled(side), clock.ReadsResume(side) ? "R" : "P"},
            {clock.TurnMarksVisible(side), "T"},
            {clock.FlagFallen(side), "F"},
            {clock.MarkOf(side) == FaceMark::PeriodBegan, "2"},
            {clock.MarkOf(side) == FaceMark::TimeLow, "L"},
            {clock.BlinkingSide() == side, clock.BlinkText() == BlinkMark::Paused ? "p" : "m"}};
        std::string letters;
        for (const auto& [set, letter] : marks) letters += set ? letter : "";
        shown += " " + (letters.empty() ? "-" : letters);
    }
    shown += (clock.SetupEnabled() ? " S " : " ") + clock.Clock().Face(White);
    if (play.Beside.Options.BoardTurned) shown += " turned";
    if (play.Beside.Timers != (clock.Clock().State().TimerRunning ? 1 : 0)) shown += " and a timer is left";
    return play.Played.Record() ? shown + "; " + ListText(play.Played.Record()->Lists()) : shown;
}

// Whether the last word has the game kept, or first put aside as the last one; "worth" where there is a game to keep.
std::string Kept(const std::string& script) {
    Play play;
    play.SayAll(script);
    return play.Beside.Kept + (play.Played.WorthKeeping() ? "worth" : "");
}

// The moves as they are exported, after "earlier" where the game was begun before it was loaded.
std::string Exported(const std::string& script) {
    Play play;
    play.SayAll(script);
    const Recorder& record = *play.Played.Record();
    std::string moves = play.Played.BegunEarlier() ? "earlier: " : "";
    const std::string text =
        ExportGame({}, ReadGame(record.Lists(), record.Position()), "*", play.Played.TimesAtPresses());
    for (const std::string& word : Words(text.substr(text.find("\n\n")))) moves += word + " ";
    return moves;
}

// The times that the faces showed after a line, which is the last word.
std::string TimesAfter(const std::string& script) {
    Play play;
    const size_t line = script.rfind(' ') + 1;
    play.SayAll(script.substr(0, line));
    std::string text;
    for (const auto& time :
         play.Played.TimesAfter({script[line] == 'W' ? White : Black, std::stoul(script.substr(line + 1))}))
        text += time ? std::to_string(*time) + " " : "- ";
    return text;
}

}  // namespace

TEST(GameTest, WhatEachCommandDoesToTheClockAndTheRecord) {
    ExpectRows(StateAfter, R"(
        Presses.
        W => click, show B all; CPTm - 00:01:00 | B => click, show B all; CPTm - 00:01:00
        W W => click, show W all; - CPTm 00:01:00 | W B => nothing; CPTm - 00:01:00
        W space space => click, show B all; CPTm - 00:01:00 | W 1s => show W; CPTm - 00:00:59
        timer=0 W => click, not created; CP CP S 00:01:00
        W 59s slow-sound W => click, show W all, gong; F - 00:00:00
        A press gives the side that then runs its line, once the other has written its move.
        open W => click, show B all, lists W0; CPTm - 00:01:00; 1. _ /
        open W W => click, show W all, lists; - CPTm 00:01:00; 1. _ /
        open W e2e4 W => click, show W all, lists B0; - CPTm 00:01:00; 1. e4 / 1. _
        open W e2e4 W e7e5 B => click, show B all, lists W1; CPTm - 00:01:00; 1. e4|2. _ / e5
        W open W => click, show W all, lists; - CPTm 00:01:00;  /
        open W e2e4 W close B => click, show B all; CPTm - 00:01:00
        A side's own key, which does nothing a second time.
        keyW => nothing; CP CP S 00:01:00 | keyB => click, show B all; CPTm - 00:01:00 | W keyW => click, show W all; - CPTm 00:01:00
        W keyW keyW => nothing; - CPTm 00:01:00 | W keyW keyB => click, show B all; CPTm - 00:01:00
        Pause and resume.
        W W p => show all; - Rp 00:01:00 | W W p p => nothing; - Rp 00:01:00 | W W p B => nothing; - Rp 00:01:00
        W W pause timer=0 pause => not resumed; - Rp 00:01:00 | W W pause pauseB => show all; - CPTm 00:01:00
        W pauseB => nothing; CPTm - 00:01:00 | W pauseW => show all; Rp - 00:01:00
        W pause timer=1 pause p => nothing; CPTm - 00:01:00 | timer=2 W p => show all; Rp - 00:01:00 | p => nothing; CP CP S 00:01:00
        pauseB => how to begin; CP CP S 00:01:00
        A fallen flag writes the result.
        W 60s => show W all, gong; F - 00:00:00 | W W 60s => show B all, gong; - F 00:01:00
        open W 60s => lists, show W all, gong; F - 00:00:00; 1. _|[0-1] /
        open W e2e4 W 60s => lists, show B all, gong; - F 00:01:00; 1. e4 / 1. _|[1-0]
        open W 60s e2e4 e7e5 => nothing; F - 00:00:00; 1. e4|[0-1] / e5
        W 60s open draw e2e4 e7e5 => nothing; F - 00:00:00; 1. e4|[1/2-1/2] / e5
        open load1,0 draw d7d5 => nothing; F - 00:00:15; 1. d4 / d5|[1/2-1/2] | W 60s W => how to restart; F - 00:00:00
        W 60s space => how to restart; F - 00:00:00 | W 60s pauseB => how to restart; F - 00:00:00
        W 60s p => nothing; F - 00:00:00
        A second period is marked for five seconds when it begins, and time that is low for as long as it is.
        second W 59s => show W; CPTm - 00:00:01 | second W 60s => show W all, chime; CPT2m - 00:00:30
        second W 64s => show W; CPT2m - 00:00:26 | second W 65s => show W all; CPTm - 00:00:25
        second W W 60s B 1s => show W; CPTm 2 00:00:59 | second W 60s W 1s yes reset => ask, read, show W B all; CP CP S 00:01:00
        low=10 second W 80s => show W all, warn; CPTLm - 00:00:10
        second W 90s => show W all, gong; F - 00:00:00 | second up60 W 31s W B 30s => show W all, chime; CPT2m - 00:01:01
        low=10 W 49s => show W; CPTm - 00:00:11 | low=10 W 50s => show W all, warn; CPTLm - 00:00:10
        low=10 W 51s => show W; CPTLm - 00:00:09 | low=10 W 50s pause => show all; RLp - 00:00:10
        low=10 W 60s => show W all, gong; F - 00:00:00 | low=10 up60 W 50s => show W all, warn; CPTLm - 00:00:50
        low=10 bonus W 52s W B => click, show B all; CPTm - 00:00:28 | low=10 bonus W 52s W B 18s => show W all; CPTLm - 00:00:10
        low=10 bonus up60 W 30s => show W all, warn; CPTLm - 00:00:30 | bonus up60 W 40s => show W; CPTm - 00:00:40
        low=40 second W 60s => show W all, chime; CPT2m - 00:00:30 | low=40 second W 65s => show W all; CPTLm - 00:00:25
        low=40 load3,2on => show W B all; Rp L 00:00:45 | low=50 load3,2on pause 1s => show W; CPTLm L 00:00:44
        low=10 W pause set5,40@1,0 => show W B all; RLp - 00:00:05 | low=10 W pause set5,40@1,0 pause 1s => show W; CPTLm - 00:00:04
        Declarations: a result pauses the clock, and fills the lists where it ends the game at once.
        open W e2e4 check => lists; CPTm - 00:01:00; 1. e4+ /
        open W e2e4 mate => lists, show all; Rp - 00:01:00; 1. e4#|[1-0] /
        open W W resign => lists B0, show all; - Rp 00:01:00; 1. _|[0-1] / 1. _
        open W W B draw => lists W1 B0, show all; Rp - 00:01:00; 1. _|2. _|[1/2-1/2] / 1. _
        open draw => lists; CP CP S 00:01:00; [1/2-1/2] /
        open W draw pause resign => lists; CPTm - 00:01:00; 1. _|[1/2-1/2] /
        Saving fills the lists up to the counts.
        open W W B top => lists W1 B0; CPTm - 00:01:00; 1. _|2. _ / 1. _ | W W top => nothing; - CPTm 00:01:00
        Take Back and Redo, from the opening, a load or a reset on. What the clock has added stays, and the clock as it is.
        open back redo => nothing; CP CP S 00:01:00;  / | back => nothing; CP CP S 00:01:00
        open W e2e4 W e7e5 back => lists W0 B0; - CPTm 00:01:00; 1. e4 / 1. _
        open W e2e4 W back => lists W0; - CPTm 00:01:00; 1. _ / 1. _
        open W e2e4 W back redo => lists W0 B0; - CPTm 00:01:00; 1. e4 / 1. _
        open W W draw back => lists W0; - Rp 00:01:00; 1. _ /
        open W e2e4 60s back => lists W0; F - 00:00:00; 1. _|[0-1] /
        open W W B top back => lists W0; CPTm - 00:01:00; 1. _ /
        W 60s open e2e4 draw back back d2d4 draw e7e5 => nothing; F - 00:00:00; 1. d4 / e5|[1/2-1/2]
        open e2e4 load3,2 back => nothing; F - 00:00:45; 1. d4 / | open e2e4 yes reset back => nothing; CP CP S 00:01:00;  /
        open e2e4 close back redo => nothing; CP CP S 00:01:00 | open load1,0 draw back draw d7d5 => nothing; F - 00:00:15; 1. d4 / d5|[1/2-1/2]
        Going on at the clock's move, where the record is behind.
        open W W B go e2e4 => nothing; CPTm - 00:01:00; 1. _|2. e4 / 1. _ | go => nothing; CP CP S 00:01:00
        open e2e4 go => nothing; CP CP S 00:01:00; 1. e4 /
        open W W pause go => lists B0; - Rp 00:01:00; 1. _ / 1. _ | open W W B go back => lists W0; CPTm - 00:01:00; 1. _ /
        open W go => nothing; CPTm - 00:01:00; 1. _ / | open W e2e4 go => nothing; CPTm - 00:01:00; 1. e4 /
        open W W go 60s back go => nothing; - F 00:01:00; 1. _|[1-0] /
        Start, reset and setup.
        start => click, show B all; CPTm - 00:01:00 | W start => ask; CPTm - 00:01:00
        W yes start => ask, read, show W B all, click, show B all; CPTm - 00:01:00
        W pause timer=0 pause timer=32767 start => read, show W B all, click, show B all; CPTm - 00:01:00
        W 60s start => read, show W B all, click, show B all; CPTm - 00:01:00
        reset => read, show W B all; CP CP S 00:01:00 | flag => ask; CP CP S 00:01:00
        open reset => new record, read, show W B all, lists; CP CP S 00:01:00;  /
        open e2e4 reset => ask; CP CP S 00:01:00; 1. e4 /
        open e2e4 yes flag => ask, new record, read, show W B all, lists; CP CP S 00:01:00;  /
        W 1s reset => ask; CPTm - 00:00:59 | W 1s yes reset => ask, read, show W B all; CP CP S 00:01:00
        W 60s reset => read, show W B all; CP CP S 00:01:00 | setup => show W B all; CP CP S 00:02:00
        open e2e4 setup => show W B all, lists; CP CP S 00:02:00; 1. e4 /
        setup reset => read, show W B all; CP CP S 00:01:00
        A loaded game takes the place of clock, record and settings, but not of the side from which the board is seen.
        turn load3,2on => show W B all; Rp - 00:00:45 turned | open turn => lists; CP CP S 00:01:00 turned;  /
        open W load3,2on => show W B all, new record; Rp - 00:00:45; 1. d4 /
        open load3,2on pause => show all; CPTm - 00:00:45; 1. d4 /
        open load3,2 => show W B all, new record; F - 00:00:45; 1. d4 /
        open load1,0 => show W B all, new record; F - 00:00:15; 1. d4 /
        open load0,0 setup => show W B all, lists; CP CP S 00:11:00; 1. d4 /
        open load3,3 => show W B all, new record; - F 00:00:45; 1. d4 /
        open W load0,0 => show W B all, new record; CP CP S 00:10:00; 1. d4 /
        open load0,0 start => click, show B all, lists; CPTm - 00:10:00; 1. d4 /
        open load3,2on yes reset => ask, new record, read, show W B all, lists; CP CP S 00:01:00;  /
        Corrections of a clock that is paused: the turn follows from the move numbers, and the lists stay.
        W W pause set30,40@2,1 => show W B all; Rp - 00:00:30 | W W pause set30,40@2,2 => show W B all; - Rp 00:00:30
        open W e2e4 W pause set1,40@1,1 => show W B all; - Rp 00:00:01; 1. e4 / 1. _
        W set30,40@2,1 => nothing; CPTm - 00:01:00 | set30,40@2,1 => nothing; CP CP S 00:01:00
        W pause set0,40@1,0 => nothing; Rp - 00:01:00 | W pause set30,0@1,0 => nothing; Rp - 00:01:00
        W pause set30,40@0,0 => nothing; Rp - 00:01:00 | W pause set30,40@2,-1 => nothing; Rp - 00:01:00
        W pause set30,40@3,1 => nothing; Rp - 00:01:00 | W pause set30,40@1,2 => nothing; Rp - 00:01:00
        W pause set30,40@2,1 pause 1s => show W; CPTm - 00:00:29
        What goes wrong.
        W unload => show all; Rm - 00:01:00 | W no-kill unload => not killed; Rm - 00:01:00
        up great-bonus W 1s => show W all, overflow; Rp - 00:00:00
        great-bonus W W => click, show B all, overflow; Rp - 00:01:00
    )");
}

TEST(GameTest, WhatIsKeptAndPutAside) {
    ExpectRows(Kept, R"(
        Soon after everything that changes the game, and every five seconds of a clock that runs.
        W => keep worth | W W => keep worth | W B => worth | W pause => keep worth | W pause pause => keep worth
        W 4s => worth | W 5s => keep worth | W 5s 4s => worth | W 3s pause pause 3s => worth | open W e2e4 mate => keep keep worth
        open e2e4 edited => keep worth | open e2e4 back => keep | open e2e4 back redo => keep worth | open W W top => keep worth | open check => keep | timer=0 W => | pause =>
        A game that would be lost is put aside, a finished one too; what nobody has begun is not.
        W yes reset => aside keep | W pause start => aside keep keep worth | W 60s reset => aside keep | reset => keep
        W load3,2on => aside keep worth | load3,2on => keep worth | open reset => keep | setup => keep
        open e2e4 close => aside keep | open W close => aside keep worth | open close => keep
    )");
}

TEST(GameTest, TheTimesAtThePressesAreExportedWithTheMovesThatTheyEnded) {
    ExpectRows(Exported, R"(
        A move may be entered before its press or after it, and taken back.
        open W e2e4 5s W e7e5 => 1. e4 {[%clk 0:00:55]} 1... e5 *
        open e2e4 W 5s W 2s e7e5 B => 1. e4 {[%clk 0:00:55]} 1... e5 {[%clk 0:00:58]} *
        open W 5s W e2e4 2s B e7e5 g1f3 => 1. e4 {[%clk 0:00:55]} 1... e5 {[%clk 0:00:58]} 2. Nf3 *
        open W e2e4 5s W back d2d4 => 1. d4 {[%clk 0:00:55]} *
        open W e2e4 5s W e7e5 B mate pause 3s W g1f3 => 1. e4 {[%clk 0:00:55]} 1... e5 {[%clk 0:01:00]} 2. Nf3 *
        While the pad is not where the clock is, no time belongs to its lines: after moves before the first press, or where it was opened late.
        open e2e4 e7e5 W g1f3 5s W b8c6 B => 1. e4 e5 2. Nf3 Nc6 * | W W B open e2e4 5s W e7e5 B => 1. e4 e5 *
        W 5s W 2s B open e2e4 e7e5 g1f3 4s W => 1. e4 e5 2. Nf3 {[%clk 0:00:51]} *
        open W e2e4 5s W close open e2e4 => 1. e4 * | open W e2e4 5s W load3,2on => earlier: 1. d4 *
        A game may have been begun before it was loaded.
        open e2e4 load0,0 => earlier: 1. d4 * | open load3,2on yes reset e2e4 => 1. e4 *
    )");
}

TEST(GameTest, TheTimesAfterALineAreThoseOfTheLastPressesBeforeIt) {
    ExpectRows(TimesAfter, R"(
        open W e2e4 5s W e7e5 2s B g1f3 3s W W0 => 55 - | open W e2e4 5s W e7e5 2s B g1f3 3s W B0 => 55 58
        open W e2e4 5s W e7e5 2s B g1f3 3s W W1 => 52 58 | open W e2e4 5s W e7e5 2s B g1f3 3s W B1 => 52 -
        open W e2e4 W0 => - -
    )");
}

TEST(GameTest, FilesAreFilledUpAndTheRecordIsNot) {
    Around around;
    Game game(around.Options, around);
    game.Begin(around);
    game.Press(White);
    Settings shown = game.Options();
    shown.PlayerNames = {"Ann", "Bob"};
    EXPECT_FALSE(game.Encode(shown, {2026, 11, 21})[MovesFile]) << "there is no record";
    Recorder& record = game.OpenRecord(around);
    game.Press(White);
    const GameFiles files = game.Encode(shown, {2026, 11, 21});
    EXPECT_NE(files[MovesFile]->find("[White \"Ann\"]"), std::string::npos);
    EXPECT_NE(files[MovesFile]->find("1. ?\?-?\? 1... ?\?-?\? *"), std::string::npos);
    EXPECT_EQ(ListText(record.Lists()), " / ");
}
