// K-value keywords.
#include "Keywords.h"
#include "io/KValuesExportFileWriter.h"
#include "io/KValuesKeywordReader.h"

namespace {

using namespace FluidBenchFuzz;
using namespace Orv::FluidBench;
using Tables = std::vector<Model::KValuesTable>;

// A cell is 24 characters wide and ends in blanks.
bool ComesBack(const std::string& name) {
    return !name.empty() && name.front() != ' ' && name.back() != ' ' &&
           name.find_first_of("\t\r\v\f") == std::string::npos &&
           (name.size() <= 24 || name.find(' ') == std::string::npos);
}

struct KValues {
    using Reader = IO::KValuesKeywordReader;
    using Object = Tables;
    static constexpr double relative = 1e-12;
    static constexpr double absolute = 1e-15;
    static inline const std::vector<std::string_view> otherwiseRead = {};
    static inline const std::vector<std::string> keywords = {"KVTABLE", "CNAMES"};

    static Columns InFile(const Tables& tables, const FileUnits& units) {
        Columns columns;
        for (const Model::KValuesTable& table : tables) {
            columns["temperatures"].push_back(table.Temperature + 500.0); // absolutely
            columns["rows"].push_back(static_cast<double>(table.GetTableSize()));
            for (std::uint64_t i = 0; i < table.GetTableSize(); ++i) {
                std::vector<double> record = table.GetRecord(i);
                record.front() /= units.pressure;
                std::ranges::copy(record, std::back_inserter(columns["KVTABLE"]));
            }
        }
        return columns;
    }
    static std::vector<std::string> Names(const Tables& tables) {
        std::vector<std::string> names;
        for (const Model::KValuesTable& table : tables) {
            std::ranges::copy(table.GetComponents(), std::back_inserter(names));
            names.emplace_back("/");
        }
        return names;
    }
    // Each table has headings of its own: thousands of tables only take their time.
    static std::vector<Tables> Parts(Tables tables) {
        if (tables.size() > 2000) {
            return {};
        }
        for (Model::KValuesTable& table : tables) {
            if (!std::ranges::all_of(table.GetComponents(), ComesBack)) {
                return {};
            }
            table.Temperature = table.Temperature < 0.0 ? -1.0 : table.Temperature;
        }
        return {tables};
    }
    static void Write(const Tables& tables, std::ostream& out, Common::Units::UNIT_TYPE units) {
        IO::KValuesExportFileWriter(true).ExportTables(tables, out, units);
    }
};

} // namespace

std::vector<std::string> FluidBenchFuzz::Samples() {
    return {
        ProjectFile("examples/data/two-temperatures-k-values.inc"),
        ProjectFile("tests/data/tool/kvalues-convert-field.txt"),
        "CNAMES\n'C 1' C2 /\n-- Temperature (K): 350\nKVTABLE\n1 2*.5\n2 1 1 /\n3 2*1 /\nINCLUDE\n"
        "'included.inc' /\nFILEUNIT\nMETRIC /\n",
        "ECHO\n-- Components:           C1                       C 2                      \n"
        "-- Units: bar            dimensionless            \nKVTABLE\n-- K-Values\n-- \n"
        "100.0   2.5 0.5   \n/\n\n\nFILEUNIT\nMETRIC\n/\n"};
}

void FluidBenchFuzz::TestOneInput(std::string_view input) {
    TestKeywordFile<KValues>(input);
}
