// What was measured or computed at a stage of an experiment.
#pragma once

#include "FluidBench/Common/Result.h"

#include <memory>

namespace Orv::FluidBench::Experiments {

/// The numbers of a stage. None of them is set in a new record.
struct StageResults {
    Common::Result Pressure;           ///< Pa
    Common::Result Temperature;        ///< K
    Common::Result SaturationPressure; ///< Pa
    Common::Result Density;            ///< kg/m3
    Common::Result Depth;              ///< m
    Common::Result StationValue;       ///< as in the file it came from
    Common::Result GasOilRatio;        ///< m3/m3
};

/// Owns one record of results, always, and copies it when it is copied.
class StageResultsHandle {
public:
    StageResultsHandle() : results_(std::make_unique<StageResults>()) {}
    StageResultsHandle(const StageResultsHandle& other)
        : results_(std::make_unique<StageResults>(*other.results_)) {}
    StageResultsHandle& operator=(const StageResultsHandle& other) {
        *results_ = *other.results_;
        return *this;
    }
    ~StageResultsHandle() = default;

    StageResults* operator->() noexcept { return results_.get(); }
    const StageResults* operator->() const noexcept { return results_.get(); }
    StageResults& operator*() noexcept { return *results_; }
    const StageResults& operator*() const noexcept { return *results_; }

private:
    std::unique_ptr<StageResults> results_;
};

} // namespace Orv::FluidBench::Experiments
