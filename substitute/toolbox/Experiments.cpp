// The toolbox's experiments: values, and a separator test that runs what it was given.
#include "FluidBench/Experiments/ExperimentResults.h"
#include "FluidBench/Experiments/MSTExperiment.h"
#include "FluidBench/Experiments/ObservedExperiment.h"

#include <stdexcept>
#include <utility>

namespace Orv::FluidBench::Experiments {

ExperimentResults::ExperimentResults() = default;
ExperimentResults::ExperimentResults(const ExperimentResults&) = default;
ExperimentResults::ExperimentResults(ExperimentResults&&) noexcept = default;
ExperimentResults& ExperimentResults::operator=(const ExperimentResults& other) {
    return *this = ExperimentResults(other);
}
ExperimentResults& ExperimentResults::operator=(ExperimentResults&&) noexcept = default;
ExperimentResults::~ExperimentResults() = default;

MSTExperiment::MSTExperiment(Separator separator) : separator_(std::move(separator)) {
    if (!separator_) {
        throw std::invalid_argument("A separator experiment needs a function to run");
    }
}
MSTExperiment::MSTExperiment(const MSTExperiment&) = default;
MSTExperiment::MSTExperiment(MSTExperiment&&) noexcept = default;
MSTExperiment& MSTExperiment::operator=(const MSTExperiment&) = default;
MSTExperiment& MSTExperiment::operator=(MSTExperiment&&) noexcept = default;
MSTExperiment::~MSTExperiment() = default;

ExperimentResults MSTExperiment::RunExperiment(const Model::CompositionalFluid& fluid,
                                               const std::vector<Stage>& stages,
                                               Common::pvtEnumPTPointType, bool) {
    return separator_(fluid, stages);
}

ObservedExperiment::ObservedExperiment(ExperimentType type) : type_(type) {}
ObservedExperiment::ObservedExperiment(const ObservedExperiment&) = default;
ObservedExperiment::ObservedExperiment(ObservedExperiment&&) noexcept = default;
ObservedExperiment& ObservedExperiment::operator=(const ObservedExperiment& other) {
    return *this = ObservedExperiment(other);
}
ObservedExperiment& ObservedExperiment::operator=(ObservedExperiment&&) noexcept = default;
ObservedExperiment::~ObservedExperiment() = default;

} // namespace Orv::FluidBench::Experiments
