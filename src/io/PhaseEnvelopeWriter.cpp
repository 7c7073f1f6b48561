#include "PhaseEnvelopeWriter.h"

#include "NumberText.h"
#include "PhaseEnvelopeFormat.h"
#include "TextFile.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>

namespace Orv::FluidBench::Impl::IO {

using Common::CommonPlottingObject;
using Common::Line;
using Common::Point;
using Text::AppendNumber;
using Text::blockSize;
using Text::NumberFormat;
using AxisType = CommonPlottingObject::AxisType;

namespace {

struct AxisText {
    std::string_view unit;
    std::string_view letter;
};

// By the number of the axis type.
constexpr AxisText axisTexts[] = {
    {"T(K)", "T"},
    {"P(Pa)", "P"},
    {"Viscosity(Pa.s)", "Viscosity"},
    {"Density(Kg/m3)", "Density"},
    {"X(fraction)", "X"},
    {"H(J/mol)", "H"},
    {"V(m3/mol)", "V"},
};

// Both texts of an unknown axis are empty.
AxisText TextOf(AxisType axis) {
    const auto index = static_cast<std::uint32_t>(axis);
    return index < std::size(axisTexts) ? axisTexts[index] : AxisText();
}

// Cells and lines on their way to the file, in large blocks.
class RowWriter {
public:
    RowWriter(std::ostream& out, char separator) : out_(out), separator_(separator) {}
    RowWriter(const RowWriter&) = delete;
    RowWriter& operator=(const RowWriter&) = delete;

    void Add(std::string_view text) { (block_ += text) += separator_; }
    void Add(double number) {
        AppendNumber(block_, number, NumberFormat());
        block_ += separator_;
    }
    void EndLine(std::string_view text = {}) {
        (block_ += text) += '\n';
        if (block_.Size() >= blockSize) {
            Flush();
        }
    }
    // Writes what is left; to be called at the end.
    void Flush() { block_.WriteTo(out_); }

private:
    std::ostream& out_;
    char separator_;
    Text::TextBuffer block_;
};

// A pair of columns: its two heading cells and its points.
struct Pair {
    std::string_view heading;
    std::string headingNumber;
    std::vector<Point> points;
};

bool HasOnePair(const LineKind& kind) {
    return kind.pairs == Pairs::One || kind.pairs == Pairs::OneIfThere;
}

int NumberOfLines(const CommonPlottingObject& plot, const LineKind& kind) {
    const int lines = plot.NumberOfLines(lineType, kind.phase);
    return HasOnePair(kind) ? std::min(lines, 1) : lines;
}

std::vector<Pair> CollectPairs(const CommonPlottingObject& plot) {
    std::vector<Pair> pairs;
    std::uint64_t count = 0; // of numbered lines
    for (const LineKind& kind : lineKinds) {
        const int lines = NumberOfLines(plot, kind);
        for (int i = 0; i < lines; ++i) {
            const Line& line = plot.GetLine(lineType, kind.phase, i);
            Pair& pair = pairs.emplace_back(Pair{kind.heading, {}, line.GetPoints()});
            if (kind.pairs == Pairs::EachWithFraction) {
                AppendNumber(pair.headingNumber, line.GetPhaseFraction(), NumberFormat());
            } else if (kind.pairs == Pairs::EachWithNumber) {
                AppendNumber(pair.headingNumber, ++count);
            }
        }
        if (lines == 0 && kind.pairs == Pairs::One) {
            pairs.push_back({kind.heading, {}, {}});
        }
    }
    return pairs;
}

void WriteHeader(RowWriter& cells, const AxisText& x, const AxisText& y) {
    cells.EndLine("Flash: ");
    cells.EndLine("Source: ");
    cells.EndLine("Units: " + std::string(x.unit) + ", " + std::string(y.unit));
    cells.EndLine();
}

void WriteColumnHeadings(RowWriter& cells, const std::vector<Pair>& pairs, const AxisText& x,
                         const AxisText& y) {
    for (const Pair& pair : pairs) {
        cells.Add(pair.heading);
        cells.Add(pair.headingNumber);
    }
    cells.EndLine();
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        cells.Add(x.letter);
        cells.Add(y.letter);
    }
    cells.EndLine();
}

void WriteRow(RowWriter& cells, const std::vector<Pair>& pairs, std::size_t row) {
    for (const Pair& pair : pairs) {
        if (row < pair.points.size()) {
            cells.Add(pair.points[row].x);
            cells.Add(pair.points[row].y);
        } else {
            cells.Add(" ");
            cells.Add(" ");
        }
    }
    cells.EndLine();
}

void WritePlot(RowWriter& cells, const CommonPlottingObject& plot) {
    const AxisText x = TextOf(plot.GetXAxisType());
    const AxisText y = TextOf(plot.GetYAxisType());
    const std::vector<Pair> pairs = CollectPairs(plot);
    std::size_t rows = 0;
    for (const Pair& pair : pairs) {
        rows = std::max(rows, pair.points.size());
    }

    WriteHeader(cells, x, y);
    WriteColumnHeadings(cells, pairs, x, y);
    for (std::size_t row = 0; row < rows; ++row) {
        WriteRow(cells, pairs, row);
    }
    cells.EndLine();
}

} // namespace

void WritePhaseEnvelopes(std::ostream& out, const std::vector<CommonPlottingObject>& plots,
                         char separator) {
    RowWriter cells(out, separator);
    for (const CommonPlottingObject& plot : plots) {
        WritePlot(cells, plot);
    }
    cells.Flush();
}

} // namespace Orv::FluidBench::Impl::IO
