#include "app/frmClock.h"
#include "clock/frmCorrection.h"
#include "games/frmFiles.h"
#include "platform/Dpi.h"
#include "recorder/frmScorlet.h"
#include "settings/frmAbout.h"
#include "settings/frmKeepAs.h"
#include "settings/frmSetup.h"
#include "tests/app/FormChecks.h"
#include "tests/desktop/Desktop.h"

#include <gtest/gtest.h>

#include <map>
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
    clsFileSystem Log;
    const Surroundings Around{Words, Boxes, System, Log};
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
        const RECT frame = FrameOf(WS_OVERLAPPEDWINDOW, false, 96);
        return Open(new frmScorlet(Around, Played, nullptr),
                    Box{0, 0, ScorletWidth + frame.right - frame.left, ScorletHeight + frame.bottom - frame.top});
    }
    std::unique_ptr<Form> Setup(int32_t type) {
        Options.SetClockType(type);
        Options.Control.MovesFirstPeriod = 100;
        return Open(new frmSetup(Around, File, Options, [](HWND) {}), HWND{});
    }
    std::unique_ptr<Form> Files(FilesMode mode) {
        modClock::ClockState clock;
        clock.Control = Options.Control;
        const Recorder scorlet;
        Games.SaveGame(L"a", EncodeGame(Options, clock, &scorlet, {2024, 3, 9}));
        WriteFileText(Folder.Path() + L"b.bin", "");
        auto form = Open(new frmFiles(Around, Games, Played, mode, [](HWND) {}), HWND{});
        if (mode == FilesMode::Save) return form;
        SendMessageW(form->Control(lstGames), LB_SETCURSEL, mode == FilesMode::Delete, 0);
        SendMessageW(form->Window(), WM_COMMAND, MAKEWPARAM(lstGames, LBN_SELCHANGE), 0);
        return form;
    }
    std::unique_ptr<Form> Correction() {
        return Open(new frmCorrection(Around, Played.Clock().Clock().State(), {L"WHITE", L"BLACK"}), HWND{});
    }
    std::unique_ptr<Form> KeepAs() { return Open(new frmKeepAs(Around), HWND{}, std::wstring()); }
    std::unique_ptr<Form> About() { return Open(new frmAbout(Around), HWND{}); }
};

constexpr std::array Names{"clock", "scorlet", "setup0", "setup1", "setup2",     "setup3",
                           "load",  "save",    "delete", "about",  "correction", "keep as"};

std::unique_ptr<Form> Make(Maker& maker, const std::string& name) {
    if (name == "clock") return maker.Clock();
    if (name == "scorlet") return maker.Scorlet();
    if (name.starts_with("setup")) return maker.Setup(name.back() - '0');
    if (name == "correction") return maker.Correction();
    if (name == "keep as") return maker.KeepAs();
    if (name == "about") return maker.About();
    return maker.Files(name == "load" ? FilesMode::Load : name == "save" ? FilesMode::Save : FilesMode::Delete);
}

void Command(const Form& form, int id) { SendMessageW(form.Window(), WM_COMMAND, static_cast<WPARAM>(id), 0); }

// Brings a form into its next state that looks different.
void Change(const Form& form, const Texts& texts, int state) {
    const auto key = [&](int code) { SendMessageW(form.Control(picBoard), WM_KEYDOWN, static_cast<WPARAM>(code), 1); };
    const bool clock = !form.Control(picBoard);
    if (clock && state < 3) return Command(form, state == 1 ? mnuStart : mnuPause);
    if (!clock) {
        for (int up = 0; state == 2 && up < 5; ++up) key(VK_UP);
        if (state < 3) return key(VK_RETURN);
        for (const int id : {int{txtMove}, int{cmdOK}, int{txtTypedMove}, int{lblTypedMove}}) form.SetVisible(id, true);
        form.SetText(lblTypedMove, texts.Compose(TextId::SeveralMovesMatch, L"Nb1-d2, Nf3-d2"));
        form.SetText(lblWhoseMove, texts.Compose(TextId::OtherColourMoved, texts.SideName(White), L"299"));
        return;
    }
    // The longest that the panels come to show.
    form.SetText(lblBlink, texts(TextId::ToMove));
    form.SetText(lblBlink + 1, texts(TextId::Pause));
    form.SetText(lblPeriod, texts.Compose(TextId::AfterNthMove, L"100th"));
    form.SetText(lblPeriod + 1, texts(TextId::CompleteGameTime));
    form.SetText(lblPeriodTime, L"100:00");
    form.SetText(lblBonus, texts(TextId::BonusTime));
    form.SetText(lblBonusTime, L"59:59");
    form.SetText(lblMoveCount, L"9999.");
    form.SetText(cmdPause, texts(TextId::Pause));
    form.SetText(cmdPause + 1, texts(TextId::Resume));
}

