// Exports of downhole fluid analysis: any pair of files is refused as a whole, or gives whole
// wells.
#include "Fuzz.h"
#include "io/DFAReader.h"

#include <algorithm>

namespace {

using namespace FluidBenchFuzz;
using Orv::FluidBench::IO::DFAReader;
using Orv::FluidBench::IO::WellData;

// Parts the two files of an input.
constexpr std::string_view parting = "\n===FT===\n";

void RequireWhole(const WellData& well) {
    const std::size_t stations = well.depths.size();
    Require(stations > 0, "A well has a station");
    Require(well.pressures.size() == stations && well.temperatures.size() == stations &&
                well.densities.size() == stations && well.gasOilRatios.size() == stations &&
                well.stationValues.size() == stations && well.compositions.size() == stations,
            "Each station has every value");
    Require(std::ranges::is_sorted(well.depths), "Stations stand in ascending depth");
    Require(std::ranges::all_of(well.compositions, [](const auto& c) { return c.size() == 5; }),
            "A composition has five fractions");
}

bool Throws(const DFAReader& reader, int station) {
    try {
        reader.GetRawFluid(station);
    } catch (const std::out_of_range&) {
        return true;
    }
    return false;
}

} // namespace

std::vector<std::string> FluidBenchFuzz::Samples() {
    std::string pair = ProjectFile("examples/data/north-field_DFA.txt");
    pair += parting;
    pair += ProjectFile("examples/data/north-field_FT.txt");
    return {pair};
}

void FluidBenchFuzz::TestOneInput(std::string_view input) {
    const std::size_t end = std::min(input.find(parting), input.size());
    const std::string main = FileWith("input_DFA.txt", input.substr(0, end));
    FileWith("input_FT.txt", end < input.size() ? input.substr(end + parting.size()) : "");

    DFAReader reader;
    if (!reader.Import(main)) {
        Require(reader.GetExtractedData().empty(), "A refused pair gives no wells");
        return;
    }
    const std::vector<WellData> wells = reader.GetExtractedData();
    for (std::size_t i = 0; i < wells.size(); ++i) {
        RequireWhole(wells[i]);
        const int stations = static_cast<int>(wells[i].depths.size());
        reader.SetIndexOfWell(static_cast<int>(i));
        Require(reader.GetRawFluid(stations - 1).NumberOfComponents() == 5,
                "A raw fluid has five components");
        Require(Throws(reader, stations) && Throws(reader, -1), "Indices are checked");
        Require(reader.GetDFAExperiment().Stages.size() == wells[i].depths.size(),
                "The experiment has a stage for each station");
    }
    Require(reader.Import(main) && reader.GetExtractedData().size() == 2 * wells.size(),
            "A second import adds the same wells");
}
