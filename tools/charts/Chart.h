// Draws panels of curves between axes, one or several on a page, with one legend.
#pragma once

#include "AxisScale.h"
#include "Svg.h"

#include <optional>
#include <string>
#include <vector>

namespace FluidBenchTool {

/// A curve, or single points where `isMarker` is set. Points that aren't finite interrupt the curve
/// and aren't drawn, and neither are those beyond 1e100, nor on a logarithmic axis those at or
/// below zero.
struct Curve {
    Stroke stroke;
    bool isMarker = false;
    std::vector<Place> points; ///< in the units of the axes
    std::string label = {};    ///< stands on the curve; empty for none
};

/// What the legend says of a stroke. The second line may be empty.
struct LegendEntry {
    Stroke stroke;
    bool isMarker = false;
    std::string text;
    std::string secondLine = {};
};

struct Axis {
    std::string label;
    AxisKind kind = AxisKind::Linear;
    bool isDownward = false;          ///< the least value is at the far end
    std::optional<AxisRange> range{}; ///< nothing for one that holds all values
};

/// A line across the panel, at a value of the y axis, with its name.
struct Level {
    double y = 0.0;
    std::string name;
};

struct Panel {
    std::string title; ///< empty where the chart's own says it all
    Axis x;
    Axis y;
    std::vector<Curve> curves; ///< the later ones above the earlier ones
    std::vector<Level> levels = {};
};

/// A page. The legend stands beside a single panel, and below several or a narrow one. Texts that
/// are too long for their place are cut in the middle.
struct Chart {
    std::string title;
    std::string subtitle;
    std::vector<Panel> panels; ///< at least one, in rows from the left to the right
    int columns = 1;
    std::vector<LegendEntry> legend = {};
    double width = 960.0; ///< pixels. A small picture is drawn larger and shown smaller
    double height = 600.0;
};

/// The picture as an SVG file. A linear y axis begins at zero unless some value is negative or all
/// are far above it.
std::string DrawChart(const Chart& chart);

} // namespace FluidBenchTool
