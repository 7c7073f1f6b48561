#include "BlackOilView.h"

#include "FluidBench/Common/Units.h"

#include <algorithm>
#include <string>
#include <utility>

namespace FluidBenchTool {

using Orv::FluidBench::Common::Units;
using Orv::FluidBench::Model::BlackOilDataRecords;
using Orv::FluidBench::Model::BlackOilTable;

namespace {

// clang-format off
constexpr ShownUnit cP  {"cP",   Units::Viscosity_Pas_To_cp};
constexpr ShownUnit same{"m3/m3"};

constexpr BlackOilUnits metric  {same, bar, same, cP};
constexpr BlackOilUnits fieldOil{{"Mscf/stb", Units::VolumeRatio_m3m3_to_mscfbbl}, psia,
                                 {"rb/stb",   Units::VolumeRatio_m3m3_to_bblbbl}, cP};
constexpr BlackOilUnits fieldGas{{"stb/Mscf", Units::VolumeRatio_m3m3_to_bblmscf}, psia,
                                 {"rb/Mscf",  Units::VolumeRatio_m3m3_to_bblmscf}, cP};

struct Part {
    const char* title;
    const char* key; // in JSON
    const BlackOilDataRecords& (BlackOilTable::*records)() const noexcept;
    bool isOil;
};
constexpr Part parts[] = {
    {"Oil",      "liveOilData", &BlackOilTable::GetLiveOilData, true},
    {"Dead oil", "deadOilData", &BlackOilTable::GetDeadOilData, true},
    {"Gas",      "wetGasData",  &BlackOilTable::GetWetGasData,  false},
    {"Dry gas",  "dryGasData",  &BlackOilTable::GetDryGasData,  false},
};

struct Quantity {
    const char* key;
    double (BlackOilDataRecords::*value)(std::uint64_t, std::uint64_t) const;
};
constexpr Quantity quantities[] = {
    {"pressure",              &BlackOilDataRecords::GetPressure},
    {"property",              &BlackOilDataRecords::GetProperty},
    {"formationVolumeFactor", &BlackOilDataRecords::GetFormationVolumeFactor},
    {"viscosity",             &BlackOilDataRecords::GetViscosity},
};
// clang-format on

std::string Heading(const char* name, const ShownUnit& unit) {
    return std::string(name) + ' ' + unit.name;
}

const BlackOilUnits& UnitsOf(const Part& part, bool field) {
    return part.isOil ? OilUnits(field) : GasUnits(field);
}

Table TableOfRecords(const BlackOilDataRecords& records, const Part& part, bool field) {
    const BlackOilUnits units = UnitsOf(part, field);
    const BlackOilRows rows(records);
    return {{"record", Heading(part.isOil ? "GOR" : "OGR", units.ratio),
             Heading("pressure", units.pressure), Heading("FVF", units.volumeFactor),
             Heading("viscosity", units.viscosity)},
            rows.Count(),
            [&records, rows, units](std::uint64_t row) {
                const auto [record, entry] = rows.Find(row);
                return Cells{
                    entry == 0 ? std::to_string(record + 1) : std::string(),
                    NumberText(units.ratio.convert(records.GetProperty(record, entry))),
                    NumberText(units.pressure.convert(records.GetPressure(record, entry))),
                    NumberText(units.volumeFactor.convert(
                        records.GetFormationVolumeFactor(record, entry))),
                    NumberText(units.viscosity.convert(records.GetViscosity(record, entry)))};
            }};
}

// Each row with all that it takes to know where it belongs.
Table SpreadsheetOf(const BlackOilDataRecords& records, const Part& part, std::size_t region,
                    bool field) {
    const BlackOilUnits units = UnitsOf(part, field);
    const BlackOilRows rows(records);
    const auto cell = [](const ShownUnit& unit, double value) {
        return DataText(unit.convert(value));
    };
    return {{}, rows.Count(), [&records, &part, rows, region, units, cell](std::uint64_t row) {
                const auto [record, entry] = rows.Find(row);
                return Cells{
                    std::to_string(region),
                    part.title,
                    std::to_string(record + 1),
                    cell(units.pressure, records.GetPressure(record, entry)),
                    cell(units.ratio, records.GetProperty(record, entry)),
                    units.ratio.name,
                    cell(units.volumeFactor, records.GetFormationVolumeFactor(record, entry)),
                    units.volumeFactor.name,
                    cell(units.viscosity, records.GetViscosity(record, entry))};
            }};
}

void PrintSummary(std::ostream& out, const BlackOilTable& table, bool field) {
    const ShownUnit density =
        field ? ShownUnit{"lb/ft3", Units::Density_kgm3_To_lbft3} : ShownUnit{"kg/m3"};
    std::vector<Cells> rows;
    const auto add = [&](const char* name, double value, const ShownUnit& unit) {
        rows.push_back({name, NumberText(unit.convert(value)), unit.name});
    };
    const BlackOilUnits& units = OilUnits(field);
    add("oil density", table.GetOilDensity(), density);
    add("water density", table.GetWaterDensity(), density);
    add("gas density", table.GetGasDensity(), density);
    add("GOR at saturation", table.GetSaturationPointRs(), units.ratio);
    add("saturation pressure", table.GetSaturationPointPressure(), units.pressure);
    PrintTable(out, TableOf({"quantity", "value", "unit"}, std::move(rows)));
}

} // namespace

const BlackOilUnits& OilUnits(bool field) {
    return field ? fieldOil : metric;
}

const BlackOilUnits& GasUnits(bool field) {
    return field ? fieldGas : metric;
}

BlackOilRows::BlackOilRows(const BlackOilDataRecords& records) {
    std::vector<std::uint64_t> ends;
    ends.reserve(records.GetTableSize());
    std::uint64_t end = 0;
    for (std::uint64_t record = 0; record < records.GetTableSize(); ++record) {
        end += records.GetRecordContentSize(record);
        ends.push_back(end);
    }
    ends_ = std::make_shared<const std::vector<std::uint64_t>>(std::move(ends));
}

BlackOilRows::Place BlackOilRows::Find(std::uint64_t row) const {
    const auto end = std::ranges::upper_bound(*ends_, row);
    const auto record = static_cast<std::uint64_t>(end - ends_->begin());
    return {record, record == 0 ? row : row - (*ends_)[record - 1]};
}

void PrintBlackOil(std::ostream& out, Regions regions, bool field, Extent extent) {
    for (std::size_t i = 0; i < regions.size(); ++i) {
        if (regions.size() > 1) {
            out << (i > 0 ? "\n" : "") << "Region " << std::to_string(i + 1) << "\n\n";
        }
        PrintSummary(out, regions[i], field);
        for (const Part& part : parts) {
            const BlackOilDataRecords& records = (regions[i].*part.records)();
            if (records.GetTableSize() > 0) {
                out << '\n' << part.title << '\n';
                PrintTable(out, TableOfRecords(records, part, field), extent, 2);
            }
        }
    }
}

void PrintBlackOilCsv(std::ostream& out, Regions regions, bool field) {
    std::vector<Table> tables;
    for (std::size_t i = 0; i < regions.size(); ++i) {
        for (const Part& part : parts) {
            tables.push_back(SpreadsheetOf((regions[i].*part.records)(), part, i + 1, field));
        }
    }
    const BlackOilUnits& units = OilUnits(field);
    PrintCsv(out,
             Joined({"region", "table", "record", Heading("pressure", units.pressure), "ratio",
                     "unit of ratio", "FVF", "unit of FVF", Heading("viscosity", units.viscosity)},
                    std::move(tables)));
}

void WriteBlackOil(JsonWriter& json, Regions regions) {
    json.BeginArray("regions");
    for (const BlackOilTable& region : regions) {
        json.BeginObject();
        json.Add("oilDensity", region.GetOilDensity());
        json.Add("waterDensity", region.GetWaterDensity());
        json.Add("gasDensity", region.GetGasDensity());
        json.Add("saturationPointRs", region.GetSaturationPointRs());
        json.Add("saturationPointPressure", region.GetSaturationPointPressure());
        for (const Part& part : parts) {
            const BlackOilDataRecords& records = (region.*part.records)();
            json.BeginArray(part.key);
            for (std::uint64_t record = 0; record < records.GetTableSize(); ++record) {
                json.BeginObject();
                for (const Quantity& quantity : quantities) {
                    std::vector<double> values(records.GetRecordContentSize(record));
                    for (std::uint64_t entry = 0; entry < values.size(); ++entry) {
                        values[entry] = (records.*quantity.value)(record, entry);
                    }
                    json.Add(quantity.key, values);
                }
                json.EndObject();
            }
            json.EndArray();
        }
        json.EndObject();
    }
    json.EndArray();
}

} // namespace FluidBenchTool
