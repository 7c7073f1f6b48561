#include "FileNumber.h"

#include "NumberText.h"

#include <cmath>
#include <limits>
#include <string>

namespace Orv::FluidBench::IO {

std::vector<double> NeighboursOf(double number, int reach) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    std::vector<double> neighbours{number};
    double below = number;
    double above = number;
    for (int i = 0; i < reach; ++i) {
        neighbours.push_back(below = std::nextafter(below, -infinity));
        neighbours.push_back(above = std::nextafter(above, infinity));
    }
    return neighbours;
}

bool HaveSameText(double first, double second, int decimals) {
    const auto textOf = [decimals](double value) {
        std::string text;
        Text::AppendNumber(text, value, {std::chars_format::fixed, decimals});
        return text;
    };
    return textOf(first) == textOf(second);
}

// Both conversions round to within half of a last digit, in a span of numbers that may be twice as
// dense on one side; so the number, if any, is near.
double FileNumber::TryNeighbours(double number, double value, int decimals) const {
    const std::vector<double> neighbours = NeighboursOf(value);
    for (const double candidate : neighbours) {
        if (toFile_(candidate) == number) {
            return candidate;
        }
    }
    for (const double candidate : neighbours) {
        if (HaveSameText(toFile_(candidate), number, decimals)) {
            return candidate;
        }
    }
    return value;
}

} // namespace Orv::FluidBench::IO
