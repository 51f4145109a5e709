#include "settings/SetupRules.h"

#include "tests/settings/SettingsText.h"

#include <gtest/gtest.h>

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
    Settings fischer = Fischer();
    // What the type lets one set, and what is left of the settings of a game with a bonus when it is chosen.
    const char* rows[] = {
        "0 A/B 60,70 0,0 0,0 turn number open pgn 0:12 BUTTONPUSHED PIECEMOVED 3",
        "second moves 1 A/B 60,70 80,90 0,0 second turn number open pgn 1:12 BUTTONPUSHED PIECEMOVED 3",
        "second bonus moves 2 A/B 60,70 80,90 5,6 second turn number open pgn 2:12 BUTTONPUSHED PIECEMOVED 3",
        "3 A/B 60,70 0,0 0,0 down turn number open pgn 3:12 BUTTONPUSHED PIECEMOVED 3",
        "second bonus moves 4 A/B 60,70 80,90 5,6 second turn number open pgn 4:12 BUTTONPUSHED PIECEMOVED 3"};
    for (int32_t type = 0; type < 5; ++type) {
        const TypeRules rules = RulesOf(type);
        Settings draft = fischer;
        ChooseClockType(draft, type);
        EXPECT_EQ(std::string(rules.SecondPeriod ? "second " : "") + (rules.Bonus ? "bonus " : "") +
                      (rules.MoveAmount ? "moves " : "") + std::to_string(type) + " " +
                      SettingsText(WithoutWhatTypeLacks(draft)),
                  rows[type]);
    }
    const auto after = [&](const Preset& preset, bool withRules) {
        Settings draft = fischer;
        ApplyPreset(preset, draft);
        return SettingsText(withRules ? WithoutWhatTypeLacks(draft) : draft);
    };
    EXPECT_EQ(after(DefaultPreset, true),
              "A/B 1200,1200 1200,1200 0,0 down second number open pgn 1:40 BUTTONPUSHED PIECEMOVED 3");
    EXPECT_EQ(after(BlitzPreset, true), "A/B 300,300 0,0 0,0 down pgn 0:40 BUTTONPUSHED NOSOUND 3");
    EXPECT_EQ(after(BlitzPreset, false), "A/B 300,300 80,90 0,0 down pgn 0:40 BUTTONPUSHED NOSOUND 3");
    Settings whole = fischer;
    DropFractions(whole);
    EXPECT_EQ(SettingsText(whole).substr(0, 18), "A/B 60,60 60,60 5,");
    fischer.SetClockType(0);
    fischer.SetClockType(7);
    EXPECT_FALSE(fischer.Control.SecondPeriodEnabled) << "an unknown type leaves that as it was";
    EXPECT_EQ(SettingsText(Settings()),
              "/ 1200,1200 1200,1200 0,0 down second number open 1:40 BUTTONPUSHED PIECEMOVED 2");
}

TEST(SetupRulesTest, GoingThroughOtherTypesLosesNoTimes) {
    Settings draft = Fischer();
    for (const int32_t type : {1, 0, 3, 2}) ChooseClockType(draft, type);
    EXPECT_EQ(SettingsText(WithoutWhatTypeLacks(draft)),
              "A/B 60,70 80,90 5,6 down second turn number open pgn 2:12 BUTTONPUSHED PIECEMOVED 3");
}
