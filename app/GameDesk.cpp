#include "app/GameDesk.h"

#include "app/PrintedList.h"
#include "platform/Ansi.h"
#include "platform/Files.h"

namespace {

CalendarDate Today() {
    SYSTEMTIME now;
    GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDay};
}

}  // namespace

GameDesk::GameDesk(const Form& clock, ClockCommands& commands, ClockScorlet& scorlet, ClockPanels& panels,
                   Settings& settings, const modEnvironment::Environment& environment, HelpWindow& help,
                   const Texts& texts, const MessageBoxes& messageBoxes)
    : clock(clock),
      commands(commands),
      scorlet(scorlet),
      panels(panels),
      settings(settings),
      environment(environment),
      help(help),
      texts(texts),
      messageBoxes(messageBoxes),
      games(environment.SavedGamesFolder),
      printer(texts, messageBoxes) {}

void GameDesk::Open(FilesMode mode) {
    frmFiles dialog(texts, messageBoxes, environment.Appearance.BackgroundColour, games, *this, mode);
    dialog.Open(clock.Window());
    dialog.RunModal();
}

// The lists are filled up in a copy: should the files not be written, the Scorlet is as it was.
GameFiles GameDesk::FilesOfGame() {
    Settings shown = settings;
    for (Side side : BothSides) shown.PlayerNames[side] = ToAnsi(panels.NameOf(side));
    const modClock::ClockState& state = commands.Clock().State();
    if (!scorlet.Loaded()) return EncodeGame(shown, state, nullptr, Today());
    Recorder record = scorlet.Loaded()->Record();
    record.TopUpMoveLists(state.MoveCount);
    return EncodeGame(shown, state, &record, Today());
}

void GameDesk::GameSaved() {
    if (scorlet.Loaded()) scorlet.Loaded()->TopUpMoveLists();
}

void GameDesk::TakeGame(const std::wstring& name, SavedGame& game) {
    // First what can fail. No message may come between: the running game goes on behind one.
    const std::wstring problem = scorlet.Open();
    settings = game.Options;
    commands.TakeLoadedGame(game.Clock);
    panels.ShowSettings();
    scorlet.Loaded()->TakeRecord(game.Scorlet);
    const std::wstring title = texts(TextId::ProductTitle) + L"- [" + name + texts(TextId::LoadedGame) + L"]";
    SetWindowTextW(clock.Window(), title.c_str());
    if (!problem.empty()) messageBoxes.Inform(clock.Window(), problem);
}

void GameDesk::Print() {
    if (printer.IsBusy() || !scorlet.Loaded()) return;
    const std::wstring& editor = environment.NotepadPath;
    if (editor.empty() || !FileExists(editor)) return messageBoxes.Inform(clock.Window(), texts(TextId::EditorMissing));
    scorlet.Loaded()->TopUpMoveLists();
    std::array<std::vector<std::wstring>, 2> columns;
    for (Side side : BothSides) {
        const MoveList& list = scorlet.Loaded()->Record().List(side);
        for (size_t i = 0; i < list.Entries().size(); ++i) columns[side].push_back(FromAnsi(list.Line(i, side)));
    }
    const PrintedLabels labels{{texts(TextId::PrintedWhite), texts(TextId::PrintedBlack)}, texts(TextId::Date)};
    const std::wstring text = PrintedList(labels, {panels.NameOf(White), panels.NameOf(Black)}, Today(), columns);
    printer.Start(clock.Window(), editor, text);
    if (printer.IsBusy()) SetTimer(clock.Window(), PrintTimer, EditorPrinter::Interval, nullptr);
}

void GameDesk::ContinuePrinting() {
    printer.Continue(clock.Window());
    if (!printer.IsBusy()) KillTimer(clock.Window(), PrintTimer);
}
