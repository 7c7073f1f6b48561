#include "Table.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <utility>

namespace FluidBenchTool {

namespace {

constexpr std::string_view gap = "  ";

std::string Line(const std::vector<std::string>& cells, const std::vector<std::size_t>& widths,
                 std::size_t indent) {
    std::string line(indent, ' ');
    for (std::size_t column = 0; column < cells.size(); ++column) {
        const std::string padding(widths[column] - ShownWidth(cells[column]), ' ');
        if (column == 0) {
            line += cells[column] + padding;
        } else {
            (line += gap) += padding + cells[column];
        }
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
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

std::string WithMinusSign(const std::string& number) {
    return number.starts_with('-') ? "\u2212" + number.substr(1) : number;
}

// Bytes that continue a UTF-8 character show nothing of their own.
std::size_t ShownWidth(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

Table::Table(std::vector<std::string> headings) {
    AddRow(std::move(headings));
}

void Table::AddRow(std::vector<std::string> cells) {
    for (std::string& cell : cells) {
        std::ranges::replace_if(
            cell, [](unsigned char c) { return c < ' ' || c == 0x7F; }, '?');
    }
    rows_.push_back(std::move(cells));
}

void Table::Print(std::ostream& out, std::size_t indent) const {
    std::vector<std::size_t> widths;
    for (const auto& row : rows_) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], ShownWidth(row[column]));
        }
    }
    for (const auto& row : rows_) {
        out << Line(row, widths, indent) << '\n';
    }
}

} // namespace FluidBenchTool
