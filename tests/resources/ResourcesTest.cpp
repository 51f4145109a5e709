#include "platform/Picture.h"
#include "platform/SystemError.h"
#include "platform/TopDownBitmap.h"
#include "platform/modResource.h"
#include "settings/SoundTables.h"
#include "tests/desktop/Desktop.h"
#include "texts/Texts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

// What the program carries: texts, pictures, sounds, cursors and icons, read back through the program's own loaders.

TEST(ResourcesTest, TextsReachTheProgramAsTheTableHasThem) {
    const int32_t language = Turkish;
    const Texts texts(language);
    const auto expect = [&](int32_t identifier, const char* text) {
        EXPECT_EQ(texts.LookUp(identifier), Wide(text)) << identifier;
    };
#define HEADER_ROW(name, identifier, text) expect(identifier, text);
#define TEXT_ROW(name, identifier, turkish, english, french) \
    expect(identifier + 1, turkish);                         \
    expect(identifier + 2, english);                         \
    expect(identifier + 3, french);
#include "resources/texts.def"
#undef HEADER_ROW
#undef TEXT_ROW
    // A row whose spelling a well-meant correction would spoil.
    expect(32052, "Enter a name or select from the liste   to DELETE the game.");
    for (const int64_t none : {int64_t{10104}, int64_t{0}, int64_t{-1}, int64_t{10100} + 2147483647})
        EXPECT_EQ(texts.LookUp(none), L"") << none;
}

TEST(ResourcesTest, MessagesAreComposedInAnyOrderOfTheirParts) {
    const int32_t language = English;
    const Texts texts(language);
    EXPECT_EQ(texts.Compose(TextId::HelpNotStarted, L"%2", L"x"), L"The help viewer %2 could not be started: x.")
        << "what is put in is not looked into";
    EXPECT_EQ(texts.Reason(ERROR_SHARING_VIOLATION), L"it is in use by another program");
    EXPECT_EQ(texts.Reason(1234), L"system error 1234");
}

TEST(ResourcesTest, TimesInWordsCountAsTheirLanguageDoes) {
    const std::map<int32_t, std::array<std::wstring, 3>> rows{
        {0, {L"0 saniye", L"0 seconds", L"0 seconde"}},
        {1199, {L"19 dakika 59 saniye", L"19 minutes 59 seconds", L"19 minutes 59 secondes"}},
        {3661, {L"1 saat 1 dakika 1 saniye", L"1 hour 1 minute 1 second", L"1 heure 1 minute 1 seconde"}},
        {360000, {L"100 saat", L"100 hours", L"100 heures"}},
    };
    int32_t language = Turkish;
    const Texts texts(language);
    for (const auto& [seconds, wanted] : rows) {
        for (language = Turkish; language <= French; ++language)
            EXPECT_EQ(texts.Duration(seconds), wanted[static_cast<size_t>(language - Turkish)]);
    }
}

TEST(ResourcesTest, EveryPictureLoadsWithItsTransparency) {
    for (const char* name : {"WK", "WQ", "WR",  "WB",  "WN", "WP", "BK", "BQ", "BR",     "BB",
                             "BN", "BP", "WNR", "BNR", "TQ", "TR", "TB", "TN", "FLAGUP", "FLAGDOWN"}) {
        SCOPED_TRACE(name);
        const auto source = modResource::LoadResourcePicture(name);
        const Picture picture(*source);
        ASSERT_FALSE(picture.Empty());
        // Drawn on magenta, the ground must show in a corner and the picture elsewhere.
        const TopDownBitmap bitmap(64, 64);
        constexpr uint32_t magenta = 0xFF00FF;
        const std::span<uint32_t> pixels = bitmap.Pixels();
        std::fill(pixels.begin(), pixels.end(), magenta);
        const UniqueDc dc(CreateCompatibleDC(nullptr));
        const Selection selection(dc.get(), bitmap.Handle());
        picture.Draw(dc.get(), 0, 0, 64);
        GdiFlush();
        EXPECT_EQ(pixels[0], magenta);
        const auto ground = std::count(pixels.begin(), pixels.end(), magenta);
        EXPECT_TRUE(ground > 0 && ground < 64 * 64 - 300) << ground;
    }
}

TEST(ResourcesTest, WhatCannotBeLoadedOrMadeIsAnError) {
    EXPECT_THROW(modResource::LoadResourcePicture("NOSUCHPICTURE"), SystemError);
    EXPECT_THROW(modResource::MakeTemporaryFileName("C:\\no such folder\\", "~tvx", 0), SystemError);
}

TEST(ResourcesTest, SoundsAreShortWaves) {
    const auto seconds = [](const char* name) -> double {
        const HRSRC resource = FindResourceA(nullptr, name, "WAVE");
        EXPECT_TRUE(resource) << name;
        if (!resource) return 0.0;
        const auto* wave = static_cast<const uint8_t*>(LockResource(LoadResource(nullptr, resource)));
        EXPECT_EQ(std::string(wave, wave + 4), "RIFF") << name;
        uint32_t bytesPerSecond;
        memcpy(&bytesPerSecond, wave + 28, sizeof(bytesPerSecond));
        return static_cast<double>(SizeofResource(nullptr, resource)) / bytesPerSecond;
    };
    for (const char* name : ButtonSounds) EXPECT_LT(seconds(name), 0.120) << name;
    for (const char* name : FlagSounds) EXPECT_LT(seconds(name), 1.5) << name;
}

TEST(ResourcesTest, CursorsIconsAndBitmapsAreThereByName) {
    const HINSTANCE program = GetModuleHandleW(nullptr);
    for (const wchar_t* name : {L"HANDHIT.CUR", L"HANDPOINTBLUE.CUR"}) EXPECT_TRUE(LoadCursorW(program, name));
    for (const wchar_t* name : {L"FLAGUP", L"FLAGDOWN", L"DISKETTE.ICO", L"WPICON.ICO", L"HAND", L"AAATORVANIX"})
        EXPECT_TRUE(LoadIconW(program, name));
    for (const wchar_t* name : {L"WK", L"WQ", L"WR", L"WB", L"WN", L"WP", L"BK", L"BQ", L"BR", L"BB", L"BN", L"BP"}) {
        EXPECT_TRUE(LoadIconW(program, name));
        EXPECT_TRUE(UniqueBitmap(LoadBitmapW(program, name)).get());
    }
}
