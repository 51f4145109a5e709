#include "fuzz/Fuzz.h"
#include "games/ClockRecord.h"

// A clock record that can be read is written and read as the same.
int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    ClockRecord saved, again;
    if (DecodeClockRecord({data, size}, Settings(), saved)) return 0;
    const std::string bytes = EncodeClockRecord(saved);
    Require(!DecodeClockRecord({reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size()}, Settings(), again));
    Require(EncodeClockRecord(again) == bytes);
    return 0;
}
