// What a reader tells beside its result, and what of that every reader promises.
#pragma once

#include "Fuzz.h"
#include "io/Diagnostics.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace FluidBenchFuzz {

/// The diagnostics of one read. Each has to be in order by itself.
class Told {
public:
    /// For one reader, which goes before the object.
    Orv::FluidBench::IO::DiagnosticSink Sink() {
        return [this](const Orv::FluidBench::IO::Diagnostic& told) { Take(told); };
    }

    bool HasErrors() const { return HasAtLeast(Orv::FluidBench::IO::Severity::Error); }
    bool HasWarnings() const { return HasAtLeast(Orv::FluidBench::IO::Severity::Warning); }
    const std::vector<Orv::FluidBench::IO::Diagnostic>& All() const { return all_; }

    /// Whether something is told of that line of that file, or may be among what was only counted.
    bool Tells(std::uint64_t line, const std::string& file) const;
    bool HasAny(const std::vector<std::string_view>& codes) const;

    /// All of it, to compare.
    std::string Text() const;

private:
    void Take(const Orv::FluidBench::IO::Diagnostic& told);
    bool HasAtLeast(Orv::FluidBench::IO::Severity severity) const;

    std::vector<Orv::FluidBench::IO::Diagnostic> all_;
};

/// The lines of a text with their numbers left to the index, as the plain readers take them: a
/// carriage return at a line's end and a byte order mark at the head of the text don't count.
std::vector<std::string> LinesOf(std::string_view text);
/// A cell, as `std::strtod` knows it: the number that it begins with, and whether it is that and
/// nothing else but blanks around it.
struct PlainCell {
    double number = 0.0;
    bool isNumber = false;
    bool isBlank = false;
};
PlainCell LookAt(const std::string& cell);
std::vector<std::string> CellsOf(const std::string& line, char separator);
bool HasDigit(std::string_view text);

/// The same number, as close as `relative` and `absolute` allow; what isn't finite, exactly.
bool AreClose(double first, double second, double relative, double absolute = 0.0);

} // namespace FluidBenchFuzz
