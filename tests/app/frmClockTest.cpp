#include "app/frmClock.h"

#include "platform/Dpi.h"
#include "resources/resource.h"
#include "settings/SettingsFile.h"
#include "tests/desktop/Accessibility.h"
#include "tests/desktop/Desktop.h"
#include "tests/desktop/HighContrast.h"
#include "tests/desktop/TextFit.h"

#include <gtest/gtest.h>

// The clock window from inside: its menus, whether every text fits its control, what screen readers say of it, and its
// colours at high contrast.

namespace {

class frmClockTest : public testing::TestWithParam<int32_t> {
  protected:
    Settings settings;
    Texts texts{settings.LanguageIndex};
    MessageBoxes messageBoxes{texts};
    Environment environment;
    TickTimer timer;
    Game game{settings, timer};
    TestFolder folder;
    SettingsFile settingsFile{folder.Path()};
    std::unique_ptr<frmClock> form;

    void SetUp() override {
        settings.LanguageIndex = GetParam();
        settings.OpenScorletAtStart = false;
        settingsFile.Save(settings);
        environment.Look = AppearanceOf("NONE");
        form = std::make_unique<frmClock>(Surroundings{texts, messageBoxes, environment}, settingsFile, settings, game,
                                          timer);
        form->Open();
    }
    void TearDown() override {
        form.reset();
        // What the window's end has left in the queue would end the next test's messages.
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        }
    }

    static bool PumpUntil(const std::function<bool()>& condition) {
        return Eventually([&] {
            MSG message;
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
            return condition();
        });
    }

    void Resize(int width, int height) {
        RECT client{}, window{};
        GetClientRect(form->Window(), &client);
        GetWindowRect(form->Window(), &window);
        SetWindowPos(form->Window(), nullptr, 0, 0, width + window.right - window.left - client.right,
                     height + window.bottom - window.top - client.bottom, SWP_NOMOVE | SWP_NOZORDER);
    }

    void ExpectFits(int id, const std::wstring& text) {
        const HWND control = GetDlgItem(form->Window(), id);
        RECT area{};
        GetClientRect(control, &area);
        const SIZE size = SizeOfText(control, text);
        EXPECT_LE(size.cx, area.right) << "control " << id << ": " << testing::PrintToString(text);
        EXPECT_LE(size.cy, area.bottom) << "control " << id;
    }
};

}  // namespace

TEST_P(frmClockTest, EveryTextFitsItsControlAtEverySize) {
    const std::array<int, 2> sizes[] = {
        {DesignWidth, DesignHeight}, {LeastWidth, LeastHeight}, {2 * DesignWidth, 2 * DesignHeight}};
    for (const auto& [width, height] : sizes) {
        SCOPED_TRACE(testing::Message() << width << " x " << height);
        // At 200% everything is twice as large, the type too.
        ScaleTo(form->Window(), width > DesignWidth ? 192 : 96);
        Resize(width, height);
        const std::pair<int, std::wstring> shown[] = {{lblBlink, texts(TextId::ToMove)},
                                                      {lblBlink, texts(TextId::Pause)},
                                                      {cmdPause, texts(TextId::Pause)},
                                                      {cmdPause, texts(TextId::Resume)},
                                                      {cmdClock, texts(TextId::ClockButton)},
                                                      {lblMoveNumber, texts(TextId::MoveNumber)},
                                                      {lblMoveCount, L"9999."},
                                                      {lblPeriod, texts.Compose(TextId::AfterNthMove, L"100th")},
                                                      {lblPeriod, texts(TextId::CompleteGameTime)},
                                                      {lblPeriodTime, L"100:00"},
                                                      {lblBonus, texts(TextId::BonusTime)},
                                                      {lblBonusTime, L"59:59"}};
        for (Side side : BothSides) {
            ExpectFits(ControlOf(lblSide, side), texts(side == White ? TextId::White : TextId::Black));
            for (const auto& [id, text] : shown) ExpectFits(ControlOf(id, side), text);
        }
    }
}

