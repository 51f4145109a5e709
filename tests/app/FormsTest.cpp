#include "app/frmClock.h"
#include "games/frmFiles.h"
#include "platform/Dpi.h"
#include "recorder/frmScorlet.h"
#include "settings/frmAbout.h"
#include "settings/frmSetup.h"
#include "tests/app/FormChecks.h"
#include "tests/desktop/Desktop.h"

#include <gtest/gtest.h>

#include <memory>

// Every window from inside, in each language and in each state that looks different.

namespace {

struct NoClock final : ClockView {
    void ClockChanged(const ClockChange&) override {}
    void PlaySound(ClockSound) override {}
    void Inform(ClockEvent) override {}
    bool AskReset() override { return false; }
    void ReadSettings() override {}
    void GameChanged() override {}
    void LosingGame() override {}
};

// What the forms are made with, and one maker each: the only place that knows how.
struct Maker {
    Settings Options = QuietSettings();
    Texts Words{Options.LanguageIndex};
    MessageBoxes Boxes{Words};
    TestFolder Folder;
    SettingsFile File{Folder.Path()};
    GameStore Games{Folder.Path()};
    Environment System;
    const Surroundings Around{Words, Boxes, System};
    TickTimer Timer;
    Game Played{Options, Timer};
    NoClock None;

    Maker() {
        System.Look = AppearanceOf("NONE");
        System.DataFolder = Folder.Path();
    }
    template <typename Kind, typename... More>
    std::unique_ptr<Form> Open(Kind* form, More... more) {
        std::unique_ptr<Form> owner(form);
        form->Open(more...);
        return owner;
    }
    std::unique_ptr<Form> Clock() {
        File.Save(Options);
        return Open(new frmClock(Around, File, Options, Played, Timer));
    }
    std::unique_ptr<Form> Scorlet() {
        Played.Begin(None);
        const SIZE size = frmScorlet::DesignSize(96);
        return Open(new frmScorlet(Around, Played, nullptr), RECT{0, 0, size.cx, size.cy});
    }
    std::unique_ptr<Form> Setup(int32_t type) {
        Options.SetClockType(type);
        Options.Control.MovesFirstPeriod = 100;
        return Open(new frmSetup(Around, File, Options, [](HWND) {}), HWND{});
    }
    std::unique_ptr<Form> Files(FilesMode mode) {
        return Open(new frmFiles(Around, Games, Played, mode, [](HWND) {}), HWND{});
    }
    std::unique_ptr<Form> About() { return Open(new frmAbout(Around), HWND{}); }
};

using Change = void (*)(const Form&, const Texts&);

void Command(const Form& form, int id) { SendMessageW(form.Window(), WM_COMMAND, static_cast<WPARAM>(id), 0); }
void Keys(const Form& form, std::initializer_list<int> keys) {
    for (const int key : keys) SendMessageW(form.Control(picBoard), WM_KEYDOWN, static_cast<WPARAM>(key), 1);
}

struct Row {
    const char* Name;
    std::unique_ptr<Form> (*Make)(Maker&);
    std::vector<Change> Changes = {};  // from one state that looks different to the next
};

const Row Rows[] = {
    {"clock",
     [](Maker& maker) { return maker.Clock(); },
     {[](const Form& form, const Texts&) { Command(form, mnuStart); },
      [](const Form& form, const Texts&) { Command(form, mnuPause); },
      // The longest that the panels come to show.
      [](const Form& form, const Texts& texts) {
          const std::pair<int, std::wstring> longest[] = {{lblBlink, texts(TextId::ToMove)},
                                                          {lblPeriod, texts.Compose(TextId::AfterNthMove, L"100th")},
                                                          {lblPeriodTime, L"100:00"},
                                                          {lblBonusTime, L"59:59"},
                                                          {lblBonus, texts(TextId::BonusTime)},
                                                          {lblMoveCount, L"9999."},
                                                          {cmdPause, texts(TextId::Pause)},
                                                          {lblBlink + 1, texts(TextId::Pause)},
                                                          {cmdPause + 1, texts(TextId::Resume)},
                                                          {lblPeriod + 1, texts(TextId::CompleteGameTime)}};
          for (const auto& [id, text] : longest) form.SetText(id, text);
      }}},
    {"scorlet",
     [](Maker& maker) { return maker.Scorlet(); },
     {[](const Form& form, const Texts&) { Keys(form, {VK_RETURN}); },
      [](const Form& form, const Texts&) {
          Keys(form, {VK_UP, VK_UP, VK_UP, VK_UP, VK_UP, VK_UP, VK_RETURN});
      },
      [](const Form& form, const Texts&) {
          for (const int id : {int{txtMove}, int{cmdOK}}) form.SetVisible(id, true);
      }}},
    {"setup0", [](Maker& maker) { return maker.Setup(0); }},
    {"setup1", [](Maker& maker) { return maker.Setup(1); }},
    {"setup2", [](Maker& maker) { return maker.Setup(2); }},
    {"setup3", [](Maker& maker) { return maker.Setup(3); }},
    {"load", [](Maker& maker) { return maker.Files(FilesMode::Load); }},
    {"save", [](Maker& maker) { return maker.Files(FilesMode::Save); }},
    {"delete", [](Maker& maker) { return maker.Files(FilesMode::Delete); }},
    {"about", [](Maker& maker) { return maker.About(); }},
};

// As the system does when a window comes to a screen of another resolution.
void ScaleTo(HWND window, int dpi) {
    RECT area{};
    GetWindowRect(window, &area);
    const int from = DpiOf(window);
    area.right = area.left + MulDiv(area.right - area.left, dpi, from);
    area.bottom = area.top + MulDiv(area.bottom - area.top, dpi, from);
    SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&area));
}

