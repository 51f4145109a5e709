#include "games/GameCodec.h"

#include "tests/games/RealGames.h"
#include "tests/recorder/RecordText.h"

namespace {

// With White to move at its second move.
GameFiles Saved(const Recorder* recorder, bool pgn = true, int32_t moves = 2) {
    Settings settings;
    settings.WritePgn = pgn;
    modClock::ClockState clock;
    clock.Control.PeriodLimit.fill(600);
    clock.PlayerTime = {300, 200};
    clock.MoveCount = {moves, moves - 1};
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
    return asked + (game.PgnUnreadable ? " unreadable" : "");
}

}  // namespace

TEST(GameCodecTest, PlayGoesOnAsIfTheGameHadNotBeenSaved) {
    std::vector<RealGame> games = RealGames();
    ASSERT_EQ(games.size(), 7u);
    for (const char* script :
         {"e2e4 check =Q e7e5 draw4,3 g1f3 resign", "first e2e4 pressB e7e5 W0=h4 draw d2d4 top5,5 W1=",
          "e2e4 e7e5 g1f3 deleteW b8c6 pressW f1b5 a7a6 deleteW top5,5", "f2f3 e7e5 g2g4 d8h4 mate h2h3",
          "e2e4 e7e5 g1f3 deleteW d7d6 b1c3", "a2a4 b7b5 a4b5 h7h6 b5b6 h6h5 b6b7 h5h4 b7a8 =R check =N a7a6",
          "e2e4 h7h2 e4e5 h2g1 =N h1g1 =Q"})
        games.push_back({script, script, {}});
    for (const RealGame& game : games) {
        SCOPED_TRACE(game.Name);
        Recorder played, reloaded;
        bool pgn = false;
        for (const std::string& word : Words(game.Moves)) {
            Do(played, word);
            Do(reloaded, word);
            SavedGame loaded;
            const std::string asked = Load(Saved(&reloaded, pgn), loaded);
            ASSERT_EQ(asked, pgn ? ".bin.txt.cgn.pgn" : ".bin.txt.cgn");
            pgn = !pgn;
            reloaded = loaded.Scorlet;
            ASSERT_EQ(Saved(&reloaded), Saved(&played)) << word;
        }
    }
}

TEST(GameCodecTest, FilesThatAreMissingOrDamaged) {
    // What was asked for or is damaged, the lists, the piece on f3, and whether the files come from several saves.
    const auto loaded = [](GameFiles files, std::initializer_list<GameFile> changed,
                           const std::optional<std::string>& bytes) {
        for (const GameFile file : changed) files[file] = bytes;
        SavedGame game;
        game.Scorlet = Played("d2d4");
        const std::string asked = Load(files, game), text = asked + " " + ListText(game.Scorlet.Lists()) + " ";
        EXPECT_EQ(game.Clock.PlayerTime[Black], text.ends_with(" 1. d4 /  ") ? 0 : 200);
        return text + std::string(PieceCode(game.Scorlet.Position().At(SquareNamed("f3")))) +
               (game.Mismatched ? " mismatched" : "");
    };
    const Recorder recorder = Played("e2e4 e7e5 g1f3");
    const std::optional<std::string> none, old = "of an earlier game", huge = std::string(5 << 20, ' ');
    EXPECT_EQ(loaded(Saved(nullptr), {DiagramFile, MovesFile, PgnFile}, old), ".bin  /  O");
    EXPECT_EQ(loaded(Saved(&recorder, false), {PgnFile}, old), ".bin.txt.cgn 1. e4|2. Nf3 / e5 WN");
    const GameFiles files = Saved(&recorder);
    EXPECT_EQ(loaded(files, {PgnFile}, none), ".bin.txt.cgn.pgn 1. e4|2. Nf3 / e5 WN");
    EXPECT_EQ(loaded(files, {MovesFile}, none), ".bin.txt.cgn.pgn  /  WN mismatched");
    EXPECT_EQ(loaded(files, {DiagramFile}, none), ".bin.txt.cgn.pgn 1. e4|2. Nf3 / e5 O mismatched");
    EXPECT_EQ(loaded(files, {DiagramFile, MovesFile}, none), ".bin.txt.cgn  /  O");
    for (const auto& [moves, mismatch] : {std::pair{3, " mismatched"}, {2, ""}, {1, ""}}) {
        const std::string other = *Saved(&recorder, true, moves)[ClockFile];
        EXPECT_EQ(loaded(files, {ClockFile}, other), ".bin.txt.cgn.pgn 1. e4|2. Nf3 / e5 WN" + std::string(mismatch));
    }
    EXPECT_EQ(loaded(files, {ClockFile}, none), ".bin ShortFile 0 1. d4 /  O");
    EXPECT_EQ(loaded(files, {DiagramFile}, std::string(273, ' ')), ".txt TooLong 272 1. d4 /  O");
    EXPECT_EQ(loaded(files, {DiagramFile}, ""), ".txt BrokenLine 1 1. d4 /  O");
    EXPECT_EQ(loaded(files, {MovesFile}, ""), ".cgn NoHead 0 1. d4 /  O");
    EXPECT_EQ(loaded(files, {MovesFile}, huge), ".cgn TooLong 4194304 1. d4 /  O");
    for (const auto& bad : {std::optional<std::string>(""), huge})
        EXPECT_EQ(loaded(files, {PgnFile}, bad), ".bin.txt.cgn.pgn unreadable 1. e4|2. Nf3 / e5 WN");
    SavedGame game;
    GameFiles cut = files;
    cut[PgnFile] = "cut";
    Load(cut, game);
    EXPECT_EQ(Saved(&game.Scorlet), files) << "the running text follows from the lists";
}

TEST(GameCodecTest, WhatCannotBeLoadedIsNotWorthSaving) {
    const Recorder recorder = Played("e2e4 e7e5 g1f3");
    for (const Recorder* written : {&recorder, static_cast<const Recorder*>(nullptr)}) {
        EXPECT_EQ(FaultOf(Saved(written, true, modClock::MostMoves)), std::nullopt);
        EXPECT_EQ(FaultOf(Saved(written, true, modClock::MostMoves + 1)),
                  (GameFileError{ClockFile, Damage::TooManyMoves, 22 + 2 - 4}));
    }
}
