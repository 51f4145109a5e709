#include "clock/ClockLayout.h"

#include "tests/base/Boxes.h"
#include "tests/base/Rows.h"

#include <cmath>

namespace {

// Where everything is in a window, White's panel before Black's, the heights of type and the radii of corners.
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
    for (const int type : {layout.NameType, layout.BlinkType, layout.ButtonType, layout.PauseType, layout.TextType,
                           layout.CardCorner, layout.FaceCorner, layout.KeyCorner})
        text += " " + std::to_string(type);
    return text;
}

// The width of "00:00:00" in the bold type of the faces, for digits of height 1.
constexpr double TextShape = 5.63;

// The rows of texts in a window, the heights of type, the face, its digits and the key with its hand.
std::string Measures(const std::string& window) {
    const std::vector<std::string> words = Words(window);
    const ClockLayout layout = LayOutClock(std::stoi(words.at(0)), std::stoi(words.at(1)));
    const PanelLayout& panel = layout.Panels[Black];
    const DigitSize digits = FitDigits(panel.Face.Width, panel.Face.Height, TextShape);
    std::ostringstream text;
    text << (panel.Bonus.Bottom() - panel.MoveNumber.Top) / panel.Bonus.Height << " rows, " << layout.NameType << ' '
         << layout.BlinkType << ' ' << layout.ButtonType << ' ' << layout.PauseType << ' ' << layout.TextType
         << ", face " << panel.Face.Top << ' ' << panel.Face.Width << 'x' << panel.Face.Height << " of "
         << std::lround(digits.Width) << 'x' << std::lround(digits.Height) << ", key " << panel.Key.Top << ' '
         << panel.Key.Width << 'x' << panel.Key.Height << ' ' << panel.Hand.Width;
    return text.str();
}

}  // namespace

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
        "104:34 220x53, 385:45 128x30, 39:97 486x206, 351:47 26x26, 9:9 546x15, 9:456 546x15, 39:31 59x59, 39:313 "
        "78x79, 117:313 267x79, 394:313 131x79, 39:397 131x26, 170:397 52x26, 222:397 240x26, 462:397 63x26, 222:423 "
        "240x26, 462:423 63x26, 39:423 183x26; 659:34 220x53, 940:45 128x30, 594:97 486x206, 906:47 26x26, 564:9 "
        "546x15, 564:456 546x15, 594:31 59x59, 594:313 78x79, 672:313 267x79, 949:313 131x79, 594:397 131x26, 725:397 "
        "52x26, 777:397 240x26, 1017:397 63x26, 777:423 240x26, 1017:423 63x26, 594:423 183x26 33 24 40 22 20 15 8 10");
    EXPECT_EQ(
        Places(300, 690),
        "55:15 108x31, 201:21 76x18, 16:54 268x141, 180:22 16x16, 4:4 292x8, 4:335 292x8, 16:13 35x35, 16:204 43x71, "
        "59:204 146x71, 212:204 72x71, 16:282 85x17, 101:282 34x17, 16:299 227x17, 243:299 41x17, 16:316 227x17, "
        "243:316 41x17, 135:282 149x17; 55:358 108x31, 201:364 76x18, 16:397 268x141, 180:365 16x16, 4:347 292x8, "
        "4:678 292x8, 16:356 35x35, 16:547 43x71, 59:547 146x71, 212:547 72x71, 16:625 85x17, 101:625 34x17, 16:642 "
        "227x17, 243:642 41x17, 16:659 227x17, 243:659 41x17, 135:625 149x17 19 14 36 12 13 8 4 5");
}

TEST(ClockLayoutTest, WhatGrowsWithTheWindow) {
    ExpectRows(Measures, R"(
        A panel that is narrow for its height has a row more.
        927 518 => 2 rows, 29 21 58 18 16, face 94 398x209 of 370x110, key 320 280x115 64
        925 518 => 3 rows, 29 21 48 18 19, face 90 397x209 of 369x109, key 312 279x95 64
        Low, small, high and large.
        780 372 => 2 rows, 25 18 31 15 13, face 73 335x169 of 312x92, key 250 237x61 54
        300 372 => 2 rows, 13 11 16 11 11, face 223 268x70 of 249x45, key 297 192x31 31
        300 900 => 3 rows, 19 14 68 12 13, face 516 268x141 of 249x74, key 680 186x136 43
        480 372 => 3 rows, 15 11 57 9 10, face 60 205x108 of 191x56, key 187 142x113 33
        900 1100 => 2 rows, 39 33 45 32 33, face 664 802x199 of 746x132, key 875 573x90 90
        3840 2060 => 2 rows, 122 88 208 76 68, face 380 1656x872 of 1540x456, key 1313 1165x416 265
    )");
}
