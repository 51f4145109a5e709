#include "recorder/BoardInput.h"

#include "tests/recorder/RecordText.h"

namespace {

// Clicks squares ("e2") and captured pieces ("BP0"), picks the next of them ("next"), moves the cursor ("-1,5"), "esc",
// "reset", turns the board ("turn"), lifts what was clicked ("lift"), drags it over a square (">e4") and drops it there
// ("=e4") or on none ("="); then what the squares show (o picked, u lifted, t dragged over, l last move, c cursor), the
// captured piece picked, what the last word has written, and the trays.
std::string Shown(const std::string& script) {
    Recorder recorder;
    BoardInput input(recorder);
    std::string written;
    for (const std::string& word : Words(script)) {
        std::optional<ChosenLine> line;
        const size_t comma = word.find(',');
        if (word == "next") input.PickNextCaptured();
        if (word == "esc") input.Cancel();
        if (word == "reset") input.Reset();
        if (word == "lift") input.Lift();
        if (word == "turn") input.Turn(true);
        if (word[0] == '>') input.PointAt(SquareNamed(word.substr(1)));
        if (comma != std::string::npos) input.MoveCursor(std::stoi(word), std::stoi(word.substr(comma + 1)));
        if (const auto piece = PieceOfCode(word.substr(0, 2))) input.ClickCaptured(*piece, word[2] - '0');
        if (word[0] == '=')
            line = input.Drop(SquareNamed(word.substr(1)));
        else if (word.size() == 2)
            line = input.Click(SquareNamed(word));
        written = line ? recorder.List(line->List).Line(line->Index, line->List) : "";
    }
    std::string text;
    for (int index = 11; index <= 88; ++index) {
        const CellLook look = input.LookOf(Square{index});
        const std::string marks = std::string(look.Origin ? "o" : "") + (look.Lifted ? "u" : "") +
                                  (look.Target ? "t" : "") + (look.LastMove ? "l" : "") + (look.Cursor ? "c" : "");
        if (IsSquare(index) && !marks.empty())
            text += std::string{FileLetter(Square{index}), RankDigit(Square{index})} + marks + " ";
    }
    text += input.PiecePicked() ? "picked " : "";
    if (const auto captured = input.Captured())
        text += std::string(PieceCode(captured->Captured)) + std::to_string(captured->Slot) + " ";
    const std::string trays = TrayText(recorder.Position());
    return text + (trays.empty() ? "" : "x " + trays + " ") + written;
}

}  // namespace

TEST(BoardInputTest, ClicksAndKeys) {
    ExpectRows(Shown, R"(
        => e2c | 7,-5 => h1c | -1,5 -9,9 => a8c | 2,1 0,0 => g3c | turn 2,0 -9,-3 => h5c | e4 => e4c | e2 => e2oc picked | e2 e2 => e2c
        e2 d2 => d2oc picked | e2 esc => e2c | d2 reset => e2c | e2 e4 => e2l e4lc 1. e4
        e2 e4 a7 a5 => a5lc a7l a5 | e2 e7 => e2l e7lc x BP0 1. exe7 | e2 e7 BP1 => e2l e7lc x BP0
        e2 e7 BP0 => e2l e7lc picked BP0 x BP0 | e2 e7 d2 BP0 => d2c e2l e7l picked BP0 x BP0
        e2 e7 BP0 BP0 => e2l e7lc x BP0 | e2 e7 BP0 d2 => d2oc e2l e7l picked x BP0 | e2 e7 BP0 e5 => e2l e5c e7l
        e2 e7 BP0 e5 e5 e4 => e4lc e5l e4 | next => e2c | e2 e7 d8 e7 d2 d7 next => d2l d7lc picked WP0 x WP0 BP0 BP1
        e2 e7 d8 e7 d2 d7 next next next => d2l d7lc picked BP1 x WP0 BP0 BP1
        e2 e7 d8 e7 d2 d7 next next next next => d2l d7lc x WP0 BP0 BP1 | d1 d8 next next => d1l d8lc x BQ0
        Dragged: a piece that a click has picked or let go, and only that.
        e2 lift >e4 => e2ouc e4t picked | e2 lift >e4 =e4 => e2l e4lc 1. e4 | e2 e2 lift =d4 => d4lc e2l 1. d4
        e2 e2 lift >d5 esc => e2c | e2 lift =e2 => e2c | e2 lift >e4 = => e2c | e2 lift >d2 =d2 => e2c
        e2 lift =e7 => e2l e7lc x BP0 1. exe7 | e4 lift >e5 => e4c | e2 e4 lift >e5 => e2l e4lc
        e2 lift d3 >d4 => d3lc e2l | d2 e2 lift next => e2c | e2 lift e2 lift >e3 => e2ouc e3t picked
        e2 e7 BP0 lift >e5 => e2l e5t e7lc picked BP0 x BP0 | e2 e7 BP0 lift =e5 => e2l e5c e7l
        e2 e7 BP0 lift =d2 => e2l e7lc x BP0 | e2 e7 BP0 BP0 lift = => e2l e7lc x BP0 | e2 e7 BP0 d3 lift => d3c e2l e7l
    )");
}
