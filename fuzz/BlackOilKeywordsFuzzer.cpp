// Black-oil keywords.
#include "BlackOilColumns.h"
#include "io/BlackOilExportFileWriter.h"
#include "io/BlackOilKeywordReader.h"

namespace {

using namespace FluidBenchFuzz;
using namespace Orv::FluidBench;
using Regions = std::vector<Model::BlackOilTable>;
using Writer = IO::BlackOilExportFileWriter;

struct BlackOil {
    using Reader = IO::BlackOilKeywordReader;
    using Object = Regions;
    static constexpr double relative = 1e-12;
    static constexpr double absolute = 1e-15;
    static inline const std::vector<std::string_view> otherwiseRead = {};
    static inline const std::vector<std::string> keywords = blackOilKeywords;

    static Columns InFile(const Regions& regions, const FileUnits& units) {
        return BlackOilColumns(regions, units);
    }
    static std::vector<std::string> Names(const Regions&) { return {}; }

    // A file has one kind of table of each phase, the saturation point with dead oil alone, and
    // always the same water.
    static std::vector<Regions> Parts(const Regions& regions) {
        std::vector<Regions> parts(2, regions);
        for (Model::BlackOilTable& region : parts[0]) {
            region.SetDeadOilData(Model::BlackOilDataRecords());
            region.SetDryGasData(Model::BlackOilDataRecords());
            region.SetSaturationPoint(0.0, 0.0);
            region.SetWaterDensity(1000.0);
        }
        for (Model::BlackOilTable& region : parts[1]) {
            region.SetLiveOilData(Model::BlackOilDataRecords());
            region.SetWetGasData(Model::BlackOilDataRecords());
            region.SetWaterDensity(1000.0);
        }
        return parts;
    }
    static void Write(const Regions& regions, std::ostream& out, Common::Units::UNIT_TYPE units) {
        const bool isDead = std::ranges::any_of(regions, [](const auto& region) {
            return region.GetSaturationPointRs() != 0.0 ||
                   region.GetSaturationPointPressure() != 0.0 ||
                   region.GetDeadOilData().GetTableSize() > 0 ||
                   region.GetDryGasData().GetTableSize() > 0;
        });
        Writer(true).ExportRegions(regions, out, units,
                                   isDead ? Writer::DEAD_OIL_DRY_GAS : Writer::LIVE_OIL_WET_GAS);
    }
};

} // namespace

std::vector<std::string> FluidBenchFuzz::Samples() {
    std::vector<std::string> samples = ProjectFiles("tests/data/black-oil", "-field.txt");
    for (std::string& sample : ProjectFiles("tests/data/black-oil", "-metric.txt")) {
        samples.push_back(std::move(sample));
    }
    std::erase_if(samples, [](const std::string& sample) {
        return sample.find("DENSITY") == std::string::npos;
    });
    samples.push_back(ProjectFile("examples/data/two-region-black-oil.inc"));
    samples.emplace_back("DENSITY\n800 1000 1 /\nPVDO\n 2*1 3*.5 2 1 /\n 1 1 1 / text\nINCLUDE\n"
                         "'included.inc' /\nFILEUNIT\nMETRIC /\n");
    return samples;
}

void FluidBenchFuzz::TestOneInput(std::string_view input) {
    TestKeywordFile<BlackOil>(input);
}
