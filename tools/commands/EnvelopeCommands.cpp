// fluidbench-io envelope: shows phase envelopes, converts and draws them.
#include "Commands.h"
#include "EnvelopeChart.h"
#include "EnvelopeLines.h"
#include "Json.h"
#include "Plots.h"
#include "Progress.h"
#include "TextFile.h"
#include "io/PhaseEnvelopeReaderWriter.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <vector>

namespace FluidBenchTool {

using Orv::FluidBench::Common::CommonPlottingObject;
using Orv::FluidBench::Common::Point;
using Orv::FluidBench::IO::PhaseEnvelopeReaderWriter;
using Orv::Text::NameOf;
using Orv::Text::PathOf;

namespace Envelope {
namespace {

using Plots = std::vector<CommonPlottingObject>;

constexpr Option to{"--to", "comma|tab",
                    "What to write behind each cell. Where it isn't given, commas for a name that "
                    "ends in .csv, and else tabs"};

const EnvelopeUnits modelUnits{"K", "Pa", [](double value) { return value; },
                               [](double value) { return value; }};

Plots ReadPlots(Input& input, Call& call) {
    Messages& messages = call.Told();
    const Progress progress(messages, "Reading " + input.Name());
    const std::uint64_t errors = messages.Errors();
    Plots plots;
    std::vector<std::string> failures;
    PhaseEnvelopeReaderWriter reader;
    reader.SetDiagnosticSink(messages.Sink());
    bool isRead = false;
    try {
        isRead = reader.Read(input.Text(), plots, failures, input.Name());
    } catch (const std::out_of_range&) {
        failures.assign(1, "A number in the headings has no separator behind it");
    }
    if (!isRead && messages.Errors() == errors) {
        messages.Tell(ToolKinds::nothingRead, input.Name(),
                      "Expected a phase envelope, found none: " + failures.back() + ".");
    }
    if (!isRead) {
        throw CommandFailed();
    }
    return plots;
}

Plots ReadPlots(Call& call) {
    Input input(call.Operand(0), call.Told());
    return ReadPlots(input, call);
}

const EnvelopeUnits& ShownUnits(const Call& call) {
    return IsField(call, Options::showUnits) ? fieldEnvelopeUnits : metricEnvelopeUnits;
}

std::string RangeText(const std::vector<Point>& points, double Point::*coordinate) {
    if (points.empty()) {
        return {};
    }
    const auto [least, most] = std::ranges::minmax(points, {}, coordinate);
    const std::string begin = NumberText(least.*coordinate);
    const std::string end = NumberText(most.*coordinate);
    return begin == end ? begin : begin + " to " + end;
}

std::string FractionText(const EnvelopeLine& line, std::string (*text)(double)) {
    const bool hasFraction = line.phase == Orv::FluidBench::Common::Line::Phase::VapourFraction;
    return hasFraction ? text(line.phaseFraction) : std::string();
}

void Print(std::ostream& out, const Plots& plots, const EnvelopeUnits& units) {
    for (std::size_t i = 0; i < plots.size(); ++i) {
        out << (i > 0 ? "\n" : "") << "Plot " << std::to_string(i + 1) << '\n';
        std::vector<Cells> rows;
        for (const EnvelopeLine& line : LinesOf(plots[i], units)) {
            rows.push_back({line.name,
                            FractionText(line, [](double value) { return NumberText(value); }),
                            std::to_string(line.points.size()), RangeText(line.points, &Point::x),
                            RangeText(line.points, &Point::y)});
        }
        PrintTable(
            out,
            TableOf({"line", "fraction", "points", std::string("temperature ") + units.temperature,
                     std::string("pressure ") + units.pressure},
                    std::move(rows)),
            Extent::All, 2);
    }
}

void PrintPoints(std::ostream& out, const Plots& plots, const EnvelopeUnits& units) {
    PrintCsv(out,
             TableOf({"plot", "line", "fraction", std::string("temperature ") + units.temperature,
                      std::string("pressure ") + units.pressure},
                     {}));
    for (std::size_t i = 0; i < plots.size(); ++i) {
        for (const EnvelopeLine& line : LinesOf(plots[i], units)) {
            const std::string fraction = FractionText(line, DataText);
            for (const Point& point : line.points) {
                out << std::to_string(i + 1) << ',' << line.name << ',' << fraction << ','
                    << DataText(point.x) << ',' << DataText(point.y) << '\n';
            }
        }
    }
}

void Write(std::ostream& out, const Plots& plots) {
    JsonWriter json(out);
    json.BeginObject();
    json.Add("format", "envelope");
    json.BeginArray("plots");
    for (const CommonPlottingObject& plot : plots) {
        json.BeginObject();
        json.BeginArray("lines");
        for (const EnvelopeLine& line : LinesOf(plot, modelUnits)) {
            json.BeginObject();
            json.Add("phase", line.name);
            json.Add("phaseFraction", line.phaseFraction);
            std::vector<double> column(line.points.size());
            std::ranges::transform(line.points, column.begin(), &Point::x);
            json.Add("temperature", column);
            std::ranges::transform(line.points, column.begin(), &Point::y);
            json.Add("pressure", column);
            json.EndObject();
        }
        json.EndArray();
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
}

void Show(Call& call) {
    const ShowForm form = ShowFormOf(call);
    const Plots plots = ReadPlots(call);
    switch (form) {
    case ShowForm::Text:
        Print(call.Out(), plots, ShownUnits(call));
        break;
    case ShowForm::Csv:
        PrintPoints(call.Out(), plots, ShownUnits(call));
        break;
    case ShowForm::Json:
        Write(call.Out(), plots);
        break;
    }
}

// Takes text and remembers how long its longest line is.
class LineMeter : public std::streambuf {
public:
    std::size_t Longest() const noexcept { return longest_; }

protected:
    int_type overflow(int_type character) override {
        length_ = character == '\n' ? 0 : length_ + 1;
        longest_ = std::max(longest_, length_);
        return traits_type::not_eof(character);
    }

private:
    std::size_t length_ = 0;
    std::size_t longest_ = 0;
};

// Headings and blank cells are written out, so lines may get longer than they were.
void WarnOfLongLines(const PhaseEnvelopeReaderWriter& writer, const Plots& plots, Call& call) {
    constexpr std::size_t longestRead = 499;
    LineMeter meter;
    std::ostream measured(&meter);
    writer.Write(measured, plots);
    if (meter.Longest() > longestRead) {
        call.Told().Tell(ToolKinds::longLine, call.Operand(1),
                         "Expected lines of at most " + std::to_string(longestRead) +
                             " characters, which is what is read of them, found one of " +
                             std::to_string(meter.Longest()) + ": it can be written, not read.");
    }
}

void Convert(Call& call) {
    const std::string& out = call.Operand(1);
    const bool useComma =
        call.Asked().Value(to, out.ends_with(".csv") ? "comma" : "tab") == "comma";
    const Plots plots = ReadPlots(call);
    const PhaseEnvelopeReaderWriter writer(useComma);
    WarnOfLongLines(writer, plots, call);
    call.Write(out, [&](std::ostream& stream) { writer.Write(stream, plots); });
}

// OUT.svg, OUT-2.svg, OUT-3.svg and so on.
std::string NameOfPicture(const std::string& output, std::size_t index) {
    if (index == 0) {
        return output;
    }
    std::filesystem::path path = PathOf(output);
    const std::string name =
        NameOf(path.stem()) + '-' + std::to_string(index + 1) + NameOf(path.extension());
    return NameOf(path.replace_filename(PathOf(name)));
}

// A picture of each plot of a file.
void PlotEach(Call& call, const Plots& plots, const EnvelopeUnits& units) {
    const std::string& output = call.Asked().Operands().back();
    for (std::size_t i = 0; i < plots.size(); ++i) {
        RefuseSameFile(call, call.Operand(0), NameOfPicture(output, i));
    }
    for (std::size_t i = 0; i < plots.size(); ++i) {
        std::string subtitle = SubtitleOf(call);
        if (plots.size() > 1) {
            subtitle += ", plot " + std::to_string(i + 1) + " of " + std::to_string(plots.size());
        }
        WritePicture(call, NameOfPicture(output, i),
                     EnvelopeChart({{{}, LinesOf(plots[i], units)}}, units, subtitle));
    }
}

// One picture of the plots of several files.
void PlotTogether(Call& call, const EnvelopeUnits& units) {
    std::vector<EnvelopePlot> all;
    ForEachPlotted(call, [&](Input& input, const std::string& file) {
        const Plots plots = ReadPlots(input, call);
        for (std::size_t i = 0; i < plots.size(); ++i) {
            const std::string plot =
                plots.size() > 1 ? ", plot " + std::to_string(i + 1) : std::string();
            all.push_back({LegendName(file) + plot, LinesOf(plots[i], units)});
        }
    });
    WritePicture(call, call.Asked().Operands().back(), EnvelopeChart(all, units, SubtitleOf(call)));
}

void Plot(Call& call) {
    RequirePicture(call);
    const EnvelopeUnits& units = ShownUnits(call);
    if (PlottedFiles(call).size() > 1) {
        PlotTogether(call, units);
    } else {
        PlotEach(call, ReadPlots(call), units);
    }
}

constexpr Option showOptions[] = {Options::showUnits, Options::json, Options::csv, Options::strict};
constexpr Option convertOptions[] = {to, Options::strict};
constexpr Option plotOptions[] = {Options::showUnits, Options::title,  Options::size,
                                  Options::xRange,    Options::yRange, Options::strict};
constexpr Command commands[] = {
    {"envelope", "show", "Show the plots of a file, their lines, and what each line ranges over",
     "IN", showOptions, Show},
    {"envelope", "convert",
     "Write a file anew, with either separator and with six significant digits", "IN OUT",
     convertOptions, Convert},
    {"envelope", "plot",
     "Draw pressure against temperature as SVG, and print the picture's name. A second plot of "
     "the file goes to OUT-2.svg, and so on; the plots of several files go into one picture",
     "IN... OUT.svg", plotOptions, Plot},
};

} // namespace

std::span<const Command> Commands() {
    return commands;
}

void Check(Input& input, Call& call) {
    ReadPlots(input, call);
}

} // namespace Envelope

} // namespace FluidBenchTool
