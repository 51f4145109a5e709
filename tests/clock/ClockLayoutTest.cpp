#include "clock/ClockLayout.h"

#include "tests/base/Boxes.h"

TEST(ClockLayoutTest, NothingOverlapsOrLeavesItsPanelAtAnySize) {
    const std::array<int, 2> sizes[] = {
        {LeastWidth, LeastHeight}, {DesignWidth, DesignHeight}, {2240, 960}, {LeastWidth, 900}, {2560, 340}};
    for (const auto& [width, height] : sizes) {
        SCOPED_TRACE(testing::Message() << width << " x " << height);
        const ClockLayout layout = LayOutClock(width, height);
        ExpectApartInside({layout.Panels[White].Panel, layout.Panels[Black].Panel}, {0, 0, width, height});
        for (const PanelLayout& panel : layout.Panels) {
            ExpectApartInside(
                {panel.Name, panel.Blink, panel.Face, panel.TurnMarks[0], panel.TurnMarks[1], panel.TurnMarks[2],
                 panel.Flag, panel.Hand, panel.ClockButton, panel.PauseButton, panel.MoveNumber, panel.MoveCount,
                 panel.Period, panel.PeriodTime, panel.Bonus, panel.BonusTime},
                panel.Panel);
        }
    }
}
