#include "clock/frmClock.h"

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
    modEnvironment::Environment environment;
    TestFolder folder;
    SettingsFile settingsFile{folder.Path()};
    std::unique_ptr<frmClock> form;

    void SetUp() override {
        settings.LanguageIndex = GetParam();
        settings.OpenScorletAtStart = false;
        settingsFile.Save(settings);
        environment.appearance = AppearanceOf("NONE");
        form = std::make_unique<frmClock>(environment, settingsFile, settings, texts, messageBoxes);
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
        const HDC dc = GetDC(control);
        const HGDIOBJ font = reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0));
        ASSERT_TRUE(font) << id;
        const HGDIOBJ old = SelectObject(dc, font);
        SIZE size{};
        GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
        SelectObject(dc, old);
        ReleaseDC(control, dc);
        EXPECT_LE(size.cx, area.right) << "control " << id << ", " << area.bottom
                                       << " high: " << std::string(text.begin(), text.end());
        EXPECT_LE(size.cy, area.bottom) << "control " << id;
    }
};

std::wstring EntryOf(HMENU menu, UINT position) {
    wchar_t text[128];
    return {text, text + GetMenuStringW(menu, position, text, 128, MF_BYPOSITION)};
}

}  // namespace

TEST_P(frmClockTest, EveryTextFitsItsControlAtEverySize) {
    const std::array<int, 2> sizes[] = {
        {DesignWidth, DesignHeight}, {LeastWidth, LeastHeight}, {2 * DesignWidth, 2 * DesignHeight}};
    for (const auto& [width, height] : sizes) {
        SCOPED_TRACE(testing::Message() << width << " x " << height);
        // At 200% everything is twice as large, the type too.
        ScaleTo(form->Window(), width > DesignWidth ? 192 : 96);
        Resize(width, height);
        for (Side side : BothSides) {
            ExpectFits(ControlOf(lblSide, side), texts(side == White ? TextId::White : TextId::Black));
            ExpectFits(ControlOf(lblBlink, side), texts(TextId::ToMove));
            ExpectFits(ControlOf(lblBlink, side), texts(TextId::Pause));
            ExpectFits(ControlOf(cmdPause, side), texts(TextId::Pause));
            ExpectFits(ControlOf(cmdPause, side), texts(TextId::Resume));
            ExpectFits(ControlOf(cmdClock, side), texts(TextId::ClockButton));
            ExpectFits(ControlOf(lblMoveNumber, side), texts(TextId::MoveNumber));
            ExpectFits(ControlOf(lblMoveCount, side), L"9999.");
            ExpectFits(ControlOf(lblPeriod, side), texts.Compose(TextId::AfterNthMove, L"100th"));
            ExpectFits(ControlOf(lblPeriod, side), texts(TextId::CompleteGameTime));
            ExpectFits(ControlOf(lblPeriodTime, side), L"100:00");
            ExpectFits(ControlOf(lblBonus, side), texts(TextId::BonusTime));
            ExpectFits(ControlOf(lblBonusTime, side), L"59:59");
        }
    }
}

