#include "Table.h"

#include "NumberText.h"
#include "Shown.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <memory>
#include <utility>

namespace FluidBenchTool {

namespace {

constexpr std::string_view gap = "  ";

// Of a table that has more rows than both and some to leave out.
constexpr std::uint64_t rowsOfHead = 20;
constexpr std::uint64_t rowsOfTail = 10;
constexpr std::uint64_t fewestLeftOut = 10;

using Widths = std::vector<std::size_t>;

std::string Line(const Cells& cells, const Widths& widths, std::size_t indent) {
    std::string line(indent, ' ');
    for (std::size_t column = 0; column < cells.size(); ++column) {
        const std::string cell = Shown(cells[column]);
        const std::string padding(widths[column] - ShownWidth(cell), ' ');
        if (column == 0) {
            line += cell + padding;
        } else {
            (line += gap) += padding + cell;
        }
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
}

void Widen(Widths& widths, const Cells& cells) {
    widths.resize(std::max(widths.size(), cells.size()));
    for (std::size_t column = 0; column < cells.size(); ++column) {
        widths[column] = std::max(widths[column], ShownWidth(Shown(cells[column])));
    }
}

std::string Text(double value, std::chars_format notation, int precision) {
    std::array<char, 512> text; // the largest number has 309 digits ahead of its point
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, notation, precision).ptr;
    return {text.data(), end};
}

} // namespace

std::string NumberText(double value, int significantDigits) {
    return Text(value, std::chars_format::general, significantDigits);
}

std::string FixedText(double value, int decimals) {
    return Text(value, std::chars_format::fixed, decimals);
}

std::string ExactText(double value) {
    double read = 0.0;
    if (std::string text = DataText(value); Orv::Text::ParseNumber(text, read) && read == value) {
        return text;
    }
    std::array<char, 32> text;
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}

std::string DataText(double value) {
    constexpr int digits = 15;
    return NumberText(value, digits);
}

std::string WithMinusSign(const std::string& number) {
    return number.starts_with('-') ? "\u2212" + number.substr(1) : number;
}

// Bytes that continue a UTF-8 character show nothing of their own.
std::size_t ShownWidth(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

Table TableOf(Cells headings, std::vector<Cells> rows) {
    const std::uint64_t count = rows.size();
    const auto held = std::make_shared<const std::vector<Cells>>(std::move(rows));
    return {std::move(headings), count, [held](std::uint64_t row) { return (*held)[row]; }};
}

Table Joined(Cells headings, std::vector<Table> parts) {
    std::uint64_t count = 0;
    for (const Table& part : parts) {
        count += part.rows;
    }
    return {std::move(headings), count, [held = std::move(parts)](std::uint64_t row) {
                auto part = held.begin();
                while (row >= part->rows) {
                    row -= part->rows;
                    ++part;
                }
                return part->row(row);
            }};
}

void PrintTable(std::ostream& out, const Table& table, Extent extent, std::size_t indent) {
    const bool isCut =
        extent == Extent::HeadAndTail && table.rows >= rowsOfHead + rowsOfTail + fewestLeftOut;
    const std::uint64_t headEnd = isCut ? rowsOfHead : table.rows;
    const std::uint64_t tailBegin = isCut ? table.rows - rowsOfTail : table.rows;
    const auto forEachShown = [&](auto visit) {
        for (std::uint64_t row = 0; row < headEnd; ++row) {
            visit(row);
        }
        for (std::uint64_t row = tailBegin; row < table.rows; ++row) {
            visit(row);
        }
    };
    // Each row is made twice rather than held.
    Widths widths;
    Widen(widths, table.headings);
    forEachShown([&](std::uint64_t row) { Widen(widths, table.row(row)); });
    out << Line(table.headings, widths, indent) << '\n';
    forEachShown([&](std::uint64_t row) {
        if (isCut && row == tailBegin) {
            out << std::string(indent, ' ') << "... " << std::to_string(tailBegin - headEnd)
                << " more rows, which --all shows ...\n";
        }
        out << Line(table.row(row), widths, indent) << '\n';
    });
}

void PrintCsvRow(std::ostream& out, const Cells& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const std::string& cell = cells[i];
        out << (i > 0 ? "," : "");
        if (cell.find_first_of(",\"\r\n") == std::string::npos) {
            out << cell;
            continue;
        }
        out << '"';
        for (const char c : cell) {
            out << (c == '"' ? "\"\"" : std::string(1, c));
        }
        out << '"';
    }
    out << '\n';
}

void PrintCsv(std::ostream& out, const Table& table) {
    PrintCsvRow(out, table.headings);
    for (std::uint64_t row = 0; row < table.rows; ++row) {
        PrintCsvRow(out, table.row(row));
    }
}

} // namespace FluidBenchTool
