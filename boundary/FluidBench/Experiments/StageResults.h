// What was measured or computed at a stage of an experiment.
#pragma once

#include "FluidBench/Common/Result.h"

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

/// Owns one record of results, always, and copies it when it is copied. The record stands inside
/// the handle, so no stage needs memory for it, and moving one can't fail.
class StageResultsHandle {
public:
    /// The record; valid until the handle goes.
    StageResults* operator->() noexcept { return &results_; }
    const StageResults* operator->() const noexcept { return &results_; }
    StageResults& operator*() noexcept { return results_; }
    const StageResults& operator*() const noexcept { return results_; }

private:
    StageResults results_;
};

} // namespace Orv::FluidBench::Experiments
