#include "app/KeptPlaces.h"
#include "fuzz/Fuzz.h"

// Places that can be read are written and read as the same, and lie where sums of their lengths do not overflow.
int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const auto places = ReadPlaces(std::string(TextOf(data, size)));
    if (!places) return 0;
    const std::string written = WritePlaces(*places);
    const auto again = ReadPlaces(written);
    Require(again && WritePlaces(*again) == written);
    if (again->Both) BothInSight(*again->Both, again->Alone, again->Alone);
    return 0;
}
