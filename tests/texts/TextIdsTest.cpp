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

TEST(TextIdsTest, OrdinalsOfEachLanguage) {
    const std::map<int32_t, TextId> english{
        {1, TextId::OrdinalSt},  {2, TextId::OrdinalNd},   {3, TextId::OrdinalRd},
        {4, TextId::OrdinalTh},  {11, TextId::OrdinalTh},  {12, TextId::OrdinalTh},
        {21, TextId::OrdinalSt}, {101, TextId::OrdinalSt}, {113, TextId::OrdinalTh}};
    for (const auto& [number, row] : english) {
        EXPECT_EQ(OrdinalRow(number, English), row) << number;
        EXPECT_EQ(OrdinalRow(number, French), number == 1 ? TextId::OrdinalSt : TextId::OrdinalTh) << number;
    }
}
