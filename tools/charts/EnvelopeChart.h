// The picture of a phase envelope: pressure against temperature.
#pragma once

#include "Chart.h"
#include "EnvelopeLines.h"

#include <string>

namespace FluidBenchTool {

/// A chart of these lines, which are in these units, with the kinds of lines told apart by colour,
/// dashes and the legend. A legend that would be too long tells of the vapour fractions in one
/// entry.
Chart EnvelopeChart(const std::vector<EnvelopeLine>& lines, const EnvelopeUnits& units,
                    const std::string& subtitle);

} // namespace FluidBenchTool
