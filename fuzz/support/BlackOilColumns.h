// Black-oil tables as the numbers of their keywords.
#pragma once

#include "FluidBench/Model/BlackOilTable.h"
#include "Keywords.h"

#include <cstdint>
#include <string>
#include <vector>

namespace FluidBenchFuzz {

/// Adds a table. `ofRecord` is what stands once ahead of the rows of a record: nothing for dead oil
/// and dry gas.
enum class OfRecord { Nothing, Ratio, Pressure };

inline void AddTable(Columns& columns, const std::string& keyword, OfRecord ofRecord,
                     const Orv::FluidBench::Model::BlackOilDataRecords& table, double ratio,
                     double volume, const FileUnits& units) {
    std::vector<double>& numbers = columns[keyword];
    for (std::uint64_t i = 0; i < table.GetTableSize(); ++i) {
        columns["records of " + keyword].push_back(
            static_cast<double>(table.GetRecordContentSize(i)));
        for (std::uint64_t j = 0; j < table.GetRecordContentSize(i); ++j) {
            const double row[] = {table.GetProperty(i, j) / ratio,
                                  table.GetPressure(i, j) / units.pressure};
            if (j == 0 && ofRecord != OfRecord::Nothing) {
                numbers.push_back(row[ofRecord == OfRecord::Ratio ? 0 : 1]);
            }
            numbers.insert(numbers.end(), {row[ofRecord == OfRecord::Pressure ? 0 : 1],
                                           table.GetFormationVolumeFactor(i, j) / volume,
                                           table.GetViscosity(i, j) * 1e3});
            columns["ratios of " + keyword].push_back(row[0]);
            columns["pressures of " + keyword].push_back(row[1]);
        }
    }
}

inline Columns BlackOilColumns(const std::vector<Orv::FluidBench::Model::BlackOilTable>& regions,
                               const FileUnits& units) {
    Columns columns;
    for (const auto& region : regions) {
        for (const double density :
             {region.GetOilDensity(), region.GetWaterDensity(), region.GetGasDensity()}) {
            columns["DENSITY"].push_back(density / units.density);
        }
        columns["RSCONSTT"].push_back(region.GetSaturationPointRs() / units.gasInOil);
        columns["RSCONSTT"].push_back(region.GetSaturationPointPressure() / units.pressure);
        AddTable(columns, "PVTO", OfRecord::Ratio, region.GetLiveOilData(), units.gasInOil, 1.0,
                 units);
        AddTable(columns, "PVDO", OfRecord::Nothing, region.GetDeadOilData(), units.gasInOil, 1.0,
                 units);
        AddTable(columns, "PVTG", OfRecord::Pressure, region.GetWetGasData(), units.oilInGas,
                 units.gasVolume, units);
        AddTable(columns, "PVDG", OfRecord::Nothing, region.GetDryGasData(), units.oilInGas,
                 units.gasVolume, units);
    }
    return columns;
}

inline const std::vector<std::string> blackOilKeywords = {"DENSITY", "RSCONSTT", "PVTO",
                                                          "PVDO",    "PVTG",     "PVDG"};

} // namespace FluidBenchFuzz
