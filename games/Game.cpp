#include "games/Game.h"

namespace {

constexpr int TicksToKeep = 5;  // while nothing but the time changes

}  // namespace

void Game::Begin(ClockView& view) {
    clockView = &view;
    Reset();
}

void Game::Press(Side button) {
    const Phase before = clock.CurrentPhase();
    if (clock.ClockButtonEnabled(button)) clockView->PlaySound(ClockSound::Button);
    // Playing takes time, and a tick that the system let through meanwhile may have ended the game.
    if (clock.CurrentPhase() != before) return;
    const ClockEvent event = clock.Press(button);
    const Side running = clock.Clock().TurnSide();
    if (event == ClockEvent::Changed && before == Phase::Running) RememberTime(Other(running));
    ClockChange change{.Phase = true};
    change.Faces[Other(running)] = true;
    Show(event, change);
    if (event != ClockEvent::Changed || !record) return;
    ChosenLines chosen;
    if (const auto line = record->AddLineForPress(before == Phase::Idle, running)) {
        chosen[line->List] = line->Index;
        ClockAdditions added;
        added.Lines[line->List] = line->Index + 1;
        history.ClockAdded(*record, added);
    }
    // Without a new line too: the last one comes into sight.
    recordView->RecordChanged(chosen);
}

void Game::PressOwnKey(Side side) {
    if (clock.CurrentPhase() != Phase::Idle || side == Black) Press(side);
}

void Game::PressEnabledButton() {
    for (Side side : BothSides) {
        if (clock.ClockButtonEnabled(side)) return Press(side);
    }
    if (clock.CurrentPhase() == Phase::Fallen) Press(White);
}

void Game::Start() {
    if (clock.CurrentPhase() == Phase::Running && !clockView->AskReset()) return;
    if (clock.CurrentPhase() != Phase::Idle) Reset();
    PressEnabledButton();
}

void Game::Tick() {
    ClockChange change;
    change.Faces[clock.Clock().TurnSide()] = true;
    const ClockEvent event = clock.Tick();
    change.Phase = event != ClockEvent::Ticked;
    Show(event, change);
    if (event == ClockEvent::Ticked && ++ticksSinceChange == TicksToKeep) Changed();
}

void Game::Correct(const Correction& correction) {
    Show(clock.Correct(correction), {.Faces = {true, true}, .Phase = true});
}

void Game::AskedReset() {
    if (clockView->AskReset()) Reset();
}

void Game::AskedResetIfStarted() {
    if (!SomethingToLose() || clockView->AskReset()) Reset();
}

bool Game::SomethingToLose() const { return clock.Clock().State().GameStarted || (record && record->MovesWritten()); }

bool Game::WorthKeeping() const { return !clock.Clock().Untouched() || (record && record->MovesWritten()); }

bool Game::PauseIfRunning() {
    const ClockEvent event = clock.PauseIfRunning();
    Show(event);
    return event == ClockEvent::Changed;
}

void Game::Reset() {
    LeaveGame();
    ReplaceRecord({});
    begunEarlier = false;
    clockView->ReadSettings();
    TakeSettings();
}

void Game::TakeSettings() {
    name.clear();
    clock.WarnAt(settings.LowTime);
    clock.Initialise(settings.Control);
    timesAtPresses = {};
    ShowWhole();
    if (record) recordView->RecordChanged({});
    Changed();
}

void Game::TurnBoard() {
    settings.BoardTurned = !settings.BoardTurned;
    if (record) recordView->RecordChanged({});
}

Recorder& Game::OpenRecord(RecordView& view) {
    recordView = &view;
    record.emplace();
    timesAtPresses = {};
    KeepResultIfFallen(*record);
    history.Begin(*record);
    return *record;
}

void Game::CloseRecord() {
    if (record->MovesWritten()) LeaveGame();
    record.reset();
    history.Begin({});
    recordView = nullptr;
    Changed();
}

void Game::Declare(Declaration declaration) {
    const bool over = record->HasResult();
    const ChosenLines added = record->Declare(declaration, clock.Clock().State().MoveCount);
    TakeStep();
    recordView->RecordChanged(added);
    if (!over && record->HasResult()) Show(clock.PauseIfRunning());
    Changed();
}

void Game::SavedAs(const std::wstring& newName) {
    name = newName;
    TopUpMoveLists();
}

void Game::TopUpMoveLists() {
    if (!record) return;
    const ChosenLines added = record->TopUpMoveLists(clock.Clock().State().MoveCount);
    TakeStep();
    recordView->RecordChanged(added);
    Changed();
}

void Game::RecordEdited() {
    TakeStep();
    Changed();
}

// The players have changed the record, which the window does not show yet.
void Game::TakeStep() { history.Changed(*record, recordView->Chosen()); }

