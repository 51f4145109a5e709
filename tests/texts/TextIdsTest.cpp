#include "texts/TextIds.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
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
    struct Row {
        int32_t Number;
        TextId English, French, EnglishCount, FrenchCount;
    };
    constexpr auto st = TextId::OrdinalSt, nd = TextId::OrdinalNd, rd = TextId::OrdinalRd, th = TextId::OrdinalTh;
    constexpr auto one = TextId::SpokenSecond, many = RowBehind(one, 1);
    const Row rows[] = {{0, th, th, many, one},    {1, st, st, one, one},     {2, nd, th, many, many},
                        {3, rd, th, many, many},   {4, th, th, many, many},   {11, th, th, many, many},
                        {21, st, th, many, many},  {101, st, th, many, many}, {112, th, th, many, many},
                        {113, th, th, many, many}, {200, th, th, many, many}};
    for (const Row& row : rows) {
        EXPECT_EQ(OrdinalRow(row.Number, English), row.English) << row.Number;
        EXPECT_EQ(OrdinalRow(row.Number, French), row.French) << row.Number;
        EXPECT_EQ(CountRow(one, row.Number, English), row.EnglishCount) << row.Number;
        EXPECT_EQ(CountRow(one, row.Number, French), row.FrenchCount) << row.Number;
    }
}
