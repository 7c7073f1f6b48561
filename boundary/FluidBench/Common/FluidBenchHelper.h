// Small services of the toolbox about fluids.
#pragma once

#include "FluidBench/Common/Enumerations.h"
#include "Visibility.h"

#include <string>

namespace Orv::FluidBench::Common {

/// Static operations only.
class FLUIDBENCH_BOUNDARY_API FluidBenchHelper {
public:
    /// The word of a deck's EOS record: "PR", "PR78", "RK", "SRK" or "ZJ"; empty for a value that
    /// isn't an equation of state.
    static std::string EoSToString(pvtEnumEoS eos);
};

} // namespace Orv::FluidBench::Common
