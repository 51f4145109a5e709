#include "settings/GameTimes.h"

#include "base/WordReader.h"
#include "settings/SetupRules.h"

#include <charconv>
#include <limits>

namespace {

using Pair = std::array<int32_t, 2>;

constexpr std::array TypeWords{"game", "moves", "fischer", "hourglass"};
constexpr int32_t Most = std::numeric_limits<int32_t>::max() / 60;

std::string PairText(const Pair& pair, int32_t unit) {
    const std::string white = std::to_string(pair[White] / unit);
    return pair[White] == pair[Black] ? white : white + "/" + std::to_string(pair[Black] / unit);
}

std::optional<int32_t> NumberOf(std::string_view word, int32_t least) {
    int32_t number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size() || number < least || number > Most)
        return std::nullopt;
    return number;
}

std::optional<Pair> PairOf(std::string_view word, int32_t least, int32_t unit) {
    const size_t slash = word.find('/');
    const auto white = NumberOf(word.substr(0, slash), least);
    const auto black = slash == std::string_view::npos ? white : NumberOf(word.substr(slash + 1), least);
    if (!white || !black) return std::nullopt;
    return Pair{*white * unit, *black * unit};
}

// Takes what follows a word; false if the type has no such thing or it is not understood.
bool TakeWord(std::string_view word, WordReader& words, GameTimes& times) {
    const TypeRules rules = RulesOf(times.ClockType);
    if (word == "up" && times.Control.CountTimeDown) {
        times.Control.CountTimeDown = false;
        return true;
    }
    const std::string_view value = words.Take();
    const auto take = [](Pair& to, const std::optional<Pair>& from) {
        if (!from || to != Pair{}) return false;
        to = *from;
        return true;
    };
    if (word == "then" && rules.SecondPeriod) return take(times.Control.SecondPeriodTime, PairOf(value, 0, 60));
    if (word == "plus" && rules.Bonus) return take(times.Control.MoveBonus, PairOf(value, 0, 1));
    if (word != "after" || times.Control.SecondPeriodTime == Pair{}) return false;
    const auto moves = NumberOf(value, 1);
    times.Control.MovesFirstPeriod = moves.value_or(times.Control.MovesFirstPeriod);
    return moves.has_value();
}

}  // namespace

GameTimes SimpleTimes(int32_t clockType, int32_t minutes, int32_t bonusSeconds) {
    GameTimes times{clockType, {}};
    times.Control.PeriodLimit.fill(minutes * 60);
    times.Control.MoveBonus.fill(bonusSeconds);
    times.Control.SecondPeriodEnabled = RulesOf(clockType).SecondPeriod;
    return times;
}

GameTimes TimesOf(const Settings& settings) {
    GameTimes times{settings.ClockType, WithoutWhatTypeLacks(settings).Control};
    if (times.Control.SecondPeriodTime == Pair{}) times.Control.MovesFirstPeriod = TimeControl().MovesFirstPeriod;
    return times;
}

void TakeTimes(const GameTimes& times, Settings& settings) {
    const TypeRules rules = RulesOf(times.ClockType);
    settings.SetClockType(times.ClockType);
    settings.Control.PeriodLimit = times.Control.PeriodLimit;
    settings.Control.CountTimeDown = times.Control.CountTimeDown;
    if (rules.SecondPeriod) settings.Control.SecondPeriodTime = times.Control.SecondPeriodTime;
    if (rules.Bonus) settings.Control.MoveBonus = times.Control.MoveBonus;
    if (times.Control.SecondPeriodTime != Pair{}) settings.Control.MovesFirstPeriod = times.Control.MovesFirstPeriod;
}

std::string TextOf(const GameTimes& times) {
    const TimeControl& control = times.Control;
    std::string text =
        std::string(TypeWords.at(static_cast<size_t>(times.ClockType))) + " " + PairText(control.PeriodLimit, 60);
    if (control.SecondPeriodTime != Pair{})
        text +=
            " then " + PairText(control.SecondPeriodTime, 60) + " after " + std::to_string(control.MovesFirstPeriod);
    if (control.MoveBonus != Pair{}) text += " plus " + PairText(control.MoveBonus, 1);
    return control.CountTimeDown ? text : text + " up";
}

std::optional<GameTimes> TimesOfText(std::string_view text) {
    WordReader words(text);
    const std::string_view type = words.Take(), first = words.Take();
    for (size_t i = 0; i < TypeWords.size(); ++i) {
        const auto limit = PairOf(first, 1, 60);
        if (type != TypeWords[i] || !limit) continue;
        GameTimes times = SimpleTimes(static_cast<int32_t>(i), 1, 0);
        times.Control.PeriodLimit = *limit;
        for (std::string_view word = words.Take(); !word.empty(); word = words.Take()) {
            if (!TakeWord(word, words, times)) return std::nullopt;
        }
        return times;
    }
    return std::nullopt;
}
