// Kinds of experiments.
#pragma once

#include <cstdint>

namespace Orv::FluidBench::Experiments {

/// Kind of an experiment, as far as the I/O library names it.
enum class ExperimentType : std::int32_t { DownholeFluidAnalysis = 7 };

} // namespace Orv::FluidBench::Experiments
