#include "games/Diagram.h"

#include "tests/recorder/RecordText.h"

namespace {

const std::string Initial =
    "BR  BN  BB  BQ  BK  BB  BN  BR  \r\nBP  BP  BP  BP  BP  BP  BP  BP  \r\n"
    "--  --  --  --  --  --  --  --  \r\n--  --  --  --  --  --  --  --  \r\n"
    "--  --  --  --  --  --  --  --  \r\n--  --  --  --  --  --  --  --  \r\n"
    "WP  WP  WP  WP  WP  WP  WP  WP  \r\nWR  WN  WB  WQ  WK  WB  WN  WR  \r\n";

// The piece on h1 after a text, "~" for a line end, has been put into the initial diagram, "place length text"; or the
// damage.
std::string ReadDiagram(const std::string& given) {
    std::istringstream words(given);
    size_t place = 0, length = 0;
    std::string text;
    words >> place >> length >> text;
    Board read = Position("WKa1");
    const std::string changed = std::string(Initial).replace(place, length, text == "~" ? "\r\n" : text);
    const auto error = DecodeDiagram(changed, read);
    if (!error) return std::string(PieceCode(read.At(SquareNamed("h1"))));
    EXPECT_EQ(BoardText(read) + std::string(ExtensionOf(error->File)), "WKa1 .txt") << "nothing is taken";
    return DamageText(error->What, error->Place) + "," + std::to_string(error->Column);
}

}  // namespace

TEST(DiagramTest, PositionsComeBackAndDamageIsNamedWithLineAndColumn) {
    EXPECT_EQ(EncodeDiagram(Board()), Initial);
    Board read;
    EXPECT_FALSE(DecodeDiagram(EncodeDiagram(Position("WKa1 BPh8")), read));
    EXPECT_EQ(BoardText(read), "WKa1 BPh8 ");
    ExpectRows(ReadDiagram, R"(
        270 2  => WR | 266 2 -- => O | 38 2 WX => UnknownPiece 2,5 | 40 1 x => BrokenLine 2,7 | 32 1  => BrokenLine 1,33
        32 0 --   => BrokenLine 1,33 | 236 999  => BrokenLine 7,33 | 239 999  => BrokenLine 8,1
        272 0 ~ => BrokenLine 9,1 | 0 999  => BrokenLine 1,1
    )");
}
