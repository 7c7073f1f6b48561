// Draws curves between two axes, with a legend beside them.
#pragma once

#include "Svg.h"

#include <string>
#include <vector>

namespace FluidBenchTool {

/// A curve, or single points where `isMarker` is set. Points that aren't finite interrupt the curve
/// and aren't drawn, and neither are those beyond 1e100.
struct Curve {
    Stroke stroke;
    bool isMarker = false;
    std::vector<Place> points; ///< in the units of the axes
};

/// What the legend says of a stroke. The second line may be empty.
struct LegendEntry {
    Stroke stroke;
    bool isMarker = false;
    std::string text;
    std::string secondLine;
};

struct Chart {
    std::string title;
    std::string subtitle;
    std::string xLabel;
    std::string yLabel;
    std::vector<Curve> curves; ///< the later ones above the earlier ones
    std::vector<LegendEntry> legend;
};

/// The picture as an SVG file. The y axis begins at zero unless some value is negative or all are
/// far above it.
std::string DrawChart(const Chart& chart);

} // namespace FluidBenchTool
