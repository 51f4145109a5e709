#include "games/Diagram.h"

#include "tests/games/GameText.h"

namespace {

const std::string Initial =
    "BR  BN  BB  BQ  BK  BB  BN  BR  \r\n"
    "BP  BP  BP  BP  BP  BP  BP  BP  \r\n"
    "--  --  --  --  --  --  --  --  \r\n"
    "--  --  --  --  --  --  --  --  \r\n"
    "--  --  --  --  --  --  --  --  \r\n"
    "--  --  --  --  --  --  --  --  \r\n"
    "WP  WP  WP  WP  WP  WP  WP  WP  \r\n"
    "WR  WN  WB  WQ  WK  WB  WN  WR  \r\n";

}  // namespace

TEST(DiagramTest, InitialPositionByteForByte) { EXPECT_EQ(EncodeDiagram(Board()), Initial); }

TEST(DiagramTest, DamageIsNamedWithLineAndColumn) {
    Board read;
    EXPECT_FALSE(DecodeDiagram(std::string_view(Initial).substr(0, 270), read)) << "without the last line end";
    using Rule = GameFileError::Rule;
    struct Row {
        const char* name;
        size_t at, length;
        const char* text;
        Rule rule;
        int32_t line, column;
    };
    const Row rows[] = {
        {"unknown piece", 34 + 4, 2, "WX", Rule::UnknownPiece, 2, 5},
        {"no gap", 34 + 6, 1, "x", Rule::BrokenLine, 2, 7},
        {"line feed alone", 32, 1, "", Rule::BrokenLine, 1, 33},
        {"a cell too many", 32, 0, "--  ", Rule::BrokenLine, 1, 33},
        {"cut in a cell", 34 * 7 + 1, 999, "", Rule::BrokenLine, 8, 1},
        {"a line too many", 272, 0, "\r\n", Rule::BrokenLine, 9, 1},
        {"empty", 0, 999, "", Rule::BrokenLine, 1, 1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(DecodeDiagram(std::string(Initial).replace(row.at, row.length, row.text), read),
                  (GameFileError{DiagramFile, row.rule, row.line, row.column}));
    }
}
