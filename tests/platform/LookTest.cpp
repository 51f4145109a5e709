#include "platform/Look.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

double Luminance(uint32_t colour) {
    const auto linear = [&](int shift) {
        const double part = (colour >> shift & 0xFF) / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(16) + 0.7152 * linear(8) + 0.0722 * linear(0);
}

double Contrast(uint32_t one, uint32_t other) {
    const auto [dark, bright] = std::minmax({Luminance(one), Luminance(other)});
    return (bright + 0.05) / (dark + 0.05);
}

}  // namespace

TEST(LookTest, TextsStandOutFromTheirGrounds) {
    using namespace Look;
    for (const auto& [ground, ink, least] : {std::tuple{Card, Ink, 4.5},
                                             {Card, QuietInk, 4.5},
                                             {Tray, Ink, 4.5},
                                             {Sheet, QuietInk, 4.5},
                                             {Chosen, Ink, 4.5},
                                             {Expected, Ink, 4.5},
                                             {Warning, WarningInk, 4.5},
                                             {LookBack, LookBackInk, 4.5},
                                             // The marks of the last move and of a picked piece, on every square.
                                             {DarkLast, LastMark, 3.0},
                                             {LightSquare, Picked, 3.0},
                                             {Running, RunningInk, 4.5},
                                             {PausedMark, Paused, 4.5},
                                             {Fallen, FallenInk, 4.5},
                                             {Key, KeyInk, 4.5},
                                             {PlainKey, KeyInk, 4.5},
                                             {DeadKey, DeadKeyInk, 4.5},
                                             // The marks from the card, and from each other.
                                             {Card, Running, 3.0},
                                             {Card, PausedMark, 3.0},
                                             {Running, PausedMark, 3.0},
                                             {Card, Fallen, 3.0}})
        EXPECT_GE(Contrast(ground, ink), least) << std::hex << ground << " " << ink;
    for (const int side : {0, 1}) {
        for (const FaceShades& face : {FullFaces[side], PausedFaces[side], FallenFaces[side]})
            EXPECT_GE(Contrast(face.Ground, face.Ink), 4.5) << side;
        EXPECT_GE(Contrast(DimmedFaces[side].Ground, DimmedFaces[side].Ink), 3.0) << side;
    }
}
