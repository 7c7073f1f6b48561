// Phase envelopes.
#include "Families.h"
#include "FluidBench/Common/CommonPlottingObject.h"
#include "FluidBench/Common/Line.h"
#include "Streams.h"
#include "Values.h"
#include "io/PhaseEnvelopeReaderWriter.h"

#include <array>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace FluidBenchPython {

namespace py = pybind11;
using Orv::FluidBench::Common::CommonPlottingObject;
using Orv::FluidBench::Common::Line;
using Orv::FluidBench::IO::PhaseEnvelopeReaderWriter;
using Plots = std::vector<CommonPlottingObject>;

namespace {

struct Kind {
    const char* word;
    Line::Phase phase;
};

// clang-format off
constexpr std::array kinds{
    Kind{"bubble",          Line::Phase::Bubble},
    Kind{"dew",             Line::Phase::Dew},
    Kind{"critical_point",  Line::Phase::CriticalPoint},
    Kind{"aqueous",         Line::Phase::Aqueous},
    Kind{"ice",             Line::Phase::Ice},
    Kind{"hydrate_i",       Line::Phase::HydrateTypeI},
    Kind{"hydrate_ii",      Line::Phase::HydrateTypeII},
    Kind{"vapour_fraction", Line::Phase::VapourFraction},
};
// clang-format on

const char* WordOf(Line::Phase phase) {
    for (const Kind& kind : kinds) {
        if (kind.phase == phase) {
            return kind.word;
        }
    }
    return "another";
}

Line::Phase PhaseOf(const std::string& word) {
    std::string known;
    for (const Kind& kind : kinds) {
        if (kind.word == word) {
            return kind.phase;
        }
        known += (known.empty() ? "" : ", ") + std::string(kind.word);
    }
    throw std::invalid_argument("line kind '" + word + "' isn't one of " + known);
}

// (kind, fraction, n x 2 numbers: temperature in K and pressure in Pa) a line.
py::list LinesToPython(const CommonPlottingObject& plot) {
    py::list lines;
    for (const Line& line : plot.GetLines()) {
        const auto& points = line.ViewPoints();
        Numbers block({static_cast<py::ssize_t>(points.size()), py::ssize_t{2}});
        double* next = block.mutable_data();
        for (const auto& point : points) {
            *next++ = point.x;
            *next++ = point.y;
        }
        lines.append(py::make_tuple(WordOf(line.GetPhase()), line.GetPhaseFraction(), block));
    }
    return lines;
}

CommonPlottingObject PlotFromPython(const py::handle& lines) {
    using Axis = CommonPlottingObject::AxisType;
    CommonPlottingObject plot(Axis::Temperature, Axis::Pressure);
    for (const auto& item : lines) {
        const auto [word, fraction, temperatures, pressures] =
            item.cast<std::tuple<std::string, double, Numbers, Numbers>>();
        plot.AddLine(Line(word, FromPython(temperatures), FromPython(pressures),
                          Line::Type::PhaseCurve, PhaseOf(word), fraction));
    }
    return plot;
}

// The plots with the text of the read, and whether it went well.
py::tuple ReadEnvelopes(const py::object& source, const py::str& name) {
    Findings findings;
    PhaseEnvelopeReaderWriter reader;
    reader.SetDiagnosticSink(findings.Sink());
    Plots plots;
    std::vector<std::string> messages;
    const bool isRead = Source(source, name)
                            .Read(
                                [&](const std::string& path) {
                                    reader.SetFileName(path);
                                    return reader.Read(plots, messages);
                                },
                                [&](std::istream& in, const std::string& called) {
                                    return reader.Read(in, plots, messages, called);
                                });
    py::list result;
    for (const CommonPlottingObject& plot : plots) {
        result.append(LinesToPython(plot));
    }
    const std::string text = messages.empty() ? "" : messages.back();
    return findings.With(py::make_tuple(result, isRead, SentenceToPython(text)));
}

py::tuple WriteEnvelopes(const py::function& write, const py::list& plots, bool useComma) {
    Plots written;
    for (const auto& lines : plots) {
        written.push_back(PlotFromPython(lines));
    }
    WriteTo(write, [&](std::ostream& out) {
        return PhaseEnvelopeReaderWriter(useComma).Write(out, written);
    });
    return Findings().With(py::none());
}

} // namespace

void AddEnvelopes(py::module_& module) {
    module.def("read_envelopes", ReadEnvelopes, py::arg("source"), py::arg("name"));
    module.def("write_envelopes", WriteEnvelopes, py::arg("write"), py::arg("plots"),
               py::arg("comma"));
}

} // namespace FluidBenchPython
