// Units of what is shown.
#pragma once

#include "FluidBench/Common/Units.h"

namespace FluidBenchTool {

/// The unit of a number by its name, and the way there from the model's unit.
struct ShownUnit {
    const char* name = "";
    double (*convert)(double) = [](double value) { return value; };
};

inline constexpr ShownUnit bar{"bar", Orv::FluidBench::Common::Units::Pressure_Pa_To_bar};
inline constexpr ShownUnit psia{"psia", Orv::FluidBench::Common::Units::Pressure_Pa_To_psi};

} // namespace FluidBenchTool
