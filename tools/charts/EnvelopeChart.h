// The picture of a phase envelope: pressure against temperature.
#pragma once

#include "Chart.h"
#include "EnvelopeLines.h"

#include <string>
#include <vector>

namespace FluidBenchTool {

/// The lines of one plot, and what a legend calls it.
struct EnvelopePlot {
    std::string name;
    std::vector<EnvelopeLine> lines;
};

/// A chart of these lines, which are in these units. The kinds of lines of a single plot are told
/// apart by colour, dashes and the legend; several plots by colour, and their lines by dashes. A
/// line of constant vapour fraction has its fraction on it.
Chart EnvelopeChart(const std::vector<EnvelopePlot>& plots, const EnvelopeUnits& units,
                    const std::string& subtitle);

} // namespace FluidBenchTool
