#include "settings/SettingsRecord.h"

#include "base/RunTimeError.h"
#include "tests/settings/SettingsText.h"

#include <algorithm>

namespace {

// The first of the DEFAULT settings that differs from the unusual ones after their record has been read with some
// changes, and the damage before it.
std::string Read(const std::string& changes) {
    SlotRecord record = Changed(EncodeSettings(Unusual()), changes.starts_with("cut") ? "" : changes, 6);
    std::optional<RecordError> cut;
    if (changes.starts_with("cut")) cut = {Damage::ShortFile, std::stoi(changes.substr(4))};
    Settings read;
    const auto error = DecodeSettings({record, cut}, read);
    read.LanguageIndex = DecodeLanguage(record);
    const std::vector<std::string> usual = Words(SettingsText(Unusual()));
    const std::string text = error ? DamageText(error->What, error->Slot) + " " : "";
    for (const std::string& word : Words(SettingsText(read)))
        if (std::ranges::find(usual, word) == usual.end()) return text + word;
    return text;
}

Settings Named() {
    Settings settings = Unusual();
    settings.FullNames = {L"\u015En\xFFFF", L"\u00FC"};
    return settings;
}

// Which full names are read of a record with some changes, or the damage.
std::string NamesRead(const std::string& changes) {
    Settings read;
    read.FullNames[White] = L"earlier";
    const auto error = DecodeSettings({Changed(EncodeSettings(Named()), changes, 6), {}}, read);
    if (error) return DamageText(error->What, error->Slot);
    if (read.FullNames == Named().FullNames) return "both";
    return read.FullNames == Settings().FullNames ? "none" : "other";
}

}  // namespace

TEST(SettingsRecordTest, SlotsAreTakenUpToTheFirstBadOne) {
    ExpectRows(Read, R"(
        => | bonus0=30.5 => 30,7 | bonus0=31.5 => 32,7 | down=1 => down | number=-1 => number | type=- => 0:1
        type=7 => 7:1 | open=1 => open | button=0 => NOSOUND | flag=0 => NOSOUND | moves=2147483645 => 2:2147483646
        first0=35791394 => 2147483640,10800 | 300=- => 2 | 300=1.0 => 1 | 300=7 => 7 | 0=-1 => OutOfRange 0 /
        0=285 => OutOfRange 0 / | 1=256 => OutOfRange 1 / | 1=-1 => OutOfRange 1 / | 1=0 => OutOfRange 1 /
        5=31 => OutOfRange 5 Ann/ | 3=127 => OutOfRange 3 / | 5=32 => Ann/ | 5=126 => Ann/~ | 4=282 => OutOfRange 4 Ann/
        first0=0 => OutOfRange 6 1200,1200 | first1=35791395 => Overflow 7 60,1200 | second1=0.5 => OutOfRange 9 0,1200
        second0=-1 => OutOfRange 8 1200,1200 | first0=1.5 => OutOfRange 6 1200,1200 | bonus1=-1 => OutOfRange 11 3599,0
        bonus1=99999999999. => Overflow 11 3599,0 | bonus1=-99999999999. => Overflow 11 3599,0
        bonus1=nan => OutOfRange 11 3599,0 | moves=-1 => OutOfRange 17 2:40 | moves=2147483646 => OutOfRange 17 2:40
        button=5 => OutOfRange 18 BUTTONPUSHED | button=-1 => OutOfRange 18 BUTTONPUSHED | 300=nan => OutOfRange 300 2
        flag=6 => OutOfRange 19 PIECEMOVED | 300=inf => Overflow 300 2 | 300=99999999999. => Overflow 300 2
        301=99999999999. => Overflow 301 | 302=99999999999. => Overflow 302 | 303=99999999999. => Overflow 303
        303=-1 => OutOfRange 303 | cut 18 => ShortFile 18 BUTTONPUSHED | cut 900 => ShortFile 900
    )");
    EXPECT_EQ(EncodeSettings(Unusual()),
              Changed({},
                      "0=3 1=65 2=110 3=110 4=1 5=66 6=1 7=180 8=0 9=10 10=3599 11=7 12=0 13=1 14=0 15=2 16=0 "
                      "17=0 18=4 19=5 300=3 301=1",
                      0));
    for (const size_t slot : {301, 302, 303, 310, 311, 312})
        EXPECT_EQ(EncodeSettings(Settings())[slot], SlotValue()) << slot;
}

TEST(SettingsRecordTest, FullNames) {
    EXPECT_EQ(EncodeSettings(Named()),
              Changed(EncodeSettings(Unusual()), "310=198564003 311=3 312=350 313=110 314=65535 315=1 316=252", 0));
    ExpectRows(NamesRead, R"(
        => both | 310=- => none | 1=66 => none | 5=65 => none | 313=32 => other | first0=2 => both
        310=nan => OutOfRange 310 | 311=-1 => OutOfRange 311 | 311=285 => OutOfRange 311 | 312=31 => OutOfRange 312
        312=127 => OutOfRange 312 | 312=65536 => OutOfRange 312 | 314=- => OutOfRange 314 | 315=2 => OutOfRange 317
    )");
    Settings settings = Named();
    settings.FullNames.fill(std::wstring(284, L'\u015E'));
    EXPECT_FALSE(DecodeSettings({EncodeSettings(settings), {}}, settings));
    EXPECT_EQ(settings.FullNames[Black].size(), 284);
    settings.FullNames[White] += L'a';
    EXPECT_THROW(EncodeSettings(settings), RunTimeError);
    settings.FullNames[White] = L"a\n";
    EXPECT_FALSE(NamesFit(settings));
}

TEST(SettingsRecordTest, NamesThatReachTheLanguageAreRefused) {
    Settings settings, read;
    settings.BoardTurned = true;
    settings.LowTime = 30;
    settings.PlayerNames = {std::string(200, 'a'), std::string(84, '\xFF')};
    EXPECT_FALSE(DecodeSettings({EncodeSettings(settings), {}}, read));
    EXPECT_EQ(SettingsText(read), SettingsText(settings));
    settings.PlayerNames[Black] += 'b';
    EXPECT_THROW(EncodeSettings(settings), RunTimeError);
    settings.PlayerNames[Black] = '\x7F';
    EXPECT_FALSE(NamesFit(settings));
    settings.PlayerNames = {"", std::string(284, 'b')};
    EXPECT_TRUE(DecodeSettings({Changed(EncodeSettings(Unusual()), "5=31", 6), {}}, settings));
    EXPECT_TRUE(NamesFit(settings)) << "White's new name without what was Black's";
    EXPECT_THROW(settings.SetButtonSound(5), RunTimeError);
    EXPECT_THROW(settings.SetFlagSound(-1), RunTimeError);
}
