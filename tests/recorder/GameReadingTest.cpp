#include "recorder/GameReading.h"

#include "recorder/StandardNotation.h"
#include "tests/recorder/RecordText.h"

namespace {

// What is found of the game that a script of play leaves in the lists: the moves in standard notation, and a half-move
// with its other way or its entry.
std::string Read(const std::string& script) {
    const Recorder played = Played(script);
    const GameReading reading = ReadGame(played.Lists(), played.Position());
    LegalPosition position;
    std::string text;
    for (size_t half = 0; half < reading.Moves.size(); ++half) {
        text += StandardText(position, reading.Moves[half]) + " ";
        if (reading.OtherWay && half == reading.HalfMove)
            text += "or " + StandardText(position, *reading.OtherWay) + " ";
        Carry(position, reading.Moves[half]);
    }
    if (reading.Finding == GameFinding::OtherPosition) text += "but the board";
    if (reading.Finding == GameFinding::NotUnderstood)
        text += "but " + std::to_string(reading.HalfMove) + " " + reading.Written[reading.HalfMove];
    return text;
}

// The standard notation of a position after a script of play.
std::string Forsyth(const std::string& script) {
    const Recorder played = Played(script);
    const GameReading reading = ReadGame(played.Lists(), played.Position());
    return ForsythText(reading.Understood() ? reading.Position() : PositionOf(played.Position(), played.SideToMove()));
}

}  // namespace

TEST(GameReadingTest, MovesAreFoundFromTheLists) {
    ExpectRows(Read, R"(
        => | press draw5,5 => | first e2e4 e7e5 check g1f3 pressB => e4 e5 Nf3
        The Scorlet never writes the rank and finds some pieces on wrong squares: the last position tells.
        e2e3 a7a6 b1c3 a6a5 c3e4 a5a4 e4g3 b7b6 g1e2 => e3 a6 Nc3 a5 Ne4 a4 Ng3 b6 N1e2
        e2e3 a7a6 b1c3 a6a5 c3e4 a5a4 e4g3 b7b6 g3e2 => e3 a6 Nc3 a5 Ne4 a4 Ng3 b6 N3e2
        A knight that only its King holds back is none that could go there.
        e2e4 e7e5 g1e2 f8b4 b1c3 a7a6 e2d4 => e4 e5 Ne2 Bb4 Nbc3 a6 Nd4
        Every special move.
        e2e4 a7a6 e4e5 d7d5 e5d6 b8c6 d6c7 c8f5 c7d8q a8d8 g1f3 h7h6 f1e2 h6h5 e1g1 => e4 a6 e5 d5 exd6 Nc6 dxc7 Bf5 cxd8=Q+ Rxd8 Nf3 h6 Be2 h5 O-O
    )");
}

TEST(GameReadingTest, EditedEntries) {
    ExpectRows(Read, R"(
        b1c3 e7e5 W0=Nb1-c3 => Nc3 e5 | b1c3 e7e5 W0=N1c3+ => Nc3 e5 | e2e4 d7d5 e4d5 W1=ed5 => e4 d5 exd5 | e2e4 W0=e2e4 => e4
        Where the board tells the piece, no letter is needed; where it does not, the entry is what the Scorlet writes so. A rank tells too.
        d2d4 d7d5 g1f3 g8f6 b1d2 W2=Nd2 => d4 d5 Nf3 Nf6 Nbd2 | d2d4 d7d5 g1f3 g8f6 b1d2 W2=Nd2 W0=d3 => d3 d5 Nf3 Nf6 Nfd2 but the board
        e2e3 a7a6 b1c3 a6a5 c3e4 a5a4 e4g3 b7b6 g3e2 b6b5 e2d4 b5b4 g1e2 W4=N3e2 => e3 a6 Nc3 a5 Ne4 a4 Ng3 b6 N3e2 b5 Nd4 b4 Nge2
        What no move is.
        e2e4 d7d5 e4d5 W1=d5 => e4 d5 but 2 d5 | e2e4 W0=Nxe4 => but 0 Nxe4
        e2e4 W0=d4 => d4 but the board | e2e4 W0=0-0 => but 0 O-O | e2e4 e7e5 W0=x => but 0 x | e2e4 W0=e4=Q => but 0 e4=Q
    )");
}

TEST(GameReadingTest, WhatIsNotUnderstoodAndWhatIsNotClear) {
    ExpectRows(Read, R"(
        e2e4 e7e5 e1e3 e8e7 => e4 e5 but 2 Ke3 | e2e4 e7e5 d2d4 W1=?? => e4 e5 but 2 ??
        top2,2 e2e4 e7e5 d2d4 W0=_ => but 0 _ | e2e4 e7e5 d2d4 e5d4 deleteW c2c3 => e4 e5 c3 but 3 exd4
        Nothing tells what the pawn has become.
        a2a4 b7b5 a4b5 a7a6 b5a6 h7h6 a6a7 h6h5 a7b8 => a4 b5 axb5 a6 bxa6 h6 a7 h5 but 8 axb8
        a2a4 b7b5 a4b5 a7a6 b5a6 h7h6 a6a7 h6h5 a7b8n W4=axb8 => a4 b5 axb5 a6 bxa6 h6 a7 h5 axb8=N
        a2a4 b7b5 a4b5 a7a6 b5a6 h7h6 a6a7 h6h5 a7b8n W4=axb8N => a4 b5 axb5 a6 bxa6 h6 a7 h5 axb8=N
        Either knight can have gone first, and nothing tells which.
        e2e3 a7a6 b1c3 a6a5 c3e4 a5a4 e4g3 b7b6 g3e2 b6b5 e2d4 b5b4 g1e2 => e3 a6 Nc3 a5 Ne4 a4 Ng3 b6 N1e2 or N3e2 b5 Nd4 b4 Nge2
    )");
}

TEST(GameReadingTest, AGameIsGoneThroughForSoManyMovesAndNoFurther) {
    // Either knight can have gone in its fifth move.
    std::string script = "e2e3 a7a6 b1c3 a6a5 c3e4 a5a4 e4g3 b7b6 g3e2 b6b5 e2d4 b5b4 g1e2 g8f6 ";
    for (size_t moves = 0; moves < MostTries; moves += 4) script += "h1g1 f6g8 g1h1 g8f6 ";
    const Recorder played = Played(script);
    const GameReading reading = ReadGame(played.Lists(), played.Position());
    EXPECT_EQ(reading.Finding, GameFinding::NotUnderstood);
    EXPECT_EQ(reading.HalfMove, MostTries);
    EXPECT_EQ(reading.Moves.size(), 8) << "beyond doubt";
}

TEST(GameReadingTest, PositionsInForsythEdwardsNotation) {
    ExpectRows(Forsyth, R"(
        => rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR w KQkq - 0 1
        e2e4 => rnbqkbnr/pppppppp/8/8/4P3/8/PPPP1PPP/RNBQKBNR b KQkq e3 0 1
        e2e4 e7e5 e1e2 e8e7 => rnbq1bnr/ppppkppp/8/4p3/4P3/8/PPPPKPPP/RNBQ1BNR w - - 2 3
        h1h3 a8a6 => 1nbqkbnr/pppppppp/r7/8/8/7R/PPPPPPPP/RNBQKBN1 w Qk - 0 1
    )");
}
