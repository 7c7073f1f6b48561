#include "AxisScale.h"

#include "Table.h"

#include <algorithm>
#include <cmath>

namespace FluidBenchTool {

namespace {

// Below this, relative to the values themselves, a range is the rounding of one number.
constexpr double narrowest = 1e-9;
constexpr double smallestWidth = 1e-100;

constexpr double roundFactors[] = {1.0, 2.0, 5.0};

// The round number closest above or at the width.
double RoundStep(double width) {
    const double power = std::pow(10.0, std::floor(std::log10(width)));
    for (const double factor : roundFactors) {
        if (factor * power >= width * (1.0 - narrowest)) {
            return factor * power;
        }
    }
    return 10.0 * power;
}

double PowerOfTenBelow(double value) {
    return std::pow(10.0, std::floor(std::log10(value) + narrowest));
}

// The last of the powers of ten, twice and five times them that is no larger than the value.
double RoundBelow(double value) {
    const double power = PowerOfTenBelow(value);
    double round = power;
    for (const double factor : roundFactors) {
        if (factor * power <= value * (1.0 + narrowest)) {
            round = factor * power;
        }
    }
    return round;
}

bool IsWithin(const AxisScale& scale, double value) {
    return value >= scale.low * (1.0 - narrowest) && value <= scale.high * (1.0 + narrowest);
}

} // namespace

std::string AxisScale::Label(double tick) const {
    constexpr double largestWithoutExponent = 1e7;
    constexpr double smallestStepWithoutExponent = 1e-6;
    const double largest = std::max(std::abs(low), std::abs(high));
    std::string text;
    if (kind == AxisKind::Logarithmic) {
        text = NumberText(tick);
    } else if (largest >= largestWithoutExponent || step < smallestStepWithoutExponent) {
        constexpr int digits = 10;
        text = NumberText(tick, digits);
    } else {
        const double digits = -std::floor(std::log10(step * (1.0 + narrowest)));
        text = FixedText(tick, static_cast<int>(std::max(digits, 0.0)));
    }
    return WithMinusSign(text);
}

double AxisScale::Part(double value) const {
    if (kind == AxisKind::Logarithmic) {
        return std::log(value / low) / std::log(high / low);
    }
    return (value - low) / (high - low);
}

AxisScale RoundScale(double least, double most, int intervals) {
    const double magnitude = std::max(std::abs(least), std::abs(most));
    if (most - least <= std::max(magnitude * narrowest, smallestWidth)) {
        const double room = magnitude > smallestWidth ? magnitude / 10.0 : 1.0;
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
    const auto halves = static_cast<int>(last - first);
    for (int i = 0; i <= halves; ++i) {
        const double multiple = first + i;
        const bool isMinor = std::fmod(multiple, 2.0) != 0.0;
        (isMinor ? scale.minorTicks : scale.ticks).push_back(multiple * half + 0.0); // not -0
    }
    return scale;
}

AxisScale ExactScale(AxisRange range, int intervals) {
    AxisScale scale = RoundScale(range.least, range.most, intervals);
    scale.low = range.least;
    scale.high = range.most;
    const double room = (range.most - range.least) * narrowest;
    const auto isOutside = [&](double tick) {
        return tick < range.least - room || tick > range.most + room;
    };
    std::erase_if(scale.ticks, isOutside);
    std::erase_if(scale.minorTicks, isOutside);
    return scale;
}

AxisScale LogarithmicScale(AxisRange range, int most, bool isExact) {
    AxisScale scale;
    scale.kind = AxisKind::Logarithmic;
    scale.low = isExact ? range.least : RoundBelow(range.least);
    scale.high = isExact ? range.most : 1.0 / RoundBelow(1.0 / range.most);
    if (scale.high <= scale.low * (1.0 + narrowest)) {
        scale.low /= 2.0;
        scale.high *= 2.0;
    }
    const double decades = std::log10(scale.high / scale.low);
    const auto step = std::max(1, static_cast<int>(std::ceil(decades / most - narrowest)));
    // A short axis would have next to no powers of ten on it. Two decades are none, however the
    // system's functions round them.
    constexpr double shortAxis = 2.0;
    const bool isShort = decades < shortAxis - narrowest;
    const auto first = static_cast<int>(std::floor(std::log10(scale.low) + narrowest));
    for (int exponent = first; exponent <= std::log10(scale.high) + narrowest; ++exponent) {
        for (int factor = 1; factor < 10; ++factor) {
            const double tick = factor * std::pow(10.0, exponent);
            const bool isNamed = factor == 1 ? (exponent - first) % step == 0
                                             : isShort && (factor == 2 || factor == 5);
            if (IsWithin(scale, tick)) {
                (isNamed ? scale.ticks : scale.minorTicks).push_back(tick);
            }
        }
    }
    return scale;
}

} // namespace FluidBenchTool
