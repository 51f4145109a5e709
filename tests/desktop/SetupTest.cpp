#include "tests/desktop/Desktop.h"

#include "platform/Ansi.h"
#include "settings/SettingsFile.h"
#include "settings/Texts.h"

#include <gtest/gtest.h>

// The setup dialog of the real program, by mouse and keys.

namespace {

class SetupTest : public testing::Test {
  protected:
    TestFolder folder;
    std::optional<ProgramRun> run;
    HWND setup = nullptr;

    void Start(const std::optional<Settings>& settings = QuietSettings()) {
        run.reset();
        run.emplace(folder, settings);
        ASSERT_TRUE(run->Clock());
        OpenSetup();
    }
    void OpenSetup() {
        ASSERT_TRUE(Eventually([&] { return run->Focused() == cmdClock; })) << run->Focused();
        run->Key('S', true);
        setup = run->WaitWindow(L"frmSetup");
        ASSERT_TRUE(setup) << "the setup dialog does not open";
        ASSERT_TRUE(Eventually([&] { return GetForegroundWindow() == setup; }));
    }

    HWND Item(int id) const { return GetDlgItem(setup, id); }
    std::wstring Text(int id) const { return TextOf(Item(id)); }
    bool Checked(int id) const { return SendMessageW(Item(id), BM_GETCHECK, 0, 0) == BST_CHECKED; }
    LRESULT Chosen(int id) const { return SendMessageW(Item(id), CB_GETCURSEL, 0, 0); }
    bool EnabledIs(int id, bool enabled) const {
        return Eventually([&] { return IsWindowEnabled(Item(id)) == enabled; });
    }

    void Focus(int id) {
        run->Click(Item(id));
        EXPECT_TRUE(Eventually([&] { return run->Focused() == id; })) << id << ", not " << run->Focused();
    }
    // Opens a drop-down list and goes to an entry by the keys.
    void Choose(int list, int position) {
        const auto dropped = [&] {
            return SendMessageW(Item(list), CB_GETDROPPEDSTATE, 0, 0) != 0;
        };
        // A second click on the same place would be a double click.
        if (run->Focused() == list)
            run->Key(VK_F4);
        else
            Focus(list);
        ASSERT_TRUE(Eventually(dropped)) << list;
        run->Key(VK_HOME);
        for (int i = 0; i < position; ++i) run->Key(VK_DOWN);
        run->Key(VK_RETURN);
        EXPECT_TRUE(Eventually([&] { return !dropped() && Chosen(list) == position; })) << list << ": " << Chosen(list);
    }
    void Press(int button) { run->Click(Item(button)); }
    bool Ended() {
        return Eventually([&] { return !run->FindWindowNow(L"frmSetup") && IsWindowEnabled(run->Clock()); });
    }
    testing::AssertionResult Becomes(int id, const std::wstring& text) {
        if (Eventually([&] { return Text(id) == text; })) return testing::AssertionSuccess();
        return testing::AssertionFailure() << "it reads " << testing::PrintToString(Text(id));
    }
};

}  // namespace

