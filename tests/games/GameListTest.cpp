#include "games/GameList.h"

#include "games/GameSummary.h"
#include "tests/recorder/RecordText.h"

namespace {

// The order of names, each a "key" or "key@date", after "name:" or "date:".
std::string Sorted(const std::string& given) {
    std::vector<ListedGame> games;
    for (const std::string& word : Words(given.substr(5))) {
        const std::string key = word.substr(0, word.find('@'));
        const size_t date = word.find('@');
        games.push_back({{word.begin(), word.end()},
                         {key.begin(), key.end()},
                         date == std::string::npos ? 0 : std::stoull(word.substr(date + 1))});
    }
    Sort(games, given.starts_with("name") ? GameOrder::ByName : GameOrder::LatestFirst);
    std::string names;
    for (const ListedGame& game : games) names += std::string(game.Name.begin(), game.Name.end()) + " ";
    return names;
}

// The moves made and the outcome of a game of counts, "on" or over, and of what was entered: "on 2,1: e2e4".
std::string Told(const std::string& given) {
    SavedGame game;
    const size_t counts = given.find(' ') + 1, comma = given.find(',');
    game.Clock.GameStarted = given.starts_with("on");
    game.Clock.MoveCount = {std::stoi(given.substr(counts)), std::stoi(given.substr(comma + 1))};
    Do(game.Scorlet, given.substr(given.find(':') + 1));
    return std::to_string(MovesMade(game)) + " " + OutcomeOf(game);
}

}  // namespace

TEST(GameListTest, NumbersCountAsSuchAndTheLatestIsFirst) {
    ExpectRows(Sorted, R"(
        name: A10 A9 A1 => A1 A9 A10 | name: B A A-2 A-10 A.1 => A A-2 A-10 A.1 B | name: 10 9X 9 X => 9 9X 10 X
        name: A1 A01 A001 A2 A1B => A001 A01 A1 A1B A2 | name: 99999999999999999999 100000000000000000000 => 99999999999999999999 100000000000000000000
        name: A0 A00B A0A A => A A0 A0A A00B | name: A2@1 A1@2 => A1@2 A2@1
        date: A@1 B@3 C@2 => B@3 C@2 A@1 | date: A10@5 A9@5 Z@6 => Z@6 A9@5 A10@5
    )");
}

TEST(GameListTest, TheMovesThatAreMadeAndTheOutcome) {
    ExpectRows(Told, R"(
        idle 0,0: => 0 | on 1,0: => 0 * | on 1,1: => 1 * | on 2,1: => 1 * | over 2,1: => 1 0-1 | over 2,2: => 2 1-0
        on 1,0: e2e4 => 1 * | on 2,1: e2e4 e7e5 top2,1 => 1 * | on 2,1: e2e4 e7e5 g1f3 => 2 * | idle 0,0: e2e4 => 1 *
        on 1,1: e2e4 resign => 1 1-0 | over 1,1: e2e4 flagB => 1 1-0 | on 2,1: e2e4 draw2,1 => 1 1/2-1/2
    )");
}
