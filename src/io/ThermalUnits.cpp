#include "ThermalUnits.h"

#include "FileNumber.h"
#include "FluidBench/Common/Units.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <span>
#include <vector>

namespace Orv::FluidBench::IO {

using Common::Units;

namespace {

constexpr double joulePerKilojoule = 1000.0;
constexpr double pascalPerBar = 100000.0;

// The temperature of the heat capacity in a field file, in R (close to 60 degrees Fahrenheit), and
// its powers.
constexpr double fieldTemperature = 519.6701137665567;
constexpr double fieldTemperatureSquared = 270057.027142146;
constexpr double fieldTemperatureCubed = 140340566.01841712;

// What scales a coefficient of the heat capacity for each power of K that becomes one of R.
constexpr double perRankine = 0.5555555555555556;
constexpr double perRankineSquared = 0.308641975308642;
constexpr double perRankineCubed = 0.1714677640603567;

} // namespace

double InverseTemperatureToField(double value) {
    return value * perRankine;
}
double PerPascalToPerBar(double value) {
    return value * pascalPerBar;
}
double HeatOfVaporisationToField(double value) {
    return Units::SpecificLatentHeatOfVaporization_JPerkg_To_btuPerlb(value * joulePerKilojoule);
}

double SpechACoeffToField(double value) {
    return Units::SpecificHeatCapacity_JPerkgK_to_btuPerlbF(value) * joulePerKilojoule;
}
double SpechBCoeffToField(double value) {
    return Units::SpecificHeatCapacity_JPerkgK_to_btuPerlbF(value) * joulePerKilojoule /
           Units::Temperature_K_To_R(1.0);
}
double SpechCCoeffToField(double value) {
    return value * 0.073717869;
}
double SpechDCoeffToField(double value) {
    return value * 0.040954372;
}

// The order of the operations decides the last digits of the file.
HeatCapacity HeatCapacityOf(const std::array<double, 4>& coefficients, double molecularWeight,
                            double standardTemperature, bool isField) {
    const double standard = standardTemperature;
    const double t = isField ? fieldTemperature : standard;
    const double t2 = isField ? fieldTemperatureSquared : standard * standard;
    const double t3 = isField ? fieldTemperatureCubed : standard * standard * standard;
    auto [a, b, c, d] = coefficients;
    if (isField) {
        a = SpechACoeffToField(a);
        b = SpechBCoeffToField(b) * perRankine;
        c = SpechCCoeffToField(c) * perRankineSquared;
        d = SpechDCoeffToField(d) * perRankineCubed;
    }
    return {(b * t + a + c * t2 + d * t3) / molecularWeight,
            ((c + c) * t + b + d * 3.0 * t2) / molecularWeight};
}

namespace {

// Far enough that one of so many lines, each rounded in its own way, is the one.
constexpr int farReach = 64;

// Tries the lines next to the one that exact arithmetic gives: the slope's neighbours first, since
// the value depends on the slope, and for each the neighbours of the sum that the value is made of,
// which may be rounded more coarsely than the coefficient that makes it up.
template <typename IsSame>
std::optional<HeatLine> FindLine(const HeatCapacity& heat, double molecularWeight,
                                 double standardTemperature, bool isField, IsSame isSame) {
    const double modelA = isField ? 1.0 / SpechACoeffToField(1.0) : 1.0;
    const double modelB = isField ? 1.0 / (SpechBCoeffToField(1.0) * perRankine) : 1.0;
    const auto heatOf = [&](double a, double b) {
        return HeatCapacityOf({a, b, 0.0, 0.0}, molecularWeight, standardTemperature, isField);
    };
    for (const double b : NeighboursOf(heat.slope * molecularWeight * modelB, farReach)) {
        const HeatCapacity ofSlope = heatOf(0.0, b);
        if (!isSame(ofSlope.slope, heat.slope)) {
            continue;
        }
        for (const double sum : NeighboursOf(heat.value * molecularWeight)) {
            for (const double a : NeighboursOf((sum - ofSlope.value * molecularWeight) * modelA)) {
                if (isSame(heatOf(a, b).value, heat.value)) {
                    return HeatLine{a, b, molecularWeight};
                }
            }
        }
    }
    return std::nullopt;
}

// Weights that are written alike, the given one first. The steps grow, since the quotients of
// neighbours may differ too little from each other.
std::vector<double> WeightsLike(const WrittenWeight& weight) {
    constexpr int steps = 40;
    const double unit =
        std::nextafter(weight.value, std::numeric_limits<double>::infinity()) - weight.value;
    std::vector<double> weights{weight.value};
    for (int i = 1; i <= steps; ++i) {
        for (const double step : {-unit * i * i * i, unit * i * i * i}) {
            if (HaveSameText(weight.value + step, weight.value, weight.decimals)) {
                weights.push_back(weight.value + step);
            }
        }
    }
    return weights;
}

} // namespace

HeatLine LineThrough(const HeatCapacity& heat, const WrittenWeight& weight,
                     double standardTemperature, bool isField) {
    constexpr int decimals = 16;
    const auto isEqual = [](double first, double second) { return first == second; };
    const auto isAlike = [](double first, double second) {
        return HaveSameText(first, second, decimals);
    };
    const auto find = [&](double molecularWeight, auto isSame) {
        return FindLine(heat, molecularWeight, standardTemperature, isField, isSame);
    };
    constexpr std::size_t nearestWeights = 9; // comparing texts takes its time
    const std::vector<double> weights = WeightsLike(weight);
    for (const double each : weights) {
        if (const auto line = find(each, isEqual)) {
            return *line;
        }
    }
    for (const double each : std::span(weights).first(std::min(nearestWeights, weights.size()))) {
        if (const auto line = find(each, isAlike)) {
            return *line;
        }
    }
    const auto nearest = find(weight.value, [](double, double) { return true; });
    return nearest.value_or(HeatLine{0.0, 0.0, weight.value});
}

} // namespace Orv::FluidBench::IO
