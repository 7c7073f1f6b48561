// The lines of a phase envelope by their names, in the units that a person chose.
#pragma once

#include "FluidBench/Common/CommonPlottingObject.h"

#include <string>
#include <vector>

namespace FluidBenchTool {

/// A unit system for pressures and temperatures.
struct EnvelopeUnits {
    const char* temperature;
    const char* pressure;
    double (*toTemperature)(double); ///< from K
    double (*toPressure)(double);    ///< from Pa
};

extern const EnvelopeUnits metricEnvelopeUnits; ///< degrees C, bar
extern const EnvelopeUnits fieldEnvelopeUnits;  ///< degrees F, psia

struct EnvelopeLine {
    Orv::FluidBench::Common::Line::Phase phase;
    std::string name;     ///< what the line is, without its fraction
    double phaseFraction; ///< of the vapour; of no meaning for other lines
    std::vector<Orv::FluidBench::Common::Point> points; ///< temperature and pressure
};

/// Every line that a file can hold, in the order of its columns. Temperatures are along the plot's
/// x axis.
std::vector<EnvelopeLine> LinesOf(const Orv::FluidBench::Common::CommonPlottingObject& plot,
                                  const EnvelopeUnits& units);

} // namespace FluidBenchTool
