#include "recorder/Recorder.h"

#include "tests/games/GameText.h"

namespace {

class RecorderTest : public testing::Test {
  protected:
    Recorder recorder;

    void Play(const std::string& moves) { EnterAll(recorder, moves); }
    std::string Lists() const { return ListText(recorder.Lists()); }
    std::string Text() const { return recorder.RunningText() + "<" + recorder.PendingText() + ">"; }
    void Declare(Declaration declaration, std::array<int32_t, 2> counts = {}) { recorder.Declare(declaration, counts); }
};

const std::string Waiting = "\?\?-\?\?";

}  // namespace

TEST_F(RecorderTest, MovesGoIntoTheListOfTheSideToMove) {
    Play("e2e4 e7e5 g1f3");
    EXPECT_EQ(Text(), "1. e4 e5 <2. Nf3 >");
    // The pad is no referee: a piece of the other side is written as Black's move.
    Play("f3e5");
    EXPECT_EQ(Lists(), "1. e4|2. Nf3 / e5|Nxe5");
    recorder.Reset();
    EXPECT_EQ(Lists() + Text(), " / <>");
}

TEST_F(RecorderTest, PressesAddTheLineOfTheMoveThatBegins) {
    EXPECT_TRUE(recorder.AddLineForPress(true, White));
    EXPECT_EQ(Lists(), "1. " + Waiting + " / ");
    EXPECT_FALSE(recorder.AddLineForPress(false, Black)) << "White has not written its move";
    Play("e2e4");
    EXPECT_EQ(Lists(), "1. e4 / ");
    EXPECT_TRUE(recorder.AddLineForPress(false, Black));
    EXPECT_FALSE(recorder.AddLineForPress(false, Black)) << "the line is there";
    EXPECT_EQ(Lists(), "1. e4 / 1. " + Waiting);
    Play("e7e5");
    EXPECT_EQ(recorder.AddLineForPress(false, White)->Index, 1u);
    EXPECT_EQ(Lists(), "1. e4|2. " + Waiting + " / e5");
    EXPECT_EQ(Text(), "1. e4 <e5 >");
    Declare(Declaration::Draw);
    EXPECT_FALSE(recorder.AddLineForPress(false, Black)) << "not behind a result";
}

TEST_F(RecorderTest, APadThatLagsBehindCatchesUp) {
    recorder.TopUpMoveLists({3, 2});
    EXPECT_EQ(Lists(), "1. " + Waiting + "|2. " + Waiting + "|3. " + Waiting + " / 1. " + Waiting + "|2. " + Waiting);
    EXPECT_EQ(Text(), "<>") << "waiting lines are no part of the text";
    Play("e2e4 e7e5");
    EXPECT_EQ(Lists(), "1. e4|2. " + Waiting + "|3. " + Waiting + " / e5|2. " + Waiting);
}

TEST_F(RecorderTest, TopUpLevelsWhiteWithBlackAndGoesBeforeAResult) {
    Play("e2e4 e7e5");
    Declare(Declaration::Resign);
    EXPECT_EQ(Lists(), "1. e4|[0-1] / e5");
    const auto added = recorder.TopUpMoveLists({2, 3});
    EXPECT_EQ(Lists(), "1. e4|2. " + Waiting + "|3. " + Waiting + "|[0-1] / e5|2. " + Waiting + "|3. " + Waiting);
    EXPECT_EQ(added[White], 2u);
    EXPECT_EQ(added[Black], 2u);
}

TEST_F(RecorderTest, DeclarationsMarkTheLastMoveAndEndTheGame) {
    Declare(Declaration::Check);
    Declare(Declaration::Mate);
    EXPECT_EQ(Lists(), " / ") << "nothing to mark";
    Play("e2e4");
    Declare(Declaration::Check);
    Declare(Declaration::Check);
    EXPECT_EQ(Lists(), "1. e4+ / ");
    EXPECT_EQ(Text(), "<1. e4+ >");
    Declare(Declaration::Mate);
    Declare(Declaration::Mate);
    EXPECT_EQ(Lists(), "1. e4#|[1-0] / ");
    EXPECT_EQ(Text(), "1. e4# 1-0<>");
    Declare(Declaration::Draw);
    EXPECT_EQ(Lists(), "1. e4#|[1-0] / ") << "one result";
    Play("e7e5");
    EXPECT_EQ(Lists(), "1. e4# / e5") << "play goes on";
    EXPECT_EQ(Text(), "1. e4# <e5 >");
    Declare(Declaration::Resign, {1, 1});
    EXPECT_EQ(Lists(), "1. e4#|[0-1] / e5") << "the side to move loses";
    recorder.Reset();
    recorder.FlagFell(White);
    EXPECT_EQ(Lists(), "[0-1] / ");
}

