#include "settings/SetupRules.h"

#include "tests/settings/SettingsText.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

Settings Fischer() {
    Settings settings;
    settings.PlayerNames = {"A", "B"};
    settings.Control = {{60, 70}, {80, 90}, {5, 6}, false, true, 12};
    settings.ClockType = 2;
    settings.TurnClock = settings.WritePgn = true;
    settings.LanguageIndex = French;
    return settings;
}

}  // namespace

TEST(SetupRulesTest, TypesAndPresetsLeaveNothingThatTheyCannotHave) {
    const auto type = [](int32_t number) {
        return [=](Settings& settings) {
            ChooseClockType(settings, number);
        };
    };
    const std::pair<std::function<void(Settings&)>, const char*> rows[] = {
        {type(0), "A|B 60,70 0,0 0,0 turn number open pgn 0:12 BUTTONPUSHED PIECEMOVED 3"},
        {type(1), "A|B 60,70 80,90 0,0 second turn number open pgn 1:12 BUTTONPUSHED PIECEMOVED 3"},
        {type(2), "A|B 60,70 80,90 5,6 second turn number open pgn 2:12 BUTTONPUSHED PIECEMOVED 3"},
        {type(3), "A|B 60,70 0,0 0,0 down turn number open pgn 3:12 BUTTONPUSHED PIECEMOVED 3"},
        {type(4), "A|B 60,70 80,90 5,6 second turn number open pgn 4:12 BUTTONPUSHED PIECEMOVED 3"},
        {[](Settings& settings) { ChoosePreset(settings, DefaultPreset); },
         "A|B 1200,1200 1200,1200 0,0 down second number open pgn 1:40 BUTTONPUSHED PIECEMOVED 3"},
        {[](Settings& settings) { ChoosePreset(settings, BlitzPreset); },
         "A|B 300,300 0,0 0,0 down pgn 0:40 BUTTONPUSHED NOSOUND 3"},
        {[](Settings& settings) { ApplyPreset(BlitzPreset, settings); },
         "A|B 300,300 80,90 0,0 down pgn 0:40 BUTTONPUSHED NOSOUND 3"},
    };
    for (const auto& [choose, wanted] : rows) {
        Settings settings = Fischer();
        choose(settings);
        EXPECT_EQ(SettingsText(settings), wanted);
    }
    const std::pair<int32_t, std::array<bool, 3>> fields[] = {{0, {false, false, false}},
                                                              {1, {true, false, true}},
                                                              {2, {true, true, true}},
                                                              {3, {false, false, false}},
                                                              {9, {true, true, true}}};
    for (const auto& [number, wanted] : fields) {
        const TypeRules rules = RulesOf(number);
        EXPECT_EQ((std::array{rules.SecondPeriod, rules.Bonus, rules.MoveAmount}), wanted) << number;
    }
}
