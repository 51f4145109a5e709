#include "fuzz/Fuzz.h"
#include "games/Diagram.h"

// A diagram that can be read is written as it was, except that its last line end may have been missing.
int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view text = TextOf(data, size);
    Board board;
    if (DecodeDiagram(text, board)) return 0;
    const std::string written = EncodeDiagram(board);
    Require(written.size() == DiagramBytes && written.starts_with(text));
    return 0;
}