TEST_F(RecorderTest, PromotionCanBeChosenAgainUntilTheNextMove) {
    Play("a2a4 b7b5 a4b5 h7h6 b5b6 h6h5 b6b7 h5h4 b7a8");
    ASSERT_TRUE(recorder.AwaitsPromotion());
    EXPECT_EQ(PieceCode(recorder.Position().At(SquareAt(1, 8))), "WP");
    Declare(Declaration::Check);
    recorder.Promote(PieceKind::Queen);
    recorder.Promote(PieceKind::Knight);
    EXPECT_EQ(recorder.List(White).Entries().back().Text, "bxa8=N+");
    EXPECT_EQ(PieceCode(recorder.Position().At(SquareAt(1, 8))), "WN");
    EXPECT_EQ(recorder.PendingText(), "5. bxa8=N+ ");
    Declare(Declaration::Mate);
    recorder.Promote(PieceKind::Rook);
    EXPECT_TRUE(recorder.RunningText().ends_with("5. bxa8=R# 1-0"));
    Play("h4h3");
    EXPECT_FALSE(recorder.AwaitsPromotion());
}

TEST_F(RecorderTest, TextStaysThatOfTheListsBehindADeletion) {
    Play("e2e4 e7e5 g1f3");
    recorder.DeleteLast(White);
    Play("d7d6 b1c3");
    EXPECT_EQ(Lists(), "1. e4|2. Nc3 / e5|d6");
    EXPECT_EQ(Text(), "1. e4 e5 2. Nc3 <d6 >");

    recorder.Reset();
    Play("e2e7 h7h6 e7f8");
    recorder.DeleteLast(White);
    ASSERT_TRUE(recorder.AwaitsPromotion());
    recorder.Promote(PieceKind::Queen);
    EXPECT_EQ(PieceCode(recorder.Position().At(SquareAt(6, 8))), "WQ") << "the board takes the choice all the same";
    EXPECT_EQ(Lists(), "1. exe7 / h6");
}

TEST_F(RecorderTest, EditsAndDeletionsReachTheText) {
    Play("e2e4 e7e5 g1f3");
    recorder.Edit(Black, 0, "0-0");
    EXPECT_EQ(Lists(), "1. e4|2. Nf3 / O-O");
    EXPECT_EQ(Text(), "1. e4 O-O <2. Nf3 >");
    recorder.Edit(Black, 0, "");
    EXPECT_EQ(Text(), "1. e4 " + Waiting + " <2. Nf3 >");
    recorder.Edit(White, 0, "1-0");
    EXPECT_EQ(Lists(), "1. 1-0|2. Nf3 / 1. " + Waiting) << "not the last entry: a text like any other";
    recorder.Edit(White, 1, "1/2-1/2");
    EXPECT_TRUE(recorder.HasResult());
    EXPECT_EQ(recorder.SideToMove(), Black) << "a result is nobody's move";
    recorder.Edit(White, 1, "nc3");
    EXPECT_EQ(Lists(), "1. 1-0|2. Nc3 / 1. " + Waiting);
    recorder.Edit(Black, 0, "c5");
    EXPECT_EQ(recorder.SideToMove(), White) << "a waiting line of the side to move was its move";
    recorder.DeleteLast(White);
    EXPECT_EQ(Text(), "1. 1-0 <c5 >");
    EXPECT_EQ(PieceCode(recorder.Position().At(SquareAt(6, 3))), "WN") << "the board keeps no history";
    recorder.DeleteLast(White);
    EXPECT_EQ(Text(), "<1... c5 >");
    recorder.DeleteLast(White);
    EXPECT_EQ(Lists(), " / c5");
}
