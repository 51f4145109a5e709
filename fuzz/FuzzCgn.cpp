#include "fuzz/Fuzz.h"
#include "games/Cgn.h"

// Move lists that can be read are written and read as the same. The first byte says whose move it is.
int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const Side toMove = data[0] % 2 == 0 ? White : Black;
    MoveLists lists, again;
    if (DecodeCgn(TextOf(data + 1, size - 1), toMove, lists)) return 0;
    const std::string bytes = EncodeCgn({{2024, 3, 9}, {}}, lists);
    Require(!DecodeCgn(bytes, toMove, again));
    Require(again == lists);
    return 0;
}
