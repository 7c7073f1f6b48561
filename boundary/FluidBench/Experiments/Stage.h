// One stage of an experiment: its fluid, its phases and what was measured or computed.
#pragma once

#include "FluidBench/Common/Phase.h"
#include "FluidBench/Experiments/StageResults.h"
#include "FluidBench/Model/CompositionalFluid.h"

#include <cstdint>

namespace Orv::FluidBench::Experiments {

/// The `FluidState` of a stage that holds an oil-like fluid.
inline constexpr std::int32_t oilLikeFluidState = 2;

/// A value; copies share nothing. An assignment that fails leaves the stage as it was.
struct Stage {
    Stage() = default;
    Stage(const Stage&) = default;
    Stage(Stage&&) noexcept = default;
    Stage& operator=(const Stage& other) { return *this = Stage(other); }
    Stage& operator=(Stage&&) noexcept = default;
    ~Stage() = default;

    Common::Phase VapourPhase;           ///< what is vapour at the stage
    Common::Phase LiquidPhase;           ///< what is liquid at the stage
    StageResultsHandle Results;          ///< its numbers
    Model::CompositionalFluid Fluid{""}; ///< the fluid as a whole
    std::int32_t FluidState = 0;         ///< `oilLikeFluidState`, or anything else for a gas
};

} // namespace Orv::FluidBench::Experiments
