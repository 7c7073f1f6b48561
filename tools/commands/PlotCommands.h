// The plot commands of black-oil tables, K-values and fluids by depth, for the tables of their
// families.
#pragma once

#include "CommandLine.h"
#include "Plots.h"

namespace FluidBenchTool {

void PlotBlackOil(Call& call);
void PlotKValues(Call& call);
void PlotDepth(Call& call);

namespace Options {
inline constexpr Option contact{"--contact", "DEPTH",
                                "Depth of the contact to draw, in the units that are shown. That "
                                "of the file, unless given"};

// The panels of black oil share their pressures alone, and those of fluids by depth their depths.
inline constexpr Option ofBlackOilPlot[] = {showUnits, fromUnits, title, size, xRange, strict};
inline constexpr Option ofKValuesPlot[] = {showUnits, fromUnits, title, size,
                                           xRange,    yRange,    strict};
inline constexpr Option ofDepthPlot[] = {showUnits, fromUnits, contact, title,
                                         size,      yRange,    strict};
} // namespace Options

inline constexpr Command blackOilPlot{"blackoil",
                                      "plot",
                                      "Draw solution ratio, volume factor and viscosity of oil and "
                                      "gas against pressure as SVG, those "
                                      "of several files together, and print the picture's name",
                                      "IN... OUT.svg",
                                      Options::ofBlackOilPlot,
                                      PlotBlackOil};
inline constexpr Command kValuesPlot{
    "kvalues",
    "plot",
    "Draw K-values against pressure on logarithmic axes as SVG, those of several files together, "
    "and print the picture's name",
    "IN... OUT.svg",
    Options::ofKValuesPlot,
    PlotKValues};
inline constexpr Command depthPlot{
    "depth",
    "plot",
    "Draw saturation pressure, gas-oil ratio and composition by depth as SVG, with the contact, "
    "those of several files together, and print the picture's name",
    "IN... OUT.svg",
    Options::ofDepthPlot,
    PlotDepth};

} // namespace FluidBenchTool
