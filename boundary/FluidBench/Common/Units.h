// The toolbox's unit conversions, and the choice of units that the writers take.
#pragma once

#include "Visibility.h"

#include <cstdint>

namespace Orv::FluidBench::Common {

/// Static conversions; each name says quantity, source unit and target unit. All are pure and may
/// be called from any thread. Volume ratios of gas to oil count gas and oil at their own standard
/// conditions, which are taken as the same in both unit systems.
class FLUIDBENCH_BOUNDARY_API Units {
public:
    /// Unit system of a file. The writers know METRIC and FIELD; LAB and PVT_M exist for the unit
    /// services.
    enum UNIT_TYPE : std::int32_t { METRIC = 0, FIELD = 1, LAB = 2, PVT_M = 3 };

    // clang-format off
    static double Pressure_Pa_To_bar(double value) noexcept; ///< 1 bar is 100,000 Pa
    static double Pressure_Pa_To_psi(double value) noexcept; ///< 1 psi is 1 lbf/in2, 6894.757 Pa
    static double Pressure_bar_To_Pa(double value) noexcept; ///< 1 bar is 100,000 Pa
    static double Pressure_psi_To_Pa(double value) noexcept; ///< 1 psi is 1 lbf/in2, 6894.757 Pa

    static double Temperature_K_To_C(double value) noexcept; ///< 273.15 K is 0 degrees C
    static double Temperature_K_To_F(double value) noexcept; ///< 273.15 K is 32 degrees F
    static double Temperature_K_To_R(double value) noexcept; ///< 1 K is 1.8 R
    static double Temperature_F_To_K(double value) noexcept; ///< 32 degrees F is 273.15 K

    static double Density_kgm3_To_lbft3(double value) noexcept; ///< 1 lb/ft3 is 16.01846 kg/m3
    static double Density_gmcc_To_kgm3(double value) noexcept;  ///< 1 g/cc is 1000 kg/m3

    static double Depth_m_to_ft(double value) noexcept; ///< 1 ft is 0.3048 m

    static double GOR_m3m3_To_Mscfstb(double value) noexcept; ///< 1 Mscf/stb is 178.1076 m3/m3
    static double GOR_scfstb_To_m3m3(double value) noexcept;  ///< 1 scf/stb is 0.1781076 m3/m3

    static double MolarVolume_m3gmmol_To_m3kgmol(double value) noexcept;  ///< per gram-mole to per kilogram-mole, 1000 times as much
    static double MolarVolume_m3gmmol_To_ft3lbmol(double value) noexcept; ///< a pound-mole is 453.59237 gram-moles

    static double Viscosity_Pas_To_cp(double value) noexcept; ///< 1 cP is 0.001 Pa.s
    static double Viscosity_cp_To_Pas(double value) noexcept; ///< 1 cP is 0.001 Pa.s

    static double VolumeRatio_m3m3_to_bblbbl(double value) noexcept;  ///< the same number
    static double VolumeRatio_m3m3_to_bblmscf(double value) noexcept; ///< oil or reservoir volume in barrels to gas in thousand cubic feet
    static double VolumeRatio_m3m3_to_mscfbbl(double value) noexcept; ///< gas in thousand cubic feet to oil in barrels

    static double SpecificHeatCapacity_JPerkgK_to_btuPerlbF(double value) noexcept;           ///< 1 Btu/(lb F) is 4186.8 J/(kg K)
    static double SpecificLatentHeatOfVaporization_JPerkg_To_btuPerlb(double value) noexcept; ///< 1 Btu/lb is 2326 J/kg

    static double Compressibility_perPa_To_perpsi(double value) noexcept; ///< 1/psi is 1/6894.757 of 1/Pa
    // clang-format on
};

} // namespace Orv::FluidBench::Common
