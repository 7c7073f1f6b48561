// Round numbers along the axis of a chart.
#pragma once

#include <string>
#include <vector>

namespace FluidBenchTool {

enum class AxisKind { Linear, Logarithmic };

/// From the one number to the other, which is larger.
struct AxisRange {
    double least;
    double most;
};

/// An axis from `low` to `high`. The ticks of a linear one are the whole multiples of `step`, and
/// halfway between them, where an axis may end as well, stand minor ones. Those of a logarithmic
/// one are powers of ten, with minor ones at their multiples.
struct AxisScale {
    AxisKind kind = AxisKind::Linear;
    double low = 0.0;
    double high = 1.0;
    double step = 0.2;
    std::vector<double> ticks;
    std::vector<double> minorTicks;

    /// The number at a tick: all ticks of a linear axis have the same decimals.
    std::string Label(double tick) const;
    /// Where a value stands on the axis: 0 at `low` and 1 at `high`.
    double Part(double value) const;
};

/// The shortest axis that holds all values from `least` to `most` and has about `intervals` steps
/// of 1, 2 or 5 times a power of ten. Both numbers are finite and of a magnitude below 1e100.
AxisScale RoundScale(double least, double most, int intervals);

/// The axis of just that range, with about as many steps.
AxisScale ExactScale(AxisRange range, int intervals);

/// A logarithmic axis with at most that many powers of ten named. It ends at such a power or at 2
/// or 5 times one; where `isExact` is set, at the numbers themselves. These are above zero.
AxisScale LogarithmicScale(AxisRange range, int most, bool isExact);

} // namespace FluidBenchTool
