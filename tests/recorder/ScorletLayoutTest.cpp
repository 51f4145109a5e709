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
        std::vector<Box> boxes{layout.board, layout.capturedTitle, layout.sayLabel,      layout.say,
                               layout.edit,  layout.editOk,        layout.promotionTitle};
        for (const auto* pair : {&layout.capturedRows, &layout.lists})
            boxes.insert(boxes.end(), pair->begin(), pair->end());
        boxes.insert(boxes.end(), layout.promotion.begin(), layout.promotion.end());
        ExpectApartInside(boxes, {0, 0, width, height});
        EXPECT_LE(layout.Cell(8, 1).Right(), layout.board.Right());
        EXPECT_LE(layout.slot * 15, layout.board.width);
    }
}
