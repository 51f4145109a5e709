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
        const std::array<Box, 3> marks = panel.TurnMarks();
        text = ExpectApartInside({panel.Name, panel.Blink, panel.Face, marks[0], marks[1], marks[2], panel.Flag,
                                  panel.Hand, panel.ClockButton, panel.PauseButton, panel.MoveNumber, panel.MoveCount,
                                  panel.Period, panel.PeriodTime, panel.Bonus, panel.BonusTime},
                                 panel.Panel) +
               (side == Black ? "" : "; " + text);
    }
    for (const int type : {layout.NameType, layout.BlinkType, layout.ButtonType, layout.PauseType, layout.TextType})
        text += " " + std::to_string(type);
    return text;
}

}  // namespace

// The width of "00:00:00" in the bold type of the faces, for digits of height 1.
constexpr double TextShape = 5.63;

TEST(ClockLayoutTest, NothingOverlapsAndDigitsFillTheirFacesAtAnySize) {
    for (const auto& [width, height] : {std::pair{LeastWidth, LeastHeight},
                                        {300, 520},
                                        {300, 700},
                                        {450, 560},
                                        {900, 1100},
                                        {LeastWidth, 900},
                                        {480, LeastHeight},
                                        {640, 400},
                                        {780, LeastHeight},
                                        {1020, 700},
                                        {1280, 940},
                                        {1920, 1010},
                                        {2240, 960},
                                        {3840, 2060},
                                        {3840, LeastHeight}}) {
        Places(width, height);
        const PanelLayout panel = LayOutClock(width, height).Panels[Black];
        const DigitSize digits = FitDigits(panel.Face.Width, panel.Face.Height, TextShape);
        EXPECT_GE(digits.Height, panel.Face.Height * 0.45) << width << " x " << height;
        EXPECT_GE(digits.Width, panel.Face.Width * 0.9) << width << " x " << height;
        EXPECT_GE(digits.Width, digits.Height * TextShape * 0.6 - 1e-9);
        EXPECT_GE(panel.Frame, panel.Panel.Width * 0.025);
    }
}

TEST(ClockLayoutTest, IsLaidOutAsItWasDrawn) {
    EXPECT_EQ(Places(DesignWidth, DesignHeight),
              "98:34 240x53, 390:45 123x30, 39:97 486x206, 359:47 26x26, 9:9 546x15, 9:456 546x15, 39:34 53x53, 39:313 "
              "78x79, 117:313 267x79, 394:313 131x79, 39:397 131x26, 170:397 52x26, 222:397 240x26, 462:397 63x26, "
              "39:423 423x26, 462:423 63x26; 653:34 240x53, 945:45 123x30, 594:97 486x206, 914:47 26x26, 564:9 546x15, "
              "564:456 546x15, 594:34 53x53, 594:313 78x79, 672:313 267x79, 949:313 131x79, 594:397 131x26, 725:397 "
              "52x26, 777:397 240x26, 1017:397 63x26, 594:423 423x26, 1017:423 63x26 33 24 40 22 20");
    EXPECT_EQ(Places(300, 690),
              "51:17 121x31, 204:23 73x18, 16:58 268x141, 185:24 16x16, 4:4 292x8, 4:335 292x8, 16:17 31x31, 16:212 "
              "43x84, 59:212 146x84, 212:212 72x84, 16:305 72x14, 88:305 29x14, 117:305 132x14, 249:305 35x14, 16:319 "
              "233x14, 249:319 35x14; 51:360 121x31, 204:366 73x18, 16:401 268x141, 185:367 16x16, 4:347 292x8, 4:678 "
              "292x8, 16:360 31x31, 16:555 43x84, 59:555 146x84, 212:555 72x84, 16:648 72x14, 88:648 29x14, 117:648 "
              "132x14, 249:648 35x14, 16:662 233x14, 249:662 35x14 19 14 42 12 11");
}
