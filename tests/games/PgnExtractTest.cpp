#include "games/GameCodec.h"
#include "tests/games/GameText.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <map>

// What another program makes of the PGN files: pgn-extract, which must be installed. Its exit status is always 0, so
// its error stream is the judge.

namespace {

std::string Contents(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

struct Reading {
    std::string Moves;  // origin, destination and promotion letter, with the result at the end
    std::string Errors;
};

Reading ReadByExtract(const Recorder& recorder) {
    Settings settings;
    settings.PlayerNames = {"Kramer, J\xF6rg", "Team 1. Anna"};
    settings.WritePgn = true;
    const GameFiles files = EncodeGame(settings, modClock::ClockState(), &recorder, {2024, 3, 9});
    const std::string path = testing::TempDir() + "torvanix-reader";
    std::ofstream(path + ".pgn", std::ios::binary) << *files[PgnFile];
    const std::string command = "PATH=$PATH:/usr/games pgn-extract -s -Wuci --notags -w 99999 '" + path + ".pgn' >'" +
                                path + ".out' 2>'" + path + ".err'";
    EXPECT_EQ(std::system(command.c_str()), 0);
    std::istringstream words(Contents(path + ".out"));
    Reading reading{{}, Contents(path + ".err")};
    for (std::string word; words >> word;) {
        std::ranges::transform(word, word.begin(), [](unsigned char letter) { return std::tolower(letter); });
        reading.Moves += word + " ";
    }
    return reading;
}

void EndWith(Recorder& recorder, const std::string& result) {
    if (result == "1/2-1/2") recorder.Declare(Declaration::Draw, {});
    if (result == "1-0") recorder.FlagFell(Black);
    if (result == "0-1") recorder.FlagFell(White);
}

struct Intended {
    const char* Written;
    const char* Unambiguous;
};

}  // namespace

TEST(PgnExtractTest, EveryGameIsReadAsItWasPlayed) {
    // Moves that the notation deliberately does not tell from another one: game and half-move, from 0. The rank is
    // never written, and one Knight is looked for on a wrong rank.
    const std::map<std::string, std::pair<size_t, Intended>> ambiguous{
        {"kasparov-deep-blue-1997 0", {26, {"Nf3", "Nhf3"}}},
        {"kasparov-deep-blue-1997 1", {60, {"Raa2", "R3a2"}}},
        {"kasparov-deep-blue-1997 4", {43, {"Nge5", "N6e5"}}},
        {"kasparov-deep-blue-1997 5", {12, {"Ngf3", "N1f3"}}},
    };
    std::vector<RealGame> games = RealGames();
    games.push_back({"every kind of move",
                     {"e2e4", "a7a6", "e4e5", "d7d5", "e5d6", "b8c6", "d6c7", "c8f5", "c7d8q", "c6d8", "g1f3", "e7e6",
                      "f1c4", "f8c5", "e1g1", "g8f6", "b1c3", "e8g8"},
                     "0-1"});
    games.push_back({"under way", {"e2e4", "e7e5", "g1f3"}, "*"});
    for (const RealGame& game : games) {
        SCOPED_TRACE(game.Name);
        Recorder recorder;
        std::string wanted;
        for (const std::string& move : game.Moves) {
            Enter(recorder, move);
            wanted += move + " ";
        }
        wanted += game.Result + " ";
        EndWith(recorder, game.Result);
        if (const auto exception = ambiguous.find(game.Name); exception != ambiguous.end()) {
            const auto& [half, texts] = exception->second;
            const Side side = half % 2 == 0 ? White : Black;
            ASSERT_EQ(recorder.List(side).Entries()[half / 2].Text, texts.Written);
            const Reading reading = ReadByExtract(recorder);
            EXPECT_TRUE(reading.Moves != wanted || !reading.Errors.empty()) << "no exception any more";
            recorder.Edit(side, half / 2, texts.Unambiguous);
        }
        const Reading reading = ReadByExtract(recorder);
        EXPECT_EQ(reading.Moves, wanted);
        EXPECT_EQ(reading.Errors, "");
    }
}
