#include "games/frmFiles.h"
#include "settings/frmAbout.h"
#include "settings/frmSetup.h"

#include "platform/Ansi.h"
#include "platform/Dpi.h"
#include "resources/Version.h"
#include "resources/resource.h"
#include "tests/desktop/Accessibility.h"
#include "tests/desktop/Desktop.h"
#include "tests/desktop/HighContrast.h"
#include "tests/desktop/TextFit.h"

#include <gtest/gtest.h>

// The dialogs from inside: whether every text fits its control at each scaling, what screen readers say of them, and
// their colours at high contrast.

namespace {

class DialogsTest : public testing::TestWithParam<int32_t> {
  protected:
    Settings settings;
    Texts texts{(settings.LanguageIndex = GetParam(), settings.LanguageIndex)};
    MessageBoxes messageBoxes{texts};
    TestFolder folder;
    SettingsFile file{folder.Path()};
    const Environment environment{};
    const Surroundings around{texts, messageBoxes, environment};

    static void ExpectWellMade(HWND dialog) {
        ExpectNamed(dialog);
        for (int dpi : {96, 144, 192}) {
            SCOPED_TRACE(dpi);
            ScaleTo(dialog, dpi);
            ExpectTextsFit(dialog);
            ExpectReadingOrder(dialog);
        }
        ShowWindow(dialog, SW_SHOWNA);
        const HighContrastOn contrast;
        ExpectSystemColours(dialog);
    }
};

}  // namespace

TEST_P(DialogsTest, SetupTextsFitInEveryClockType) {
    for (int32_t type = 0; type < 4; ++type) {
        SCOPED_TRACE(type);
        settings.SetClockType(type);
        settings.Control.MovesFirstPeriod = 100;
        frmSetup setup(around, file, settings, [](HWND) {});
        setup.Open(nullptr);
        ExpectWellMade(setup.Window());
    }
}

TEST_P(DialogsTest, AboutShowsTheVersionResourceWhole) {
    frmAbout about(around);
    about.Open(nullptr);
    EXPECT_EQ(TextOf(about.Control(lblAboutValue)),
              L"The program, its pictures and its sounds are the work of the TORVANIX team.");
    EXPECT_EQ(TextOf(about.Control(lblAboutValue + 1)), L"TORVANIX");
    EXPECT_EQ(TextOf(about.Control(lblAboutValue + 2)), FromAnsi(TORVANIX_VERSION));
    EXPECT_NE(TextOf(about.Control(lblAboutValue + 3)).find(L"©"), std::wstring::npos);
    ExpectWellMade(about.Window());
}

TEST_P(DialogsTest, FilesTextsFitInEveryMode) {
    struct : modClock::Timer {
        int32_t Set() override { return 0; }
        int32_t Kill(int32_t) override { return 1; }
    } timer;
    Game game(settings, timer);
    const GameStore games(folder.Path());
    for (FilesMode mode : {FilesMode::Load, FilesMode::Save, FilesMode::Delete}) {
        frmFiles files(around, games, game, mode, [](HWND) {});
        files.Open(nullptr);
        ExpectWellMade(files.Window());
    }
}

TEST_P(DialogsTest, SetupNamesItsBarsByWhatTheySet) {
    struct Names {
        const wchar_t *First, *Bonus, *Language, *Preview;
    };
    const Names rows[] = {
        {L"İlk 40 hamlenin süresi, Beyaz, 20 dakika", L"Hamle başına ek süre, Siyah, 7 saniye", L"DİL",
         L"Bayrak sesi: Dinle"},
        {L"Time for first 40 moves, White, 20 minutes", L"Bonus time for each move, Black, 7 seconds", L"LANGUAGE",
         L"Flag Sound : Preview"},
        {L"Temps pour les 40 premiers coups, Blancs, 20 minutes", L"Incrément par coup, Noirs, 7 secondes", L"LANGUE",
         L"Son du drapeau\u00A0: Écouter"},
    };
    const Names& names = rows[GetParam() - 1];
    settings.SetClockType(2);
    settings.Control.MoveBonus = {7, 7};
    frmSetup setup(around, file, settings, [](HWND) {});
    setup.Open(nullptr);
    EXPECT_EQ(SpokenName(setup.Control(hsbFirstPeriod)), names.First);
    EXPECT_EQ(SpokenName(setup.Control(hsbBonus + 1)), names.Bonus);
    EXPECT_EQ(SpokenName(setup.Control(cmbLanguage)), names.Language);
    EXPECT_EQ(SpokenName(setup.Control(cmdPreviewFlag)), names.Preview);
}

INSTANTIATE_TEST_SUITE_P(Languages, DialogsTest, testing::Values(Turkish, English, French));
