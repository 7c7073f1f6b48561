// One optional number.
#pragma once

namespace Orv::FluidBench::Common {

/// A number of a stage, in model units, or none.
struct Result {
    bool IsSet = false;
    double Value = 0.0;

    /// The number; 0.0 where none is set.
    double GetValue() const noexcept { return IsSet ? Value : 0.0; }
};

} // namespace Orv::FluidBench::Common
