#include "fuzz/Fuzz.h"
#include "games/Pgn.h"

// A text that can be read comes back unchanged from a recorder that was given it, except for its result, which is that
// of the lists.
int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::string text, again;
    if (DecodePgn(TextOf(data, size), text)) return 0;
    Recorder recorder;
    recorder.Restore(Board(), {}, White, text);
    Require(!DecodePgn(EncodePgn({{2024, 3, 9}, {}}, recorder), again));
    RemoveResultMark(text);
    Require(again == text + "*");
    return 0;
}