TEST_F(SetupTest, ClockTypesEnableAndNameInEachLanguage) {
    struct Language {
        int32_t index;
        const wchar_t *whole, *first, *second, *bonus;
    };
    const Language languages[] = {
        {Turkish, L"Tüm oyunun süresi", L"İlk 40 hamlenin süresi", L"Oyunun 40. hamleden sonraki süresi",
         L"Hamle başına ek süre"},
        {English, L"Time for complete game", L"Time for first 40 moves", L"Time for after 40th move",
         L"Bonus time for each move"},
        {French, L"Temps pour toute la partie", L"Temps pour les 40 premiers coups", L"Temps après le 40e coup",
         L"Incrément par coup"},
    };
    for (const Language& language : languages) {
        SCOPED_TRACE(language.index);
        Settings settings = QuietSettings();
        settings.LanguageIndex = language.index;
        settings.SetClockType(2);
        settings.MoveBonus = {5, 6};
        settings.CountTimeDown = false;
        Start(settings);
        EXPECT_EQ(Text(lblBonusValue + 1), L"00:06");
        for (const int type : {2, 1, 3, 0}) {
            SCOPED_TRACE(type);
            Choose(cmbClockType, type);
            const bool second = type == 1 || type == 2, bonus = type == 2;
            EXPECT_TRUE(Becomes(lblFirstCaption, second ? language.first : language.whole));
            EXPECT_TRUE(Becomes(lblSecondCaption, second ? language.second : L""));
            EXPECT_TRUE(Becomes(lblBonusCaption, bonus ? language.bonus : L""));
            for (Side side : BothSides) {
                EXPECT_TRUE(EnabledIs(ControlOf(hsbFirstPeriod, side), true));
                EXPECT_TRUE(EnabledIs(ControlOf(hsbSecondPeriod, side), second));
                EXPECT_TRUE(EnabledIs(ControlOf(hsbBonus, side), bonus));
                EXPECT_TRUE(Becomes(ControlOf(lblSecondPeriod, side), second ? L"00:20" : L"00:00"));
            }
            EXPECT_TRUE(EnabledIs(cmbMoveAmount, second));
            EXPECT_TRUE(Becomes(lblBonusValue, bonus ? L"00:05" : L"00:00"));
            EXPECT_TRUE(Eventually([&] { return Checked(chkCountTimeDown) == (type == 3 || type == 0); }))
                << "HOURGLASS checks it, 0 leaves it";
        }
    }
}

TEST_F(SetupTest, WhatIsPassedOverInAnOpenListIsNotChosen) {
    Start();
    Focus(cmbClockType);
    ASSERT_TRUE(Eventually([&] { return SendMessageW(Item(cmbClockType), CB_GETDROPPEDSTATE, 0, 0) != 0; }));
    run->Key(VK_HOME);
    run->Key(VK_ESCAPE);
    EXPECT_TRUE(Eventually([&] { return SendMessageW(Item(cmbClockType), CB_GETDROPPEDSTATE, 0, 0) == 0; }));
    EXPECT_TRUE(Eventually([&] { return Chosen(cmbClockType) == 1; })) << Chosen(cmbClockType);
    EXPECT_EQ(Text(lblSecondPeriod), L"00:20");
}

TEST_F(SetupTest, PresetsTwiceInARow) {
    Settings settings;
    settings.PlayerNames = {"Anna", "Carl"};
    settings.SetClockType(2);
    settings.MoveBonus = {7, 8};
    settings.TurnClock = settings.WritePgn = true;
    settings.CountTimeDown = settings.OpenScorletAtStart = false;
    settings.MovesFirstPeriod = 20;
    settings.SetButtonSound(3);
    settings.SetFlagSound(4);
    Start(settings);
    for (int time = 0; time < 2; ++time) {
        Press(cmdBlitz);
        EXPECT_TRUE(Becomes(lblFirstPeriod, L"00:05"));
        EXPECT_EQ(Chosen(cmbClockType), 0);
        EXPECT_EQ(Text(lblSecondPeriod + 1) + Text(lblBonusValue), L"00:0000:00");
        EXPECT_FALSE(Checked(chkShowMoveNumber) || Checked(chkTurnClock) || Checked(chkOpenScorlet));
        EXPECT_TRUE(Checked(chkCountTimeDown));
        EXPECT_EQ(Chosen(cmbButtonSound), 1);
        EXPECT_EQ(Chosen(cmbFlagSound), 0);
    }
    for (int time = 0; time < 2; ++time) {
        Press(cmdDefault);
        EXPECT_TRUE(Becomes(lblFirstPeriod, L"00:20"));
        EXPECT_EQ(Chosen(cmbClockType), 1);
        EXPECT_EQ(Text(lblSecondPeriod), L"00:20");
        EXPECT_TRUE(Checked(chkShowMoveNumber) && Checked(chkOpenScorlet) && Checked(chkCountTimeDown));
        EXPECT_EQ(Chosen(cmbFlagSound), 1);
        EXPECT_EQ(Text(cmbMoveAmount), L"40");
        EXPECT_EQ(Text(txtName) + Text(txtName + 1) + Text(cmbLanguage), L"AnnaCarlEnglish") << "left as they are";
        EXPECT_TRUE(Checked(chkPGN));
    }
    const std::pair<int, LRESULT> lists[] = {
        {cmbClockType, 4}, {cmbLanguage, 3}, {cmbMoveAmount, 100}, {cmbButtonSound, 5}, {cmbFlagSound, 6}};
    for (const auto& [list, count] : lists) EXPECT_EQ(SendMessageW(Item(list), CB_GETCOUNT, 0, 0), count) << list;
}

