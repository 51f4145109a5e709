#include "recorder/BoardInput.h"
#include "recorder/TypedMove.h"

#include <gtest/gtest.h>

TEST(BoardInputTest, CursorStaysOnTheBoardAndResetsWithTheRecord) {
    Recorder recorder;
    BoardInput input(recorder);
    input.MoveCursor(7, -5);
    EXPECT_EQ(input.Cursor(), SquareAt(8, 1));
    EXPECT_FALSE(input.Enter());
    EXPECT_TRUE(input.PiecePicked());
    input.Reset();
    EXPECT_FALSE(input.PiecePicked());
    EXPECT_EQ(input.Cursor(), SquareAt(5, 2));
}

TEST(BoardInputTest, CapturedPieceIsPutBackOnEmptySquaresOnly) {
    Recorder recorder;
    BoardInput input(recorder);
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

TEST(BoardInputTest, CapturedPiecesArePickedInTurn) {
    Recorder recorder;
    BoardInput input(recorder);
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
    for (wchar_t key :
         {L'a', L'H', L'q', L'N', L'1', L'9', L'o', L'x', L'=', L'p', L'+', L'#', L'?', L'!', L'-', L'\b'})
        EXPECT_TRUE(typed.TakesKey(key, L"")) << static_cast<int>(key);
    for (wchar_t key : {L'0', L'k', L'K', L' ', L'P', L'i', L'*', L'\u00E9'})
        EXPECT_FALSE(typed.TakesKey(key, L"")) << static_cast<int>(key);
    EXPECT_FALSE(typed.TakesKey(L'a', std::wstring(199, L'a')));
    EXPECT_TRUE(typed.TakesKey(L'\b', std::wstring(199, L'a')));

    EXPECT_EQ(typed.Changed(L"axb8=Q+!"), L"axb8=Q+!");
    EXPECT_EQ(typed.Changed(L"axb8=Q+!?"), L"axb8=Q+!") << "too long";
    EXPECT_EQ(typed.Changed(L"Nf3 e5"), L"") << "a blank empties it";
}
