#include "platform/DialogFit.h"

#include <gtest/gtest.h>

#include <string>

// How the setup dialog, the file dialog and the about box come out at each scaling of a screen: in percent of their
// size there, with the directions in which they scroll.
TEST(DialogFitTest, DialogsAreNeverLargerThanTheWorkArea) {
    const struct {
        Extent Screen;
        const char* Fits;
    } rows[] = {{{800, 600}, "100 100 100 80| 100 85 80-| 85 80- 80-| 80| 80- 80-| 80-| 80- 80-| 80-| 80-| "},
                {{1024, 600}, "100 100 100 80| 100 100 80| 85 90 80-| 80| 80 80-| 80| 80- 80-| 80-| 80-| "},
                {{1024, 768}, "100 100 100 100 100 100 85 100 90 80-| 95 80 80-| 80 80- 80-| 80-| 80- "},
                {{1280, 800}, "100 100 100 100 100 100 90 100 100 80| 100 100 80| 85 85 80-| 80| 80- "},
                {{1366, 768}, "100 100 100 100 100 100 85 100 100 80| 95 100 80| 80 90 80-| 80| 80- "},
                {{1920, 1080}, "100 100 100 100 100 100 100 100 100 100 100 100 90 100 100 80| 95 100 "},
                {{2560, 1440}, "100 100 100 100 100 100 100 100 100 100 100 100 100 100 100 100 100 100 "},
                {{3840, 2160}, "100 100 100 100 100 100 100 100 100 100 100 100 100 100 100 100 100 100 "}};
    for (const auto& [screen, fits] : rows) {
        std::string text;
        for (const int percent : {100, 125, 150, 175, 200, 250}) {
            const int dpi = 96 * percent / 100, bar = 17 * percent / 100;
            // Beside the taskbar, and without the frame of a window.
            const Extent room{screen.Width - 6, screen.Height - 40 * percent / 100 - 29};
            for (const Extent design : {Extent{752, 524}, Extent{540, 396}, Extent{726, 250}}) {
                const DialogFit fit = FitDialog(design, dpi, room, bar);
                EXPECT_LE(fit.Client.Width, room.Width);
                EXPECT_LE(fit.Client.Height, room.Height);
                // What is not in sight can be scrolled to.
                const int width = fit.Client.Width - (fit.ScrollsDown ? bar : 0);
                const int height = fit.Client.Height - (fit.ScrollsAcross ? bar : 0);
                EXPECT_EQ(fit.ScrollsAcross, width < AtDpi(design.Width, fit.Dpi));
                EXPECT_EQ(fit.ScrollsDown, height < AtDpi(design.Height, fit.Dpi));
                EXPECT_GE(AtDpi(Look::Heading.Height, fit.Dpi) * 96, LeastDialogType * dpi);
                text += std::to_string((fit.Dpi * 100 + dpi - 1) / dpi) + (fit.ScrollsAcross ? "-" : "") +
                        (fit.ScrollsDown ? "|" : "") + " ";
            }
        }
        EXPECT_EQ(text, fits) << screen.Width << "x" << screen.Height;
    }
}
