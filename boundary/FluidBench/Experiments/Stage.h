// One stage of an experiment: its fluid, its phases and what was measured or computed.
#pragma once

#include "FluidBench/Common/Phase.h"
#include "FluidBench/Experiments/StageResults.h"
#include "FluidBench/Model/CompositionalFluid.h"

#include <cstdint>

namespace Orv::FluidBench::Experiments {

/// The `FluidState` of a stage that holds an oil-like fluid.
inline constexpr std::int32_t oilLikeFluidState = 2;

/// A value; copies share nothing.
struct Stage {
    Common::Phase VapourPhase;
    Common::Phase LiquidPhase;
    StageResultsHandle Results;
    Model::CompositionalFluid Fluid{""};
    std::int32_t FluidState = 0;
};

} // namespace Orv::FluidBench::Experiments
