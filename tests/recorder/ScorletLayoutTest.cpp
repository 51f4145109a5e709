#include "recorder/ScorletLayout.h"

#include <gtest/gtest.h>

#include <vector>

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
        for (size_t i = 0; i < boxes.size(); ++i) {
            const Box& box = boxes[i];
            EXPECT_TRUE(box.width > 0 && box.height > 0) << i;
            EXPECT_TRUE(box.left >= 0 && box.top >= 0 && box.Right() <= width && box.Bottom() <= height) << i;
            for (size_t j = 0; j < i; ++j) {
                const Box& other = boxes[j];
                EXPECT_TRUE(box.Right() <= other.left || other.Right() <= box.left || box.Bottom() <= other.top ||
                            other.Bottom() <= box.top)
                    << i << " and " << j;
            }
        }
        EXPECT_LE(layout.Cell(8, 1).Right(), layout.board.Right());
        EXPECT_LE(layout.slot * 15, layout.board.width);
    }
}
