// What differs between two files of a format.
#pragma once

#include "Json.h"
#include "ShownUnit.h"

#include <cstddef>
#include <ostream>
#include <span>
#include <string>
#include <vector>

namespace FluidBenchTool {

/// Collects differences, in the order in which they are found. Numbers come in model units.
class Comparison {
public:
    /// Numbers that differ by no more than this part of the larger one are the same.
    explicit Comparison(double tolerance) : tolerance_(tolerance) {}

    bool AreSame(double first, double second) const;

    /// Adds the number unless both are the same.
    void Compare(const std::string& where, const std::string& what, const ShownUnit& unit,
                 double first, double second);
    void Compare(const std::string& where, const std::string& what, const std::string& first,
                 const std::string& second);
    void AddMissing(const std::string& where, bool isInFirst);

    bool IsEmpty() const noexcept { return differences_.empty(); }

    /// A table of the differences; nothing where there are none.
    void Print(std::ostream& out, const std::string& firstName,
               const std::string& secondName) const;
    /// The same as JSON, in model units.
    void Write(std::ostream& out, std::string_view format, const std::string& firstName,
               const std::string& secondName) const;

private:
    struct Difference {
        std::string where;
        std::string what;      // empty for what is in one file alone
        std::string firstText; // of a text; of a number it is empty
        std::string secondText;
        ShownUnit unit;
        double first = 0.0;
        double second = 0.0;
        enum class Kind { Number, Text, OnlyFirst, OnlySecond } kind = Kind::Number;
    };

    double tolerance_;
    std::vector<Difference> differences_;
};

/// What belongs together in two lists.
struct Match {
    static constexpr std::size_t none = static_cast<std::size_t>(-1);
    std::size_t first = none; ///< an index, or none where the second list alone has it
    std::size_t second = none;
};

/// Matches numbers that `comparison` takes for the same, whatever their order. By rising number.
std::vector<Match> MatchNumbers(std::span<const double> first, std::span<const double> second,
                                const Comparison& comparison);
/// Matches names. In the order of the first list, with what the second has beside it at the end.
std::vector<Match> MatchNames(std::span<const std::string> first,
                              std::span<const std::string> second);

} // namespace FluidBenchTool
