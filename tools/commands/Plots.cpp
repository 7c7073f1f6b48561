#include "Plots.h"

#include "NumberText.h"
#include "Shown.h"
#include "TextFile.h"

#include <optional>

namespace FluidBenchTool {

namespace {

using Orv::Text::NameOf;
using Orv::Text::ParseNumber;
using Orv::Text::PathOf;

constexpr double mostPixels = 10'000.0;
constexpr double leastWidth = 240.0;
constexpr double leastHeight = 180.0;

[[noreturn]] void RefuseValue(const Option& option, const std::string& takes,
                              const std::string& value) {
    throw WrongUsage(std::string(option.name) + " takes " + takes + ", not '" + value + "'.");
}

// Two numbers with a character between them.
struct Pair {
    double first = 0.0;
    double second = 0.0;
};

std::optional<Pair> ParsePair(const std::string& text, char between) {
    const auto parts = Split(text, between);
    Pair pair;
    const bool isPair = parts.size() == 2 && ParseNumber(parts[0], pair.first) &&
                        ParseNumber(parts[1], pair.second);
    return isPair ? std::optional(pair) : std::nullopt;
}

std::optional<AxisRange> RangeOf(const Call& call, const Option& option) {
    constexpr double limit = 1e100;
    const auto value = call.Asked().Value(option);
    if (!value) {
        return std::nullopt;
    }
    const auto pair = ParsePair(*value, ':');
    if (!pair || !(pair->first < pair->second && pair->first > -limit && pair->second < limit)) {
        RefuseValue(option, "two numbers, the smaller one first, such as 0:250", *value);
    }
    return AxisRange{pair->first, pair->second};
}

std::optional<Pair> SizeOf(const Call& call) {
    const auto value = call.Asked().Value(Options::size);
    if (!value) {
        return std::nullopt;
    }
    const auto pair = ParsePair(*value, 'x');
    if (!pair || !(pair->first >= leastWidth && pair->second >= leastHeight &&
                   pair->first <= mostPixels && pair->second <= mostPixels)) {
        RefuseValue(Options::size, "a width and a height from 240x180 to 10000x10000", *value);
    }
    return pair;
}

void SetRange(Axis& axis, const std::optional<AxisRange>& range, const Option& option) {
    if (range && axis.kind == AxisKind::Logarithmic && range->least <= 0.0) {
        throw WrongUsage(std::string(option.name) +
                         " takes numbers above zero here, as the axis is logarithmic.");
    }
    if (range) {
        axis.range = range;
    }
}

} // namespace

std::vector<std::string> PlottedFiles(const Call& call) {
    const auto& operands = call.Asked().Operands();
    return {operands.begin(), operands.end() - 1};
}

void RequirePicture(Call& call) {
    const std::string& picture = call.Asked().Operands().back();
    RequirePictureName(picture);
    SizeOf(call);
    RangeOf(call, Options::xRange);
    RangeOf(call, Options::yRange);
    for (const std::string& file : PlottedFiles(call)) {
        RefuseSameFile(call, file, picture);
    }
}

std::string LegendName(const std::string& file) {
    return file == standardStream ? "standard input" : NameOf(PathOf(file).filename());
}

std::string SubtitleOf(const Call& call) {
    std::string subtitle;
    for (const std::string& file : PlottedFiles(call)) {
        subtitle += (subtitle.empty() ? "" : ", ") + LegendName(file);
    }
    return subtitle;
}

void WritePicture(Call& call, const std::string& name, Chart chart) {
    if (const auto title = call.Asked().Value(Options::title)) {
        chart.title = *title;
    }
    if (const auto size = SizeOf(call)) {
        chart.width = size->first;
        chart.height = size->second;
    }
    const auto x = RangeOf(call, Options::xRange);
    const auto y = RangeOf(call, Options::yRange);
    for (Panel& panel : chart.panels) {
        SetRange(panel.x, x, Options::xRange);
        SetRange(panel.y, y, Options::yRange);
    }
    call.Write(name, [&](std::ostream& out) { out << DrawChart(chart); });
    call.Out() << Shown(name) << '\n';
}

} // namespace FluidBenchTool
