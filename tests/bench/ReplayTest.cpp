#include "bench/Replay.h"

#include "tests/base/Rows.h"
#include "tests/games/RealGames.h"

#include <map>

namespace {

// The scores of all games as they were published: moves and result, without tags, numbers and marks.
std::vector<std::vector<std::string>> PublishedGames() {
    std::vector<std::vector<std::string>> games;
    for (const char* name : {"kasparov-deep-blue-1997", "world-championship-2023-game1"}) {
        std::ifstream file(TEST_DATA "/" + std::string(name) + ".pgn");
        for (std::string line; std::getline(file, line);) {
            if (line.starts_with("[Event \"")) games.emplace_back();
            if (line.starts_with('[')) continue;
            for (std::string word : Words(line)) {
                word.erase(0, word.find('.') + 1);
                if (!word.empty()) games.back().push_back(word.substr(0, word.find_last_not_of("+#") + 1));
            }
        }
    }
    return games;
}

}  // namespace

TEST(ReplayTest, RealGamesAreWrittenAsPublished) {
    // Where the notation's own rules give another text than the score: game and half-move, from 0. The rank is never
    // written, and in the first one the other knight is where the first jump looks on the wrong rank.
    const std::map<std::pair<size_t, size_t>, std::string> intended{
        {{0, 26}, "Nf3"}, {{1, 60}, "Raa2"}, {{4, 43}, "Nge5"}, {{5, 12}, "Ngf3"}};
    const std::vector<RealGame> games = RealGames();
    auto published = PublishedGames();
    ASSERT_EQ(published.size(), games.size());
    for (const auto& [place, text] : intended) {
        EXPECT_NE(published[place.first].at(place.second), text) << "no exception any more";
        published[place.first][place.second] = text;
    }
    for (size_t game = 0; game < games.size(); ++game) {
        std::string wanted, written;
        for (const std::string& word : published[game]) wanted += (wanted.empty() ? "" : " ") + word;
        ASSERT_TRUE(ReplayLine(games[game].Moves + games[game].Result, written));
        EXPECT_EQ(written, wanted) << games[game].Name;
        EXPECT_GT(published[game].size(), 30u);
    }
}

TEST(ReplayTest, PromotionsAndMalformedLines) {
    std::string written = "kept ";
    EXPECT_TRUE(ReplayLine("a2a4 b7b5 a4b5 a7a6 b5a6 h7h6 a6a7 h6h5 a7b8q *\r", written));
    const std::string wanted = "kept a4 b5 axb5 a6 bxa6 h6 a7 h5 axb8=Q *";
    EXPECT_EQ(written, wanted);
    for (const char* line : {"", "e2e4", "e2e4 1-0 e7e5", "e2e4x *", "e2e2 *", "e3e4 *", "e2i4 *", "e2e9 *", "e2e4q *",
                             "e2 e4 *", "a2a8k *", "1-0 1-0", "e2e4qq *"}) {
        EXPECT_FALSE(ReplayLine(line, written) || RecordLine(line)) << line;
        EXPECT_EQ(written, wanted) << line;
    }
}

TEST(ReplayTest, WhatIsNotClearInAnExportedGame) {
    const auto unclear = [](const std::string& line) {
        std::string exported;
        const std::string text = ExportRecord(*RecordLine(line), exported);
        EXPECT_TRUE(exported.ends_with(" 1/2-1/2\n")) << exported;
        return text;
    };
    EXPECT_EQ(unclear("e2e4 e7e5 1/2-1/2"), "");
    EXPECT_EQ(unclear("e2e4 e7e5 e1e3 1/2-1/2"), "White's move 2, Ke3, cannot be understood");
    EXPECT_EQ(unclear("e2e4 e8e6 1/2-1/2"), "Black's move 1, Ke6, cannot be understood");
    // A pawn of Black's is moved as White's move.
    EXPECT_EQ(unclear("e7e5 1/2-1/2"), "White's move 1, e5, cannot be understood");
}
