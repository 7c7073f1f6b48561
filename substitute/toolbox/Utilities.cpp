// The toolbox's static services: conversions, comparisons, text and published constants.
#include "FluidBench/Common/FluidBenchHelper.h"
#include "FluidBench/Common/Units.h"
#include "FluidBench/Utilities/Equations.h"
#include "FluidBench/Utilities/ModelParameters.h"
#include "FluidBench/Utilities/Strings.h"
#include "UnitDefinitions.h"

#include <algorithm>
#include <cmath>

namespace Orv::FluidBench::Common {

using namespace UnitDefinitions;

double Units::Pressure_Pa_To_bar(double value) noexcept {
    return value / pascalPerBar;
}
double Units::Pressure_Pa_To_psi(double value) noexcept {
    return value / pascalPerPsi;
}
double Units::Pressure_bar_To_Pa(double value) noexcept {
    return value * pascalPerBar;
}
double Units::Pressure_psi_To_Pa(double value) noexcept {
    return value * pascalPerPsi;
}

double Units::Temperature_K_To_C(double value) noexcept {
    return value - kelvinAtZeroCelsius;
}
double Units::Temperature_K_To_F(double value) noexcept {
    return value * rankinePerKelvin - rankineAtZeroFahrenheit;
}
double Units::Temperature_K_To_R(double value) noexcept {
    return value * rankinePerKelvin;
}
double Units::Temperature_F_To_K(double value) noexcept {
    return (value + rankineAtZeroFahrenheit) / rankinePerKelvin;
}

double Units::Density_kgm3_To_lbft3(double value) noexcept {
    return value * (cubicMetrePerCubicFoot / kilogramPerPound);
}
double Units::Density_gmcc_To_kgm3(double value) noexcept {
    return value * 1000.0;
}

double Units::Depth_m_to_ft(double value) noexcept {
    return value / metrePerFoot;
}

double Units::GOR_m3m3_To_Mscfstb(double value) noexcept {
    return value * (cubicFootPerBarrel / 1000.0);
}
double Units::GOR_scfstb_To_m3m3(double value) noexcept {
    return value / cubicFootPerBarrel;
}

double Units::MolarVolume_m3gmmol_To_m3kgmol(double value) noexcept {
    return value * 1000.0;
}
double Units::MolarVolume_m3gmmol_To_ft3lbmol(double value) noexcept {
    return value * (1000.0 * kilogramPerPound / cubicMetrePerCubicFoot);
}

double Units::Viscosity_Pas_To_cp(double value) noexcept {
    return value * 1000.0;
}
double Units::Viscosity_cp_To_Pas(double value) noexcept {
    return value / 1000.0;
}

double Units::VolumeRatio_m3m3_to_bblbbl(double value) noexcept {
    return value;
}
double Units::VolumeRatio_m3m3_to_bblmscf(double value) noexcept {
    return value * (1000.0 * cubicMetrePerCubicFoot / cubicMetrePerBarrel);
}
double Units::VolumeRatio_m3m3_to_mscfbbl(double value) noexcept {
    return value * (cubicFootPerBarrel / 1000.0);
}

double Units::SpecificHeatCapacity_JPerkgK_to_btuPerlbF(double value) noexcept {
    return value * (kilogramPerPound / (joulePerBtu * rankinePerKelvin));
}
double Units::SpecificLatentHeatOfVaporization_JPerkg_To_btuPerlb(double value) noexcept {
    return value * (kilogramPerPound / joulePerBtu);
}

double Units::Compressibility_perPa_To_perpsi(double value) noexcept {
    return value * pascalPerPsi;
}

std::string FluidBenchHelper::EoSToString(pvtEnumEoS eos) {
    switch (eos) {
    case pvtEnumEoS::PengRobinson:
    case pvtEnumEoS::PengRobinsonVolumeShift:
        return "PR";
    case pvtEnumEoS::PengRobinson78:
    case pvtEnumEoS::PengRobinson78VolumeShift:
        return "PR78";
    case pvtEnumEoS::RedlichKwong:
        return "RK";
    case pvtEnumEoS::SoaveRedlichKwong:
    case pvtEnumEoS::SoaveRedlichKwongVolumeShift:
        return "SRK";
    case pvtEnumEoS::ZudkevitchJoffe:
        return "ZJ";
    }
    return {};
}

} // namespace Orv::FluidBench::Common

namespace Orv::FluidBench::Utilities {

void Strings::RemoveAllSpaces(std::string& text) {
    std::erase(text, ' ');
}

bool Equations::DoublesEqual(double first, double second, double tolerance) noexcept {
    return std::abs(first - second) <= tolerance;
}

bool Equations::RelativeDoublesEqual(double first, double second, double tolerance) noexcept {
    return DoublesEqual(first, second, tolerance * std::max(std::abs(first), std::abs(second)));
}

std::vector<double> ModelParameters::GetLohrenzBrayClarkViscosityCoeffs() {
    return {0.1023, 0.023364, 0.058533, -0.040758, 0.0093324};
}

} // namespace Orv::FluidBench::Utilities
