// Round numbers along the axis of a chart.
#pragma once

#include <string>
#include <vector>

namespace FluidBenchTool {

/// An axis from `low` to `high`. Its ticks are the whole multiples of `step`, and halfway between
/// them, where an axis may end as well, stand minor ones.
struct AxisScale {
    double low = 0.0;
    double high = 1.0;
    double step = 0.2;
    std::vector<double> ticks;
    std::vector<double> minorTicks;

    /// The number at a tick: all ticks of an axis have the same decimals.
    std::string Label(double tick) const;
    /// Where a value stands on the axis: 0 at `low` and 1 at `high`.
    double Part(double value) const;
};

/// The shortest axis that holds all values from `least` to `most` and has about `intervals` steps
/// of 1, 2 or 5 times a power of ten. Both numbers are finite and of a magnitude below 1e100.
AxisScale RoundScale(double least, double most, int intervals);

} // namespace FluidBenchTool
