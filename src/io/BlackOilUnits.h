// The units of the numbers of a black-oil file in keywords.
#pragma once

#include "FileNumber.h"
#include "FluidBench/Common/Units.h"

namespace Orv::FluidBench::IO {

/// From model units to those of a table's rows. Viscosity is in cP in both systems.
struct RowUnits {
    FileNumber::Conversion pressure;
    FileNumber::Conversion property;
    FileNumber::Conversion formationVolumeFactor;
};

inline constexpr RowUnits metricRow{Common::Units::Pressure_Pa_To_bar, AsItIs, AsItIs};
inline constexpr RowUnits fieldOilRow{Common::Units::Pressure_Pa_To_psi,
                                      Common::Units::VolumeRatio_m3m3_to_mscfbbl,
                                      Common::Units::VolumeRatio_m3m3_to_bblbbl};
inline constexpr RowUnits fieldGasRow{Common::Units::Pressure_Pa_To_psi,
                                      Common::Units::VolumeRatio_m3m3_to_bblmscf,
                                      Common::Units::VolumeRatio_m3m3_to_bblmscf};

/// From kg/m3 to the unit of the densities.
constexpr FileNumber::Conversion DensityUnit(bool isField) {
    return isField ? Common::Units::Density_kgm3_To_lbft3 : AsItIs;
}

} // namespace Orv::FluidBench::IO
