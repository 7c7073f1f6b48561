// Tables and numbers for a person at a terminal, and tables for spreadsheets.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace FluidBenchTool {

/// The number with that many significant digits, as printf's %.*g writes it, in any locale.
std::string NumberText(double value, int significantDigits = 6);

/// The number with that many decimals, as printf's %.*f writes it, in any locale. Meant for numbers
/// of up to 15 digits.
std::string FixedText(double value, int decimals);

/// The number with as many digits as it takes to read it back: 15, or up to 17.
std::string ExactText(double value);

/// The number with 15 digits: as it was typed, though its unit was converted there and back.
std::string DataText(double value);

/// The number's text with the sign of typesetters in place of a leading hyphen.
std::string WithMinusSign(const std::string& number);

/// How many characters a text in UTF-8 shows.
std::size_t ShownWidth(std::string_view text);

using Cells = std::vector<std::string>;

/// A table whose rows are asked for one at a time, so that no text is held of a table of any
/// length. A row may be asked for more than once, and may be shorter than the headings.
struct Table {
    Cells headings;
    std::uint64_t rows = 0;
    std::function<Cells(std::uint64_t row)> row;
};

/// A table of these rows.
Table TableOf(Cells headings, std::vector<Cells> rows);

/// The rows of these tables, one table behind the other, below headings of their own.
Table Joined(Cells headings, std::vector<Table> parts);

enum class Extent {
    HeadAndTail, ///< of a long table the first and last rows, and how many are between
    All
};

/// Prints the table in aligned columns, the first one to the left and the others to the right, each
/// line indented by `indent` blanks. What a terminal would obey comes out escaped.
void PrintTable(std::ostream& out, const Table& table, Extent extent = Extent::All,
                std::size_t indent = 0);

/// Prints a row with commas between its cells, and with quotes around those that need them.
void PrintCsvRow(std::ostream& out, const Cells& cells);

/// Prints all rows with commas between their cells, and with quotes around cells that need them.
void PrintCsv(std::ostream& out, const Table& table);

} // namespace FluidBenchTool
