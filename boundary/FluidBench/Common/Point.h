// One point of a line of a plot.
#pragma once

namespace Orv::FluidBench::Common {

/// In the units of the plot's axes.
struct Point {
    double x = 0.0; ///< along the x axis
    double y = 0.0; ///< along the y axis
};

} // namespace Orv::FluidBench::Common
