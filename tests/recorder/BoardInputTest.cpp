#include "recorder/BoardInput.h"
#include "recorder/TypedMove.h"

#include <gtest/gtest.h>

class BoardInputTest : public testing::Test {
  protected:
    Recorder recorder;
    BoardInput input{recorder};
};

TEST_F(BoardInputTest, CursorStaysOnTheBoardAndResetsWithTheRecord) {
    input.MoveCursor(7, -5);
    EXPECT_EQ(input.Cursor(), SquareAt(8, 1));
    EXPECT_FALSE(input.Enter());
    EXPECT_TRUE(input.PiecePicked());
    input.Reset();
    EXPECT_FALSE(input.PiecePicked());
    EXPECT_EQ(input.Cursor(), SquareAt(5, 2));
}

TEST_F(BoardInputTest, CapturedPieceIsPutBackOnEmptySquaresOnly) {
    recorder.Play(SquareAt(5, 2), SquareAt(5, 7));
    const Piece pawn = PieceOf(Black, PieceKind::Pawn);
    input.ClickCaptured(pawn, 1);
    EXPECT_FALSE(input.PiecePicked()) << "not shown";
    input.ClickCaptured(pawn, 0);
    EXPECT_TRUE(input.IsPicked(pawn, 0));
    input.Click(SquareAt(4, 2));  // a piece: that one is picked instead
    EXPECT_EQ(input.Origin(), SquareAt(4, 2));
    input.ClickCaptured(pawn, 0);
    EXPECT_FALSE(input.Click(SquareAt(5, 5)));
    EXPECT_EQ(recorder.Position().At(SquareAt(5, 5)), pawn);
    EXPECT_FALSE(recorder.Position().CapturedShown(pawn, 0));
    EXPECT_EQ(recorder.SideToMove(), Black) << "no move";
}

TEST_F(BoardInputTest, CapturedPiecesArePickedInTurn) {
    input.PickNextCaptured();
    EXPECT_FALSE(input.PiecePicked()) << "none is captured";
    const Piece queen = PieceOf(White, PieceKind::Queen), pawn = PieceOf(Black, PieceKind::Pawn);
    recorder.Play(SquareAt(5, 2), SquareAt(5, 7));
    recorder.Play(SquareAt(4, 2), SquareAt(4, 7));
    recorder.Play(SquareAt(5, 8), SquareAt(4, 1));
    for (const TraySlot& slot : {TraySlot{queen, 0}, TraySlot{pawn, 0}, TraySlot{pawn, 1}}) {
        input.PickNextCaptured();
        EXPECT_EQ(input.Captured(), slot);
    }
    input.PickNextCaptured();
    EXPECT_FALSE(input.PiecePicked());
}

TEST(TypedMoveTest, KeysAndChanges) {
    TypedMove typed;
    for (wchar_t key : std::wstring(L"aHqN19ox=p+#?!-\b"))
        EXPECT_TRUE(typed.TakesKey(key, L"")) << static_cast<int>(key);
    for (wchar_t key : std::wstring(L"0kK Pi*\u00E9")) EXPECT_FALSE(typed.TakesKey(key, L"")) << static_cast<int>(key);
    EXPECT_FALSE(typed.TakesKey(L'a', std::wstring(199, L'a')));
    EXPECT_TRUE(typed.TakesKey(L'\b', std::wstring(199, L'a')));

    EXPECT_EQ(typed.Changed(L"axb8=Q+!"), L"axb8=Q+!");
    EXPECT_EQ(typed.Changed(L"axb8=Q+!?"), L"axb8=Q+!") << "too long";
    EXPECT_EQ(typed.Changed(L"Nf3 e5"), L"") << "a blank empties it";
}
