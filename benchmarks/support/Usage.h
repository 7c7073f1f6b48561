// What an operation costs a process as a whole.
#pragma once

#include <cstdint>
#include <functional>

namespace FluidBenchBenchmark {

/// What a process has used.
struct Usage {
    std::int64_t peakMemory = 0; ///< bytes
    double processorTime = 0.0;  ///< seconds, of the program and of the kernel for it
};

/// Runs the operation in a process of its own, which begins with what this one has in memory.
/// Throws `std::runtime_error` where the operation fails.
Usage UsageOf(const std::function<void()>& operation);

} // namespace FluidBenchBenchmark
