#include "bench/RandomGame.h"
#include "bench/Replay.h"
#include "games/ExportedGame.h"
#include "games/GameCodec.h"
#include "recorder/StandardNotation.h"
#include "tests/games/RealGames.h"
#include "tests/recorder/RecordText.h"

#include <stdlib.h>

#include <filesystem>
#include <map>

// What another program makes of the games: pgn-extract, which must be installed. Its exit status is always 0, so its
// error stream is the judge.

namespace {

Settings Options() {
    Settings settings;
    settings.PlayerNames = {"Kramer, J\xF6rg", "Team 1. Anna"};
    settings.WritePgn = true;
    return settings;
}

GameFiles Saved(const Recorder& recorder) {
    modClock::ClockState clock;
    clock.Control = Options().Control;
    return EncodeGame(Options(), clock, &recorder, {2024, 3, 9});
}

// Origin, destination and promotion letter of each move, with the result at the end, and then what was complained of.
// The words have one blank after them.
std::string ReadByExtract(const std::string& pgn, const std::string& option = "") {
    // A folder of its own, for two runs may meet.
    std::string folder = std::filesystem::temp_directory_path() / "pgn-XXXXXX", text;
    EXPECT_TRUE(mkdtemp(folder.data()));
    std::ofstream(folder + "/pgn", std::ios::binary) << pgn;
    const std::string command = "cd '" + folder + "' && PATH=$PATH:/usr/games pgn-extract -s -Wuci --notags -w 99999 " +
                                option + " pgn >out 2>err";
    EXPECT_EQ(std::system(command.c_str()), 0);
    std::ifstream moves(folder + "/out"), errors(folder + "/err");
    for (std::string word; moves >> word;) text += word + " ";
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
    const auto read = [](const Recorder& recorder) {
        std::string text = ReadByExtract(*Saved(recorder)[PgnFile]);
        std::ranges::transform(text, text.begin(), [](char character) { return AsciiLower(character); });
        return text;
    };
    for (const RealGame& game : games) {
        SCOPED_TRACE(game.Name);
        Recorder recorder = *RecordLine(game.Moves + game.Result);
        const std::string wanted = game.Moves + game.Result + " ";
        if (const auto exception = unambiguous.find(game.Name); exception != unambiguous.end()) {
            EXPECT_NE(read(recorder), wanted) << "no exception any more";
            Do(recorder, exception->second);
        }
        EXPECT_EQ(read(recorder), wanted);
    }
}

TEST(PgnExtractTest, ExportedGamesAreReadMoveByMoveWithEveryPosition) {
    const std::vector<RealGame> published = RealGames();
    std::mt19937 random(1997);
    const ShownTimes shown{{{3600, 5}, {std::nullopt, 35999}}};
    std::string exported, wanted;
    int unclear = 0;
    for (size_t number = 0; number < published.size() + 500; ++number) {
        const std::string game = number < published.size() ? published[number].Moves + published[number].Result
                                                           : RandomGame(random, random() % 100 + 1);
        const GameFiles files = Saved(*RecordLine(game));
        const GameFileReader read = [&](GameFile file, size_t) -> std::optional<std::vector<uint8_t>> {
            return std::vector<uint8_t>(files[file]->begin(), files[file]->end());
        };
        SavedGame loaded;
        ASSERT_FALSE(DecodeGame(read, Settings(), loaded));
        const GameReading reading = ReadGame(loaded.Scorlet.Lists(), loaded.Scorlet.Position());
        // Two Rooks or Knights on one file may have gone either way, and then the lists do not tell.
        if (reading.Finding == GameFinding::SeveralWays) {
            ++unclear;
            continue;
        }
        EXPECT_EQ(reading.Finding, GameFinding::Whole) << game << reading.HalfMove;
        exported += ExportGame({std::nullopt, {"The \"Rook\"", "Back\\slash\\"}}, reading,
                               ResultToken(loaded.Scorlet.Lists()), shown) +
                    "\n";

        LegalPosition position;
        const std::vector<std::string> words = Words(game);
        for (size_t half = 0; half + 1 < words.size(); ++half) {
            const auto square = [&](size_t at) { return SquareNamed(words[half].substr(at, 2)); };
            const char letter = words[half].size() == 5 ? AsciiUpper(words[half][4]) : ' ';
            Carry(position, {square(0), square(2), KindOfLetter(letter)});
            wanted += words[half].substr(0, 4) + (letter == ' ' ? "" : std::string{letter}) + " ";
            wanted += "{ " + ForsythText(position) + " } ";
        }
        wanted += words.back() + " ";
    }
    EXPECT_LT(unclear, 5);
    const std::string got = ReadByExtract(exported, "--fencomments");
    const auto differ = static_cast<size_t>(std::ranges::mismatch(got, wanted).in1 - got.begin());
    EXPECT_TRUE(got == wanted) << got.substr(differ > 200 ? differ - 200 : 0, 400);
}
