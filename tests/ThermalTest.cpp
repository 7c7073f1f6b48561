// Thermal files, and the pieces of one on a stream of the caller.
#include "TestSupport.h"
#include "io/ThermalExportFileWriter.h"
#include "io/ThermalTableFormatter.h"

#include <map>
#include <sstream>
#include <stdexcept>

using namespace Orv::FluidBench;
using namespace FluidBenchTest;
using Common::Units;
using IO::ThermalTableFormatter;
using Model::ThermalExportTable;
using Writer = IO::ThermalExportFileWriter;

namespace {

// What the golden files hold.
ThermalExportTable Sample(bool hasFit) {
    ThermalExportTable table;
    table.StandardTemperature = 288.65;
    table.StandardPressure = 101325.0;
    table.ComponentCount = 2;
    table.ComponentNames = {"C1", "C2"};
    table.MolecularWeights = {16.043, 30.07};
    table.CriticalTemperatures = {190.5, 305.25};
    table.CriticalPressures = {4604000.0, 4880000.0};
    table.ReferenceTemperatures = {288.65, 288.65};
    table.ReferencePressures = {101325.0, 101325.0};
    table.ReferenceDensities = {299.4, 355.68};
    table.AcentricFactors = {0.011, 0.099};
    table.SpecificHeatA = {19.25, 5.409};
    table.SpecificHeatB = {5.213e-2, 1.781e-1};
    table.SpecificHeatC = {1.197e-5, -6.938e-5};
    table.SpecificHeatD = {-1.132e-8, 8.713e-9};
    table.SetHeatVaps({510.8, 1.0});
    table.SetCRefs({1e-5, 4.5e-9});
    table.SetThermEx1s({0.0034, 0.0021});
    table.SetZFactors({0.998, 0.992});
    table.SetZis({0.75, 0.25});
    if (hasFit) {
        table.SetCrookston({0.25, 0.0}, {5e7, 1.25e8}, {1e-9, 2.5e-9}, {879.84, 1816.6},
                           {7.16, -0.5});
    }
    return table;
}

class Thermal : public testing::Test {
protected:
    Thermal() { out.imbue(ForeignLocale()); }

    std::string Export(const ThermalExportTable& table, Units::UNIT_TYPE units,
                       const Writer& writer = Writer()) {
        const std::string path = folder / "thermal";
        EXPECT_TRUE(MessageIds(writer.ExportToFile(table, path, units)).empty());
        return ReadFile(path);
    }

    TemporaryFolder folder;
    std::ostringstream out;
    const ThermalTableFormatter metric{Units::METRIC};
    const ThermalTableFormatter field{Units::FIELD};
};

// The value lines of a section.
std::string Section(const std::string& file, const std::string& keyword) {
    const std::size_t begin = file.find("\n           \t", file.find('\n' + keyword + '\n'));
    return file.substr(begin + 1, file.find("/\n", begin) - begin - 1);
}

} // namespace

TEST_F(Thermal, WholeFiles) {
    const ForeignGlobalLocale foreign;
    for (const bool hasFit : {true, false}) {
        const std::string golden = hasFit ? "thermal/fit-" : "thermal/no-fit-";
        EXPECT_EQ(Export(Sample(hasFit), Units::METRIC), ReadData(golden + "metric.txt"));
        EXPECT_EQ(Export(Sample(hasFit), Units::FIELD), ReadData(golden + "field.txt"));
    }
}

TEST_F(Thermal, HighPrecisionEndsAtTheMolecularWeights) {
    const std::string file = Export(Sample(false), Units::METRIC, Writer(true));
    EXPECT_EQ(Section(file, "STCOND"), "           \t15.500000000000000\t1.013250000000000\t\n");
    EXPECT_EQ(Section(file, "MW"), "           \t16.042999999999999\n"
                                   "           \t30.070000000000000\n");
    const std::string golden = ReadData("thermal/no-fit-metric.txt");
    const std::string second = "-- Units: K\nTCRIT";
    EXPECT_EQ(file.substr(file.find(second)), golden.substr(golden.find(second)));
}

TEST_F(Thermal, AThirdUnitChoiceIsMetricButForCompressibilitiesAndTheClosingRecord) {
    std::string expected = ReadData("thermal/fit-metric.txt");
    expected.replace(expected.find("METRIC"), 6, "FIELD");
    const std::string values = Section(expected, "CREF");
    expected.replace(expected.find(values), values.size(),
                     "           \t0.0000100000000000\n           \t0.0000000045000000\n");
    EXPECT_EQ(Export(Sample(true), static_cast<Units::UNIT_TYPE>(-5)), expected);
}

TEST_F(Thermal, ATableWithoutComponents) {
    const std::string file = Export({}, Units::METRIC);
    EXPECT_NE(file.find("\n--\n       \t0\n/\n\nCNAMES\n-- \n-- Component Names\n-- \n/\n\nMW\n"),
              std::string::npos);
    EXPECT_TRUE(file.ends_with("-- Overall Composition\n-- \n/\n\n\nFILEUNIT\nMETRIC\n/\n"));
}

