// A fuzz target: takes any bytes, and must come back without a fault.
#pragma once

#include <cstddef>
#include <cstdint>

// The name and the form that libFuzzer calls. 0 for every input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t lengte);
