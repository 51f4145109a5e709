#include "texts/TextIds.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace {

struct Row {
    const char* name;
    int32_t identifier;
    std::string texts[3];
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
        for (const std::string& text : row.texts) {
            EXPECT_FALSE(text.empty()) << row.name;
            // Turkish puts the word before the name where the others put it behind: one blank stands in for it.
            const bool mayBeBlank = row.identifier == static_cast<int32_t>(TextId::GameBefore) && &text == row.texts;
            EXPECT_EQ(Blank(text), mayBeBlank) << row.name;
            for (const char* part : {"%1", "%2", "&&", "::", "[Ctrl+"})
                EXPECT_EQ(Count(text, part), Count(row.texts[English - 1], part)) << row.name << ": " << text;
        }
    }
}

TEST(TextIdsTest, IdentifiersAreTakenOnce) {
    std::map<int32_t, const char*> taken;
    for (const Row& row : Rows) {
        for (int32_t language = Turkish; language <= French; ++language) {
            const auto [place, isNew] = taken.emplace(row.identifier + language, row.name);
            EXPECT_TRUE(isNew) << row.name << " and " << place->second << ": " << row.identifier + language;
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
