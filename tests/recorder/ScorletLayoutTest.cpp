#include "recorder/ScorletLayout.h"

#include "tests/base/Boxes.h"

TEST(ScorletLayoutTest, NothingOverlapsOrLeavesTheWindowAtAnySize) {
    const std::array<int, 3> sizes[] = {{ScorletWidth, ScorletHeight, 96},
                                        {ScorletLeastWidth, ScorletLeastHeight, 96},
                                        {ScorletWidth * 2, ScorletHeight * 2, 192},
                                        {1600, ScorletLeastHeight, 96},
                                        {ScorletLeastWidth, 1200, 96}};
    for (const auto& [width, height, dpi] : sizes) {
        SCOPED_TRACE(testing::Message() << width << " x " << height << ", " << dpi << " dpi");
        const ScorletLayout layout = LayOutScorlet(width, height, dpi);
        std::vector<Box> boxes{layout.Board, layout.CapturedTitle, layout.SayLabel,      layout.Say,
                               layout.Edit,  layout.EditOk,        layout.PromotionTitle};
        for (const auto* pair : {&layout.CapturedRows, &layout.Lists})
            boxes.insert(boxes.end(), pair->begin(), pair->end());
        boxes.insert(boxes.end(), layout.Promotion.begin(), layout.Promotion.end());
        ExpectApartInside(boxes, {0, 0, width, height});
        EXPECT_LE(layout.Cell(8, 1).Right(), layout.Board.Right());
        EXPECT_LE(layout.Slot * 15, layout.Board.Width);
    }
}
