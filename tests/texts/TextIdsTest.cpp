#include "texts/TextIds.h"

#include "tests/base/Rows.h"

#include <map>
#include <vector>

namespace {

struct Row {
    const char* Name;
    int32_t Identifier;
    std::string Texts[3];
};

const Row Rows[] = {
#define HEADER_ROW(name, identifier, text)
#define TEXT_ROW(name, identifier, turkish, english, french) {#name, identifier, {turkish, english, french}},
#include "resources/texts.def"
#undef HEADER_ROW
#undef TEXT_ROW
};

bool Blank(const std::string& text) { return text.find_first_not_of(' ') == std::string::npos; }

size_t Count(const std::string& text, const std::string& part) {
    size_t count = 0;
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
    return count;
}

}  // namespace

TEST(TextIdsTest, EveryRowHasEveryLanguage) {
    for (const Row& row : Rows) {
        for (const std::string& text : row.Texts) {
            EXPECT_FALSE(text.empty()) << row.Name;
            // Turkish puts the word before the name where the others put it behind: one blank stands in for it.
            const bool mayBeBlank = row.Identifier == static_cast<int32_t>(TextId::GameBefore) && &text == row.Texts;
            EXPECT_EQ(Blank(text), mayBeBlank) << row.Name;
            for (const char* part : {"%1", "%2", "&&", "::", "[Ctrl+"})
                EXPECT_EQ(Count(text, part), Count(row.Texts[English - 1], part)) << row.Name << ": " << text;
        }
    }
}

TEST(TextIdsTest, IdentifiersAreTakenOnce) {
    std::map<int32_t, const char*> taken;
    for (const Row& row : Rows) {
        for (int32_t language = Turkish; language <= French; ++language) {
            const auto [place, isNew] = taken.emplace(row.Identifier + language, row.Name);
            EXPECT_TRUE(isNew) << row.Name << " and " << place->second << ": " << row.Identifier + language;
        }
    }
}

TEST(TextIdsTest, OrdinalsAndCountsOfEachLanguage) {
    // The English and the French ordinal, and whether both count it as one.
    const auto rows = [](const std::string& text) {
        const int32_t number = std::stoi(text);
        const std::map<TextId, std::string> ordinals{
            {TextId::OrdinalSt, "st"}, {TextId::OrdinalNd, "nd"}, {TextId::OrdinalRd, "rd"}, {TextId::OrdinalTh, "th"}};
        const std::map<TextId, std::string> counts{{TextId::SpokenSecond, " one"},
                                                   {RowBehind(TextId::SpokenSecond, 1), " many"}};
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