TEST_P(frmClockTest, MenusHoldTheirEntriesAndKeys) {
    struct Menu {
        TextId caption;
        std::vector<std::wstring> entries;  // empty: a separator
    };
    const auto keyed = [&](TextId entry, TextId key) {
        return texts(entry) + L"\t" + texts(key);
    };
    const Menu menus[] = {
        {TextId::MenuGame,
         {keyed(TextId::MenuStart, TextId::MenuStartKey), L"", texts(TextId::MenuLoad), texts(TextId::MenuSave),
          texts(TextId::MenuDelete), L"", texts(TextId::MenuExit)}},
        {TextId::MenuClock,
         {keyed(TextId::MenuReset, TextId::MenuResetKey), texts(TextId::MenuPause), L"",
          keyed(TextId::MenuSetup, TextId::MenuSetupKey)}},
        {TextId::MenuScorlet, {texts(TextId::MenuShow), texts(TextId::MenuClose), L"", texts(TextId::MenuPrint)}},
        {TextId::MenuHelp, {texts(TextId::MenuContents), L"", texts(TextId::MenuAbout)}},
    };
    const HMENU bar = GetMenu(form->Window());
    ASSERT_EQ(GetMenuItemCount(bar), 4);
    for (UINT i = 0; i < 4; ++i) {
        EXPECT_EQ(EntryOf(bar, i), texts(menus[i].caption));
        const HMENU popup = GetSubMenu(bar, static_cast<int>(i));
        std::vector<std::wstring> entries;
        for (int entry = 0; entry < GetMenuItemCount(popup); ++entry)
            entries.push_back(EntryOf(popup, static_cast<UINT>(entry)));
        EXPECT_EQ(entries, menus[i].entries);
    }
    for (int entry : {mnuCloseScorlet, mnuPrint})
        EXPECT_TRUE(GetMenuState(bar, static_cast<UINT>(entry), MF_BYCOMMAND) & MF_GRAYED) << entry;
    for (int entry : {mnuStart, mnuLoad, mnuSave, mnuDelete, mnuExit, mnuReset, mnuPause, mnuSetup, mnuShowScorlet,
                      mnuContents, mnuAbout})
        EXPECT_FALSE(GetMenuState(bar, static_cast<UINT>(entry), MF_BYCOMMAND) & MF_GRAYED) << entry;

    SendMessageW(form->Window(), WM_COMMAND, mnuStart, 0);
    EXPECT_TRUE(GetMenuState(bar, mnuSetup, MF_BYCOMMAND) & MF_GRAYED) << "a game is on";
    settings.LanguageIndex = GetParam() % 3 + 1;
    SendMessageW(form->Window(), WM_COMMAND, mnuPause, 0);
    settings.LanguageIndex = GetParam();
    EXPECT_EQ(EntryOf(GetSubMenu(bar, 1), 1), texts(TextId::MenuResume)) << "in the language of the window";
    SendMessageW(form->Window(), WM_COMMAND, mnuPause, 0);
    EXPECT_EQ(EntryOf(GetSubMenu(bar, 1), 1), texts(TextId::MenuPause));
}

TEST_P(frmClockTest, HeldKeyOfStartDoesNotRepeat) {
    BYTE keys[256]{};
    keys[VK_CONTROL] = 0x80;
    SetKeyboardState(keys);
    const auto send = [&](LPARAM flags) {
        MSG message{form->Window(), WM_KEYDOWN, 'T', flags, 0, {}};
        form->TakeMessage(message);
        wchar_t count[8];
        GetDlgItemTextW(form->Window(), lblMoveCount, count, 8);
        return std::wstring(count);
    };
    EXPECT_EQ(send(LPARAM{KF_REPEAT} << 16), L"0.");
    EXPECT_EQ(send(1), L"1.");
    keys[VK_CONTROL] = 0;
    SetKeyboardState(keys);
}

TEST_P(frmClockTest, ScreenReadersNameEveryControlInReadingOrder) {
    struct Names {
        const wchar_t *white, *black, *button, *period;
    };
    const Names rows[] = {
        {L"Beyaz, 1 saat 59 saniye", L"Siyah, 20 dakika", L"Beyaz, Hamleyi bitir", L"20 dakika"},
        {L"White, 1 hour 59 seconds", L"Black, 20 minutes", L"White, End the move", L"20 minutes"},
        {L"Blancs, 1 heure 59 secondes", L"Noirs, 20 minutes", L"Blancs, Terminer le coup", L"20 minutes"},
    };
    const Names& names = rows[GetParam() - 1];
    const auto name = [&](int id) {
        return SpokenName(GetDlgItem(form->Window(), id));
    };
    const auto expectAll = [&] {
        ExpectNamed(form->Window());
        ExpectReadingOrder(form->Window());
    };
    expectAll();
    settings.PeriodLimit[White] = 3660;
    settings.MoveBonus = {5, 5};
    settingsFile.Save(settings);
    SendMessageW(form->Window(), WM_COMMAND, mnuReset, 0);
    SendMessageW(form->Window(), WM_COMMAND, mnuStart, 0);
    ASSERT_TRUE(PumpUntil([&] { return name(lblFace) == names.white; })) << testing::PrintToString(name(lblFace));
    EXPECT_EQ(name(lblFace + 1), names.black);
    EXPECT_EQ(name(cmdClock), names.button);
    EXPECT_EQ(name(lblPeriodTime), names.period);
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
