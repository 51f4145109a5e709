#include "games/GameCodec.h"

#include "tests/base/DamageText.h"
#include "tests/games/RealGames.h"
#include "tests/recorder/RecordText.h"

#include <gtest/gtest.h>

namespace {

// With White to move at its second move.
GameFiles Saved(const Recorder* recorder, bool pgn = true) {
    Settings settings;
    settings.WritePgn = pgn;
    modClock::ClockState clock;
    clock.Control.PeriodLimit.fill(600);
    clock.PlayerTime = {300, 200};
    clock.MoveCount = {2, 1};
    clock.GameStarted = clock.TurnFlag = true;
    return EncodeGame(settings, clock, recorder, {2024, 3, 9});
}

// What is read of some files, and which of them were asked for; or the damage.
std::string Load(const GameFiles& files, SavedGame& game) {
    std::string asked;
    const auto read = [&](GameFile file, size_t limit) -> std::optional<std::vector<uint8_t>> {
        asked += ExtensionOf(file);
        if (!files[file]) return std::nullopt;
        const std::string bytes = files[file]->substr(0, limit);
        return std::vector<uint8_t>(bytes.begin(), bytes.end());
    };
    if (const auto error = DecodeGame(read, Settings(), game))
        return std::string(ExtensionOf(error->File)) + " " + DamageText(error->What, error->Place);
    return asked;
}

}  // namespace

TEST(GameCodecTest, PlayGoesOnAsIfTheGameHadNotBeenSaved) {
    std::vector<RealGame> games = RealGames();
    ASSERT_EQ(games.size(), 7u);
    for (const char* script :
         {"e2e4 check =Q e7e5 draw4,3 g1f3 resign",
          "first e2e4 pressB e7e5 W0=h4 flagW d2d4 top5,5 W1=", "f2f3 e7e5 g2g4 d8h4 mate h2h3",
          "e2e4 e7e5 g1f3 deleteW d7d6 b1c3", "a2a4 b7b5 a4b5 h7h6 b5b6 h6h5 b6b7 h5h4 b7a8 =R check a7a6",
          "e2e4 h7h2 e4e5 h2g1 =N h1g1 =Q"})
        games.push_back({script, script, {}});
    for (const RealGame& game : games) {
        SCOPED_TRACE(game.Name);
        std::istringstream words(game.Moves);
        Recorder played, reloaded;
        bool pgn = false;
        for (std::string word; words >> word; pgn = !pgn) {
            Do(played, word);
            Do(reloaded, word);
            SavedGame loaded;
            const std::string asked = Load(Saved(&reloaded, pgn), loaded);
            ASSERT_EQ(asked, pgn ? ".bin.txt.cgn.pgn" : ".bin.txt.cgn");
            reloaded = loaded.Scorlet;
            ASSERT_EQ(Saved(&reloaded), Saved(&played)) << word;
        }
    }
}

TEST(GameCodecTest, FilesThatAreMissingOrNotOurs) {
    const Recorder recorder = Played("e2e4 e7e5 g1f3");
    struct Row {
        const char* Name;
        GameFiles Files;
        std::vector<std::pair<GameFile, std::optional<std::string>>> Changes;
        const char *Asked, *Lists;
        bool Moved;
    };
    const std::optional<std::string> none, old = "of an earlier game";
    const std::string huge(5 << 20, ' ');
    const char *all = ".bin.txt.cgn.pgn", *lists = "1. e4|2. Nf3 / e5", *kept = "1. d4 / ";
    const Row rows[] = {
        {"saved without the Scorlet",
         Saved(nullptr),
         {{DiagramFile, old}, {MovesFile, old}, {PgnFile, old}},
         ".bin",
         " / ",
         false},
        {"without the PGN", Saved(&recorder, false), {{PgnFile, old}}, ".bin.txt.cgn", lists, true},
        {"no PGN", Saved(&recorder), {{PgnFile, none}}, all, lists, true},
        {"no moves", Saved(&recorder), {{MovesFile, none}}, all, " / ", true},
        {"no diagram", Saved(&recorder), {{DiagramFile, none}}, all, lists, false},
        {"clock only", Saved(&recorder), {{DiagramFile, none}, {MovesFile, none}}, ".bin.txt.cgn", " / ", false},
        {"no clock", Saved(&recorder), {{ClockFile, none}}, ".bin ShortFile 0", kept, false},
        {"long diagram", Saved(&recorder), {{DiagramFile, std::string(273, ' ')}}, ".txt TooLong 272", kept, false},
        {"broken diagram", Saved(&recorder), {{DiagramFile, ""}}, ".txt BrokenLine 1", kept, false},
        {"empty moves", Saved(&recorder), {{MovesFile, ""}}, ".cgn NoHead 0", kept, false},
        {"long moves", Saved(&recorder), {{MovesFile, huge}}, ".cgn TooLong 4194304", kept, false},
        {"cut PGN", Saved(&recorder), {{PgnFile, ""}}, ".pgn NoHead 0", kept, false},
        {"long PGN", Saved(&recorder), {{PgnFile, huge}}, ".pgn TooLong 4194304", kept, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        GameFiles files = row.Files;
        for (const auto& [file, bytes] : row.Changes) files[file] = bytes;
        SavedGame game;
        game.Scorlet = Played("d2d4");
        EXPECT_EQ(Load(files, game), row.Asked);
        EXPECT_EQ(ListText(game.Scorlet.Lists()), row.Lists);
        EXPECT_EQ(game.Scorlet.Position().At(SquareNamed("f3")) != Piece::Empty, row.Moved);
        EXPECT_EQ(game.Clock.MoveCount[White], row.Lists == kept ? 0 : 2);
    }
    EXPECT_FALSE(Saved(nullptr)[DiagramFile] || Saved(nullptr)[MovesFile] || Saved(nullptr)[PgnFile]);
    EXPECT_FALSE(Saved(&recorder, false)[PgnFile]);
}
