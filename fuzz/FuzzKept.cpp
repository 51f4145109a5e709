#include "fuzz/Fuzz.h"
#include "games/KeptGame.h"

// A kept game that can be read is written and read as the same.
int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    GameFiles files, again;
    if (DecodeKeptGame({data, size}, files)) return 0;
    const std::string bytes = EncodeKeptGame(files);
    Require(!DecodeKeptGame({reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size()}, again));
    Require(again == files);
    return 0;
}
