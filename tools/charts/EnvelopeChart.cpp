#include "EnvelopeChart.h"

#include "Table.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace FluidBenchTool {

using Orv::FluidBench::Common::Line;
using Orv::FluidBench::Common::Point;
using Phase = Line::Phase;

namespace {

struct Look {
    Phase phase;
    Stroke stroke;
};

// From the lowest layer to the topmost. The colours stay apart for the colour-blind, and the dashes
// in a copy without colours.
const Look looks[] = {
    {Phase::VapourFraction, {"#7a7a7a", 1.3, "2 3"}},
    {Phase::Aqueous, {"#2a9fd6", 1.8, "12 4 2 4"}},
    {Phase::Ice, {"#8c6d1f", 1.8, "5 3"}},
    {Phase::HydrateTypeI, {"#009e73", 1.8, "9 4"}},
    {Phase::HydrateTypeII, {"#a64d8f", 1.8, "9 3 2 3 2 3"}},
    {Phase::Dew, {"#c8461e", 2.4, "14 4"}},
    {Phase::Bubble, {"#0b5fa5", 2.4}},
    {Phase::CriticalPoint, {"#222222", 1.0}},
};

const Look& LookOf(Phase phase) {
    return *std::ranges::find(looks, phase, &Look::phase);
}

// Vapour fractions fade from dark to light, the first line of the file being the darkest.
Stroke ShadedStroke(Stroke stroke, std::size_t index, std::size_t count) {
    constexpr double darkest = 60.0;
    constexpr double lightest = 165.0;
    if (count > 1) {
        const double part = static_cast<double>(index) / static_cast<double>(count - 1);
        const auto grey = std::to_string(std::lround(darkest + part * (lightest - darkest)));
        stroke.colour = "rgb(" + grey + ',' + grey + ',' + grey + ')';
    }
    return stroke;
}

std::vector<const EnvelopeLine*> LinesOfPhase(const std::vector<EnvelopeLine>& lines, Phase phase) {
    std::vector<const EnvelopeLine*> found;
    for (const EnvelopeLine& line : lines) {
        if (line.phase == phase && !line.points.empty()) {
            found.push_back(&line);
        }
    }
    return found;
}

Curve ToCurve(const EnvelopeLine& line, const Stroke& stroke) {
    Curve curve{stroke, line.phase == Phase::CriticalPoint, {}};
    for (const Point& point : line.points) {
        curve.points.push_back({point.x, point.y});
    }
    return curve;
}

// Where a critical point is; other lines need no second line.
std::string PlaceText(const EnvelopeLine& line, const EnvelopeUnits& units) {
    constexpr int digits = 4;
    if (line.phase != Phase::CriticalPoint || line.points.size() != 1) {
        return {};
    }
    const Point& point = line.points.front();
    return WithMinusSign(NumberText(point.x, digits)) + ' ' + units.temperature + ", " +
           WithMinusSign(NumberText(point.y, digits)) + ' ' + units.pressure;
}

void AddFractionsTogether(Chart& chart, const std::vector<const EnvelopeLine*>& lines) {
    const auto [least, most] =
        std::ranges::minmax(lines, {}, [](const auto* line) { return line->phaseFraction; });
    chart.legend.push_back(
        {LookOf(Phase::VapourFraction).stroke, false,
         std::to_string(lines.size()) + " vapour fractions",
         NumberText(least->phaseFraction) + " to " + NumberText(most->phaseFraction)});
}

} // namespace

Chart EnvelopeChart(const std::vector<EnvelopeLine>& lines, const EnvelopeUnits& units,
                    const std::string& subtitle) {
    constexpr std::size_t mostFractionsInLegend = 10;
    Chart chart{"Phase envelope",
                subtitle,
                std::string("Temperature (") + units.temperature + ')',
                std::string("Pressure (") + units.pressure + ')',
                {},
                {}};
    for (const auto& [phase, stroke] : looks) {
        const auto ofPhase = LinesOfPhase(lines, phase);
        for (std::size_t i = 0; i < ofPhase.size(); ++i) {
            chart.curves.push_back(ToCurve(*ofPhase[i], ShadedStroke(stroke, i, ofPhase.size())));
        }
    }
    const auto fractions = LinesOfPhase(lines, Phase::VapourFraction);
    for (const EnvelopeLine& line : lines) {
        if (line.phase != Phase::VapourFraction && !line.points.empty()) {
            chart.legend.push_back({LookOf(line.phase).stroke, line.phase == Phase::CriticalPoint,
                                    line.name, PlaceText(line, units)});
        }
    }
    if (fractions.size() > mostFractionsInLegend) {
        AddFractionsTogether(chart, fractions);
        return chart;
    }
    for (std::size_t i = 0; i < fractions.size(); ++i) {
        const EnvelopeLine& line = *fractions[i];
        chart.legend.push_back({ShadedStroke(LookOf(line.phase).stroke, i, fractions.size()),
                                false,
                                line.name + ' ' + NumberText(line.phaseFraction),
                                {}});
    }
    return chart;
}

} // namespace FluidBenchTool