TEST_P(frmClockTest, MenusTellKeysAndWhatCanBeDone) {
    const HMENU bar = GetMenu(form->Window());
    const auto clockEntry = [&](UINT position) {
        wchar_t text[128];
        return std::wstring(text, text + GetMenuStringW(GetSubMenu(bar, 1), position, text, 128, MF_BYPOSITION));
    };
    const auto grayed = [&](UINT entry) { return (GetMenuState(bar, entry, MF_BYCOMMAND) & MF_GRAYED) != 0; };
    EXPECT_EQ(clockEntry(0), texts(TextId::MenuReset) + L"\t" + texts(TextId::MenuResetKey));
    EXPECT_TRUE(grayed(mnuCloseScorlet) && grayed(mnuPrint));
    EXPECT_FALSE(grayed(mnuShowScorlet) || grayed(mnuSetup));

    SendMessageW(form->Window(), WM_COMMAND, mnuStart, 0);
    EXPECT_TRUE(grayed(mnuSetup)) << "a game is on";
    settings.LanguageIndex = GetParam() % 3 + 1;
    SendMessageW(form->Window(), WM_COMMAND, mnuPause, 0);
    settings.LanguageIndex = GetParam();
    EXPECT_EQ(clockEntry(1), texts(TextId::MenuResume)) << "in the language of the window";
    SendMessageW(form->Window(), WM_COMMAND, mnuPause, 0);
    EXPECT_EQ(clockEntry(1), texts(TextId::MenuPause));
}

TEST_P(frmClockTest, HeldKeyOfStartDoesNotRepeat) {
    BYTE keys[256]{};
    keys[VK_CONTROL] = 0x80;
    SetKeyboardState(keys);
    const auto send = [&](LPARAM flags) {
        MSG message{form->Window(), WM_KEYDOWN, 'T', flags, 0, {}};
        form->TakeMessage(message);
        return TextOf(GetDlgItem(form->Window(), lblMoveCount));
    };
    EXPECT_EQ(send(LPARAM{KF_REPEAT} << 16), L"0.");
    EXPECT_EQ(send(1), L"1.");
    keys[VK_CONTROL] = 0;
    SetKeyboardState(keys);
}

TEST_P(frmClockTest, ScreenReadersNameEveryControlInReadingOrder) {
    struct Names {
        const wchar_t *White, *Black, *Button, *Period;
    };
    const Names rows[] = {
        {L"Beyaz, 1 saat 59 saniye", L"Siyah, 20 dakika", L"Beyaz, Hamleyi bitir", L"20 dakika"},
        {L"White, 1 hour 59 seconds", L"Black, 20 minutes", L"White, End the move", L"20 minutes"},
        {L"Blancs, 1 heure 59 secondes", L"Noirs, 20 minutes", L"Blancs, Terminer le coup", L"20 minutes"},
    };
    const Names& names = rows[GetParam() - 1];
    const auto name = [&](int id) { return SpokenName(GetDlgItem(form->Window(), id)); };
    const auto expectAll = [&] {
        ExpectNamed(form->Window());
        ExpectReadingOrder(form->Window());
    };
    expectAll();
    settings.Control.PeriodLimit[White] = 3660;
    settings.Control.MoveBonus = {5, 5};
    settingsFile.Save(settings);
    SendMessageW(form->Window(), WM_COMMAND, mnuReset, 0);
    SendMessageW(form->Window(), WM_COMMAND, mnuStart, 0);
    ASSERT_TRUE(PumpUntil([&] { return name(lblFace) == names.White; })) << testing::PrintToString(name(lblFace));
    EXPECT_EQ(name(lblFace + 1), names.Black);
    EXPECT_EQ(name(cmdClock), names.Button);
    EXPECT_EQ(name(lblPeriodTime), names.Period);
    expectAll();

    SendMessageW(form->Window(), WM_COMMAND, mnuPause, 0);
    expectAll();
}

TEST_P(frmClockTest, HighContrastTakesTheSystemsColours) {
    const HighContrastOn contrast;
    ExpectSystemColours(form->Window());
    SendMessageW(form->Window(), WM_COMMAND, mnuStart, 0);
    ExpectSystemColours(form->Window());
}

INSTANTIATE_TEST_SUITE_P(Languages, frmClockTest, testing::Values(Turkish, English, French));
