#include "games/SummaryPane.h"

#include "base/TimeText.h"
#include "games/GameSummary.h"
#include "platform/Ansi.h"
#include "platform/Files.h"
#include "platform/Today.h"
#include "resources/resource.h"
#include "settings/ShownName.h"

#include <array>

void SummaryPane::ShowLines(bool visible) const {
    for (int line = 0; line < SummaryLines; ++line) form.SetVisible(lblSummary + line, visible);
}

void SummaryPane::ShowNote(const std::wstring& note) {
    spoken = note;
    form.SetText(lblSummaryNote, note);
    form.SetVisible(lblSummaryNote, true);
    form.SetVisible(picPosition, false);
    ShowLines(false);
}

void SummaryPane::ShowGame(const SavedGame& game, uint64_t changed, bool turned) {
    board.Show(game.Scorlet.Position(), turned);
    const auto time = [&](Side side) { return FromAnsi(HoursMinutesSecondsText(game.Clock.PlayerTime[side])); };
    const std::string outcome = OutcomeOf(game);
    const std::wstring result = outcome.empty()  ? texts(TextId::GameNotBegun)
                                : outcome == "*" ? texts(TextId::GameUnderWay)
                                                 : FromAnsi(outcome);
    const std::array<std::wstring, SummaryLines> lines{
        texts.Compose(TextId::SummaryWhite, ShownName(game.Options, texts, White)),
        texts.Compose(TextId::SummaryBlack, ShownName(game.Options, texts, Black)),
        texts.Compose(TextId::SummaryTimes, time(White), time(Black)),
        texts.Compose(TextId::SummaryMoves, std::to_wstring(MovesMade(game))),
        texts.Compose(TextId::SummaryResult, result),
        texts.Compose(TextId::SummaryDate, DateAndTime(LocalTimeOf(changed))),
    };
    const bool hasPosition = game.ScorletLoaded;
    spoken = hasPosition ? std::wstring() : texts(TextId::SummaryWithoutPosition);
    form.SetText(lblSummaryNote, spoken);
    for (size_t line = 0; line < lines.size(); ++line) {
        form.SetText(lblSummary + static_cast<int>(line), lines[line]);
        spoken += (spoken.empty() ? L"" : L", ") + lines[line];
    }
    form.SetVisible(lblSummaryNote, !hasPosition);
    form.SetVisible(picPosition, hasPosition);
    InvalidateRect(form.Control(picPosition), nullptr, FALSE);
    ShowLines(true);
}
