// Comparison of measured numbers.
#pragma once

#include "Visibility.h"

namespace Orv::FluidBench::Utilities {

/// Static operations only. A not-a-number equals nothing.
class FLUIDBENCH_BOUNDARY_API Equations {
public:
    /// |first - second| <= tolerance.
    static bool DoublesEqual(double first, double second, double tolerance) noexcept;

    /// |first - second| <= tolerance * max(|first|, |second|). Two zeros are equal, and a zero
    /// equals nothing else when `tolerance` is below 1.
    static bool RelativeDoublesEqual(double first, double second, double tolerance) noexcept;
};

} // namespace Orv::FluidBench::Utilities
