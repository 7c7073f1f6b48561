// What a run of an experiment gives.
#pragma once

#include "FluidBench/Experiments/Stage.h"
#include "Visibility.h"

#include <vector>

namespace Orv::FluidBench::Experiments {

/// A value that owns its stages.
class FLUIDBENCH_BOUNDARY_API ExperimentResults {
public:
    ExperimentResults();
    ExperimentResults(const ExperimentResults&);
    ExperimentResults(ExperimentResults&&) noexcept;
    ExperimentResults& operator=(const ExperimentResults&);
    ExperimentResults& operator=(ExperimentResults&&) noexcept;
    virtual ~ExperimentResults();

    /// True when the run gave nothing usable.
    bool Failed = false;
    /// In run order.
    std::vector<Stage> Stages;
    /// The gas-oil contact of a depth run; there is one when its depth is set.
    Stage ContactStage;
};

} // namespace Orv::FluidBench::Experiments
