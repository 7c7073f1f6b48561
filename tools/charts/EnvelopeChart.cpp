#include "EnvelopeChart.h"

#include "Palette.h"
#include "Table.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

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
    Curve curve{stroke, line.phase == Phase::CriticalPoint, {}, {}};
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

// As many fractions have their number on the curve as can be read.
std::string FractionLabel(const EnvelopeLine& line, std::size_t index, std::size_t count) {
    constexpr std::size_t mostLabels = 12;
    const std::size_t step = (count + mostLabels - 1) / mostLabels;
    return line.phase == Phase::VapourFraction && index % step == 0 ? NumberText(line.phaseFraction)
                                                                    : std::string();
}

LegendEntry FractionsEntry(const std::vector<const EnvelopeLine*>& lines) {
    const auto [least, most] =
        std::ranges::minmax(lines, {}, [](const auto* line) { return line->phaseFraction; });
    const std::string begin = NumberText(least->phaseFraction);
    const std::string end = NumberText(most->phaseFraction);
    return {LookOf(Phase::VapourFraction).stroke, false, "Vapour fraction",
            begin == end ? begin : begin + " to " + end};
}

// The legend of a single plot: each of its kinds of lines, in the order of the file.
void AddPhases(Chart& chart, const std::vector<EnvelopeLine>& lines, const EnvelopeUnits& units) {
    for (const EnvelopeLine& line : lines) {
        if (line.phase != Phase::VapourFraction && !line.points.empty()) {
            chart.legend.push_back({LookOf(line.phase).stroke, line.phase == Phase::CriticalPoint,
                                    line.name, PlaceText(line, units)});
        }
    }
    if (const auto fractions = LinesOfPhase(lines, Phase::VapourFraction); !fractions.empty()) {
        chart.legend.push_back(FractionsEntry(fractions));
    }
}

// The legend of several plots: the colour of each, and the dashes of the kinds.
void AddPlots(Chart& chart, const std::vector<EnvelopePlot>& plots) {
    for (std::size_t i = 0; i < plots.size(); ++i) {
        chart.legend.push_back({{ColourOf(i), 2.4}, false, plots[i].name});
    }
    for (const auto& [phase, stroke] : looks) {
        for (const EnvelopePlot& plot : plots) {
            if (const auto found = LinesOfPhase(plot.lines, phase); !found.empty()) {
                Stroke grey = stroke;
                grey.colour = "#555555";
                chart.legend.push_back({grey, phase == Phase::CriticalPoint, found.front()->name});
                break;
            }
        }
    }
}

} // namespace

Chart EnvelopeChart(const std::vector<EnvelopePlot>& plots, const EnvelopeUnits& units,
                    const std::string& subtitle) {
    Panel panel{"",
                {.label = std::string("Temperature (") + units.temperature + ')'},
                {.label = std::string("Pressure (") + units.pressure + ')'},
                {}};
    for (const auto& [phase, stroke] : looks) {
        for (std::size_t plot = 0; plot < plots.size(); ++plot) {
            const auto ofPhase = LinesOfPhase(plots[plot].lines, phase);
            for (std::size_t i = 0; i < ofPhase.size(); ++i) {
                Stroke look = ShadedStroke(stroke, i, ofPhase.size());
                if (plots.size() > 1) {
                    look.colour = ColourOf(plot);
                }
                panel.curves.push_back(ToCurve(*ofPhase[i], look));
                panel.curves.back().label = FractionLabel(*ofPhase[i], i, ofPhase.size());
            }
        }
    }
    Chart chart{"Phase envelope", subtitle, {std::move(panel)}};
    if (plots.size() == 1) {
        AddPhases(chart, plots.front().lines, units);
    } else {
        AddPlots(chart, plots);
    }
    return chart;
}

} // namespace FluidBenchTool
