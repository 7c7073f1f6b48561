// What the commands that draw share: their options, and the way of a chart to its file.
#pragma once

#include "Chart.h"
#include "Commands.h"

#include <functional>
#include <string>
#include <vector>

namespace FluidBenchTool {

namespace Options {
// clang-format off
inline constexpr Option title{"--title", "TEXT", "The title of the picture"};
inline constexpr Option size{"--size", "WxH",
    "Width and height of the picture in pixels, from 240x180 on; 960x600, unless given, or what "
    "several panels take"};
inline constexpr Option xRange{"--x-range", "A:B",
    "The numbers at both ends of the horizontal axis, as shown; where it isn't given, all that is "
    "drawn fits"};
inline constexpr Option yRange{"--y-range", "A:B", "The same of the vertical axis"};
// clang-format on
} // namespace Options

/// The files to read, which are all operands but the last one.
std::vector<std::string> PlottedFiles(const Call& call);

/// Throws `WrongUsage` unless the last operand is the name of an SVG picture and the options are
/// sound; tells of an error and throws `CommandFailed` where the picture is one of the files that
/// are read.
void RequirePicture(Call& call);

/// The name of a file without its folder: what legends and subtitles call it.
std::string LegendName(const std::string& file);
/// The same of all files that are read, behind one another.
std::string SubtitleOf(const Call& call);

/// Draws the chart as the options have it into the file, and prints the file's name.
void WritePicture(Call& call, const std::string& name, Chart chart);

/// What each file that is read gives, by its operand.
template <typename Read>
void ForEachPlotted(Call& call, Read read) {
    for (const std::string& file : PlottedFiles(call)) {
        Input input(file, call.Told());
        read(input, file);
    }
}

} // namespace FluidBenchTool