class FormsTest : public testing::TestWithParam<std::tuple<Row, int32_t>> {
  protected:
    void TearDown() override {
        // What the window's end has left in the queue would end the next test's messages.
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        }
    }
};

void PrintTo(const Row& row, std::ostream* stream) { *stream << row.Name; }

}  // namespace

TEST_P(FormsTest, IsReadableFitsAndTakesTheSystemsColours) {
    const auto& [row, language] = GetParam();
    Maker maker;
    maker.Options.LanguageIndex = language;
    const std::unique_ptr<Form> form = row.Make(maker);
    const HWND window = form->Window();
    ShowWindow(window, SW_SHOWNA);
    for (size_t state = 0; state <= row.Changes.size(); ++state) {
        SCOPED_TRACE(state);
        if (state > 0) row.Changes[state - 1](*form, maker.Words);
        ExpectReadable(window);
        // A game that runs, a piece that is picked.
        if (state != std::min<size_t>(row.Changes.size(), 1)) continue;
        const HighContrastOn contrast;
        ExpectSystemColours(window);
    }
    const bool resizable = GetWindowLongPtrW(window, GWL_STYLE) & WS_THICKFRAME;
    for (const int dpi : {96, 144, 192}) {
        SCOPED_TRACE(dpi);
        ScaleTo(window, dpi);
        ExpectTextsFit(window, row.Name == std::string("clock"));
        if (!resizable) continue;
        RECT before{};
        GetWindowRect(window, &before);
        // It keeps to its least size.
        SetWindowPos(window, nullptr, 0, 0, 1, 1, SWP_NOMOVE | SWP_NOZORDER);
        ExpectTextsFit(window, row.Name == std::string("clock"));
        SetWindowPos(window, nullptr, 0, 0, before.right - before.left, before.bottom - before.top,
                     SWP_NOMOVE | SWP_NOZORDER);
    }
}

INSTANTIATE_TEST_SUITE_P(Each, FormsTest,
                         testing::Combine(testing::ValuesIn(Rows), testing::Values(Turkish, English, French)),
                         [](const auto& each) {
                             return std::get<0>(each.param).Name + std::string(1, "_TEF"[std::get<1>(each.param)]);
                         });

TEST(MenusTest, TellKeysAndWhatCanBeDoneInTheLanguageOfTheWindow) {
    Maker maker;
    maker.Options.LanguageIndex = French;
    const std::unique_ptr<Form> form = maker.Clock();
    const HMENU bar = GetMenu(form->Window());
    const auto entry = [&](UINT position) {
        wchar_t text[128];
        return std::wstring(text, text + GetMenuStringW(GetSubMenu(bar, 1), position, text, 128, MF_BYPOSITION));
    };
    const auto grayed = [&](UINT id) { return (GetMenuState(bar, id, MF_BYCOMMAND) & MF_GRAYED) != 0; };
    EXPECT_EQ(entry(0), maker.Words(TextId::MenuReset) + L"\t" + maker.Words(TextId::MenuResetKey));
    EXPECT_TRUE(grayed(mnuCloseScorlet) && grayed(mnuPrint));
    EXPECT_FALSE(grayed(mnuShowScorlet) || grayed(mnuSetup));
    const std::wstring pause = maker.Words(TextId::MenuPause), resume = maker.Words(TextId::MenuResume);
    maker.Options.LanguageIndex = Turkish;
    Command(*form, mnuStart);
    EXPECT_TRUE(grayed(mnuSetup)) << "a game is on";
    Command(*form, mnuPause);
    EXPECT_EQ(entry(1), resume);
    Command(*form, mnuPause);
    EXPECT_EQ(entry(1), pause);
}
