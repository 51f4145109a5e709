#include "recorder/frmScorlet.h"

#include "platform/Dpi.h"
#include "tests/desktop/TextFit.h"

#include <gtest/gtest.h>

#include <memory>

// The Scorlet from inside: whether every text fits its control.

namespace {

struct SilentHost : ScorletHost {
    std::array<int32_t, 2> MoveCounts() const override { return {}; }
    void PressEnabledClock() override {}
    void PauseForResult() override {}
    void PrintMoveList() override {}
    void CloseScorlet() override {}
    void ScorletDestroyed() override {}
};

class frmScorletTest : public testing::TestWithParam<int32_t> {};

}  // namespace

TEST_P(frmScorletTest, EveryTextFitsItsControlAtEverySize) {
    const int32_t language = GetParam();
    const Texts texts(language);
    const MessageBoxes messageBoxes(texts);
    SilentHost host;
    frmScorlet form(host, texts, messageBoxes);
    const SIZE size = frmScorlet::DesignSize(96);
    form.Open({0, 0, size.cx, size.cy});
    for (const auto& [width, height] : {std::array{ScorletWidth, ScorletHeight},
                                        std::array{ScorletLeastWidth, ScorletLeastHeight}, std::array{1200, 900}}) {
        SCOPED_TRACE(testing::Message() << width << " x " << height);
        SetWindowPos(form.Window(), nullptr, 0, 0, Scaled(width, 96) + 20, Scaled(height, 96) + 40, SWP_NOZORDER);
        ExpectTextsFit(form.Window());
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, frmScorletTest, testing::Values(Turkish, English, French));
