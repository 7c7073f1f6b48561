// An experiment that holds measurements in place of computed stages.
#pragma once

#include "FluidBench/Experiments/ExperimentType.h"
#include "FluidBench/Experiments/Stage.h"
#include "Visibility.h"

#include <vector>

namespace Orv::FluidBench::Experiments {

/// A value that owns its stages.
class FLUIDBENCH_BOUNDARY_API ObservedExperiment {
public:
    /// An experiment without stages.
    explicit ObservedExperiment(ExperimentType type);
    ObservedExperiment(const ObservedExperiment&);
    ObservedExperiment(ObservedExperiment&&) noexcept;
    ObservedExperiment& operator=(const ObservedExperiment&);
    ObservedExperiment& operator=(ObservedExperiment&&) noexcept;
    virtual ~ObservedExperiment();

    /// In the order in which they were measured, or by depth: whoever fills the experiment decides.
    std::vector<Stage> Stages;

    // The stand-in's own operation.

    /// As given when the experiment was made.
    ExperimentType GetType() const noexcept { return type_; }

private:
    ExperimentType type_;
};

} // namespace Orv::FluidBench::Experiments
