// The multi-stage separator test.
#pragma once

#include "FluidBench/Common/Enumerations.h"
#include "FluidBench/Experiments/ExperimentResults.h"
#include "FluidBench/Experiments/Stage.h"
#include "FluidBench/Model/CompositionalFluid.h"
#include "Visibility.h"

#include <functional>
#include <vector>

namespace Orv::FluidBench::Experiments {

/// Runs a fluid through separator stages. It is passed by value, so the stand-in carries inside it
/// the function that it runs.
class FLUIDBENCH_BOUNDARY_API MSTExperiment {
public:
    /// Leads the fluid through the stages, each with its pressure and temperature, and gives what a
    /// run gives.
    using Separator = std::function<ExperimentResults(const Model::CompositionalFluid&,
                                                      const std::vector<Stage>&)>;

    /// The stand-in's own constructor. Throws `std::invalid_argument` for an empty function.
    explicit MSTExperiment(Separator separator);
    MSTExperiment(const MSTExperiment&);
    MSTExperiment(MSTExperiment&&) noexcept;
    MSTExperiment& operator=(const MSTExperiment&);
    MSTExperiment& operator=(MSTExperiment&&) noexcept;
    virtual ~MSTExperiment();

    /// Gives the stages of the run. When the run gives a gas-oil ratio, the last stage has it set.
    /// The stand-in passes on what its function gives and leaves the last two arguments unread.
    virtual ExperimentResults RunExperiment(const Model::CompositionalFluid& fluid,
                                            const std::vector<Stage>& stages,
                                            Common::pvtEnumPTPointType pointType, bool flag);

private:
    Separator separator_;
};

} // namespace Orv::FluidBench::Experiments
