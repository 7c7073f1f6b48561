// fluidbench-io envelope: shows phase envelope files, converts and draws them.
#include "Choices.h"
#include "Commands.h"
#include "EnvelopeChart.h"
#include "EnvelopeLines.h"
#include "LineReader.h"
#include "Reports.h"
#include "Table.h"
#include "TextFile.h"
#include "io/PhaseEnvelopeReaderWriter.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace FluidBenchTool {

using Orv::FluidBench::Common::CommonPlottingObject;
using Orv::FluidBench::Common::Line;
using Orv::FluidBench::Common::Point;
using Orv::FluidBench::IO::PhaseEnvelopeReaderWriter;

namespace {

using Plots = std::vector<CommonPlottingObject>;

const std::map<std::string, const EnvelopeUnits*> unitChoices{{"metric", &metricEnvelopeUnits},
                                                              {"field", &fieldEnvelopeUnits}};
const std::map<std::string, bool> separatorIsComma{{"comma", true}, {"tab", false}};

bool HasUnknownHeading(std::string_view line) {
    const auto holds = [line](std::string_view word) {
        return line.find(word) != std::string_view::npos;
    };
    return holds("Bubble") && (holds("PX2") || holds("PX3") || holds("TX2") || holds("TX3"));
}

// What the library's reader passes over in silence, and a person had better know. What isn't an
// ordinary file, such as a pipe, can't be read once more and passes.
void WarnOfWhatIsNotRead(const std::string& fileName) {
    if (!Orv::Text::IsRegularFile(fileName)) {
        return;
    }
    constexpr std::size_t longestLine = 499;
    bool hasOtherUnits = false;
    bool hasOtherLines = false;
    bool hasLongLine = false;
    std::ifstream file = Orv::Text::OpenForReading(fileName);
    Orv::Text::LineReader lines(file, longestLine);
    for (std::string_view line; lines.Next(line);) {
        hasOtherUnits |= line.starts_with("Units: ") && line != "Units: T(K), P(Pa)";
        hasOtherLines |= HasUnknownHeading(line);
        hasLongLine = lines.IsCut();
    }
    const auto warn = [&fileName](bool isSo, const std::string& text) {
        if (isSo) {
            std::cerr << "warning: '" << fileName << "' " << text << '\n';
        }
    };
    warn(hasOtherUnits,
         "states units other than T(K), P(Pa). The first column of each pair is "
         "taken for temperatures in K all the same, the second for pressures in Pa.");
    warn(hasOtherLines, "has PX or TX lines, which can't be read. The digits of their headings "
                        "count as vapour fractions, and from there on numbers are in wrong lines.");
    warn(hasLongLine, "has a line of more than " + std::to_string(longestLine) +
                          " characters. What follows these isn't read.");
}

std::string FailureText(const std::string& fileName, const std::string& message,
                        std::size_t numberOfPlots) {
    if (message.empty()) {
        return "'" + fileName +
               "' is no phase envelope file: the second character of its sixth line, such as "
               "\"T,P,\", isn't a comma or a tab, or the line is shorter than 4 characters.";
    }
    const std::string before = numberOfPlots == 0
                                   ? std::string()
                                   : " Plots ahead of that: " + std::to_string(numberOfPlots) + '.';
    return "'" + fileName + "': " + message + '.' + before;
}

Plots ReadPlots(const std::string& fileName) {
    constexpr std::string_view readToTheEnd = "No more envelopes found";
    Plots plots;
    std::vector<std::string> messages;
    PhaseEnvelopeReaderWriter file;
    file.SetFileName(fileName);
    bool isRead = false;
    try {
        isRead = file.Read(plots, messages);
    } catch (const std::out_of_range&) {
        WarnOfWhatIsNotRead(fileName);
        throw CommandFailed("'" + fileName +
                            "': A number in a heading line has no separator behind it.");
    }
    WarnOfWhatIsNotRead(fileName); // also ahead of a failure: a long line may be what made it
    const std::string& message = messages.back();
    if (!isRead) {
        throw CommandFailed(FailureText(fileName, message, plots.size()));
    }
    if (!message.empty() && message != readToTheEnd) {
        std::cerr << "warning: '" << fileName << "': " << message << ".\n";
    }
    return plots;
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

void Show(const std::string& fileName, const EnvelopeUnits& units) {
    const Plots plots = ReadPlots(fileName);
    for (std::size_t i = 0; i < plots.size(); ++i) {
        std::cout << (i > 0 ? "\n" : "") << "Plot " << std::to_string(i + 1) << '\n';
        Table table({"line", "fraction", "points", std::string("temperature ") + units.temperature,
                     std::string("pressure ") + units.pressure});
        for (const EnvelopeLine& line : LinesOf(plots[i], units)) {
            const bool hasFraction = line.phase == Line::Phase::VapourFraction;
            table.AddRow({line.name, hasFraction ? NumberText(line.phaseFraction) : std::string(),
                          std::to_string(line.points.size()), RangeText(line.points, &Point::x),
                          RangeText(line.points, &Point::y)});
        }
        table.Print(std::cout, 2);
    }
}

void Convert(const std::string& input, const std::string& output, bool useComma) {
    const Plots plots = ReadPlots(input);
    PhaseEnvelopeReaderWriter file(useComma);
    file.SetFileName(output);
    if (!file.Write(plots)) {
        throw CommandFailed("'" + output + "' can't be opened for writing.");
    }
    RequireWholeFile(output, plots.empty() ? "" : "\n\n");
    WarnOfWhatIsNotRead(output); // headings and blank cells are written out, and lines get longer
}

// OUT.svg, OUT-2.svg, OUT-3.svg and so on.
std::string NameOfPicture(const std::string& output, std::size_t index) {
    if (index == 0) {
        return output;
    }
    std::filesystem::path path(output);
    const std::string name =
        path.stem().string() + '-' + std::to_string(index + 1) + path.extension().string();
    return path.replace_filename(name).string();
}

void WritePicture(const std::string& fileName, const std::string& svg) {
    std::ofstream file(fileName, std::ios_base::binary);
    if (!file.is_open()) {
        throw CommandFailed("'" + fileName + "' can't be opened for writing.");
    }
    file << svg;
    if (!file.flush()) {
        throw CommandFailed("'" + fileName + "' can't be written whole.");
    }
}

void DrawPlots(const std::string& input, const std::string& output, const EnvelopeUnits& units) {
    const Plots plots = ReadPlots(input);
    for (std::size_t i = 0; i < plots.size(); ++i) {
        std::string subtitle = std::filesystem::path(input).filename().string();
        if (plots.size() > 1) {
            subtitle += ", plot " + std::to_string(i + 1) + " of " + std::to_string(plots.size());
        }
        const std::string name = NameOfPicture(output, i);
        WritePicture(name, DrawChart(EnvelopeChart(LinesOf(plots[i], units), units, subtitle)));
        std::cout << name << '\n';
    }
}

// The arguments of the three commands; each uses what it has.
struct Arguments {
    std::string input;
    std::string output;
    const EnvelopeUnits* units = &metricEnvelopeUnits;
    bool useComma = false;
};

std::shared_ptr<Arguments> AddInput(CLI::App& command) {
    auto arguments = std::make_shared<Arguments>();
    command.add_option("IN", arguments->input, "The phase envelope file")->required();
    return arguments;
}

void AddUnits(CLI::App& command, Arguments& arguments) {
    AddChoice(command, "--units", arguments.units, unitChoices,
              "metric, unless given: degrees C and bar; field: degrees F and psia");
}

void AddShow(CLI::App& envelope) {
    CLI::App* const show = envelope.add_subcommand(
        "show", "Show the plots of a file, their lines, and what each line ranges over");
    const auto arguments = AddInput(*show);
    AddUnits(*show, *arguments);
    show->callback([arguments] { Show(arguments->input, *arguments->units); });
}

void AddConvert(CLI::App& envelope) {
    CLI::App* const convert = envelope.add_subcommand(
        "convert", "Write a file anew, with either separator and with six significant digits");
    const auto arguments = AddInput(*convert);
    convert
        ->add_option("OUT", arguments->output, "The file to write; one that is there is replaced")
        ->required();
    AddChoice(*convert, "--separator", arguments->useComma, separatorIsComma,
              "What stands behind each cell")
        ->required();
    convert->callback(
        [arguments] { Convert(arguments->input, arguments->output, arguments->useComma); });
}

void AddPlot(CLI::App& envelope) {
    CLI::App* const plot =
        envelope.add_subcommand("plot", "Draw pressure against temperature, a picture for each "
                                        "plot of the file, and print the pictures' names");
    const auto arguments = AddInput(*plot);
    plot->add_option("OUT", arguments->output,
                     "The picture of the first plot, in SVG form. That of the second is OUT-2.svg, "
                     "and so on. A file that is there is replaced")
        ->required();
    AddUnits(*plot, *arguments);
    plot->callback(
        [arguments] { DrawPlots(arguments->input, arguments->output, *arguments->units); });
}

} // namespace

void AddEnvelopeCommands(CLI::App& program) {
    CLI::App* const envelope = program.add_subcommand("envelope", "Phase envelope files");
    envelope->require_subcommand(1);
    AddShow(*envelope);
    AddConvert(*envelope);
    AddPlot(*envelope);
}

} // namespace FluidBenchTool
