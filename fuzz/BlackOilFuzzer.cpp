// Black-oil CSV: any text gives a table, and a table that is written reads back as it was.
#include "Fuzz.h"
#include "io/BlackOilExportFileWriter.h"

#include <cmath>

namespace {

using namespace FluidBenchFuzz;
using Orv::FluidBench::Common::Units;
using Orv::FluidBench::Model::BlackOilDataRecords;
using Orv::FluidBench::Model::BlackOilTable;
using Writer = Orv::FluidBench::IO::BlackOilExportFileWriter;

// High precision keeps 15 decimals, and units cost a rounding each way.
bool AreClose(double first, double second) {
    if (!std::isfinite(first) || !std::isfinite(second)) {
        return first == second || (std::isnan(first) && std::isnan(second));
    }
    return std::abs(first - second) <= 1e-14 + 1e-12 * std::abs(first);
}

void RequireSame(const BlackOilDataRecords& first, const BlackOilDataRecords& second) {
    Require(first.GetTableSize() == second.GetTableSize(), "All records are written and read");
    for (std::uint64_t i = 0; i < first.GetTableSize(); ++i) {
        Require(first.GetRecordContentSize(i) == second.GetRecordContentSize(i),
                "All rows of a record are written and read");
        for (std::uint64_t j = 0; j < first.GetRecordContentSize(i); ++j) {
            Require(AreClose(first.GetPressure(i, j) / 1e5, second.GetPressure(i, j) / 1e5) &&
                        AreClose(first.GetProperty(i, j), second.GetProperty(i, j)) &&
                        AreClose(first.GetFormationVolumeFactor(i, j),
                                 second.GetFormationVolumeFactor(i, j)) &&
                        AreClose(first.GetViscosity(i, j) * 1e3, second.GetViscosity(i, j) * 1e3),
                    "Numbers are written and read");
        }
    }
}

} // namespace

std::vector<std::string> FluidBenchFuzz::Samples() {
    return {ProjectFile("examples/data/reservoir-black-oil.csv"),
            ProjectFile("tests/data/black-oil/live-oil-wet-gas-metric.csv"),
            ProjectFile("tests/data/black-oil/dead-oil-dry-gas-field.csv"),
            "OdEn , 1\ngden,2\npvtg,\n,1,2,3,4\n\n\n,5,6,7,8,9\n"};
}

void FluidBenchFuzz::TestOneInput(std::string_view input) {
    const Writer writer(true);
    const BlackOilTable table = writer.GetTableFromCSVFile(FileWith("input.csv", input));
    const std::string written = PathOf("written");
    writer.ExportToFile(table, written, Units::FIELD, Writer::LIVE_OIL_WET_GAS, Writer::PVO);
    writer.ExportToFile(table, written, Units::METRIC, Writer::LIVE_OIL_WET_GAS, Writer::CSV);
    const BlackOilTable again = writer.GetTableFromCSVFile(written);
    Require(AreClose(table.GetOilDensity(), again.GetOilDensity()) &&
                AreClose(table.GetGasDensity(), again.GetGasDensity()),
            "Densities are written and read");
    RequireSame(table.GetLiveOilData(), again.GetLiveOilData());
    RequireSame(table.GetWetGasData(), again.GetWetGasData());
}
