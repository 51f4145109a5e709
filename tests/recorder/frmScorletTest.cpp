#include "recorder/frmScorlet.h"

#include "platform/Dpi.h"
#include "resources/resource.h"

#include <gtest/gtest.h>

#include <memory>

// The Scorlet from inside: whether every text fits its control.

namespace {

struct SilentHost : ScorletHost {
    std::array<int32_t, 2> MoveCounts() const override { return {}; }
    void PressEnabledClock() override {}
    void PauseForResult() override {}
    void CloseScorlet() override {}
    void ScorletDestroyed() override {}
};

class frmScorletTest : public testing::TestWithParam<int32_t> {};

int WidthOf(HWND control, const std::wstring& text) {
    const HDC dc = GetDC(control);
    const Selection selection(dc, reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0)));
    SIZE size{};
    GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
    ReleaseDC(control, dc);
    return static_cast<int>(size.cx);
}

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
        const auto expectFits = [&](int id, TextId text, int room = 0) {
            RECT area{};
            GetClientRect(form.Control(id), &area);
            EXPECT_LE(WidthOf(form.Control(id), texts(text)) + room, area.right) << id;
        };
        expectFits(lblCaptured, TextId::CapturedPieces);
        expectFits(lblPromotion, TextId::PromoteTo);
        expectFits(lblSay, TextId::Say);
        expectFits(cmdOK, TextId::ButtonOk, 8);
        constexpr int dropButton = 26;
        for (int i = 0; i < 4; ++i) expectFits(cmbSay, RowBehind(TextId::SayCheck, i), dropButton);
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, frmScorletTest, testing::Values(Turkish, English, French));
