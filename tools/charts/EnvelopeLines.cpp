#include "EnvelopeLines.h"

#include "FluidBench/Common/Units.h"

#include <utility>

namespace FluidBenchTool {

using Orv::FluidBench::Common::CommonPlottingObject;
using Orv::FluidBench::Common::Line;
using Orv::FluidBench::Common::Point;
using Orv::FluidBench::Common::Units;
using Phase = Line::Phase;

namespace {

constexpr std::pair<Phase, const char*> names[] = {
    {Phase::Bubble, "Bubble point line"},
    {Phase::Dew, "Dew point line"},
    {Phase::CriticalPoint, "Critical point"},
    {Phase::Aqueous, "Aqueous phase"},
    {Phase::Ice, "Ice"},
    {Phase::HydrateTypeI, "Hydrate type I"},
    {Phase::HydrateTypeII, "Hydrate type II"},
    {Phase::VapourFraction, "Vapour fraction"},
};

} // namespace

const EnvelopeUnits metricEnvelopeUnits{"\u00B0C", "bar", Units::Temperature_K_To_C,
                                        Units::Pressure_Pa_To_bar};
const EnvelopeUnits fieldEnvelopeUnits{"\u00B0F", "psia", Units::Temperature_K_To_F,
                                       Units::Pressure_Pa_To_psi};

std::vector<EnvelopeLine> LinesOf(const CommonPlottingObject& plot, const EnvelopeUnits& units) {
    constexpr auto type = Line::Type::PhaseCurve;
    std::vector<EnvelopeLine> lines;
    for (const auto& [phase, name] : names) {
        for (int i = 0; i < plot.NumberOfLines(type, phase); ++i) {
            const Line& line = plot.GetLine(type, phase, i);
            std::vector<Point> points = line.GetPoints();
            for (Point& point : points) {
                point = {units.toTemperature(point.x), units.toPressure(point.y)};
            }
            lines.push_back({phase, name, line.GetPhaseFraction(), std::move(points)});
        }
    }
    return lines;
}

} // namespace FluidBenchTool
