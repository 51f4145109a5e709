#include "recorder/frmScorlet.h"

#include "platform/Dpi.h"
#include "resources/resource.h"
#include "tests/desktop/Accessibility.h"
#include "tests/desktop/HighContrast.h"
#include "tests/desktop/TextFit.h"

#include <gtest/gtest.h>

#include <memory>

// The Scorlet from inside: whether every text fits its control, what screen readers say of it, and its colours at high
// contrast.

namespace {

struct SilentGame : ScorletGame {
    Recorder Record;
    RecordView* View = nullptr;

    Recorder& OpenRecord(RecordView& view) override {
        View = &view;
        return Record;
    }
    void CloseRecord() override {}
    void Declare(Declaration) override {}
    void PressEnabledButton() override {}
    void PressKeyP() override {}
};

class frmScorletTest : public testing::TestWithParam<int32_t> {
  protected:
    const int32_t language = GetParam();
    const Texts texts{language};
    const MessageBoxes messageBoxes{texts};
    const Environment environment;
    SilentGame game;
    frmScorlet form{{texts, messageBoxes, environment}, game, nullptr};

    void SetUp() override {
        const SIZE size = frmScorlet::DesignSize(96);
        form.Open({0, 0, size.cx, size.cy});
    }
    void Key(int key) { SendMessageW(form.Control(picBoard), WM_KEYDOWN, static_cast<WPARAM>(key), 1); }
    std::wstring Name(int id) const { return SpokenName(form.Control(id)); }
};

struct Names {
    const wchar_t *Empty, *List, *Picked, *Moved, *Captured, *Board;
};
const Names rows[] = {
    {L"e5, boş", L"Siyah, hamleler", L"e2, beyaz piyon, seçili", L"e7, beyaz piyon, son hamle", L"siyah piyon",
     L"Tahta, siyah piyon, seçili, e7, beyaz piyon, son hamle"},
    {L"e5, empty", L"Black, moves", L"e2, white pawn, picked", L"e7, white pawn, last move", L"black pawn",
     L"Board, black pawn, picked, e7, white pawn, last move"},
    {L"e5, vide", L"Noirs, coups", L"e2, pion blanc, pièce choisie", L"e7, pion blanc, dernier coup", L"pion noir",
     L"Échiquier, pion noir, pièce choisie, e7, pion blanc, dernier coup"},
};

}  // namespace

TEST_P(frmScorletTest, EveryTextFitsItsControlAtEverySize) {
    for (const int dpi : {96, 192}) {
        ScaleTo(form.Window(), dpi);
        for (const auto& [width, height] : {std::array{ScorletWidth, ScorletHeight},
                                            std::array{ScorletLeastWidth, ScorletLeastHeight}, std::array{1200, 900}}) {
            SCOPED_TRACE(testing::Message() << width << " x " << height << " at " << dpi);
            SetWindowPos(form.Window(), nullptr, 0, 0, Scaled(width, dpi) + 20, Scaled(height, dpi) + 40, SWP_NOZORDER);
            ExpectTextsFit(form.Window());
        }
    }
}

TEST_P(frmScorletTest, ScreenReadersNameEveryControlInReadingOrder) {
    const Names& names = rows[GetParam() - 1];
    const auto expectAll = [&] {
        ExpectNamed(form.Window());
        ExpectReadingOrder(form.Window());
    };
    expectAll();
    EXPECT_EQ(Name(picBoard + 55), names.Empty);
    EXPECT_EQ(Name(lstMoves + 1), names.List);
    Key(VK_RETURN);
    EXPECT_EQ(Name(picBoard + 52), names.Picked);
    for (int i = 0; i < 5; ++i) Key(VK_UP);
    Key(VK_RETURN);
    EXPECT_EQ(Name(picBoard + 57), names.Moved);
    EXPECT_EQ(Name(imgCapturedBP), names.Captured);
    Key(VK_INSERT);
    EXPECT_EQ(Name(picBoard), names.Board);
    game.Record.Play(SquareAt(5, 7), SquareAt(5, 8));
    game.View->RecordChanged({});
    for (const int id : {int{txtMove}, int{cmdOK}}) form.SetVisible(id, true);
    expectAll();
}

TEST_P(frmScorletTest, HighContrastTakesTheSystemsColours) {
    const HighContrastOn contrast;
    Key(VK_RETURN);
    ExpectSystemColours(form.Window());
}

INSTANTIATE_TEST_SUITE_P(Languages, frmScorletTest, testing::Values(Turkish, English, French));
