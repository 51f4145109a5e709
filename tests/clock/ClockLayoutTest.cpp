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
                                  panel.Period, panel.PeriodTime, panel.Bonus, panel.BonusTime, panel.Stage},
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
    EXPECT_EQ(
        Places(DesignWidth, DesignHeight),
        "104:34 228x53, 390:45 123x30, 39:97 486x206, 359:47 26x26, 9:9 546x15, 9:456 546x15, 39:31 59x59, 39:313 "
        "78x79, 117:313 267x79, 394:313 131x79, 39:397 131x26, 170:397 52x26, 222:397 240x26, 462:397 63x26, 222:423 "
        "240x26, 462:423 63x26, 39:423 183x26; 659:34 228x53, 945:45 123x30, 594:97 486x206, 914:47 26x26, 564:9 "
        "546x15, 564:456 546x15, 594:31 59x59, 594:313 78x79, 672:313 267x79, 949:313 131x79, 594:397 131x26, 725:397 "
        "52x26, 777:397 240x26, 1017:397 63x26, 777:423 240x26, 1017:423 63x26, 594:423 183x26 33 24 40 22 20");
    EXPECT_EQ(
        Places(300, 690),
        "55:15 113x31, 204:21 73x18, 16:54 268x141, 185:22 16x16, 4:4 292x8, 4:335 292x8, 16:13 35x35, 16:204 43x71, "
        "59:204 146x71, 212:204 72x71, 16:282 85x17, 101:282 34x17, 16:299 227x17, 243:299 41x17, 16:316 227x17, "
        "243:316 41x17, 135:282 149x17; 55:358 113x31, 204:364 73x18, 16:397 268x141, 185:365 16x16, 4:347 292x8, "
        "4:678 292x8, 16:356 35x35, 16:547 43x71, 59:547 146x71, 212:547 72x71, 16:625 85x17, 101:625 34x17, 16:642 "
        "227x17, 243:642 41x17, 16:659 227x17, 243:659 41x17, 135:625 149x17 19 14 36 12 13");
}
