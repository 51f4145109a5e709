#include "app/KeptPlaces.h"
#include "clock/ClockLayout.h"
#include "recorder/ScorletLayout.h"
#include "tests/base/Boxes.h"
#include "tests/base/Rows.h"

namespace {

// A screen at a scaling in percent, with the frames and the task bar of Windows.
Screen ScreenOf(int width, int height, int percent) {
    const auto scaled = [&](int length) { return length * percent / 100; };
    return {{0, 0, width, height - scaled(48)}, 96 * percent / 100, {scaled(16), scaled(59)}, {scaled(16), scaled(39)}};
}

std::string TextOf(const Box& box) {
    std::ostringstream text;
    text << box.Left << ":" << box.Top << " " << box.Width << "x" << box.Height;
    return text.str();
}

// "1366 768 100" => the clock alone; then both when the Scorlet opens beside it, or beside a clock that is told after
// the screen: "1366 768 100 0 0 800 500".
std::string Places(const std::string& text) {
    std::istringstream words(text);
    int width, height, percent;
    words >> width >> height >> percent;
    const Screen screen = ScreenOf(width, height, percent);
    Box clock = PlaceClock(screen);
    words >> clock.Left >> clock.Top >> clock.Width >> clock.Height;
    const WindowPlaces both = PlaceBoth(screen, clock);
    return TextOf(clock) + "; " + TextOf(both.Clock) + ", " + TextOf(both.Scorlet);
}

}  // namespace

TEST(WindowPlacesTest, NeitherWindowCoversTheOtherOnAnyScreenThatHasRoom) {
    int roomy = 0;
    for (const auto& [width, height] : {std::pair{800, 600},
                                        {1024, 600},
                                        {1024, 768},
                                        {1280, 800},
                                        {1366, 768},
                                        {1920, 1080},
                                        {2560, 1440},
                                        {3840, 2160}}) {
        for (const int percent : {100, 125, 150, 175, 200, 250}) {
            SCOPED_TRACE(testing::Message() << width << " x " << height << " at " << percent << " %");
            const Screen screen = ScreenOf(width, height, percent);
            const Box clock = PlaceClock(screen);
            ExpectApartInside({clock}, screen.WorkArea);
            const WindowPlaces both = PlaceBoth(screen, clock);
            if (width * 100 < 640 * percent || height * 100 < 480 * percent) {
                ExpectApartInside({both.Clock}, screen.WorkArea);
                ExpectApartInside({both.Scorlet}, screen.WorkArea);
                continue;
            }
            ++roomy;
            ExpectApartInside({both.Clock, both.Scorlet}, screen.WorkArea);
            EXPECT_TRUE(BothInSight(both, screen.WorkArea, screen.WorkArea));
            EXPECT_GE(both.Clock.Width, LeastWidth * percent / 100 + screen.ClockFrame.Width);
            EXPECT_GE(both.Clock.Height, LeastHeight * percent / 100 + screen.ClockFrame.Height);
            EXPECT_GE(both.Scorlet.Width, ScorletLeastWidth * percent / 100 + screen.ScorletFrame.Width);
            EXPECT_GE(both.Scorlet.Height, ScorletLeastHeight * percent / 100 + screen.ScorletFrame.Height);
        }
    }
    EXPECT_EQ(roomy, 30);
}

TEST(WindowPlacesTest, TheClockMakesRoom) {
    ExpectRows(Places, R"(
        With room at its right it stays, with too little it moves to the left, with none it becomes narrower.
        The Scorlet takes up to half the width of a large screen.
        3840 2160 100 100 50 1136 539 => 100:50 1136x539; 100:50 1136x539, 1236:50 1914x1594
        3840 2160 100 => 1352:786 1136x539; 790:786 1136x539, 1926:518 1914x1594
        1920 1080 100 => 392:246 1136x539; 0:0 966x1032, 966:0 954x807
        1366 768 100 => 115:90 1136x539; 0:0 630x720, 630:0 736x629
        1024 768 100 => 0:90 1024x539; 0:0 316x720, 316:0 708x720
        1366 768 100 100 50 500 460 => 100:50 500x460; 100:50 500x460, 600:50 736x629
        1366 768 100 -50 900 500 460 => -50:900 500x460; 0:260 500x460, 500:91 736x629
        1920 1080 100 0 0 1920 1032 => 0:0 1920x1032; 0:0 966x1032, 966:0 954x807
    )");
}

TEST(WindowPlacesTest, BothAreInSightWhenTheyAreApartAndInside) {
    const Box area{10, 20, 100, 80};
    for (const auto& [clock, scorlet, sight] : {std::tuple{Box{10, 20, 50, 80}, Box{60, 20, 50, 80}, true},
                                                {Box{60, 20, 50, 80}, Box{10, 20, 50, 80}, true},
                                                {Box{10, 20, 100, 40}, Box{10, 60, 100, 40}, true},
                                                {Box{10, 60, 100, 40}, Box{10, 20, 100, 40}, true},
                                                {Box{10, 20, 51, 80}, Box{60, 20, 50, 80}, false},
                                                {Box{9, 20, 50, 80}, Box{60, 20, 50, 80}, false},
                                                {Box{10, 19, 50, 80}, Box{60, 20, 50, 80}, false},
                                                {Box{10, 20, 50, 80}, Box{60, 20, 51, 80}, false},
                                                {Box{10, 20, 50, 80}, Box{60, 20, 50, 81}, false}})
        EXPECT_EQ(BothInSight({clock, scorlet}, area, area), sight) << TextOf(clock) << ", " << TextOf(scorlet);
}

TEST(WindowPlacesTest, PlacesAreReadAsTheyWereWrittenAndDamagedOnesNotAtAll) {
    const std::string alone = "dpi 120\r\nclock -5 6 700 400\r\n";
    const std::string both = "beside 0 0 300 600\r\nscorlet 300 0 724 600\r\n";
    for (const std::string& text : {alone, alone + "maximised\r\n", alone + both, alone + "maximised\r\n" + both}) {
        const auto places = ReadPlaces(text);
        ASSERT_TRUE(places) << text;
        EXPECT_EQ(WritePlaces(*places), text);
    }
    for (const char* one : {"beside 0 0 300 600", "scorlet 300 0 724 600"})
        EXPECT_EQ(WritePlaces(ReadPlaces(alone + one).value()), alone) << "one of two windows has no place beside";
    for (const std::string& text : std::initializer_list<std::string>{
             "", both, "clock 1 2 3", "clock 1 2 0 400", "clock 1 2 700 -1", "clock 1 2 700 1000001",
             "dpi x\nclock 1 2 700 400", alone + "scorlet 1 2 3", alone + "colour 3", "clock 99999999999 2 3 4"})
        EXPECT_FALSE(ReadPlaces(text)) << text;
}