TEST_F(SetupTest, ScrollBarsFollowKeysWheelAndMouse) {
    Settings settings = QuietSettings();
    settings.SetClockType(2);
    Start(settings);
    const auto wheel = [&](int notches) {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = MOUSEEVENTF_WHEEL;
        input.mi.mouseData = static_cast<DWORD>(notches * WHEEL_DELTA);
        SendInput(1, &input, sizeof(input));
    };
    const auto at = [&](int bar, LONG fromRight) {
        RECT area{};
        GetWindowRect(Item(bar), &area);
        MoveMouseTo(Item(bar));
        SetCursorPos(area.right - fromRight, (area.top + area.bottom) / 2);
        Sleep(100);
        INPUT press[2]{};
        press[0].type = press[1].type = INPUT_MOUSE;
        press[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
        press[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
        SendInput(2, press, sizeof(INPUT));
    };
    MoveMouseTo(Item(hsbFirstPeriod));
    Sleep(100);
    wheel(-1);
    EXPECT_TRUE(Becomes(lblFirstPeriod, L"00:19")) << "while a list has the focus";
    wheel(1);
    EXPECT_TRUE(Becomes(lblFirstPeriod, L"00:20"));
    EXPECT_EQ(Chosen(cmbClockType), 2);
    at(hsbFirstPeriod, 5);
    EXPECT_TRUE(Becomes(lblFirstPeriod, L"00:21")) << "an arrow is a small step";
    at(hsbFirstPeriod, 30);
    EXPECT_TRUE(Becomes(lblFirstPeriod, L"00:26")) << "the shaft is a large step";
    ASSERT_TRUE(Eventually([&] { return run->Focused() == hsbFirstPeriod; }));
    run->Key(VK_NEXT);
    run->Key(VK_LEFT);
    EXPECT_TRUE(Becomes(lblFirstPeriod, L"00:30"));
    run->Key(VK_END);
    EXPECT_TRUE(Becomes(lblFirstPeriod, L"03:00"));
    run->Key(VK_HOME);
    EXPECT_TRUE(Becomes(lblFirstPeriod, L"00:01")) << "a first period has a minute at least";
    wheel(3);
    EXPECT_TRUE(Becomes(lblFirstPeriod, L"00:04"));
    MoveMouseTo(Item(hsbBonus + 1));
    Sleep(100);
    wheel(2);
    EXPECT_TRUE(Becomes(lblBonusValue + 1, L"00:02")) << "the wheel turns the bar under the mouse";
    at(hsbBonus + 1, 30);
    EXPECT_TRUE(Becomes(lblBonusValue + 1, L"00:12"));
    EXPECT_EQ(Text(lblFirstPeriod + 1), L"00:20");
}

TEST_F(SetupTest, EveryControlGoesThroughOkTheFileAndAFreshStart) {
    Start();
    Choose(cmbClockType, 2);
    const char* const names[] = {"Jos\xE9 \xD8", "O'Brien & Co"};
    for (Side side : BothSides) {
        SendMessageW(Item(ControlOf(txtName, side)), WM_SETTEXT, 0,
                     reinterpret_cast<LPARAM>(FromAnsi(names[side]).c_str()));
        Focus(ControlOf(hsbFirstPeriod, side));
        run->Key(VK_HOME);
        for (int i = 0; i < 2 + side; ++i) run->Key(VK_RIGHT);
        Focus(ControlOf(hsbSecondPeriod, side));
        run->Key(VK_END);
        run->Key(VK_LEFT);
        Focus(ControlOf(hsbBonus, side));
        run->Key(VK_HOME);
        for (int i = 0; i < 4 + side; ++i) run->Key(VK_RIGHT);
    }
    Choose(cmbLanguage, 1);
    Choose(cmbMoveAmount, 2);
    Choose(cmbButtonSound, 3);
    Choose(cmbFlagSound, 5);
    for (int box : {chkOpenScorlet, chkPGN, chkShowMoveNumber, chkTurnClock, chkCountTimeDown}) {
        const bool before = Checked(box);
        Press(box);
        EXPECT_TRUE(Eventually([&] { return Checked(box) != before; })) << box;
    }
    Press(cmdOK);
    ASSERT_TRUE(Ended());
    EXPECT_EQ(run->Text(lblSide), FromAnsi(names[White]));
    EXPECT_EQ(run->Text(lblPeriod) + run->Text(lblPeriodTime), L"After 3rd move02:59")
        << "the window keeps its language";
    EXPECT_EQ(run->Text(lblBonusTime + 1), L"00:05");
    EXPECT_EQ(run->Text(lblFace + 1), L"00:00:00") << "counting up";
    EXPECT_FALSE(run->Visible(lblMoveCount));

    Settings saved;
    saved.LanguageIndex = 0;
    const Texts texts(saved.LanguageIndex);
    const SettingsFile file(folder.Path() + L"Data\\");
    ASSERT_EQ(file.Load(saved, texts), L"");
    EXPECT_EQ(file.LoadLanguage(), French);
    EXPECT_EQ(saved.PlayerNames, (std::array<std::string, 2>{names[0], names[1]}));
    EXPECT_EQ(saved.PeriodLimit, (std::array<int32_t, 2>{180, 240}));
    EXPECT_EQ(saved.SecondPeriodTime, (std::array<int32_t, 2>{179 * 60, 179 * 60}));
    EXPECT_EQ(saved.MoveBonus, (std::array<int32_t, 2>{4, 5}));
    EXPECT_EQ(saved.ClockType, 2);
    EXPECT_EQ(saved.MovesFirstPeriod, 3);
    EXPECT_EQ(saved.ButtonSoundIndex, 3);
    EXPECT_EQ(saved.FlagSoundIndex, 5);
    EXPECT_TRUE(saved.OpenScorletAtStart && saved.WritePgn && saved.TurnClock);
    EXPECT_FALSE(saved.ShowMoveNumber || saved.CountTimeDown);

    ASSERT_TRUE(run->Close());
    run.emplace(folder);
    ASSERT_TRUE(run->WaitWindow(L"frmScorlet"));
    EXPECT_EQ(run->Text(lblPeriod), L"Après le 3e coup");
    SetForegroundWindow(run->Clock());
    OpenSetup();
    EXPECT_EQ(TextOf(setup), L"RÉGLAGES");
    EXPECT_EQ(Text(txtName), FromAnsi(names[White]));
    EXPECT_EQ(Text(lblFirstPeriod + 1) + Text(lblBonusValue), L"00:0400:04");
    EXPECT_EQ(Text(cmbMoveAmount) + Text(cmbLanguage), L"3Français");
    EXPECT_EQ(Chosen(cmbFlagSound), 5);
    EXPECT_TRUE(Checked(chkPGN));
}

TEST_F(SetupTest, CancelLeavesAllButTheLanguage) {
    Start();
    const std::string before = ReadFileText(folder.Path() + L"Data\\TORVANIX.set");
    for (const bool byEscape : {false, true}) {
        SCOPED_TRACE(byEscape);
        Press(cmdBlitz);
        ASSERT_TRUE(Becomes(lblFirstPeriod, L"00:05"));
        Choose(cmbLanguage, 2);
        if (byEscape)
            run->Key(VK_ESCAPE);
        else
            Press(cmdCancel);
        ASSERT_TRUE(Ended());
        EXPECT_EQ(run->Text(lblFace), L"00:20:00");
        EXPECT_EQ(run->Text(lblMoveNumber), L"Move Number");
        EXPECT_EQ(ReadFileText(folder.Path() + L"Data\\TORVANIX.set"), before);
        OpenSetup();
        EXPECT_EQ(TextOf(setup), L"AYARLAR");
        EXPECT_EQ(Text(lblFirstPeriod), L"00:20");
    }
}

TEST_F(SetupTest, PreviewsPlayWhatTheListsShow) {
    Start();
    ASSERT_FALSE(CaptureFile().empty()) << "TORVANIX_SOUND_CAPTURE names no file";
    // The first sound is short, the second long.
    const std::tuple<int, int, int, size_t> previews[] = {{cmbButtonSound, 4, cmdPreviewButton, 200},
                                                          {cmbFlagSound, 5, cmdPreviewFlag, 5000}};
    for (const auto& [list, position, button, loud] : previews) {
        SCOPED_TRACE(button);
        Choose(list, position);
        DeleteFileW(CaptureFile().c_str());
        Press(button);
        EXPECT_TRUE(Eventually([&] { return LoudSamples() > loud; })) << LoudSamples();
        EXPECT_TRUE(Eventually([&] { return run->Focused() == button; }));
        Choose(list, 0);
        DeleteFileW(CaptureFile().c_str());
        Press(button);
        EXPECT_TRUE(Eventually([&] { return run->Focused() == button; }));
        // The dialog handles what follows when the sound has ended.
        Choose(list, position);
        EXPECT_EQ(LoudSamples(), 0u) << "No Sound";
    }
}

TEST_F(SetupTest, NamesTakeWhatTheFileCanHold) {
    Start();
    Focus(txtName);
    const auto type = [&](wchar_t character) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wScan = character;
        input.ki.dwFlags = KEYEVENTF_UNICODE;
        SendInput(1, &input, sizeof(input));
    };
    for (wchar_t character : std::wstring(L"Zoë\u4E2D\u0416!")) type(character);
    EXPECT_TRUE(Becomes(txtName, L"Zoë!")) << "letters that the code page lacks are refused";

    const auto set = [&](int id, const std::wstring& text) {
        SendMessageW(Item(id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
    };
    set(txtName, std::wstring(200, L'w'));
    set(txtName + 1, std::wstring(84, L'b'));
    EXPECT_EQ(Text(txtName + 1).size(), 84u);
    set(txtName + 1, std::wstring(85, L'c'));
    EXPECT_EQ(Text(txtName + 1), std::wstring(84, L'b')) << "284 characters together";
}

TEST_F(SetupTest, UnwritableFileIsNamedAndTheDialogStays) {
    Start();
    Press(cmdBlitz);
    ASSERT_TRUE(Becomes(lblFirstPeriod, L"00:05"));
    const std::wstring file = folder.Path() + L"Data\\TORVANIX.set";
    {
        const UniqueFile held(CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
        Press(cmdOK);
        // Which of its reasons the system gives depends on the system.
        const std::wstring start = L"The settings file " + file + L" could not be written: ";
        EXPECT_EQ(run->MessageText().substr(0, start.size()), start);
        run->Answer(IDOK);
    }
    EXPECT_TRUE(IsWindowVisible(setup));
    EXPECT_EQ(run->Text(lblFace), L"00:20:00");
    Press(cmdOK);
    ASSERT_TRUE(Ended());
    EXPECT_EQ(run->Text(lblFace), L"00:05:00");
}

TEST_F(SetupTest, AboutClosesByAClickEscAndEnter) {
    run.emplace(folder, QuietSettings());
    ASSERT_TRUE(run->Clock());
    for (const int way : {0, 1, 2, 3, 4}) {
        SCOPED_TRACE(way);
        ASSERT_TRUE(Eventually([&] { return run->Focused() == cmdClock; }));
        run->Choose(3, 1);
        const HWND about = run->WaitWindow(L"frmAbout");
        ASSERT_TRUE(about);
        ASSERT_TRUE(Eventually([&] { return GetForegroundWindow() == about; }));
        EXPECT_EQ(TextOf(GetDlgItem(about, lblAboutCaption + 2)), L"Version :");
        EXPECT_EQ(TextOf(GetDlgItem(about, lblAboutValue + 1)), L"TORVANIX");
        if (way == 0) run->Click(GetDlgItem(about, imgKnight + 3));
        if (way == 1) run->Click(GetDlgItem(about, lblAboutValue));
        if (way == 2) run->Click(about);
        if (way == 3) run->Key(VK_ESCAPE);
        if (way == 4) run->Key(VK_RETURN);
        EXPECT_TRUE(Eventually([&] { return !IsWindow(about); }));
    }
}
