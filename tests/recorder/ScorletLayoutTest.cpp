#include "recorder/ScorletLayout.h"

#include "tests/base/Boxes.h"
#include "tests/base/Rows.h"

namespace {

// What is shown all the time.
std::vector<Box> ShownOf(const ScorletLayout& layout) {
    return {layout.Board,
            layout.CapturedTitle,
            layout.CapturedRows[White],
            layout.CapturedRows[Black],
            layout.SayLabel,
            layout.Say,
            layout.WhoseMove,
            layout.ListHeads[White],
            layout.Lists[White],
            layout.ListHeads[Black],
            layout.Lists[Black]};
}

std::vector<Box> AllOf(const ScorletLayout& layout) {
    std::vector<Box> all = ShownOf(layout);
    all.insert(all.end(), {layout.Edit, layout.EditOk, layout.PromotionTitle});
    all.insert(all.end(), layout.Promotion.begin(), layout.Promotion.end());
    return all;
}

// "width height dpi": where everything is, then what is over the board and below the lists.
std::string Places(const std::string& window) {
    const std::vector<std::string> words = Words(window);
    const int width = std::stoi(words.at(0)), height = std::stoi(words.at(1)), dpi = std::stoi(words.at(2));
    const ScorletLayout layout = LayOutScorlet(width, height, dpi, false);
    const Box area{0, 0, width, height};
    return ExpectApartInside(AllOf(layout), area) + "; " +
           ExpectApartInside({layout.TypedMove, layout.TypedReason}, area) + "; " +
           ExpectApartInside({layout.Sheet}, area);
}

// "width height dpi": where the lists are, the sides of a square and of a captured piece, the type, and how much of the
// window is empty. The places of what is hidden most of the time count as empty.
std::string Measures(const std::string& window) {
    const std::vector<std::string> words = Words(window);
    const int width = std::stoi(words.at(0)), height = std::stoi(words.at(1)), dpi = std::stoi(words.at(2));
    SCOPED_TRACE(window);
    const ScorletLayout layout = LayOutScorlet(width, height, dpi, false);
    ExpectApartInside(AllOf(layout), {0, 0, width, height});
    ExpectApartInside({layout.Cell(1, 8), layout.Cell(8, 1)}, layout.Board);
    for (Side side : BothSides)
        ExpectApartInside({layout.Captured(side, 0), layout.Captured(side, 14)}, layout.CapturedRows[side]);
    ExpectApartInside({layout.ListHeads[White], layout.Lists[White], layout.ListHeads[Black], layout.Lists[Black]},
                      layout.Sheet);
    EXPECT_GE(2 * layout.Slot, layout.CellSize);
    for (const bool turned : {false, true}) {
        const ScorletLayout board = LayOutScorlet(width, height, dpi, turned);
        for (const Square square : {SquareAt(1, 8), SquareAt(8, 8), SquareAt(5, 2)}) {
            const Box cell = board.Cell(FileOf(square), RankOf(square));
            EXPECT_EQ(board.SquareAt(cell.Left, cell.Top), square) << turned;
            EXPECT_EQ(board.SquareAt(cell.Right() - 1, cell.Bottom() - 1), square) << turned;
        }
        EXPECT_EQ(board.Cell(8, 1).Left < board.Cell(1, 1).Left && board.Cell(8, 1).Top < board.Cell(8, 8).Top, turned);
        for (const int x : {board.Board.Left, board.Board.Right()})
            EXPECT_EQ(board.SquareAt(x, board.Board.Top), NoSquare) << turned;
    }
    int empty = width * height;
    for (const Box& box : ShownOf(layout)) empty -= box.Width * box.Height;
    return std::string(layout.Lists[White].Top > layout.Board.Bottom() ? "below " : "beside ") +
           std::to_string(layout.CellSize) + " " + std::to_string(layout.Slot) + " " + std::to_string(layout.Type) +
           " " + std::to_string(100 * empty / (width * height)) + "%";
}

}  // namespace

TEST(ScorletLayoutTest, IsLaidOutAsItWasDrawn) {
    EXPECT_EQ(
        Places("720 590 96"),
        "8:8 474x474, 26:490 456x18, 26:508 456x30, 26:538 456x30, 490:8 70x24, 564:8 148x24, 490:36 222x46, 495:87 "
        "105x18, 491:105 109x376, 606:87 105x18, 602:105 109x376, 490:486 158x24, 652:486 60x24, 490:514 222x18, "
        "490:532 36x36, 530:532 36x36, 570:532 36x36, 610:532 36x36; 26:8 228x24, 26:32 456x32; 490:86 222x396");
    EXPECT_EQ(
        Places("360 730 96"),
        "11:8 338x338, 29:354 320x18, 29:372 320x21, 29:393 320x21, 8:422 70x24, 82:422 270x24, 8:450 344x34, 13:489 "
        "166x18, 9:507 170x156, 185:489 166x18, 181:507 170x156, 8:698 104x24, 116:698 60x24, 184:668 168x18, 184:686 "
        "36x36, 224:686 36x36, 264:686 36x36, 304:686 36x36; 29:8 160x24, 29:32 320x32; 8:488 344x176");
    EXPECT_EQ(
        Places("304 384 96"),
        "61:6 182x182, 75:194 168x14, 75:208 168x11, 75:219 168x11, 6:236 53x18, 62:236 236x18, 6:257 292x26, 10:287 "
        "141x14, 7:301 144x41, 156:287 141x14, 153:301 144x41, 6:360 95x18, 104:360 45x18, 155:346 143x14, 155:360 "
        "18x18, 176:360 18x18, 197:360 18x18, 218:360 18x18; 73:6 112x18, 73:24 225x24; 6:286 292x57");
}

TEST(ScorletLayoutTest, TheBoardTakesTheRoomInEitherForm) {
    ExpectRows(Measures, R"(
        As it was drawn, larger, and at other resolutions.
        720 590 96 => beside 57 30 13 14% | 1080 885 144 => beside 86 45 20 14% | 1440 1180 192 => beside 115 61 26 13%
        1440 1180 96 => beside 115 61 26 13% | 1600 1000 96 => beside 99 52 22 14% | 640 730 96 => beside 47 25 13 32%
        Low, narrow and small, down to the least, where all but the board shrinks.
        1600 420 96 => beside 40 21 12 22% | 500 730 96 => below 48 25 13 27% | 360 730 96 => below 40 21 13 19%
        360 1200 96 => below 40 21 13 13% | 400 720 96 => below 45 24 13 18% | 351 433 96 => below 26 13 10 39%
        304 384 96 => below 21 11 10 41% | 456 576 144 => below 32 17 15 41% | 608 768 192 => below 43 22 20 41%
        640 384 96 => beside 36 19 11 19% | 720 840 192 => below 51 27 20 41% | 1500 384 96 => beside 36 19 11 22%
    )");
}
