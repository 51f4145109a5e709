#include "games/GameCodec.h"
#include "tests/games/RealGames.h"
#include "tests/recorder/RecordText.h"

#include <stdlib.h>

#include <filesystem>
#include <map>

// What another program makes of the PGN files: pgn-extract, which must be installed. Its exit status is always 0, so
// its error stream is the judge.

namespace {

// Origin, destination and promotion letter of each move, with the result at the end, and then what was complained of.
std::string ReadByExtract(const Recorder& recorder) {
    Settings settings;
    settings.PlayerNames = {"Kramer, J\xF6rg", "Team 1. Anna"};
    settings.WritePgn = true;
    const GameFiles files = EncodeGame(settings, modClock::ClockState(), &recorder, {2024, 3, 9});
    // A folder of its own, for two runs may meet.
    std::string folder = std::filesystem::temp_directory_path() / "pgn-XXXXXX", text;
    EXPECT_TRUE(mkdtemp(folder.data()));
    std::ofstream(folder + "/pgn", std::ios::binary) << *files[PgnFile];
    const std::string command =
        "cd '" + folder + "' && PATH=$PATH:/usr/games pgn-extract -s -Wuci --notags -w 99999 pgn >out 2>err";
    EXPECT_EQ(std::system(command.c_str()), 0);
    std::ifstream moves(folder + "/out"), errors(folder + "/err");
    for (std::string word; moves >> word; text += " ") {
        for (const char character : word) text += AsciiLower(character);
    }
    text.append(std::istreambuf_iterator<char>(errors), {});
    std::filesystem::remove_all(folder);
    return text;
}

}  // namespace

TEST(PgnExtractTest, EveryGameIsReadAsItWasPlayed) {
    // Moves that the notation deliberately does not tell from another one: the rank is never written, and one Knight is
    // looked for on a wrong rank. Each is read as intended once it is written as other programs do.
    const std::map<std::string, const char*> unambiguous{{"kasparov-deep-blue-1997 0", "W13=Nhf3"},
                                                         {"kasparov-deep-blue-1997 1", "W30=R3a2"},
                                                         {"kasparov-deep-blue-1997 4", "B21=N6e5"},
                                                         {"kasparov-deep-blue-1997 5", "W6=N1f3"}};
    std::vector<RealGame> games = RealGames();
    games.push_back({"every kind of move",
                     "e2e4 a7a6 e4e5 d7d5 e5d6 b8c6 d6c7 c8f5 c7d8q c6d8 g1f3 e7e6 f1c4 f8c5 e1g1 g8f6 b1c3 e8g8 ",
                     "0-1"});
    games.push_back({"under way", "e2e4 e7e5 g1f3 ", "*"});
    const std::map<std::string, const char*> endings{
        {"1-0", "flagB"}, {"0-1", "flagW"}, {"1/2-1/2", "draw"}, {"*", ""}};
    for (const RealGame& game : games) {
        SCOPED_TRACE(game.Name);
        Recorder recorder = Played(game.Moves + endings.at(game.Result));
        const std::string wanted = game.Moves + game.Result + " ";
        if (const auto exception = unambiguous.find(game.Name); exception != unambiguous.end()) {
            EXPECT_NE(ReadByExtract(recorder), wanted) << "no exception any more";
            Do(recorder, exception->second);
        }
        EXPECT_EQ(ReadByExtract(recorder), wanted);
    }
}
