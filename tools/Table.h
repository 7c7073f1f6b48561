// Tables and numbers for a person at a terminal.
#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

namespace FluidBenchTool {

/// The number with that many significant digits, as printf's %.*g writes it, in any locale.
std::string NumberText(double value, int significantDigits = 6);

/// The number with that many decimals, as printf's %.*f writes it, in any locale. Meant for numbers
/// of up to 15 digits.
std::string FixedText(double value, int decimals);

/// The number's text with the sign of typesetters in place of a leading hyphen.
std::string WithMinusSign(const std::string& number);

/// How many characters a text in UTF-8 shows.
std::size_t ShownWidth(std::string_view text);

/// Rows of text in aligned columns: the first column to the left, the others to the right.
class Table {
public:
    explicit Table(std::vector<std::string> headings);

    /// A row may be shorter than the headings; the rest of it stays empty. Characters that a
    /// terminal would obey are shown as question marks.
    void AddRow(std::vector<std::string> cells);

    /// Writes the headings and the rows, each line indented by `indent` blanks.
    void Print(std::ostream& out, std::size_t indent = 0) const;

private:
    std::vector<std::vector<std::string>> rows_;
};

} // namespace FluidBenchTool
