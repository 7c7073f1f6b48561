#include "Told.h"

#include <cmath>
#include <cstdlib>

namespace FluidBenchFuzz {

using Orv::FluidBench::IO::Diagnostic;
using Orv::FluidBench::IO::Severity;

namespace {

constexpr std::ptrdiff_t mostOfOneCode = 20; // and then one that counts the rest

} // namespace

void Told::Take(const Diagnostic& told) {
    Require(!told.file.empty() && told.code.find('.') != std::string::npos &&
                told.sentence.ends_with('.'),
            "A diagnostic has a file, a code and a sentence");
    all_.push_back(told);
}

bool Told::HasAtLeast(Severity severity) const {
    return std::ranges::any_of(all_, [&](const auto& told) { return told.severity >= severity; });
}

bool Told::Tells(std::uint64_t line, const std::string& file) const {
    return std::ranges::any_of(all_, [&](const Diagnostic& told) {
        return (told.line == line && told.file == file) ||
               std::ranges::count(all_, told.code, &Diagnostic::code) > mostOfOneCode;
    });
}

bool Told::HasAny(const std::vector<std::string_view>& codes) const {
    return std::ranges::any_of(all_, [&](const Diagnostic& told) {
        return std::ranges::find(codes, told.code) != codes.end();
    });
}

std::string Told::Text() const {
    std::string text;
    for (const Diagnostic& told : all_) {
        text += told.file + ':' + std::to_string(told.line) + ' ' +
                std::to_string(static_cast<int>(told.severity)) + ' ' + told.code + ' ' +
                told.sentence + '\n';
    }
    return text;
}

std::vector<std::string> LinesOf(std::string_view text) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    text.remove_prefix(text.starts_with(mark) ? mark.size() : 0);
    std::vector<std::string> lines = CellsOf(std::string(text), '\n');
    for (std::string& line : lines) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
    }
    return lines;
}

std::vector<std::string> CellsOf(const std::string& line, char separator) {
    std::vector<std::string> cells(1);
    for (const char c : line) {
        if (c == separator) {
            cells.emplace_back();
        } else {
            cells.back() += c;
        }
    }
    return cells;
}

PlainCell LookAt(const std::string& cell) {
    constexpr const char* blanks = " \t\r\v\f";
    PlainCell plain;
    char* end = nullptr;
    plain.number = std::strtod(cell.c_str(), &end);
    const auto length = static_cast<std::size_t>(end - cell.c_str());
    plain.isBlank = cell.find_first_not_of(blanks) == std::string::npos;
    plain.isNumber = length > 0 && std::isfinite(plain.number) &&
                     cell.find_first_not_of("0123456789.eE+- \t\r\v\f") == std::string::npos &&
                     cell.find_first_not_of(blanks, length) == std::string::npos;
    return plain;
}

bool HasDigit(std::string_view text) {
    return text.find_first_of("0123456789") != std::string_view::npos;
}

bool AreClose(double first, double second, double relative, double absolute) {
    if (!std::isfinite(first) || !std::isfinite(second)) {
        return first == second || (std::isnan(first) && std::isnan(second));
    }
    return std::abs(first - second) <= absolute + relative * std::abs(first);
}

} // namespace FluidBenchFuzz
