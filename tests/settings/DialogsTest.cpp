#include "games/frmFiles.h"
#include "settings/frmAbout.h"
#include "settings/frmSetup.h"

#include "platform/Ansi.h"
#include "platform/Dpi.h"
#include "resources/Version.h"
#include "resources/resource.h"
#include "tests/desktop/Desktop.h"
#include "tests/desktop/TextFit.h"

#include <gtest/gtest.h>

// The dialogs from inside: whether every text fits its control, at each scaling.

namespace {

class DialogsTest : public testing::TestWithParam<int32_t> {
  protected:
    Settings settings;
    Texts texts{(settings.LanguageIndex = GetParam(), settings.LanguageIndex)};
    MessageBoxes messageBoxes{texts};

    // What the system sends when the window comes to a screen of another resolution.
    static void Scale(HWND window, int dpi) {
        RECT area{};
        GetWindowRect(window, &area);
        const int from = DpiOf(window);
        area.right = area.left + MulDiv(area.right - area.left, dpi, from);
        area.bottom = area.top + MulDiv(area.bottom - area.top, dpi, from);
        SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&area));
    }

    template <typename Check>
    static void AtEachScaling(HWND window, Check check) {
        for (int dpi : {96, 144, 192}) {
            SCOPED_TRACE(dpi);
            Scale(window, dpi);
            check();
        }
    }
};

}  // namespace

TEST_P(DialogsTest, SetupTextsFitInEveryClockType) {
    const TestFolder folder;
    const SettingsFile file(folder.Path());
    for (int32_t type = 0; type < 4; ++type) {
        SCOPED_TRACE(type);
        settings.SetClockType(type);
        settings.MovesFirstPeriod = 100;
        frmSetup setup(texts, messageBoxes, 0xBFBFBF, file, settings, [](HWND) {});
        setup.Open(nullptr);
        AtEachScaling(setup.Window(), [&] { ExpectTextsFit(setup.Window()); });
    }
}

TEST_P(DialogsTest, AboutShowsTheVersionResourceWhole) {
    frmAbout about(texts, messageBoxes, 0xBFBFBF);
    about.Open(nullptr);
    EXPECT_EQ(TextOf(about.Control(lblAboutValue)),
              L"The program, its pictures and its sounds are the work of the TORVANIX team.");
    EXPECT_EQ(TextOf(about.Control(lblAboutValue + 1)), L"TORVANIX");
    EXPECT_EQ(TextOf(about.Control(lblAboutValue + 2)), FromAnsi(TORVANIX_VERSION));
    EXPECT_NE(TextOf(about.Control(lblAboutValue + 3)).find(L"©"), std::wstring::npos);
    AtEachScaling(about.Window(), [&] { ExpectTextsFit(about.Window()); });
}

TEST_P(DialogsTest, FilesTextsFitInEveryMode) {
    struct : GameHost {
        GameFiles FilesOfGame() override { return {}; }
        void GameSaved() override {}
        const Settings& PresentSettings() const override { return settings; }
        void TakeGame(const std::wstring&, LoadedGame&) override {}
        void OpenHelp(HWND) override {}
        Settings settings;
    } host;
    const TestFolder folder;
    const SavedGames games(folder.Path());
    for (FilesMode mode : {FilesMode::Load, FilesMode::Save, FilesMode::Delete}) {
        frmFiles files(texts, messageBoxes, 0xBFBFBF, games, host, mode);
        files.Open(nullptr);
        AtEachScaling(files.Window(), [&] { ExpectTextsFit(files.Window()); });
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, DialogsTest, testing::Values(Turkish, English, French));
