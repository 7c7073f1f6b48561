// The entry points that Clang's libFuzzer calls, in place of the driver of this project.
#include "Fuzz.h"
#include "Mutator.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>

extern "C" {
int LLVMFuzzerInitialize(int* argumentCount, char*** arguments);
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t mostSize,
                                    unsigned seed);
std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t mostSize);
}

// `--samples=FOLDER` writes the samples there and ends, as that of the project's own driver.
int LLVMFuzzerInitialize(int* argumentCount, char*** arguments) {
    constexpr std::string_view samples = "--samples=";
    const std::string_view first = *argumentCount > 1 ? (*arguments)[1] : "";
    if (first.starts_with(samples)) {
        FluidBenchFuzz::WriteSamples(std::string(first.substr(samples.size())));
        std::exit(0);
    }
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        FluidBenchFuzz::TestOneInput({reinterpret_cast<const char*>(data), size});
    } catch (const std::exception& error) {
        std::cerr << error.what() << std::endl;
        FluidBenchFuzz::RemoveFolder();
        std::abort();
    }
    return 0;
}

// The text is changed as a text every other time, and by what the engine knows of it otherwise.
std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t mostSize,
                                    unsigned seed) {
    if (seed % 2 == 0) {
        return LLVMFuzzerMutate(data, size, mostSize);
    }
    static FluidBenchFuzz::Mutator mutator(FluidBenchFuzz::Samples(), 0);
    const std::string text =
        mutator.Change(std::string(reinterpret_cast<const char*>(data), size), seed);
    const std::size_t changed = std::min(text.size(), mostSize);
    std::memcpy(data, text.data(), changed);
    return changed;
}
