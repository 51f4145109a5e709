#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

// What the fuzzer calls with each input that it makes up.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

inline std::string_view TextOf(const uint8_t* data, size_t size) { return {reinterpret_cast<const char*>(data), size}; }

// What must hold for every input. The fuzzer keeps the input that breaks it.
inline void Require(bool holds) {
    if (!holds) std::abort();
}
