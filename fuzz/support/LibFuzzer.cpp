// The entry point that Clang's libFuzzer calls, in place of the driver of this project.
#include "Fuzz.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// What the test throws ends the program, as libFuzzer expects it of a fault.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FluidBenchFuzz::TestOneInput({reinterpret_cast<const char*>(data), size});
    return 0;
}
