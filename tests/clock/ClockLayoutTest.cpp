#include "clock/ClockLayout.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

bool Inside(const Box& inner, const Box& outer) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.Right() <= outer.Right() &&
           inner.Bottom() <= outer.Bottom();
}

bool Apart(const Box& one, const Box& other) {
    return one.Right() <= other.left || other.Right() <= one.left || one.Bottom() <= other.top ||
           other.Bottom() <= one.top;
}

}  // namespace

TEST(ClockLayoutTest, NothingOverlapsOrLeavesItsPanelAtAnySize) {
    const std::array<int, 2> sizes[] = {{LeastWidth, LeastHeight},
                                        {DesignWidth, DesignHeight},
                                        {1680, 720},
                                        {2240, 960},
                                        {LeastWidth, 900},
                                        {2560, 340}};
    for (const auto& [width, height] : sizes) {
        SCOPED_TRACE(testing::Message() << width << " x " << height);
        const ClockLayout layout = LayOutClock(width, height);
        EXPECT_TRUE(Apart(layout.panels[White].panel, layout.panels[Black].panel));
        for (const PanelLayout& panel : layout.panels) {
            EXPECT_TRUE(Inside(panel.panel, {0, 0, width, height}));
            const std::vector<Box> boxes{panel.side,         panel.blink,        panel.face,       panel.turnMarks[0],
                                         panel.turnMarks[1], panel.turnMarks[2], panel.flag,       panel.hand,
                                         panel.clockButton,  panel.pauseButton,  panel.moveNumber, panel.moveCount,
                                         panel.period,       panel.periodTime,   panel.bonus,      panel.bonusTime};
            for (size_t i = 0; i < boxes.size(); ++i) {
                EXPECT_TRUE(Inside(boxes[i], panel.panel)) << "box " << i;
                EXPECT_TRUE(boxes[i].width > 0 && boxes[i].height > 0) << "box " << i;
                for (size_t j = 0; j < i; ++j) EXPECT_TRUE(Apart(boxes[i], boxes[j])) << i << " and " << j;
            }
        }
    }
}
