#include "games/Diagram.h"

#include "tests/base/DamageText.h"
#include "tests/recorder/RecordText.h"

#include <gtest/gtest.h>

TEST(DiagramTest, PositionsComeBackAndDamageIsNamedWithLineAndColumn) {
    const std::string initial =
        "BR  BN  BB  BQ  BK  BB  BN  BR  \r\n"
        "BP  BP  BP  BP  BP  BP  BP  BP  \r\n"
        "--  --  --  --  --  --  --  --  \r\n"
        "--  --  --  --  --  --  --  --  \r\n"
        "--  --  --  --  --  --  --  --  \r\n"
        "--  --  --  --  --  --  --  --  \r\n"
        "WP  WP  WP  WP  WP  WP  WP  WP  \r\n"
        "WR  WN  WB  WQ  WK  WB  WN  WR  \r\n";
    EXPECT_EQ(EncodeDiagram(Board()), initial);
    struct Row {
        size_t At, Length;
        const char *Text, *Read;  // the square where something else is read, or the damage
    };
    const Row rows[] = {
        {0, 0, "", ""},
        {270, 2, "", ""},  // without the last line end
        {7 * 34 + 28, 2, "--", "h1"},
        {34 + 4, 2, "WX", "UnknownPiece 2,5"},
        {34 + 6, 1, "x", "BrokenLine 2,7"},
        {32, 1, "", "BrokenLine 1,33"},
        {32, 0, "--  ", "BrokenLine 1,33"},
        {34 * 6 + 32, 999, "", "BrokenLine 7,33"},
        {34 * 7 + 1, 999, "", "BrokenLine 8,1"},
        {272, 0, "\r\n", "BrokenLine 9,1"},
        {0, 999, "", "BrokenLine 1,1"},
    };
    for (const Row& row : rows) {
        Board read = Position("WKa1");
        std::string text;
        if (const auto error = DecodeDiagram(std::string(initial).replace(row.At, row.Length, row.Text), read)) {
            EXPECT_EQ(error->File, DiagramFile);
            EXPECT_EQ(BoardText(read), "WKa1 x ") << "nothing is taken";
            text = DamageText(error->What, error->Place) + "," + std::to_string(error->Column);
        } else {
            for (int index = 11; index <= 88; ++index) {
                const Square square{index};
                if (read.At(square) != Board().At(square)) text += {FileLetter(square), RankDigit(square)};
            }
        }
        EXPECT_EQ(text, row.Read);
    }
}
