// Thermal keywords.
#include "Keywords.h"
#include "io/ThermalExportFileWriter.h"
#include "io/ThermalKeywordReader.h"

#include <cmath>

namespace {

using namespace FluidBenchFuzz;
using namespace Orv::FluidBench;
using Table = Model::ThermalExportTable;

constexpr double fieldTemperature = 519.6701137665567 / 1.8; // K, as the files have it

// What a file has of a heat capacity A + B T, at one temperature: a value and a slope. In field
// units the files have the term with the temperature, and the slope, divided by 1.8 once more.
void AddHeat(Columns& columns, const Table& table, const FileUnits& units, bool isField) {
    const double temperature = isField ? fieldTemperature : table.StandardTemperature;
    for (std::size_t i = 0; i < table.ComponentCount; ++i) {
        const double weight = table.MolecularWeights[i];
        const double slope = weight == 0.0 ? 0.0 : table.SpecificHeatB[i] / weight;
        const double first = weight == 0.0 ? 0.0 : table.SpecificHeatA[i] / weight;
        for (const char* const keyword : {"SPECHA", "SPECHG"}) {
            columns[keyword].push_back((first + slope * temperature * units.degree) * 1e3 /
                                       units.heat);
        }
        for (const char* const keyword : {"SPECHB", "SPECHH"}) {
            columns[keyword].push_back(slope * 1e3 / units.heat * units.degree * units.degree);
        }
    }
}

struct Thermal {
    using Reader = IO::ThermalKeywordReader;
    using Object = Table;
    static constexpr double relative = 1e-9;
    static constexpr double absolute = 1e-12;
    static inline const std::vector<std::string_view> otherwiseRead = {
        "keywords.second-time", "keywords.gas-heat", "keywords.no-heat",
        "keywords.missing-keyword"};
    static inline const std::vector<std::string> keywords = {
        "STCOND", "NCOMPS", "CNAMES",   "MW",     "TCRIT",  "PCRIT",   "TREFT",
        "PREFT",  "DREFT",  "ACF",      "SPECHA", "SPECHB", "SPECHG",  "SPECHH",
        "CREF",   "KVCR",   "THERMEX1", "KVWI",   "ZI",     "ZFACTOR", "HEATVAPS"};

    static Columns InFile(const Table& table, const FileUnits& units) {
        const bool isField = units.heat > 1e3;
        Columns columns;
        if (table.ComponentCount == 0) {
            return columns;
        }
        columns["STCOND"] = {table.StandardTemperature / units.degree + units.zeroCelsius,
                             table.StandardPressure / units.pressure};
        columns["MW"] = table.MolecularWeights;
        columns["TCRIT"] = InUnits(table.CriticalTemperatures, units.degree);
        columns["PCRIT"] = InUnits(table.CriticalPressures, units.pressure);
        columns["TREFT"] = InUnits(table.ReferenceTemperatures, units.degree);
        columns["PREFT"] = InUnits(table.ReferencePressures, units.pressure);
        columns["DREFT"] = InUnits(table.ReferenceDensities, units.density);
        columns["ACF"] = table.AcentricFactors;
        columns["HEATVAPS"] = InUnits(table.GetHeatVaps(), units.latentHeat);
        columns["CREF"] = InUnits(table.GetCRefs(), 1.0 / units.pressure);
        columns["THERMEX1"] = InUnits(table.GetThermEx1s(), 1.0 / units.degree);
        columns["ZFACTOR"] = table.GetZFactors();
        columns["ZI"] = table.GetZis();
        AddHeat(columns, table, units, isField);
        if (table.HasCrookstonData()) {
            const std::vector<double> rows[] = {
                table.GetCrookstonA(), InUnits(table.GetCrookstonB(), units.pressure),
                InUnits(table.GetCrookstonC(), 1.0 / units.pressure),
                InUnits(table.GetCrookstonD(), units.degree),
                InUnits(table.GetCrookstonE(), units.degree)};
            for (const std::vector<double>& row : rows) {
                std::ranges::copy(row, std::back_inserter(columns["KVCR"]));
            }
        }
        return columns;
    }
    static std::vector<std::string> Names(const Table& table) { return table.ComponentNames; }

    // A value and a slope that nearly cancel each other lose digits.
    static std::vector<Table> Parts(const Table& table) {
        for (std::size_t i = 0; i < table.ComponentCount; ++i) {
            for (const double temperature : {table.StandardTemperature, fieldTemperature / 1.8}) {
                const double ofSlope = table.SpecificHeatB[i] * temperature;
                if (std::abs(table.SpecificHeatA[i] + ofSlope) < 1e-3 * std::abs(ofSlope) ||
                    std::abs(table.MolecularWeights[i]) < 1e-3) {
                    return {};
                }
            }
        }
        return {table};
    }
    static void Write(const Table& table, std::ostream& out, Common::Units::UNIT_TYPE units) {
        IO::ThermalExportFileWriter(true).ExportToFile(table, out, units);
    }
};

} // namespace

std::vector<std::string> FluidBenchFuzz::Samples() {
    std::vector<std::string> samples = ProjectFiles("tests/data/thermal", ".txt");
    samples.push_back(ProjectFile("examples/data/two-component-thermal.inc"));
    return samples;
}

void FluidBenchFuzz::TestOneInput(std::string_view input) {
    TestKeywordFile<Thermal>(input);
}
