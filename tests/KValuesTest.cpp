// K-value files, and the pieces of one on a stream of the caller.
#include "TestSupport.h"
#include "io/KValuesExportFileWriter.h"
#include "io/KValuesTableFormatter.h"

#include <sstream>
#include <stdexcept>

using namespace Orv::FluidBench;
using namespace FluidBenchTest;
using Common::Units;
using Model::KValuesTable;
using Writer = IO::KValuesExportFileWriter;

namespace {

KValuesTable Sample() {
    KValuesTable table({"C1", "C2"});
    table.Temperature = 350.0;
    table.AddRecord({1e7, 2.5, 0.75});
    table.AddRecord({2e7, 1.5, 0.5});
    return table;
}

class KValues : public testing::Test {
protected:
    std::string Export(const KValuesTable& table, Units::UNIT_TYPE units,
                       const Writer& writer = Writer()) {
        const std::string path = folder / "k-values";
        EXPECT_TRUE(MessageIds(writer.ExportToFile(table, path, units)).empty());
        return ReadFile(path);
    }

    TemporaryFolder folder;
};

// The table's own text, without the heading's first line and the closing record.
std::string Text(const KValuesTable& table, Units::UNIT_TYPE units = Units::METRIC) {
    std::ostringstream out;
    out.imbue(ForeignLocale());
    IO::KValuesTableFormatter(units).KVTable(out, table);
    return out.str();
}

} // namespace

TEST_F(KValues, WholeFiles) {
    const ForeignGlobalLocale foreign;
    const std::string metric = //
        "ECHO\n"
        "-- Temperature (K): 350.00000000\n"
        "-- Components:           C1                       C2                       \n"
        "-- Units: bar            dimensionless            dimensionless            \n"
        "KVTABLE\n-- K-Values\n-- \n"
        "100.00000000             2.50000000               0.75000000               \n"
        "200.00000000             1.50000000               0.50000000               \n"
        "/\n\n\nFILEUNIT\nMETRIC\n/\n";
    const std::string field = //
        "ECHO\n"
        "-- Temperature (F): 170.329999999999984\n"
        "-- Components:           C1                       C2                       \n"
        "-- Units: psia           dimensionless            dimensionless            \n"
        "KVTABLE\n-- K-Values\n-- \n"
        "1450.377377302092327     2.500000000000000        0.750000000000000        \n"
        "2900.754754604184654     1.500000000000000        0.500000000000000        \n"
        "/\n\n\nFILEUNIT\nFIELD\n/\n";
    EXPECT_EQ(Export(Sample(), Units::METRIC), metric);
    EXPECT_EQ(Export(Sample(), Units::FIELD, Writer(true)), field);
    std::string lab = metric;
    lab.replace(lab.find("METRIC"), 6, "FIELD");
    EXPECT_EQ(Export(Sample(), Units::LAB), lab);
}

TEST_F(KValues, TablesWithLittleInThem) {
    KValuesTable bare(std::vector<std::string>{});
    bare.AddRecord({1e7});
    EXPECT_EQ(Text(bare), "-- Components:           \n"
                          "-- Units: bar            \n"
                          "KVTABLE\n-- K-Values\n-- \n"
                          "100                      \n"
                          "/\n\n");
    KValuesTable cold({"C1"});
    cold.Temperature = 0.0;
    EXPECT_EQ(Text(cold, Units::FIELD), "-- Temperature (F): -459.67\n"
                                        "-- Components:           C1                       \n"
                                        "-- Units: psia           dimensionless            \n"
                                        "KVTABLE\n-- K-Values\n-- \n/\n\n");
    EXPECT_THROW(cold.AddRecord({1e7}), std::invalid_argument);
    EXPECT_THROW(cold.GetRecord(0), std::out_of_range);
}

TEST_F(KValues, NamesOfAnyLengthKeepTheirCharacters) {
    const std::string full(24, 'x');
    const std::string longer(30, 'y');
    EXPECT_EQ(Text(KValuesTable({full, longer, "C 1's", ""})).substr(0, 132),
              "-- Components:           " + full + ' ' + longer + " C 1's                    " +
                  std::string(25, ' ') + "\n");
}

TEST_F(KValues, ACallersStreamKeepsItsFormat) {
    std::ostringstream out;
    out.imbue(ForeignLocale());
    out << std::scientific << std::right;
    out.precision(2);
    IO::KValuesTableFormatter(Units::METRIC).KVTable(out, Sample());
    EXPECT_NE(out.str().find("\n1.00e+02                 2.50e+00                 7.50e-01  "),
              std::string::npos);
    EXPECT_EQ(out.flags() & std::ios_base::adjustfield, std::ios_base::left);
}

TEST_F(KValues, RefusedExports) {
    const std::string path = folder.Write("old", "old text");
    const auto report = Writer(false, static_cast<Writer::FILE_TYPE>(-1))
                            .ExportToFile(Sample(), path, Units::FIELD);
    EXPECT_EQ(MessageIds(report), std::vector<std::int32_t>{1001});
    EXPECT_EQ(report.GetMessages().front().GetParameters().front(),
              "Export to CSV is currently unsupported");
    EXPECT_EQ(ReadFile(path), "");
    for (const std::string& closed : {folder.Path().string(), folder / "missing/file"}) {
        const auto closedReport =
            Writer(false, Writer::CSV).ExportToFile(Sample(), closed, Units::METRIC);
        EXPECT_EQ(MessageIds(closedReport), std::vector<std::int32_t>{3369});
        EXPECT_EQ(closedReport.GetMessages().front().GetParameters().front(), closed);
    }
}
