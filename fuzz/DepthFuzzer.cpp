// Tables against depth.
#include "Keywords.h"
#include "io/DepthTableReader.h"
#include "io/PVOFileWriter.h"

namespace {

using namespace FluidBenchFuzz;
using namespace Orv::FluidBench;
using Tables = std::vector<IO::DepthTable>;

struct Depth {
    using Reader = IO::DepthTableReader;
    using Object = Tables;
    static constexpr double relative = 6e-6;   // six digits
    static constexpr double absolute = 1e-100; // below which units lose digits
    static inline const std::vector<std::string_view> otherwiseRead = {};
    static inline const std::vector<std::string> keywords = {"ZMFVD", "PBVD",   "PDVD",  "RSVD",
                                                             "RVVD",  "NCOMPS", "CNAMES"};

    static Columns InFile(const Tables& tables, const FileUnits& units) {
        const std::map<std::string, double> unitOf = {{"ZMFVD", 1.0},
                                                      {"PBVD", units.pressure},
                                                      {"PDVD", units.pressure},
                                                      {"RSVD", units.gasInOil},
                                                      {"RVVD", units.oilInGas}};
        Columns columns;
        for (const IO::DepthTable& table : tables) {
            columns["rows"].push_back(static_cast<double>(table.Depths.size()));
            for (std::size_t i = 0; i < table.Depths.size(); ++i) {
                std::vector<double>& numbers = columns[table.Keyword];
                numbers.push_back(table.Depths[i] / units.depth);
                std::ranges::copy(InUnits(table.Values[i], unitOf.at(table.Keyword)),
                                  std::back_inserter(numbers));
            }
        }
        return columns;
    }
    static std::vector<std::string> Names(const Tables& tables) {
        std::vector<std::string> names;
        std::ranges::transform(tables, std::back_inserter(names), &IO::DepthTable::Keyword);
        return names;
    }
    static std::vector<Tables> Parts(const Tables& tables) { return {tables}; }
    static void Write(const Tables& tables, std::ostream& out, Common::Units::UNIT_TYPE units) {
        IO::PVOFileWriter().ExportDepthTables(tables, out, units);
    }
};

} // namespace

std::vector<std::string> FluidBenchFuzz::Samples() {
    std::vector<std::string> samples = ProjectFiles("tests/data/depth-tables", ".txt");
    samples.push_back(ProjectFile("examples/data/north-flank-depth.inc"));
    samples.push_back(ProjectFile("tests/data/tool/depth-saturation.txt"));
    samples.push_back(ProjectFile("tests/data/tool/depth-ratios-field.txt"));
    samples.emplace_back("NCOMPS\n2 /\nZMFVD\n1 2*.5 2 1\n0 /\nINCLUDE\n'included.inc' /\nRVVD\n"
                         "1000 1e-4 /\n 1 2 /\nFILEUNIT\nFIELD /\n");
    return samples;
}

void FluidBenchFuzz::TestOneInput(std::string_view input) {
    TestKeywordFile<Depth>(input);
}
