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
    struct Row {
        const char* Name;
        size_t At, Length;
        const char* Text;
        Damage What;
        int32_t Line, Column;
    };
    const Row rows[] = {
        {"unknown piece", 34 + 4, 2, "WX", Damage::UnknownPiece, 2, 5},
        {"no gap", 34 + 6, 1, "x", Damage::BrokenLine, 2, 7},
        {"line feed alone", 32, 1, "", Damage::BrokenLine, 1, 33},
        {"a cell too many", 32, 0, "--  ", Damage::BrokenLine, 1, 33},
        {"cut in a cell", 34 * 7 + 1, 999, "", Damage::BrokenLine, 8, 1},
        {"a line too many", 272, 0, "\r\n", Damage::BrokenLine, 9, 1},
        {"empty", 0, 999, "", Damage::BrokenLine, 1, 1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        EXPECT_EQ(DecodeDiagram(std::string(Initial).replace(row.At, row.Length, row.Text), read),
                  (GameFileError{DiagramFile, row.What, row.Line, row.Column}));
    }
}
