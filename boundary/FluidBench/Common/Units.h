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

    static double Pressure_Pa_To_bar(double value) noexcept;
    static double Pressure_Pa_To_psi(double value) noexcept;
    static double Pressure_bar_To_Pa(double value) noexcept;
    static double Pressure_psi_To_Pa(double value) noexcept;

    static double Temperature_K_To_C(double value) noexcept;
    static double Temperature_K_To_F(double value) noexcept;
    static double Temperature_K_To_R(double value) noexcept;
    static double Temperature_F_To_K(double value) noexcept;

    static double Density_kgm3_To_lbft3(double value) noexcept;
    static double Density_gmcc_To_kgm3(double value) noexcept;

    static double Depth_m_to_ft(double value) noexcept;

    static double GOR_m3m3_To_Mscfstb(double value) noexcept;
    static double GOR_scfstb_To_m3m3(double value) noexcept;

    static double MolarVolume_m3gmmol_To_m3kgmol(double value) noexcept;
    static double MolarVolume_m3gmmol_To_ft3lbmol(double value) noexcept;

    static double Viscosity_Pas_To_cp(double value) noexcept;
    static double Viscosity_cp_To_Pas(double value) noexcept;

    static double VolumeRatio_m3m3_to_bblbbl(double value) noexcept;
    /// Oil or reservoir volume in barrels to gas in thousand cubic feet.
    static double VolumeRatio_m3m3_to_bblmscf(double value) noexcept;
    /// Gas in thousand cubic feet to oil in barrels.
    static double VolumeRatio_m3m3_to_mscfbbl(double value) noexcept;

    static double SpecificHeatCapacity_JPerkgK_to_btuPerlbF(double value) noexcept;
    static double SpecificLatentHeatOfVaporization_JPerkg_To_btuPerlb(double value) noexcept;

    static double Compressibility_perPa_To_perpsi(double value) noexcept;
};

} // namespace Orv::FluidBench::Common
