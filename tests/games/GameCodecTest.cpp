#include "games/GameCodec.h"

#include "tests/games/GameText.h"

namespace {

// Files in memory, with the order in which they were asked for.
struct Store {
    GameFiles Files;
    std::string Asked;

    std::optional<GameFileError> Load(SavedGame& game) {
        const auto read = [&](GameFile file, size_t limit) -> std::optional<std::vector<uint8_t>> {
            Asked += ExtensionOf(file);
            if (!Files[file]) return std::nullopt;
            const std::string bytes = Files[file]->substr(0, limit);
            return std::vector<uint8_t>(bytes.begin(), bytes.end());
        };
        return DecodeGame(read, Settings(), game);
    }
};

// With White to move at its second move.
Store Saved(const Recorder* recorder, bool writePgn = true) {
    Settings settings;
    settings.WritePgn = writePgn;
    modClock::ClockState clock;
    clock.Control.PeriodLimit.fill(600);
    clock.PlayerTime = {300, 200};
    clock.MoveCount = {2, 1};
    clock.GameStarted = clock.TurnFlag = true;
    return {EncodeGame(settings, clock, recorder, {2024, 3, 9}), {}};
}

std::string StateText(const Recorder& recorder) {
    std::string text = recorder.RunningText();
    RemoveResultMark(text);
    return BoardText(recorder.Position()) + "\n" + ListText(recorder.Lists()) + "\n" + text + recorder.PendingText() +
           "\n" + (recorder.SideToMove() == White ? "White" : "Black") +
           (recorder.AwaitsPromotion() ? " promotes" : "");
}

Recorder Loaded(Store store) {
    SavedGame game;
    const auto error = store.Load(game);
    EXPECT_FALSE(error);
    return game.Scorlet;
}

}  // namespace

TEST(GameCodecTest, PlayGoesOnAsIfTheGameHadNotBeenSaved) {
    for (const RealGame& real : RealGames()) {
        SCOPED_TRACE(real.Name);
        Recorder played, reloaded;
        for (size_t half = 0; half < real.Moves.size(); ++half) {
            Enter(played, real.Moves[half]);
            Enter(reloaded, real.Moves[half]);
            if (half % 7 == 3) played.Declare(Declaration::Check, {}), reloaded.Declare(Declaration::Check, {});
            reloaded = Loaded(Saved(&reloaded, half % 2 == 0));
            ASSERT_EQ(StateText(reloaded), StateText(played)) << half;
        }
        played.Declare(Declaration::Resign, {});
        reloaded.Declare(Declaration::Resign, {});
        ASSERT_EQ(StateText(Loaded(Saved(&reloaded))), StateText(played));
    }
}

TEST(GameCodecTest, ResultsMarksAndWaitingLinesComeBack) {
    const std::string ending = "f2f3 e7e5 g2g4 d8h4";
    std::vector<Recorder> games(6, Played(ending));
    games[0].Declare(Declaration::Mate, {});
    games[1].Declare(Declaration::Draw, {4, 3});
    games[2].FlagFell(White);
    games[3].TopUpMoveLists({5, 5});
    games[4].Edit(White, 1, "");
    games[5] = Played("a2a4 b7b5 a4b5 h7h6 b5b6 h6h5 b6b7 h5h4 b7a8");
    for (Recorder& game : games) {
        SCOPED_TRACE(StateText(game));
        for (const bool pgn : {true, false}) {
            Recorder loaded = Loaded(Saved(&game, pgn)), played = game;
            EXPECT_EQ(StateText(loaded), StateText(game));
            for (Recorder* recorder : {&loaded, &played}) {
                if (recorder->AwaitsPromotion()) recorder->Promote(PieceKind::Rook);
                Enter(*recorder, "a7a6");
            }
            EXPECT_EQ(StateText(loaded), StateText(played));
        }
    }
}

TEST(GameCodecTest, FilesOfAnEarlierGameAreLeftAlone) {
    const Recorder recorder = Played("e2e4 e7e5 g1f3");
    SavedGame game;
    Store closed = Saved(nullptr);
    EXPECT_FALSE(closed.Files[DiagramFile] || closed.Files[MovesFile] || closed.Files[PgnFile]);
    for (const GameFile file : {DiagramFile, MovesFile, PgnFile}) closed.Files[file] = "of an earlier game";
    EXPECT_FALSE(closed.Load(game));
    EXPECT_EQ(closed.Asked, ".bin");
    EXPECT_EQ(game.Clock.PlayerTime, (std::array{300, 200}));
    EXPECT_FALSE(game.Scorlet.MovesWritten());

    Store withoutPgn = Saved(&recorder, false);
    EXPECT_FALSE(withoutPgn.Files[PgnFile]);
    withoutPgn.Files[PgnFile] = "of an earlier game";
    EXPECT_FALSE(withoutPgn.Load(game));
    EXPECT_EQ(game.Scorlet.RunningText() + game.Scorlet.PendingText(), "1. e4 e5 2. Nf3 ");
}

TEST(GameCodecTest, EachCompanionMayBeMissing) {
    const Recorder recorder = Played("e2e4 e7e5 g1f3");
    const auto without = [&](std::initializer_list<GameFile> missing) {
        Store store = Saved(&recorder);
        for (const GameFile file : missing) store.Files[file].reset();
        return StateText(Loaded(store));
    };
    EXPECT_EQ(without({PgnFile}), StateText(recorder));
    EXPECT_EQ(without({DiagramFile, MovesFile, PgnFile}), StateText(Recorder()));
    EXPECT_TRUE(without({MovesFile}).starts_with(BoardText(recorder.Position())));
    EXPECT_TRUE(without({DiagramFile}).starts_with(BoardText(Board())));
}

TEST(GameCodecTest, DamageIsNamedWithItsFileAndChangesNothing) {
    const Recorder recorder = Played("e2e4 e7e5 g1f3");
    struct Row {
        const char* Name;
        GameFile File;
        std::optional<std::string> Bytes;
        Damage What;
    };
    const Row rows[] = {
        {"no clock", ClockFile, std::nullopt, Damage::ShortFile},
        {"long diagram", DiagramFile, std::string(300, ' '), Damage::TooLong},
        {"empty moves", MovesFile, "", Damage::NoHead},
        {"long moves", MovesFile, std::string(5 << 20, ' '), Damage::TooLong},
        {"cut PGN", PgnFile, "[Event \"\"]\r\n", Damage::NoHead},
        {"long PGN", PgnFile, std::string(5 << 20, ' '), Damage::TooLong},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        Store store = Saved(&recorder);
        store.Files[row.File] = row.Bytes;
        SavedGame game;
        game.Scorlet = Played("d2d4");
        const auto error = store.Load(game);
        ASSERT_TRUE(error);
        EXPECT_EQ(error->File, row.File);
        EXPECT_EQ(error->What, row.What);
        EXPECT_EQ(game.Clock.MoveCount, (std::array{0, 0}));
        EXPECT_EQ(ListText(game.Scorlet.Lists()), "1. d4 / ");
    }
}
