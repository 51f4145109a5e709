#include "games/SavedGame.h"

#include "tests/games/GameText.h"

namespace {

using Rule = GameFileError::Rule;
constexpr CalendarDate Today{2024, 3, 9};

// Files in memory, with the order in which they were asked for.
struct Store {
    GameFiles files;
    std::string asked;

    std::optional<GameFileError> Load(LoadedGame& game) {
        const auto read = [&](GameFile file, size_t limit) -> std::optional<std::vector<uint8_t>> {
            asked += ExtensionOf(file);
            if (!files[file]) return std::nullopt;
            const std::string bytes = files[file]->substr(0, limit);
            return std::vector<uint8_t>(bytes.begin(), bytes.end());
        };
        return DecodeGame(read, Settings(), game);
    }
};

modClock::ClockState Counted(int32_t white, int32_t black) {
    modClock::ClockState clock;
    clock.PeriodLimit.fill(600);
    clock.PlayerTime = {300, 200};
    clock.MoveCount = {white, black};
    clock.GameStarted = white > 0;
    clock.TurnFlag = white > black;
    return clock;
}

Store Saved(const Recorder* recorder, bool writePgn = true) {
    Settings settings;
    settings.WritePgn = writePgn;
    return {PrepareGame(settings, Counted(2, 1), recorder, Today), {}};
}

std::string StateText(const Recorder& recorder) {
    std::string text = recorder.RunningText();
    RemoveResultMark(text);
    return BoardText(recorder.Position()) + "\n" + ListText(recorder.Lists()) + "\n" + text + recorder.PendingText() +
           "\n" + (recorder.SideToMove() == White ? "White" : "Black") +
           (recorder.AwaitsPromotion() ? " promotes" : "");
}

Recorder Loaded(Store store) {
    LoadedGame game;
    const auto error = store.Load(game);
    EXPECT_FALSE(error);
    return game.Scorlet;
}

}  // namespace

TEST(SavedGameTest, PlayGoesOnAsIfTheGameHadNotBeenSaved) {
    for (const RealGame& real : RealGames()) {
        SCOPED_TRACE(real.name);
        Recorder played, reloaded;
        for (size_t half = 0; half < real.moves.size(); ++half) {
            Enter(played, real.moves[half]);
            Enter(reloaded, real.moves[half]);
            if (half % 7 == 3) played.Declare(Declaration::Check, {}), reloaded.Declare(Declaration::Check, {});
            reloaded = Loaded(Saved(&reloaded, half % 2 == 0));
            ASSERT_EQ(StateText(reloaded), StateText(played)) << half;
        }
        played.Declare(Declaration::Resign, {});
        reloaded.Declare(Declaration::Resign, {});
        ASSERT_EQ(StateText(Loaded(Saved(&reloaded))), StateText(played));
    }
}

TEST(SavedGameTest, ResultsMarksAndWaitingLinesComeBack) {
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
            Recorder loaded = Loaded(Saved(&game, pgn));
            EXPECT_EQ(StateText(loaded), StateText(game));
            if (!loaded.AwaitsPromotion()) continue;
            loaded.Promote(PieceKind::Rook);
            EXPECT_EQ(loaded.List(White).Entries().back().text, "bxa8=R");
        }
        Recorder loaded = Loaded(Saved(&game));
        Enter(loaded, "a7a6");
        Recorder copy = game;
        Enter(copy, "a7a6");
        EXPECT_EQ(StateText(loaded), StateText(copy));
    }
}

TEST(SavedGameTest, TheClockAndItsSettingsComeBack) {
    LoadedGame game;
    Store store{PrepareGame(Settings(), Counted(2, 2), nullptr, Today), {}};
    ASSERT_FALSE(store.Load(game));
    EXPECT_EQ(store.asked, ".bin");
    EXPECT_EQ(game.Clock.MoveCount, (std::array{2, 2}));
    EXPECT_EQ(game.Clock.PlayerTime, (std::array{300, 200}));
    EXPECT_TRUE(game.Clock.GameStarted);
    EXPECT_FALSE(game.Clock.TurnFlag);
    EXPECT_EQ(game.Options.PeriodLimit[White], 600);
    EXPECT_FALSE(game.Scorlet.MovesWritten());
}

TEST(SavedGameTest, FilesOfAnEarlierGameAreLeftAlone) {
    const Recorder recorder = Played("e2e4 e7e5 g1f3");
    LoadedGame game;
    Store closed = Saved(nullptr);
    EXPECT_FALSE(closed.files[DiagramFile] || closed.files[MovesFile] || closed.files[PgnFile]);
    for (const GameFile file : {DiagramFile, MovesFile, PgnFile}) closed.files[file] = "of an earlier game";
    EXPECT_FALSE(closed.Load(game));
    EXPECT_FALSE(game.Scorlet.MovesWritten());

    Store withoutPgn = Saved(&recorder, false);
    EXPECT_FALSE(withoutPgn.files[PgnFile]);
    withoutPgn.files[PgnFile] = "of an earlier game";
    EXPECT_FALSE(withoutPgn.Load(game));
    EXPECT_EQ(game.Scorlet.RunningText() + game.Scorlet.PendingText(), "1. e4 e5 2. Nf3 ");
}

TEST(SavedGameTest, EachCompanionMayBeMissing) {
    const Recorder recorder = Played("e2e4 e7e5 g1f3");
    const auto without = [&](std::initializer_list<GameFile> missing) {
        Store store = Saved(&recorder);
        for (const GameFile file : missing) store.files[file].reset();
        return StateText(Loaded(store));
    };
    EXPECT_EQ(without({PgnFile}), StateText(recorder));
    EXPECT_EQ(without({DiagramFile, MovesFile}), StateText(Recorder()));
    EXPECT_EQ(without({DiagramFile, MovesFile, PgnFile}), StateText(Recorder()));
    EXPECT_TRUE(without({MovesFile}).starts_with(BoardText(recorder.Position())));
    EXPECT_TRUE(without({DiagramFile}).starts_with(BoardText(Board())));
}

TEST(SavedGameTest, DamageIsNamedWithItsFileAndChangesNothing) {
    const Recorder recorder = Played("e2e4 e7e5 g1f3");
    struct Row {
        const char* name;
        GameFile file;
        std::optional<std::string> bytes;
        Rule rule;
    };
    const Row rows[] = {
        {"no clock", ClockFile, std::nullopt, Rule::ShortRecord},
        {"foreign clock", ClockFile, "MZ", Rule::UnknownTag},
        {"foreign diagram", DiagramFile, "rnbqkbnr/pppppppp", Rule::UnknownPiece},
        {"long diagram", DiagramFile, std::string(300, ' '), Rule::TooLong},
        {"empty moves", MovesFile, "", Rule::NoHead},
        {"long moves", MovesFile, std::string(5 << 20, ' '), Rule::TooLong},
        {"cut PGN", PgnFile, "[Event \"\"]\r\n", Rule::NoHead},
        {"long PGN", PgnFile, std::string(5 << 20, ' '), Rule::TooLong},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Store store = Saved(&recorder);
        store.files[row.file] = row.bytes;
        LoadedGame game;
        game.Clock.MoveCount = {9, 9};
        game.Scorlet = Played("d2d4");
        const auto error = store.Load(game);
        ASSERT_TRUE(error);
        EXPECT_EQ(error->file, row.file);
        EXPECT_EQ(error->rule, row.rule);
        EXPECT_EQ(game.Clock.MoveCount, (std::array{9, 9}));
        EXPECT_EQ(ListText(game.Scorlet.Lists()), "1. d4 / ");
    }
}