TEST_F(Thermal, VectorsOfAnotherLengthAreRefusedAheadOfTheFile) {
    using Table = ThermalExportTable;
    const std::pair<const char*, std::vector<double> Table::*> members[] = {
        {"MolecularWeights", &Table::MolecularWeights},
        {"CriticalTemperatures", &Table::CriticalTemperatures},
        {"CriticalPressures", &Table::CriticalPressures},
        {"ReferenceTemperatures", &Table::ReferenceTemperatures},
        {"ReferencePressures", &Table::ReferencePressures},
        {"ReferenceDensities", &Table::ReferenceDensities},
        {"AcentricFactors", &Table::AcentricFactors},
        {"SpecificHeatA", &Table::SpecificHeatA},
        {"SpecificHeatB", &Table::SpecificHeatB},
        {"SpecificHeatC", &Table::SpecificHeatC},
        {"SpecificHeatD", &Table::SpecificHeatD}};
    const std::pair<const char*, void (Table::*)(std::vector<double>)> setters[] = {
        {"HeatVaps", &Table::SetHeatVaps},
        {"CRefs", &Table::SetCRefs},
        {"ThermEx1s", &Table::SetThermEx1s},
        {"ZFactors", &Table::SetZFactors},
        {"Zis", &Table::SetZis}};
    std::map<std::string, Table> cases;
    (cases["ComponentNames"] = Sample(true)).ComponentNames.push_back("C3");
    for (const auto& [name, member] : members) {
        ((cases[name] = Sample(true)).*member).pop_back();
    }
    for (const auto& [name, setter] : setters) {
        ((cases[name] = Sample(true)).*setter)({1.0});
    }
    for (std::size_t i = 0; i < 5; ++i) {
        std::vector<std::vector<double>> fit(5, {1.0, 2.0});
        fit[i].pop_back();
        (cases[std::string("Crookston") + "ABCDE"[i]] = Sample(true))
            .SetCrookston(fit[0], fit[1], fit[2], fit[3], fit[4]);
    }
    ASSERT_EQ(cases.size(), 22U);
    const std::string path = folder.Write("old", "old text");
    for (const auto& [name, table] : cases) {
        try {
            Writer().ExportToFile(table, path, Units::METRIC);
            ADD_FAILURE() << name;
        } catch (const std::invalid_argument& error) {
            const std::string length = name == "ComponentNames" ? "3" : "1";
            EXPECT_EQ(error.what(), "The thermal table has 2 components, but the length of " +
                                        name + " is " + length +
                                        "; it needs one value for each component");
        }
        EXPECT_EQ(ReadFile(path), "old text");
    }
}

TEST_F(Thermal, RefusedExports) {
    const std::string path = folder.Write("old", "old text");
    const auto report = Writer(false, Writer::CSV).ExportToFile(Sample(true), path, Units::METRIC);
    EXPECT_EQ(MessageIds(report), std::vector<std::int32_t>{1001});
    EXPECT_EQ(report.GetMessages().front().GetParameters().front(),
              "Export to CSV is currently unsupported");
    EXPECT_EQ(ReadFile(path), "");
    EXPECT_EQ(MessageIds(Writer().ExportToFile({}, folder.Path().string(), Units::METRIC)),
              std::vector<std::int32_t>{3369});
}

TEST_F(Thermal, OnlyTheConverterOfTheUnitChoiceIsCalled) {
    const auto twice = [](double value) { return 2.0 * value; };
    metric.GenerateKeyword(out, "", "KEY", "Title", {1.5}, twice, nullptr);
    field.GenerateKeyword(out, "u", "KEY", "Title", {1.5}, twice, nullptr);
    EXPECT_EQ(out.str(), "KEY\n-- \n-- Title\n-- \n           \t1.5\n/\n\n"
                         "-- Units: u\nKEY\n-- \n-- Title\n-- \n           \t3\n/\n\n");
}

TEST_F(Thermal, ACallersStreamKeepsItsFormat) {
    out << std::left;
    out.precision(2);
    metric.NComps(out, 1234567);
    metric.CNames(out, {"C 1's", ""});
    metric.GenerateCrookston(out, {1.0}, {}, {}, {}, {123.0});
    metric.GenerateKeyword(out, "", "KEY", "", {12345.0}, nullptr, nullptr);
    const std::string text = out.str();
    EXPECT_NE(text.find("--\n       \t1234567\n/\n\n"), std::string::npos);
    EXPECT_NE(text.find("-- \n           \t'C 1's'\n           \t''\n/\n\n"), std::string::npos);
    EXPECT_NE(text.find("-- \n                1.00e+00 \n\n\n\n                1.23e+02 \n/\n\n"),
              std::string::npos);
    EXPECT_NE(text.find("-- \n           \t1.2e+04\n/\n\n"), std::string::npos);
}
