#include "recorder/ScorletLayout.h"

#include "tests/base/Boxes.h"

namespace {

// Where everything is in a window: the corners of the board, all parts, and single lengths.
std::string Places(int width, int height, int dpi) {
    SCOPED_TRACE(testing::Message() << width << " x " << height << ", " << dpi << " dpi");
    const ScorletLayout layout = LayOutScorlet(width, height, dpi);
    const auto& [queen, rook, bishop, knight] = layout.Promotion;
    EXPECT_LE(layout.Slot * 15, layout.Board.Width);
    return ExpectApartInside({layout.Cell(1, 8), layout.Cell(8, 1)}, layout.Board) + "; " +
           ExpectApartInside(
               {layout.Board, layout.CapturedTitle, layout.CapturedRows[White], layout.CapturedRows[Black],
                layout.SayLabel, layout.Say, layout.WhoseMove, layout.Lists[White], layout.Lists[Black], layout.Edit,
                layout.EditOk, layout.PromotionTitle, queen, rook, bishop, knight},
               {0, 0, width, height}) +
           "; " + std::to_string(layout.Edge) + " " + std::to_string(layout.Slot) + " " +
           std::to_string(layout.CoordinateType);
}

}  // namespace

TEST(ScorletLayoutTest, NothingOverlapsOrLeavesTheWindowAtAnySize) {
    Places(ScorletLeastWidth, ScorletLeastHeight, 96);
    Places(1600, ScorletLeastHeight, 96);
    const std::string narrow = Places(ScorletLeastWidth, 1200, 96);
    EXPECT_TRUE(narrow.starts_with("28:10 29x29") && narrow.ends_with(" 45x45; 18 16 12")) << narrow;
    Places(ScorletWidth * 2, ScorletHeight * 2, 192);
    // As it was drawn.
    EXPECT_EQ(
        Places(ScorletWidth, ScorletHeight, 96),
        "28:10 57x57, 427:409 57x57; 10:10 474x474, 10:494 474x20, 10:514 474x26, 10:540 474x26, 494:10 "
        "70x24, 568:10 142x24, 494:40 216x32, 494:76 105x400, 605:76 105x400, 494:482 146x24, 646:482 64x24, 494:512 "
        "216x20, 494:532 48x48, 548:532 48x48, 602:532 48x48, 656:532 48x48; 18 26 12");
}
