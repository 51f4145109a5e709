#include "settings/SetupRules.h"

#include "tests/settings/SettingsText.h"

TEST(SetupRulesTest, TypesAndPresetsLeaveNothingThatTheyCannotHave) {
    Settings fischer = Unusual();
    fischer.ShowMoveNumber = fischer.OpenScorletAtStart = true;
    // What the type lets one set, and what is left of the settings of a game with a bonus when it is chosen.
    const char* rows[] = {
        "0 Ann/B 60,10800 0,0 0,0 turn number open pgn 0:1 TRAK TADA 3",
        "second moves 1 Ann/B 60,10800 0,600 0,0 second turn number open pgn 1:1 TRAK TADA 3",
        "second bonus moves 2 Ann/B 60,10800 0,600 3599,7 second turn number open pgn 2:1 TRAK TADA 3",
        "3 Ann/B 60,10800 0,0 0,0 down turn number open pgn 3:1 TRAK TADA 3",
        "second bonus moves 4 Ann/B 60,10800 0,600 3599,7 second turn number open pgn 4:1 TRAK TADA 3"};
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
              "Ann/B 1200,1200 1200,1200 0,0 down second number open pgn 1:40 BUTTONPUSHED PIECEMOVED 3");
    EXPECT_EQ(after(BlitzPreset, true), "Ann/B 300,300 0,0 0,0 down pgn 0:40 BUTTONPUSHED NOSOUND 3");
    EXPECT_EQ(after(BlitzPreset, false), "Ann/B 300,300 0,600 0,0 down pgn 0:40 BUTTONPUSHED NOSOUND 3");
    Settings draft = fischer;
    for (const int32_t type : {1, 0, 3, 2}) ChooseClockType(draft, type);
    EXPECT_EQ(SettingsText(WithoutWhatTypeLacks(draft)),
              "Ann/B 60,10800 0,600 3599,7 down second turn number open pgn 2:1 TRAK TADA 3")
        << "no times are lost on the way";
    draft.Control = {{60, 70}, {80, 90}, {5, 6}};
    DropFractions(draft);
    EXPECT_EQ(SettingsText(draft).substr(0, 22), "Ann/B 60,60 60,60 5,6 ");
    fischer.SetClockType(0);
    fischer.SetClockType(7);
    EXPECT_FALSE(fischer.Control.SecondPeriodEnabled) << "an unknown type leaves that as it was";
    EXPECT_EQ(SettingsText(Settings()),
              "/ 1200,1200 1200,1200 0,0 down second number open 1:40 BUTTONPUSHED PIECEMOVED 2");
}