void ExpectTextsFit(const Form& form, const Texts& texts, bool clock) {
    ExpectTextsFit(form.Window(), clock);
    const HWND line = form.Control(lblWhoseMove);
    if (!line) return;
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(line, WM_GETFONT, 0, 0)), sizeof(font), &font);
    const std::wstring lookBack = texts.Compose(TextId::LookBackWithTimes, L"99... Nb1xd2+", L"00:59:59", L"00:59:59");
    for (const std::wstring& text : {TextOf(line), lookBack})
        ExpectFits(line, text, ScorletPainter::BesideLine(-font.lfHeight), true);
}

// As the system does when a window comes to a screen of another resolution.
void ScaleTo(HWND window, int dpi) {
    RECT area = AreaOf(window);
    const int from = DpiOf(window);
    area.right = area.left + MulDiv(area.right - area.left, dpi, from);
    area.bottom = area.top + MulDiv(area.bottom - area.top, dpi, from);
    SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&area));
}

class FormsTest : public testing::TestWithParam<std::tuple<const char*, int32_t>> {
  protected:
    Maker maker;
    std::unique_ptr<Form> form;

    void TearDown() override {
        form.reset();
        // What the window's end has left in the queue would end the next test's messages.
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        }
    }
};

}  // namespace

TEST_P(FormsTest, IsReadableFitsAndTakesTheSystemsColours) {
    const std::string name = std::get<0>(GetParam());
    maker.Options.LanguageIndex = std::get<1>(GetParam());
    form = Make(maker, name);
    const HWND window = form->Window();
    ShowWindow(window, SW_SHOWNA);
    const bool resizable = GetWindowLongPtrW(window, GWL_STYLE) & WS_THICKFRAME;
    for (int state = 0; state <= (resizable ? 3 : 0); ++state) {
        SCOPED_TRACE(state);
        if (state > 0) Change(*form, maker.Words, state);
        ExpectReadable(window);
        // A game that runs, a piece that is picked.
        if (state == (resizable ? 1 : 0)) ExpectSystemColours(window);
    }
    for (const int dpi : {96, 144, 192}) {
        SCOPED_TRACE(dpi);
        ScaleTo(window, dpi);
        ExpectTextsFit(*form, maker.Words, name == "clock");
        if (!resizable) continue;
        const RECT before = AreaOf(window);
        // It keeps to its least size.
        SetWindowPos(window, nullptr, 0, 0, 1, 1, SWP_NOMOVE | SWP_NOZORDER);
        ExpectTextsFit(*form, maker.Words, name == "clock");
        SetWindowPos(window, nullptr, 0, 0, before.right - before.left, before.bottom - before.top,
                     SWP_NOMOVE | SWP_NOZORDER);
    }
}

INSTANTIATE_TEST_SUITE_P(Each, FormsTest,
                         testing::Combine(testing::ValuesIn(Names), testing::Values(Turkish, English, French)));

// Each state of a side as its panel shows it while the word of its label is off, in a window of that size.
std::map<PanelLook, GreyPicture> LooksOf(Side side, SIZE size) {
    Maker maker;
    const std::unique_ptr<Form> form = maker.Clock();
    const RECT window = AreaOf(form->Window());
    RECT client{};
    GetClientRect(form->Window(), &client);
    SetWindowPos(form->Window(), HWND_TOPMOST, 0, 0, window.right - window.left - client.right + size.cx,
                 window.bottom - window.top - client.bottom + size.cy, 0);
    const Box panel = LayOutClock(size.cx, size.cy).Panels[side].Panel;
    std::map<PanelLook, GreyPicture> looks;
    const auto take = [&] {
        for (const Side each : BothSides) form->SetText(ControlOf(lblFace, each), L"00:00:00");
        if (GetWindowTextLengthW(form->Control(ControlOf(lblBlink, side))) > 0)
            SendMessageW(form->Window(), WM_TIMER, BlinkTimer, 0);
        looks.emplace(maker.Played.Clock().LookOf(side), GreyOf(form->Window(), panel));
    };
    take();
    Command(*form, mnuStart);
    take();
    maker.Played.Press(White);
    take();
    if (side == White) maker.Played.Press(Black);
    Command(*form, mnuPause);
    take();
    Command(*form, mnuPause);
    while (maker.Played.Clock().CurrentPhase() == Phase::Running) maker.Played.Tick();
    take();
    return looks;
}

TEST(PanelsTest, TellTheStatesApartWithoutColours) {
    for (const SIZE size : {SIZE{DesignWidth, DesignHeight}, {300, 600}, {LeastWidth, LeastHeight}}) {
        for (const Side side : BothSides) {
            const std::map<PanelLook, GreyPicture> looks = LooksOf(side, size);
            EXPECT_EQ(looks.size(), 5U);
            for (auto one = looks.begin(); one != looks.end(); ++one) {
                for (auto other = looks.begin(); other != one; ++other)
                    EXPECT_TRUE(DifferInGrey(one->second, other->second))
                        << size.cx << ", side " << side << ": " << static_cast<int>(one->first) << " and "
                        << static_cast<int>(other->first);
            }
        }
    }
}

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
    EXPECT_TRUE(grayed(mnuCloseScorlet) && grayed(mnuPrint) && grayed(mnuCopyGame) && grayed(mnuExportPgn));
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
