// The units that files use, by their definitions. All are exact: the international foot and pound
// (1959), the standard acceleration of free fall, the barrel of 42 gallons, the standard atmosphere
// and the International Table Btu.
#pragma once

namespace Orv::UnitDefinitions {

inline constexpr double pascalPerBar = 1.0e5;
inline constexpr double pascalPerPsi = 6894.757293168361;
inline constexpr double pascalPerAtmosphere = 101325.0;
inline constexpr double metrePerFoot = 0.3048;
inline constexpr double cubicMetrePerCubicFoot = metrePerFoot * metrePerFoot * metrePerFoot;
inline constexpr double metrePerInch = metrePerFoot / 12.0;
inline constexpr double cubicMetrePerBarrel = 9702.0 * metrePerInch * metrePerInch * metrePerInch;
inline constexpr double cubicFootPerBarrel = 9702.0 / (12.0 * 12.0 * 12.0);
inline constexpr double kilogramPerPound = 0.45359237;
inline constexpr double joulePerBtu = 1055.05585262;
inline constexpr double rankinePerKelvin = 1.8;
inline constexpr double kelvinAtZeroCelsius = 273.15;
inline constexpr double rankineAtZeroFahrenheit = 459.67;

} // namespace Orv::UnitDefinitions