void Game::TakeBack() {
    if (!CanTakeBack()) return;
    recordView->RecordStepped(history.TakeBack(*record, recordView->Chosen()));
    Changed();
}

void Game::Redo() {
    if (!CanRedo()) return;
    recordView->RecordStepped(history.Redo(*record, recordView->Chosen()));
    Changed();
}

GameFiles Game::Encode(const Settings& shown, const CalendarDate& today) const {
    const modClock::ClockState& state = clock.Clock().State();
    std::optional<Recorder> filled = record;
    if (filled) filled->TopUpMoveLists(state.MoveCount);
    return EncodeGame(shown, state, filled ? &*filled : nullptr, today);
}

void Game::TakeLoadedGame(const SavedGame& saved, const std::wstring& itsName) {
    LeaveGame();
    name = itsName;
    // What is no part of a game stays.
    const Settings own = settings;
    settings = saved.Options;
    settings.BoardTurned = own.BoardTurned;
    settings.LowTime = own.LowTime;
    clock.TakeLoadedGame(saved.Clock);
    timesAtPresses = {};
    ShowWhole();
    Recorder loaded = saved.Scorlet;
    KeepResultIfFallen(loaded);
    ReplaceRecord(loaded);
    begunEarlier = WorthKeeping();
    Changed();
}

void Game::Show(ClockEvent event, ClockChange change) {
    switch (event) {
        case ClockEvent::Ignored: return;
        case ClockEvent::Ticked:
        case ClockEvent::MarkChanged: return clockView->ClockChanged(change);
        case ClockEvent::PeriodBegan:
        case ClockEvent::TimeLow:
            clockView->ClockChanged(change);
            Changed();
            return clockView->PlaySound(event == ClockEvent::TimeLow ? ClockSound::TimeLow : ClockSound::PeriodBegan);
        case ClockEvent::Changed: clockView->ClockChanged(change); return Changed();
        case ClockEvent::FlagFell:
            if (record) {
                const Side fallen = clock.Clock().State().ActiveSide;
                record->FlagFell(fallen);
                history.ClockAdded(*record, {.Fallen = fallen});
                recordView->RecordChanged({});
            }
            clockView->ClockChanged(change);
            Changed();
            return clockView->PlaySound(ClockSound::Flag);
        case ClockEvent::Overflow: clockView->ClockChanged(change); return clockView->Inform(event);
        default: return clockView->Inform(event);
    }
}

// The press has ended the line that the record has written last, or the one that its next move goes into.
void Game::RememberTime(Side side) {
    if (!record || record->HasResult()) return;
    const int64_t behind = NextMove().Behind;
    if (behind != 0 && behind != 1) return;
    const modClock::ClockState& state = clock.Clock().State();
    auto& times = timesAtPresses[side];
    times.resize(static_cast<size_t>(state.MoveCount[side]));
    if (!times.empty()) times.back() = state.PlayerTime[side];
}

std::array<std::optional<int32_t>, 2> Game::TimesAfter(const ChosenLine& line) const {
    std::array<std::optional<int32_t>, 2> shown;
    for (const Side side : BothSides) {
        // Before White's move, Black's last press was one move earlier.
        const size_t moves = line.Index + (side == Black && line.List == White ? 0 : 1);
        const auto& times = timesAtPresses[side];
        if (moves > 0 && moves <= times.size()) shown[side] = times[moves - 1];
    }
    return shown;
}

WhoseMove Game::NextMove() const {
    const Phase phase = clock.CurrentPhase();
    if (phase != Phase::Running && phase != Phase::Paused) return WhoseMoveOf(*record, std::nullopt);
    const modClock::ClockState& state = clock.Clock().State();
    const Side mover = state.SideByCounts();
    return WhoseMoveOf(*record, ClockTurn{mover, state.MoveCount[mover]});
}

void Game::GoOnAtClocksMove() {
    if (!CanGoOn()) return;
    const modClock::ClockState& state = clock.Clock().State();
    const ChosenLines added = record->GoOn(state.MoveCount, state.SideByCounts());
    TakeStep();
    recordView->RecordChanged(added);
    Changed();
}

void Game::Changed() {
    if (recordView) recordView->ShowWhoseMove();
    ticksSinceChange = 0;
    clockView->GameChanged();
}

void Game::LeaveGame() {
    if (WorthKeeping()) clockView->LosingGame();
}

void Game::ShowWhole() { clockView->ClockChanged({.Faces = {true, true}, .Phase = true}); }

void Game::ReplaceRecord(const Recorder& other) {
    if (!record) return;
    *record = other;
    history.Begin(other);
    recordView->RecordReplaced();
}

void Game::KeepResultIfFallen(Recorder& shown) const {
    if (clock.CurrentPhase() == Phase::Fallen) shown.KeepResult();
}
