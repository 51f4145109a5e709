#include "games/ExportedGame.h"

#include "base/TimeText.h"
#include "recorder/StandardNotation.h"

#include <algorithm>
#include <cstdio>

namespace {

constexpr size_t LongestLine = 79;

bool IsControl(char character) { return static_cast<unsigned char>(character) < ' '; }

std::string EscapedTagPair(std::string_view tag, std::string_view value) {
    std::string line = "[" + std::string(tag) + " \"";
    for (const char character : value) {
        if (character == '"' || character == '\\') line += '\\';
        line += IsControl(character) ? '?' : character;
    }
    return line + "\"]\n";
}

std::string DateText(const std::optional<CalendarDate>& date) {
    if (!date) return "????.??.??";
    char text[40];
    std::snprintf(text, sizeof text, "%04d.%02d.%02d", date->Year, date->Month, date->Day);
    return text;
}

// "40/7200+5:3600+5"; "?" where the sides differ, or where a bonus counts as time used, which has no sign of its own.
std::string ControlText(const TimeControl& control) {
    const auto same = [](const std::array<int32_t, 2>& pair) { return pair[White] == pair[Black]; };
    const int32_t bonus = control.MoveBonus[White];
    const bool second = control.SecondPeriodEnabled && control.SecondPeriodTime != std::array<int32_t, 2>{};
    if (!same(control.PeriodLimit) || !same(control.MoveBonus) || (second && !same(control.SecondPeriodTime)) ||
        (bonus > 0 && !control.CountTimeDown))
        return "?";
    const auto period = [&](const std::array<int32_t, 2>& seconds) {
        return std::to_string(seconds[White]) + (bonus > 0 ? "+" + std::to_string(bonus) : "");
    };
    if (!second) return period(control.PeriodLimit);
    return std::to_string(control.MovesFirstPeriod) + "/" + period(control.PeriodLimit) + ":" +
           period(control.SecondPeriodTime);
}

std::string ClockText(int32_t seconds) {
    return "{[%clk " + std::to_string(seconds / 3600) + ":" + TwoDigitText(seconds / 60 % 60) + ":" +
           TwoDigitText(seconds % 60) + "]}";
}

std::string NumberText(size_t halfMove) { return std::to_string(halfMove / 2 + 1) + (halfMove % 2 == 0 ? "." : "..."); }

// An entry as it can lie in a comment, wherever its line begins.
std::string InComment(std::string text) {
    std::ranges::replace_if(
        text,
        [](char character) { return IsControl(character) || character == '{' || character == '}' || character == '%'; },
        '?');
    return text;
}

// Words with a blank or a line end between them.
class Lines {
  public:
    void Add(std::string_view word) {
        if (column > 0) {
            const bool fits = column + 1 + word.size() <= LongestLine;
            text += fits ? ' ' : '\n';
            column = fits ? column + 1 : 0;
        }
        for (size_t length; word.size() > LongestLine; word.remove_prefix(length)) {
            length = LongestLine;
            // Not within a character.
            while (length > LongestLine - 3 && (word[length] & 0xC0) == 0x80) --length;
            text += word.substr(0, length);
            text += '\n';
        }
        text += word;
        column += word.size();
    }
    const std::string& Text() const { return text; }

  private:
    std::string text;
    size_t column = 0;
};

void AddMoves(const GameReading& game, const ShownTimes& shown, Lines& lines) {
    LegalPosition position;
    bool numbered = true;  // a comment has come between
    for (size_t half = 0; half < game.Moves.size(); ++half) {
        if (numbered || half % 2 == 0) lines.Add(NumberText(half));
        numbered = false;
        lines.Add(StandardText(position, game.Moves[half]));
        if (game.OtherWay && half == game.HalfMove) {
            lines.Add("{?");
            lines.Add(StandardText(position, *game.OtherWay) + "}");
            numbered = true;
        }
        const auto& times = shown[half % 2];
        if (half / 2 < times.size() && times[half / 2]) {
            lines.Add(ClockText(*times[half / 2]));
            numbered = true;
        }
        Carry(position, game.Moves[half]);
    }
}

void AddRest(const GameReading& game, Lines& lines) {
    const size_t first = game.Moves.size(), end = game.Written.size();
    for (size_t half = first; half < end; ++half) {
        if (half == first || half % 2 == 0) lines.Add((half == first ? "{" : "") + NumberText(half));
        lines.Add(InComment(game.Written[half]) + (half + 1 == end ? "}" : ""));
    }
}

}  // namespace

std::string_view ResultOf(const LegalPosition& position) {
    if (!LegalMoves(position).empty()) return "*";
    if (!InCheck(position)) return "1/2-1/2";
    return position.ToMove == White ? "0-1" : "1-0";
}

std::string ExportGame(const ExportHead& head, const GameReading& game, std::string_view declared,
                       const ShownTimes& shown) {
    const std::string_view result = declared == "*" && game.Understood() ? ResultOf(game.Position()) : declared;
    const auto known = [](const std::string& text) { return text.empty() ? "?" : text; };
    std::string text = EscapedTagPair("Event", "?") + EscapedTagPair("Site", "?") +
                       EscapedTagPair("Date", DateText(head.Date)) + EscapedTagPair("Round", "?") +
                       EscapedTagPair("White", known(head.Names[White])) +
                       EscapedTagPair("Black", known(head.Names[Black])) + EscapedTagPair("Result", result);
    if (head.Control) text += EscapedTagPair("TimeControl", ControlText(*head.Control));
    Lines lines;
    AddMoves(game, shown, lines);
    AddRest(game, lines);
    lines.Add(result);
    return text + "\n" + lines.Text() + "\n";
}
