#include "bench/Replay.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <vector>

namespace {

std::ifstream Open(const std::string& name) { return std::ifstream(TEST_DATA "/" + name, std::ios::binary); }

std::vector<std::string> Words(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

// The scores of a PGN file as they were published: moves and result, without tags and numbers.
std::vector<std::vector<std::string>> PublishedGames(std::ifstream stream) {
    std::vector<std::vector<std::string>> games;
    bool inTags = false;
    for (std::string line; std::getline(stream, line);) {
        const bool tag = line.starts_with('[');
        if (tag && !inTags) games.emplace_back();
        inTags = tag || (inTags && line.empty());
        if (tag) continue;
        for (std::string word : Words(line)) {
            const size_t dot = word.find('.');
            if (dot != std::string::npos) word.erase(0, dot + 1);
            if (!word.empty()) games.back().push_back(word);
        }
    }
    return games;
}

}  // namespace

TEST(ReplayTest, RealGamesAreWrittenAsPublished) {
    // Where the notation's own rules give another text than the score: game and half-move, from 0.
    const std::map<std::pair<std::string, std::pair<size_t, size_t>>, std::string> intended{
        // The other knight stands where the first jump looks on the wrong rank.
        {{"kasparov-deep-blue-1997", {0, 26}}, "Nf3"},
        // Told apart by the rank in print; the pad writes the file.
        {{"kasparov-deep-blue-1997", {1, 60}}, "Raa2"},
        {{"kasparov-deep-blue-1997", {4, 43}}, "Nge5"},
        {{"kasparov-deep-blue-1997", {5, 12}}, "Ngf3"},
    };
    size_t moves = 0, different = 0;
    for (const std::string name : {"kasparov-deep-blue-1997", "world-championship-2023-game1"}) {
        const auto games = PublishedGames(Open(name + ".pgn"));
        std::ifstream lines = Open(name + ".moves");
        for (size_t game = 0; game < games.size(); ++game) {
            SCOPED_TRACE(name + " " + std::to_string(game));
            std::string line, text;
            ASSERT_TRUE(std::getline(lines, line));
            ASSERT_TRUE(ReplayLine(line, text));
            const auto written = Words(text);
            ASSERT_EQ(written.size(), games[game].size());
            for (size_t half = 0; half < written.size(); ++half, ++moves) {
                std::string published = games[game][half];
                if (published.ends_with('+') || published.ends_with('#')) published.pop_back();
                const auto exception = intended.find({name, {game, half}});
                if (exception != intended.end()) {
                    EXPECT_NE(published, exception->second) << "no exception any more";
                    published = exception->second;
                    ++different;
                }
                EXPECT_EQ(written[half], published) << "half-move " << half;
            }
        }
    }
    EXPECT_EQ(different, intended.size());
    EXPECT_GT(moves, 600u);
}

TEST(ReplayTest, PromotionsAndMalformedLines) {
    std::string written = "kept ";
    EXPECT_TRUE(ReplayLine("a2a4 b7b5 a4b5 a7a6 b5a6 h7h6 a6a7 h6h5 a7b8q *\r", written));
    EXPECT_EQ(written, "kept a4 b5 axb5 a6 bxa6 h6 a7 h5 axb8=Q *");
    for (const char* line : {"", "e2e4", "e2e4 1-0 e7e5", "e2e4x *", "e2e2 *", "e3e4 *", "e2i4 *", "e2e9 *", "e2e4q *",
                             "e2 e4 *", "a2a8k *", "1-0 1-0"}) {
        EXPECT_FALSE(ReplayLine(line, written)) << line;
        EXPECT_EQ(written, "kept a4 b5 axb5 a6 bxa6 h6 a7 h5 axb8=Q *") << line;
    }
}
