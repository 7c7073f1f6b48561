#include "AxisScale.h"

#include "Table.h"

#include <algorithm>
#include <cmath>

namespace FluidBenchTool {

namespace {

// Below this, relative to the values themselves, a range is the rounding of one number.
constexpr double narrowest = 1e-9;
constexpr double smallestWidth = 1e-100;

// The round number closest above or at the width.
double RoundStep(double width) {
    const double power = std::pow(10.0, std::floor(std::log10(width)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= width * (1.0 - narrowest)) {
            return factor * power;
        }
    }
    return 10.0 * power;
}

} // namespace

std::string AxisScale::Label(double tick) const {
    constexpr double largestWithoutExponent = 1e7;
    constexpr double smallestStepWithoutExponent = 1e-6;
    const double largest = std::max(std::abs(low), std::abs(high));
    std::string text;
    if (largest >= largestWithoutExponent || step < smallestStepWithoutExponent) {
        constexpr int digits = 10;
        text = NumberText(tick, digits);
    } else {
        const double digits = -std::floor(std::log10(step * (1.0 + narrowest)));
        text = FixedText(tick, static_cast<int>(std::max(digits, 0.0)));
    }
    return WithMinusSign(text);
}

double AxisScale::Part(double value) const {
    return (value - low) / (high - low);
}

AxisScale RoundScale(double least, double most, int intervals) {
    const double magnitude = std::max(std::abs(least), std::abs(most));
    if (most - least <= std::max(magnitude * narrowest, smallestWidth)) {
        const double room = std::max(magnitude / 10.0, 1.0);
        least -= room;
        most += room;
    }
    AxisScale scale;
    scale.step = RoundStep((most - least) / intervals);
    const double half = scale.step / 2.0;
    const double first = std::floor(least / half + narrowest);
    const double last = std::ceil(most / half - narrowest);
    scale.low = first * half;
    scale.high = last * half;
    for (double multiple = first; multiple <= last; ++multiple) {
        const bool isMinor = std::fmod(multiple, 2.0) != 0.0;
        (isMinor ? scale.minorTicks : scale.ticks).push_back(multiple * half + 0.0); // not -0
    }
    return scale;
}

} // namespace FluidBenchTool
