#include "clock/ClockLayout.h"

#include "tests/base/Boxes.h"

namespace {

// Where everything is in a window, White's panel before Black's, and the heights of type.
std::string Places(int width, int height) {
    SCOPED_TRACE(testing::Message() << width << " x " << height);
    const ClockLayout layout = LayOutClock(width, height);
    std::string text =
        ExpectApartInside({layout.Panels[White].Panel, layout.Panels[Black].Panel}, {0, 0, width, height});
    for (const Side side : {Black, White}) {
        const PanelLayout& panel = layout.Panels[side];
        text = ExpectApartInside(
                   {panel.Name, panel.Blink, panel.Face, panel.TurnMarks[0], panel.TurnMarks[1], panel.TurnMarks[2],
                    panel.Flag, panel.Hand, panel.ClockButton, panel.PauseButton, panel.MoveNumber, panel.MoveCount,
                    panel.Period, panel.PeriodTime, panel.Bonus, panel.BonusTime},
                   panel.Panel) +
               (side == Black ? "" : "; " + text);
    }
    for (const int type : {layout.NameType, layout.BlinkType, layout.ButtonType, layout.PauseType, layout.TextType})
        text += " " + std::to_string(type);
    return text;
}

}  // namespace

TEST(ClockLayoutTest, NothingOverlapsOrLeavesItsPanelAtAnySize) {
    for (const auto& [width, height] :
         {std::pair{LeastWidth, LeastHeight}, {2240, 960}, {LeastWidth, 900}, {2560, LeastHeight}})
        Places(width, height);
    // As it was drawn.
    EXPECT_EQ(Places(DesignWidth, DesignHeight),
              "68:24 293x42, 371:24 166x42, 30:81 507x196, 30:31 28x28, 30:72 507x9, 30:277 507x9, 30:306 84x84, "
              "124:306 84x84, 218:300 197x96, 425:300 112x96, 30:404 130x26, 160:404 70x26, 240:404 235x26, "
              "475:404 62x26, 240:430 235x26, 475:430 62x26; 621:24 293x42, 924:24 166x42, 583:81 507x196, 583:31 "
              "28x28, 583:72 507x9, 583:277 507x9, 583:306 84x84, 677:306 84x84, 771:300 197x96, 978:300 112x96, "
              "583:404 130x26, 713:404 70x26, 793:404 235x26, 1028:404 62x26, 793:430 235x26, 1028:430 62x26 30 20 "
              "44 18 19");
}
