#include "platform/DialogFit.h"

#include "platform/DialogSizes.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// In percent of the size that the dialog has at that resolution, with the directions in which it scrolls.
std::string TextOf(const DialogFit& fit, int dpi) {
    return std::to_string((fit.Dpi * 100 + dpi - 1) / dpi) + (fit.ScrollsAcross ? "-" : "") +
           (fit.ScrollsDown ? "|" : "");
}

}  // namespace

// How the setup dialog, the file dialog and the about box come out at each scaling of a screen.
TEST(DialogFitTest, DialogsAreNeverLargerThanTheWorkArea) {
    const struct {
        Extent Screen;
        const char* Fits;
    } rows[] = {{{800, 600}, "95 100 100 80| 80 85 80-| 80- 80- 80-| 80-| 80- 80-| 80-| 80- 80-| 80-| 80-| "},
                {{1024, 600}, "95 100 100 80| 100 100 80| 85 90 80-| 80-| 80 80-| 80-| 80- 80-| 80-| 80-| "},
                {{1024, 768}, "100 100 100 95 100 100 80 85 90 80-| 80- 80 80-| 80-| 80- 80-| 80-| 80- "},
                {{1280, 800}, "100 100 100 100 100 100 85 100 100 80| 95 100 80| 80 85 80-| 80-| 80- "},
                {{1366, 768}, "100 100 100 95 100 100 80 100 100 80| 95 100 80| 80 90 80-| 80-| 80- "},
                {{1920, 1080}, "100 100 100 100 100 100 100 100 100 100 100 100 85 100 100 80| 95 100 "},
                {{2560, 1440}, "100 100 100 100 100 100 100 100 100 100 100 100 100 100 100 95 100 100 "},
                {{3840, 2160}, "100 100 100 100 100 100 100 100 100 100 100 100 100 100 100 100 100 100 "}};
    for (const auto& [screen, fits] : rows) {
        std::string text;
        for (const int percent : {100, 125, 150, 175, 200, 250}) {
            const int dpi = 96 * percent / 100, bar = 17 * percent / 100;
            // Beside the taskbar, and without the frame of a window.
            const Extent room{screen.Width - 6, screen.Height - 40 * percent / 100 - 29};
            for (const Extent design : {DialogSize::Setup, DialogSize::Files, DialogSize::About}) {
                const DialogFit fit = FitDialog(design, dpi, room, bar);
                EXPECT_LE(fit.Client.Width, room.Width);
                EXPECT_LE(fit.Client.Height, room.Height);
                // What is not in sight can be scrolled to.
                const int width = fit.Client.Width - (fit.ScrollsDown ? bar : 0);
                const int height = fit.Client.Height - (fit.ScrollsAcross ? bar : 0);
                EXPECT_EQ(fit.ScrollsAcross, width < AtDpi(design.Width, fit.Dpi));
                EXPECT_EQ(fit.ScrollsDown, height < AtDpi(design.Height, fit.Dpi));
                EXPECT_GE(AtDpi(Look::Heading.Height, fit.Dpi) * 96, LeastDialogType * dpi);
                text += TextOf(fit, dpi) + " ";
            }
        }
        EXPECT_EQ(text, fits) << screen.Width << "x" << screen.Height;
    }
}

// A bar that takes the room of the other direction makes the other bar needed, and not a pixel before.
TEST(DialogFitTest, OneBarMayNeedTheOther) {
    constexpr int dpi = 96, bar = 17, least = dpi * LeastFit / 100;
    const Extent smallest{AtDpi(DialogSize::Setup.Width, least), AtDpi(DialogSize::Setup.Height, least)};
    const struct {
        int MoreWidth, MoreHeight;
        const char* Fits;
    } rows[] = {{0, 0, "80"},     {bar, -1, "80|"},      {bar - 1, -1, "80-|"}, {0, -1, "80-|"},
                {-1, bar, "80-"}, {-1, bar - 1, "80-|"}, {-1, 0, "80-|"}};
    for (const auto& [width, height, fits] : rows) {
        const Extent room{smallest.Width + width, smallest.Height + height};
        EXPECT_EQ(TextOf(FitDialog(DialogSize::Setup, dpi, room, bar), dpi), fits) << width << " " << height;
    }
}
