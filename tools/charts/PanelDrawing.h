// One panel of a chart: two axes and what is between them.
#pragma once

#include "Chart.h"
#include "Svg.h"

namespace FluidBenchTool {

/// A rectangle of a picture, in pixels.
struct Box {
    double left;
    double top;
    double right;
    double bottom;

    double Width() const { return right - left; }
    double Height() const { return bottom - top; }
};

inline constexpr double markerRadius = 5.5;
/// How far below its middle a text begins, in units of the picture.
inline constexpr double halfOfCapitals = 4.5;
inline const Stroke markerRim{"#ffffff", 1.5};

/// Draws the panel with its axes in the box, which holds their numbers and names too. Gives the
/// left end of the x axis.
double DrawPanel(SvgPicture& picture, const Panel& panel, const Box& box);

/// How wide a text of that many pixels of height is at most, roughly: fonts differ.
double WidthOf(std::string_view text, double size);

/// The text, or as much of its beginning and end as fits.
std::string Shortened(const std::string& text, double width, double size);

} // namespace FluidBenchTool
