// The units of a thermal file, and its heat capacities.
#pragma once

#include <array>

namespace Orv::FluidBench::IO {

// From model units to those of a file.
double InverseTemperatureToField(double value);
double PerPascalToPerBar(double value);
double HeatOfVaporisationToField(double value);

// The coefficients of a molar heat capacity, J/(mol K), one for each power of the temperature.
double SpechACoeffToField(double value);
double SpechBCoeffToField(double value);
double SpechCCoeffToField(double value);
double SpechDCoeffToField(double value);

/// What a file has of a heat capacity: per mass, at one temperature.
struct HeatCapacity {
    double value;
    double slope;
};

/// Of the molar heat capacity A + B T + C T^2 + D T^3. The temperature is the standard one, in K,
/// and a fixed one in a field file.
HeatCapacity HeatCapacityOf(const std::array<double, 4>& coefficients, double molecularWeight,
                            double standardTemperature, bool isField);

/// The molecular weight of a component, and with how many decimals it was written.
struct WrittenWeight {
    double value;
    int decimals;
};

/// A heat capacity as a line, A + B T, of a component of this molecular weight.
struct HeatLine {
    double a;
    double b;
    double molecularWeight;
};

/// The line that has this heat capacity, to the last digit where there is one. The molecular weight
/// was rounded when it was written, and the heat capacity wasn't; so it may come back as another
/// one that is written alike.
HeatLine LineThrough(const HeatCapacity& heat, const WrittenWeight& weight,
                     double standardTemperature, bool isField);

} // namespace Orv::FluidBench::IO
