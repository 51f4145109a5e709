#include "clock/ClockLayout.h"

#include "tests/base/Boxes.h"

TEST(ClockLayoutTest, NothingOverlapsOrLeavesItsPanelAtAnySize) {
    const std::array<int, 2> sizes[] = {
        {LeastWidth, LeastHeight}, {DesignWidth, DesignHeight}, {2240, 960}, {LeastWidth, 900}, {2560, 340}};
    for (const auto& [width, height] : sizes) {
        SCOPED_TRACE(testing::Message() << width << " x " << height);
        const ClockLayout layout = LayOutClock(width, height);
        ExpectApartInside({layout.panels[White].panel, layout.panels[Black].panel}, {0, 0, width, height});
        for (const PanelLayout& panel : layout.panels) {
            ExpectApartInside(
                {panel.side, panel.blink, panel.face, panel.turnMarks[0], panel.turnMarks[1], panel.turnMarks[2],
                 panel.flag, panel.hand, panel.clockButton, panel.pauseButton, panel.moveNumber, panel.moveCount,
                 panel.period, panel.periodTime, panel.bonus, panel.bonusTime},
                panel.panel);
        }
    }
}
