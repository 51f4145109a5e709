#include "texts/TextIds.h"

#include "tests/base/Rows.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

namespace {

struct Row {
    const char* Name;
    int32_t Identifier;
    const char* Texts[3];
};

const Row Rows[] = {
#define HEADER_ROW(name, identifier, text)
#define TEXT_ROW(name, identifier, turkish, english, french) {#name, identifier, {turkish, english, french}},
#include "resources/texts.def"
#undef HEADER_ROW
#undef TEXT_ROW
};

size_t Count(const std::string& text, const std::string& part) {
    size_t count = 0;
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
    return count;
}

}  // namespace

TEST(TextIdsTest, EveryRowHasEveryLanguageAndIdentifiersOfItsOwn) {
    std::map<int32_t, const char*> taken;
    for (const Row& row : Rows) {
        for (size_t language = 0; language < 3; ++language) {
            const auto [place, isNew] = taken.emplace(row.Identifier + Turkish + language, row.Name);
            EXPECT_TRUE(isNew) << row.Name << " and " << place->second;
            // Turkish has nothing before the name or the number where the others have words.
            const TextId id{row.Identifier};
            const bool mayBeBlank = language == 0 && (id == TextId::GameBefore || id == TextId::SecondTimeBefore);
            const std::string text = row.Texts[language];
            EXPECT_EQ(Stripped(text).empty(), mayBeBlank) << row.Name;
            for (const char* part : {"%1", "%2", "%3", "%4", "%5", "%6", "&&", "::", "[Ctrl+"})
                EXPECT_EQ(Count(text, part), Count(row.Texts[English - 1], part)) << row.Name << ": " << text;
        }
    }
}

TEST(TextIdsTest, AccessKeysAreTakenOnceInEachMenu) {
    const std::vector<TextId> menus[] = {
        {TextId::MenuGame, TextId::MenuClock, TextId::MenuScorlet, TextId::MenuHelp},
        {TextId::MenuStart, TextId::MenuLoad, TextId::MenuSave, TextId::MenuDelete, TextId::MenuBringBack,
         TextId::MenuExit},
        {TextId::MenuReset, TextId::MenuPause, TextId::MenuCorrect, TextId::MenuSetup, TextId::MenuFullScreen},
        {TextId::MenuReset, TextId::MenuResume, TextId::MenuCorrect, TextId::MenuSetup, TextId::MenuFullScreen},
        {TextId::MenuShow, TextId::MenuClose, TextId::MenuPrint, TextId::MenuTakeBack, TextId::MenuRedo,
         TextId::MenuGoOn, TextId::MenuCopyGame, TextId::MenuCopyPosition, TextId::MenuExportPgn,
         TextId::MenuTurnBoard},
        {TextId::MenuContents, TextId::MenuAbout},
        {TextId::EditMove, TextId::PrintMoveList, TextId::DeleteLastMove, TextId::MenuTakeBack, TextId::MenuRedo},
    };
    for (const std::vector<TextId>& menu : menus) {
        for (size_t language = 0; language < 3; ++language) {
            std::set<std::string> taken;
            for (const Row& row : Rows) {
                if (std::find(menu.begin(), menu.end(), TextId{row.Identifier}) == menu.end()) continue;
                const std::string text = row.Texts[language];
                ASSERT_EQ(Count(text, "&"), 1U) << text;
                const size_t at = text.find('&') + 1;
                // The one Turkish letter among the keys has two bytes and no small form in use.
                std::string key = text.substr(at, text.starts_with("&Ç") ? 2 : 1);
                if (key.size() == 1) key[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(key[0])));
                EXPECT_TRUE(taken.insert(key).second) << text;
            }
        }
    }
}

TEST(TextIdsTest, SystemsOfEveryCountryGetTheirLanguage) {
    for (const auto& [identifier, language] : {std::pair<uint16_t, Language>{0x041F, Turkish},
                                               {0x040C, French},
                                               {0x0C0C, French},
                                               {0x0409, English},
                                               {0x0407, English},
                                               {0, English}})
        EXPECT_EQ(LanguageOfSystem(identifier), language) << identifier;
}

TEST(TextIdsTest, OrdinalsAndCountsOfEachLanguage) {
    // The English and the French ordinal, and whether both count it as one.
    const auto rows = [](const std::string& text) {
        const int32_t number = std::stoi(text);
        const std::map<TextId, std::string> ordinals{
            {TextId::OrdinalSt, "st"}, {TextId::OrdinalNd, "nd"}, {TextId::OrdinalRd, "rd"}, {TextId::OrdinalTh, "th"}};
        const std::map<TextId, std::string> counts{{TextId::SpokenSecond, " one"},
                                                   {RowAfter(TextId::SpokenSecond, 1), " many"}};
        std::string said;
        for (const int32_t language : {English, French})
            said += ordinals.at(OrdinalRow(number, language)) +
                    counts.at(CountRow(TextId::SpokenSecond, number, language)) + " ";
        return said;
    };
    ExpectRows(rows, R"(
        0 => th many th one | 1 => st one st one | 2 => nd many th many | 3 => rd many th many | 4 => th many th many
        11 => th many th many | 12 => th many th many | 21 => st many th many | 101 => st many th many
        112 => th many th many | 113 => th many th many | 123 => rd many th many | 200 => th many th many
    )");
}
