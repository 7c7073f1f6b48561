// One optional number.
#pragma once

namespace Orv::FluidBench::Common {

/// A number of a stage, in model units, or none.
struct Result {
    bool IsSet = false; ///< whether there is a number
    double Value = 0.0; ///< of no meaning where none is set

    /// The number; 0.0 where none is set.
    double GetValue() const noexcept { return IsSet ? Value : 0.0; }

    // The stand-in's own operation.

    /// From here on the number is there.
    void Set(double value) noexcept {
        IsSet = true;
        Value = value;
    }
};

} // namespace Orv::FluidBench::Common
