// Compositions against pressure.
#include "FluidBench/Model/CompositionalFluid.h"
#include "Keywords.h"
#include "io/BlackOilExportFileWriter.h"
#include "io/CompositionTableReader.h"

namespace {

using namespace FluidBenchFuzz;
using namespace Orv::FluidBench;
using Tables = std::vector<IO::CompositionTable>;

struct Compositions {
    using Reader = IO::CompositionTableReader;
    using Object = Tables;
    static constexpr double relative = 1e-12;
    static constexpr double absolute = 1e-15;
    static inline const std::vector<std::string_view> otherwiseRead = {};
    static inline const std::vector<std::string> keywords = {"YMFVP", "XMFVP", "NCOMPS", "CNAMES"};

    static void Add(std::vector<double>& numbers, const std::vector<double>& pressures,
                    const std::vector<std::vector<double>>& fractions, const FileUnits& units) {
        for (std::size_t i = 0; i < fractions.size(); ++i) {
            numbers.push_back(pressures.at(i) / units.pressure);
            std::ranges::copy(fractions[i], std::back_inserter(numbers));
        }
    }
    static Columns InFile(const Tables& tables, const FileUnits& units) {
        Columns columns;
        for (const IO::CompositionTable& table : tables) {
            columns["rows"].push_back(static_cast<double>(table.Pressures.size()));
            Add(columns["YMFVP"], table.Pressures, table.VapourFractions, units);
            Add(columns["XMFVP"], table.Pressures, table.LiquidFractions, units);
        }
        return columns;
    }
    static std::vector<std::string> Names(const Tables&) { return {}; }

    // A file that is written has one table with both phases.
    static std::vector<Tables> Parts(const Tables& tables) {
        std::vector<Tables> parts;
        for (const IO::CompositionTable& table : tables) {
            const auto isWhole = [&](const std::vector<std::vector<double>>& phase) {
                return phase.size() == table.Pressures.size() && !phase.empty() &&
                       !phase.front().empty();
            };
            if (isWhole(table.VapourFractions) && isWhole(table.LiquidFractions)) {
                parts.push_back({table});
            }
        }
        return parts;
    }
    static void Write(const Tables& tables, std::ostream& out, Common::Units::UNIT_TYPE units) {
        const IO::CompositionTable& table = tables.at(0);
        Experiments::ExperimentResults results;
        for (std::size_t i = table.Pressures.size(); i-- > 0;) {
            Experiments::Stage& stage = results.Stages.emplace_back();
            stage.Results->Pressure.Set(table.Pressures[i]);
            stage.VapourPhase.Set(table.VapourFractions[i]);
            stage.LiquidPhase.Set(table.LiquidFractions[i]);
        }
        IO::BlackOilExportFileWriter(true).ExportXMFYMFVP(Model::CompositionalFluid(""), results,
                                                          out, units);
    }
};

} // namespace

std::vector<std::string> FluidBenchFuzz::Samples() {
    return {ProjectFile("tests/data/black-oil/compositions-field.txt"),
            ProjectFile("tests/data/black-oil/compositions-metric.txt"),
            ProjectFile("examples/data/north-flank-compositions.inc"),
            "CNAMES\nC1 C2 /\nYMFVP\n1 2*.5 2 1\n0 /\n/\nXMFVP\n1 0 1 2 2*.5 /\nINCLUDE\n"
            "'included.inc' /\nFILEUNIT\nFIELD /\n"};
}

void FluidBenchFuzz::TestOneInput(std::string_view input) {
    TestKeywordFile<Compositions>(input);
}
