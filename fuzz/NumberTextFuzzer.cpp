// Number text in both directions, against the C library and the standard streams in the classic
// locale, which is what this process has.
#include "Fuzz.h"
#include "NumberText.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <sstream>

namespace {

using namespace FluidBenchFuzz;
using namespace Orv::Text;
using Ios = std::ios_base;

// The same number, the sign of a zero included.
bool AreSame(double first, double second) {
    return (std::isnan(first) && std::isnan(second)) ||
           std::bit_cast<std::uint64_t>(first) == std::bit_cast<std::uint64_t>(second);
}

void RequireSame(double ours, double theirs, const char* what) {
    if (!AreSame(ours, theirs)) {
        throw BrokenPromise(std::string(what) + ": " + std::to_string(ours) + " in place of " +
                            std::to_string(theirs));
    }
}

// Whatever takes a number takes as many characters as `std::strtod`.
void RequireTaken(const std::string& text, std::string_view rest, const char* what) {
    char* end = nullptr;
    std::strtod(text.c_str(), &end);
    Require(text.size() - rest.size() == static_cast<std::size_t>(end - text.c_str()),
            std::string(what) + " takes the number and nothing else of '" + text + "'");
}

// "12.5e3" and the like from the first character to the last.
void ParseWhole(const std::string& text) {
    char* end = nullptr;
    const double theirs = std::strtod(text.c_str(), &end);
    const bool isDecimal = text.find_first_not_of("0123456789.eE+-") == std::string::npos;
    if (!text.empty() && isDecimal) {
        double ours = 0.0;
        const std::string mantissa = text.substr(0, text.find_first_of("eE"));
        const bool isTooSmall =
            theirs == 0.0 && mantissa.find_first_of("123456789") != std::string::npos;
        const bool isNumber = *end == '\0' && std::isfinite(theirs) && !isTooSmall;
        Require(ParseNumber(text, ours) == isNumber, "ParseNumber takes what strtod takes");
        RequireSame(isNumber ? ours : theirs, theirs, "ParseNumber");
        double ahead = 0.0;
        const char* const behind = ReadNumberAhead(text.data(), text.data() + text.size(), ahead);
        if (behind != nullptr) {
            Require(behind == end, "ReadNumberAhead ends where strtod does");
            RequireSame(ahead, theirs, "ReadNumberAhead");
        }
    }
}

void Parse(const std::string& text) {
    std::string_view rest = text;
    RequireSame(TakeAsAtof(rest), std::atof(text.c_str()), "TakeAsAtof");
    RequireTaken(text, rest, "TakeAsAtof");
    RequireSame(ParseAsAtof(text), std::atof(text.c_str()), "ParseAsAtof");
    ParseWhole(text);

    // Without the letters of other notations the C library knows decimal numbers alone.
    const std::size_t end = text.find_first_not_of(" \t\n\v\f\r0123456789.eE+-");
    const std::string decimal = text.substr(0, end);
    RequireSame(ParseLeadingDecimal(text), std::atof(decimal.c_str()), "ParseLeadingDecimal");
    rest = decimal;
    TakeLeadingDecimal(rest);
    RequireTaken(decimal, rest, "TakeLeadingDecimal");

    std::istringstream stream(text);
    double extracted = 0.0;
    const bool isThere = static_cast<bool>(stream >> extracted);
    const auto ours = ExtractDecimal(text);
    Require(ours.has_value() == isThere, "ExtractDecimal succeeds where a stream does");
    if (isThere) {
        RequireSame(*ours, extracted, "ExtractDecimal");
    }
}

// The bytes of the input as a number and the state of a stream.
struct Insertion {
    double value = 0.0;
    std::uint8_t precision = 0;
    std::uint8_t width = 0;
    std::uint16_t flags = 0;

    explicit Insertion(const std::string& input) {
        char bytes[12] = {};
        std::memcpy(bytes, input.data(), std::min(input.size(), sizeof bytes));
        std::memcpy(&value, bytes, sizeof value);
        std::memcpy(&precision, bytes + 8, 1);
        std::memcpy(&width, bytes + 9, 1);
        std::memcpy(&flags, bytes + 10, 2);
    }

    void SetUp(std::ostream& out) const {
        const Ios::fmtflags choices[] = {Ios::fixed,    Ios::scientific, Ios::left,     Ios::right,
                                         Ios::internal, Ios::showpos,    Ios::showpoint};
        for (std::size_t i = 0; i < std::size(choices); ++i) {
            if ((flags >> i & 1U) != 0) {
                out.setf(choices[i]);
            }
        }
        out.precision(precision);
        out.width(width);
        out.fill('*');
    }
};

void Write(const Insertion& insertion) {
    std::ostringstream ours;
    std::ostringstream theirs;
    insertion.SetUp(ours);
    insertion.SetUp(theirs);
    WriteNumber(ours, insertion.value);
    theirs << insertion.value;
    Require(ours.str() == theirs.str(),
            "'" + ours.str() + "' is written in place of '" + theirs.str() + "'");

    constexpr NumberFormat allDigits{std::chars_format::general, 17};
    std::string text;
    AppendNumber(text, insertion.value, allDigits);
    RequireSame(ParseAsAtof(text), insertion.value, "17 digits");
}

} // namespace

std::vector<std::string> FluidBenchFuzz::Samples() {
    return {"0",       "-0.0",     " \t12.5abc", "+4e-5",   "1e308",           "4.9e-324",
            "0x1.8p3", "infinity", "nan(1)",     "1.2.3e4", "123456789012e-3", ""};
}

void FluidBenchFuzz::TestOneInput(std::string_view input) {
    const std::string text(input.substr(0, input.find('\0'))); // where a C string ends
    Parse(text);
    Write(Insertion(std::string(input)));
}
