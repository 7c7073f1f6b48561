// Black-oil tables as keywords and as CSV, and reading CSV back.
#include "Diagnosed.h"
#include "TestSupport.h"
#include "io/BlackOilExportFileWriter.h"

#include <limits>
#include <sstream>
#include <stdexcept>

using namespace Orv::FluidBench;
using namespace FluidBenchTest;
using Common::Units;
using IO::BlackOilExportFileWriter;
using Model::BlackOilDataRecords;
using Model::BlackOilTable;
using Writer = BlackOilExportFileWriter;

namespace {

struct Row {
    double bar, ratio, volumeFactor, centipoise;
};

BlackOilDataRecords Records(const std::vector<std::vector<Row>>& table) {
    BlackOilDataRecords records;
    for (std::uint64_t i = 0; i < table.size(); ++i) {
        for (const Row& row : table[i]) {
            records.AddEntry(i, row.bar * 1e5, row.ratio, row.volumeFactor, row.centipoise * 1e-3);
        }
    }
    return records;
}

BlackOilTable Sample() {
    BlackOilTable table;
    table.SetOilDensity(800.0);
    table.SetWaterDensity(1025.0); // the files have 1000
    table.SetGasDensity(1.2);
    table.SetSaturationPoint(50.0, 100e5);
    table.SetLiveOilData(Records({{{100, 50, 1.2, 0.5}, {150, 50, 1.18, 0.55}}, //
                                  {{200, 100, 1.3, 0.4}}}));
    table.SetDeadOilData(
        Records({{{100, 30, 1.08, 1.1}, {250, 30, 1.07, 1.25}, {400, 30, 1.06, 1.4}}}));
    table.SetWetGasData(Records({{{150, 1e-4, 0.01, 0.02}, {150, 0, 0.011, 0.021}}}));
    table.SetDryGasData(Records({{{100, 0, 0.012, 0.015}, {150, 0, 0.008, 0.017}}, //
                                 {{200, 0, 0.006, 0.019}}}));
    return table;
}

// Densities, and the pressures of each record in bar: "800 1000 1.2 oil 100 150; 200; gas 150;".
std::string Summary(const BlackOilTable& table) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << table.GetOilDensity() << ' ' << table.GetWaterDensity() << ' ' << table.GetGasDensity();
    for (const auto* const records : {&table.GetLiveOilData(), &table.GetWetGasData()}) {
        text << (records == &table.GetLiveOilData() ? " oil" : " gas");
        for (std::uint64_t i = 0; i < records->GetTableSize(); ++i) {
            for (std::uint64_t j = 0; j < records->GetRecordContentSize(i); ++j) {
                text << ' ' << records->GetPressure(i, j) / 1e5;
            }
            text << ';';
        }
    }
    return text.str();
}

class BlackOil : public testing::Test {
protected:
    std::string Export(Units::UNIT_TYPE units, Writer::EXPORT_TYPE exportType,
                       Writer::FILE_TYPE fileType, const BlackOilTable& table = Sample()) {
        const std::string path = folder / "exported";
        EXPECT_TRUE(
            MessageIds(writer.ExportToFile(table, path, units, exportType, fileType)).empty());
        return ReadFile(path);
    }
    BlackOilTable Read(std::string_view text) {
        return writer.GetTableFromCSVFile(folder.Write("read.csv", text));
    }

    TemporaryFolder folder;
    Writer writer;
};

} // namespace

TEST_F(BlackOil, FilesOfEveryExportType) {
    const ForeignGlobalLocale foreign;
    const char* const names[] = {"live-oil-wet-gas", "live-oil-dry-gas", "dead-oil-wet-gas",
                                 "dead-oil-dry-gas"};
    for (int type = 0; type < 4; ++type) {
        for (const auto units : {Units::METRIC, Units::FIELD}) {
            const std::string golden = std::string("black-oil/") + names[type] +
                                       (units == Units::METRIC ? "-metric" : "-field");
            const auto exportType = static_cast<Writer::EXPORT_TYPE>(type);
            EXPECT_EQ(Export(units, exportType, Writer::PVO), ReadData(golden + ".txt")) << golden;
            EXPECT_EQ(Export(units, exportType, Writer::CSV), ReadData(golden + ".csv")) << golden;
        }
    }
}

TEST_F(BlackOil, ChoicesOutsideTheirLists) {
    EXPECT_EQ(Export(Units::METRIC, static_cast<Writer::EXPORT_TYPE>(7), Writer::PVO),
              ReadData("black-oil/no-tables-metric.txt"));
    EXPECT_EQ(Export(Units::METRIC, Writer::LIVE_OIL_WET_GAS, static_cast<Writer::FILE_TYPE>(-1)),
              ReadData("black-oil/live-oil-wet-gas-metric.csv"));
    std::string lab = ReadData("black-oil/live-oil-wet-gas-metric.txt");
    lab.replace(lab.find("METRIC"), 6, "FIELD");
    EXPECT_EQ(Export(Units::LAB, Writer::LIVE_OIL_WET_GAS, Writer::PVO), lab);
}

TEST_F(BlackOil, HighPrecision) {
    writer = Writer(true);
    EXPECT_NE(Export(Units::METRIC, Writer::DEAD_OIL_WET_GAS, Writer::PVO)
                  .find("\n\t       \t100.000000000000000\t1.080000000000000\t1.100000000000000\n"),
              std::string::npos);
    EXPECT_NE(Export(Units::METRIC, Writer::DEAD_OIL_WET_GAS, Writer::CSV)
                  .find(",100.000000000000000,1.080000000000000,1.100000000000000\n"),
              std::string::npos);
}

TEST_F(BlackOil, NarrowCellsAreFilledUpToTheirWidth) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    BlackOilTable table;
    table.SetOilDensity(infinity);
    const BlackOilDataRecords records = Records({{{infinity, infinity, infinity, infinity}}});
    table.SetLiveOilData(records);
    table.SetWetGasData(records);
    table.SetDryGasData(records);
    const std::string wet = Export(Units::METRIC, Writer::LIVE_OIL_WET_GAS, Writer::PVO, table);
    const std::string dry = Export(Units::METRIC, Writer::LIVE_OIL_DRY_GAS, Writer::PVO, table);
    EXPECT_NE(wet.find("\n         inf\t1000.00000000\t"), std::string::npos);
    EXPECT_NE(wet.find("\n\t     inf\t     inf\t     inf\t     inf\t/"), std::string::npos);
    EXPECT_NE(wet.find("\n\t     inf\tinf\t     inf\t     inf\t/"), std::string::npos);
    EXPECT_NE(dry.find("\n\t     inf\t\t     inf\t     inf\n"), std::string::npos);
}

TEST_F(BlackOil, CompositionsAgainstPressure) {
    Model::CompositionalFluid fluid("");
    fluid.SetComponent(Model::FluidComponent("C1"), 0.5);
    fluid.SetComponent(Model::FluidComponent("C10"), 0.5);
    Experiments::ExperimentResults results;
    for (const double bar : {250.0, 200.0}) {
        Experiments::Stage stage;
        stage.Results->Pressure.Set(bar * 1e5);
        stage.VapourPhase.SetPresent(bar < 210.0);
        stage.VapourPhase.Composition = {0.9, 0.1}; // not read where the phase isn't present
        stage.LiquidPhase.Set({bar < 210.0 ? 0.5 : 0.6, bar < 210.0 ? 0.5 : 0.4});
        results.Stages.push_back(stage);
    }
    const std::string path = folder / "compositions";
    for (const auto units : {Units::METRIC, Units::FIELD}) {
        writer.ExportXMFYMFVP(fluid, results, path, units);
        EXPECT_EQ(ReadFile(path),
                  ReadData(units == Units::METRIC ? "black-oil/compositions-metric.txt"
                                                  : "black-oil/compositions-field.txt"));
    }
    Writer(true).ExportXMFYMFVP(fluid, results, path, Units::METRIC);
    EXPECT_NE(ReadFile(path).find("\n200.000000000000000 0.900000000000000\n"), std::string::npos);
    writer.ExportXMFYMFVP(fluid, {}, path, Units::METRIC);
    EXPECT_EQ(ReadFile(path),
              "-- Units: bar\nYMFVP\n-- \n-- Vapour Composition vs Pressure\n-- \n/\n"
              "-- Units: bar\nXMFVP\n-- \n-- Liquid Composition vs Pressure\n-- \n/\n"
              "\nFILEUNIT\nMETRIC\n/\n");
}

TEST_F(BlackOil, PathsThatCannotBeOpened) {
    for (const std::string& path : {folder.Path().string(), folder / "missing/file"}) {
        const auto report =
            writer.ExportToFile({}, path, Units::METRIC, Writer::LIVE_OIL_WET_GAS, Writer::CSV);
        EXPECT_EQ(MessageIds(report), std::vector<std::int32_t>{3369});
        EXPECT_EQ(report.GetMessages().front().GetParameters(), std::vector<std::string>{path});
        EXPECT_EQ(MessageIds(writer.ExportXMFYMFVP(Model::CompositionalFluid(""), {}, path,
                                                   Units::METRIC)),
                  std::vector<std::int32_t>{3369});
        EXPECT_EQ(Summary(writer.GetTableFromCSVFile(path)), "0 0 0 oil gas");
    }
}

TEST_F(BlackOil, WhatWasWrittenReadsBack) {
    const ForeignGlobalLocale foreign;
    for (const auto exportType : {Writer::LIVE_OIL_WET_GAS, Writer::DEAD_OIL_DRY_GAS}) {
        const std::string text = Export(Units::METRIC, exportType, Writer::CSV);
        BlackOilTable table = Read(text);
        table.SetSaturationPoint(50.0, 100e5);
        table.SetDeadOilData(table.GetLiveOilData());
        table.SetDryGasData(table.GetWetGasData());
        EXPECT_EQ(Export(Units::METRIC, exportType, Writer::CSV, table), text);
    }
    const BlackOilTable table = Read(Export(Units::FIELD, Writer::LIVE_OIL_WET_GAS, Writer::CSV));
    EXPECT_EQ(Summary(table), "800 1000 1.2 oil 100 150; 200; gas 150 150;");
    EXPECT_DOUBLE_EQ(table.GetLiveOilData().GetProperty(1, 0), 100.0);
    EXPECT_DOUBLE_EQ(table.GetLiveOilData().GetFormationVolumeFactor(0, 1), 1.18);
    EXPECT_DOUBLE_EQ(table.GetWetGasData().GetProperty(0, 0), 1e-4);
    EXPECT_DOUBLE_EQ(table.GetWetGasData().GetViscosity(0, 1), 0.021e-3);
    EXPECT_EQ(Summary(Read(Export(Units::METRIC, Writer::DEAD_OIL_DRY_GAS, Writer::CSV))),
              "800 1000 1.2 oil 100 250 400; gas 100 150 200;");
}

TEST_F(BlackOil, TextThatTheReaderMeets) {
    struct Case {
        std::string text;
        const char* summary;
        const char* told; // lines and codes
    };
    const std::string million(1'000'000, '\n');
    const std::string densities = "ODEN,800\nWDEN,1000\nGDEN,1\n";
    const Case cases[] = {
        {"", "0 0 0 oil gas", "0:no-table"},
        {std::string("\0\xff,\0,,,,\n", 9), "0 0 0 oil gas", "1:other-text 0:no-table"},
        {"ODEN,800\nOden,801\n oden,802\nwden, 1e3x\nGDEN,\nunits,1\nDENS,3\nFILEUNIT\n",
         "801 1000 0 oil gas",
         "3:heading-form 4:text-behind-number 5:not-a-number 6:other-units 7:other-text "
         "0:no-table"},
        // Cells: the first isn't read, a missing number is 0, and what follows the fifth is
        // dropped.
        {"pvto,\nx,1,2,3,4,5\n,1,a,3,4\n1,2,3,4\n,1, 4bar ,,\nunits, 1\n\n,1,5,3,4",
         "0 0 0 oil 2 0 4; 5; gas",
         "2:first-cell 2:text-behind-number 3:not-a-number 3:pressure-order 4:row-skipped "
         "5:text-behind-number "
         "5:not-a-number 5:not-a-number 6:other-units "
         "0:no-densities 0:no-water-density 0:no-densities"},
        {"PVTO,\r\n,1,2,3,4\r\n\r\n,1,3,3,4\r\n\r\nUnits, METRIC\r\nPVTG,\r\n,2,1,3,4\r\n",
         "0 0 0 oil 2; 3; gas 2;", "0:no-densities 0:no-water-density 0:no-densities"},
        {densities + "PVTG, PSAT\n,7,1,2,3\n\nUnits, METRIC\nPVTO, Rs, PSAT, Bo, Muo\n,8,1,2,3\n",
         "800 1000 1 oil gas 7; 0 8;",
         "8:heading-in-table 8:not-a-number 8:not-a-number 8:not-a-number 8:not-a-number"},
        {densities + "PVTO,\n,1,2,3,4\nUnits\nPVTO,\n,1,9,3,4\n\n,no row\n,1,8,3,4\nUnits\n",
         "800 1000 1 oil 9; 8; gas", "7:second-table 10:row-skipped"},
        {densities + "PVTO,\n" + million + ",1,2,3,4\n" + million + ",1,3,3,4\n",
         "800 1000 1 oil 2; 3; gas", ""},
        {"PVTO,\n,1,2,3," + std::string(1'000'000, ',') + "\n,1,3,3,4\n" +
             std::string(1'000'000, 'x'),
         "0 0 0 oil 2 3; gas",
         "2:not-a-number 4:row-skipped 0:no-densities 0:no-water-density 0:no-densities"},
        // What spreadsheets and people make of it.
        {"\xEF\xBB\xBF" + densities + "PVTO,,,,\n,1,2,3,4\n,,,,\n\t,1,3,3,4\n   \n;1;4;3;4\n",
         "800 1000 1 oil 2 0 3; gas", "6:padded-row 8:padded-row 9:other-separator"},
        {densities + "Units, FIELD\nPVTO,\n,1,2,3,n/a\n,1,0x3,3,4\n,1,4,inf,1e999\n,1,5,-3,4\n"
                     ",1,1O0,3,4\n,1,1,5,3,4\n",
         "800 1000 1 oil 2 3 4 5 1 1; gas",
         "4:other-units 6:not-a-number 7:not-finite 8:not-finite 8:not-finite 9:negative-value "
         "10:text-behind-number 10:pressure-order 11:text-behind-number 11:pressure-order"},
        {densities + "PVTO,\n,1,2,3,4\nPVTG,a,b,c,d\n \"PVTO\",1,2,3\nUnits\n\"PVTG\", x\n",
         "800 1000 1 oil 2 0; gas",
         "6:heading-in-table 6:not-a-number 6:not-a-number 6:not-a-number 6:not-a-number "
         "6:pressure-order 7:heading-in-table 7:row-skipped 9:heading-form"},
        {"PVTO,\rODEN,1\r", "0 0 0 oil gas",
         "1:carriage-returns 1:no-rows 0:no-densities 0:no-water-density 0:no-densities"},
        {std::string("P\0V\0T\0O\0,\0\n\0", 12), "0 0 0 oil gas", "1:utf-16 0:no-table"},
        {std::string("P\0\0\0V\0\0\0,\0\0\0", 12), "0 0 0 oil gas", "1:utf-16 0:no-table"},
        {"ODEN,800,,,\nWDEN;850\nWDEN,1000,,,,\nUnits, METRIC,,,\n,,,\nPVTO, Rs,,,,,\n"
         ",1,2,3,4,,\n,,,,,\n,1,3,3,4, ,x\n,,\nUnits,METRIC,,,,\n\"PVTG\",,,,\nPVTG,,,,\n"
         "10,1,2,3,4\nUNITS,metric,,\nFILEUNIT,,,\nMETRIC,,\n/,,,,",
         "800 1000 0 oil 2 0 3; gas 1 0;",
         "2:other-separator 8:padded-row 9:text-behind-number 10:padded-row 12:heading-form "
         "14:first-cell 18:padded-row 0:no-densities"},
        {"1,2,3,4\nPVTO\n,1,2,3,4\nPVTO Rs\nPVDO,\nsome text\n" + densities +
             "Pvto,\n,1,2,3,4\n,1,3,3,4 Units\nUnits: FIELD\n\t,1,4,3,4\nPVDG\nPVTO;Rs\n"
             ";1;5;3;4\n",
         "800 1000 1 oil 2; gas",
         "1:row-outside-table 2:heading-form 3:row-outside-table 4:heading-form 5:heading-form "
         "6:other-text 12:row-outside-table 13:other-units 14:row-outside-table 15:heading-form "
         "16:other-separator 17:row-outside-table"},
    };
    Diagnosed diagnosed;
    for (const Case& each : cases) {
        EXPECT_EQ(Summary(Read(each.text)), each.summary) << each.text.substr(0, 80);
        writer.SetDiagnosticSink(diagnosed.Sink());
        std::istringstream stream(each.text);
        EXPECT_EQ(Summary(writer.GetTableFromCSVFile(stream)), each.summary);
        EXPECT_EQ(diagnosed.Take(), each.told) << each.text.substr(0, 80);
        EXPECT_EQ(Summary(Read(each.text)), each.summary);
        EXPECT_EQ(diagnosed.Take(), each.told);
        writer.SetDiagnosticSink({});
    }
}

TEST_F(BlackOil, ReadsTheSaturationPointWhenAskedTo) {
    const std::string text = "Rsconst,50\npsat,1e7 Pa\nPVTO,\n,1,2,3,4\nPSAT,1,2,3,4\n";
    for (const bool asked : {false, true}) {
        Diagnosed told;
        BlackOilExportFileWriter reader;
        reader.SetDiagnosticSink(told.Sink());
        reader.SetReadsSaturationPoint(asked);
        std::istringstream in(text);
        const BlackOilTable table = reader.GetTableFromCSVFile(in);
        EXPECT_EQ(table.GetSaturationPointRs(), asked ? 50.0 : 0.0);
        EXPECT_EQ(table.GetSaturationPointPressure(), asked ? 1e7 : 0.0);
        EXPECT_EQ(told.Take().starts_with("2:text-behind-number"), asked);
    }
}

TEST_F(BlackOil, TellsOfAFileThatFailsAndOfTwentyOfOneCode) {
    Diagnosed diagnosed;
    writer.SetDiagnosticSink(diagnosed.Sink());
    for (const bool isSet : {false, true}) {
        std::istringstream failed("ODEN,1\n");
        failed.setstate(isSet ? std::ios_base::failbit : std::ios_base::badbit);
        EXPECT_EQ(Summary(writer.GetTableFromCSVFile(failed)), "0 0 0 oil gas");
        EXPECT_EQ(diagnosed.Take(), "0:read-failed");
    }
    // Whatever the stream would throw; what was read ahead of the failure stands.
    std::string text = "ODEN,1\nPVTO,\n,1,2,3,4\n";
    text.append(200'000, '\n');
    constexpr auto all = std::ios_base::badbit | std::ios_base::failbit | std::ios_base::eofbit;
    std::istringstream good(text);
    good.exceptions(all);
    EXPECT_EQ(Summary(writer.GetTableFromCSVFile(good)), "1 0 0 oil 2; gas");
    EXPECT_EQ(good.exceptions(), all);
    diagnosed.Take();
    FailingInput failing(text, text.size());
    std::istream stream(&failing);
    stream.exceptions(all);
    EXPECT_EQ(Summary(writer.GetTableFromCSVFile(stream, "oil.csv")), "1 0 0 oil 2; gas");
    EXPECT_EQ(diagnosed.All().front().file, "oil.csv");
    EXPECT_EQ(diagnosed.All().back().line, 200'003U);
    EXPECT_EQ(diagnosed.All().back().code, "file.read-failed");
    diagnosed.Take();

    // What never ends, and a line that is as good as endless.
    writer.GetTableFromCSVFile("/dev/zero");
    EXPECT_EQ(diagnosed.Take(), "0:cant-open");
    constexpr std::size_t longest = std::size_t{1} << 20;
    for (const bool isTooLong : {false, true}) {
        std::istringstream longLine("ODEN,1\nPVTO,\n,1,2,3,4" + std::string(longest - 8, ' ') +
                                    (isTooLong ? " " : "") + "\r\n,2,3,4,5\n");
        EXPECT_EQ(Summary(writer.GetTableFromCSVFile(longLine)),
                  isTooLong ? "1 0 0 oil gas" : "1 0 0 oil 2 3; gas");
        EXPECT_EQ(diagnosed.Take().ends_with("3:line-too-long"), isTooLong);
    }

    writer.GetTableFromCSVFile(folder / "missing");
    EXPECT_EQ(diagnosed.All().front().sentence,
              "Expected a file to read, found no file of that name.");
    EXPECT_EQ(diagnosed.Take(), "0:cant-open");

    std::string rows = "ODEN,1\nWDEN,1\nGDEN,1\nPVTO,\n,1,2,3,4\n";
    for (int i = 0; i < 25; ++i) {
        rows += ",1,2\n";
    }
    std::istringstream many(rows);
    writer.GetTableFromCSVFile(many);
    ASSERT_EQ(diagnosed.All().size(), 21U);
    EXPECT_EQ(diagnosed.All().back().sentence, "5 more like this.");
    EXPECT_EQ(diagnosed.All().back().line, 0U);
    diagnosed.Take();

    std::istringstream odd("PVTO,\n,0x10,-1e999,1,nan\n");
    writer.GetTableFromCSVFile(odd);
    for (const std::size_t i : {0U, 1U, 2U}) {
        const char* const taken[] = {"; 16 was taken.", "; minus infinity was taken.",
                                     "; a not-a-number was taken."};
        EXPECT_TRUE(diagnosed.All().at(i).sentence.ends_with(taken[i]))
            << diagnosed.All().at(i).sentence;
    }
}

TEST(BlackOilDataRecords, EntriesOfEarlierRecordsAndBadIndices) {
    BlackOilDataRecords records = Records({{{1, 0, 0, 0}}, {{2, 0, 0, 0}}});
    EXPECT_THROW(records.AddEntry(3, 0, 0, 0, 0), std::out_of_range);
    EXPECT_EQ(records.AddEntry(0, 3e5, 0, 0, 0), 1U);
    EXPECT_EQ(records.AddEntry(2, 4e5, 0, 0, 0), 0U);
    EXPECT_EQ(records.AddRecord({{5e5, 1, 2, 3}, {6e5, 0, 0, 0}}), 3U);
    EXPECT_THROW(records.AddRecord({}), std::invalid_argument);
    BlackOilTable table;
    table.SetLiveOilData(records);
    EXPECT_EQ(Summary(table), "0 0 0 oil 1 3; 2; 4; 5 6; gas");
    EXPECT_EQ(records.GetViscosity(3, 0), 3.0);
    EXPECT_THROW(records.GetPressure(0, 2), std::out_of_range);
    EXPECT_THROW(records.GetViscosity(4, 0), std::out_of_range);
    EXPECT_THROW(records.GetRecordContentSize(4), std::out_of_range);
    table.SetWetGasData(std::move(records));
    EXPECT_EQ(records.GetTableSize(), 0U); // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(Summary(table), "0 0 0 oil 1 3; 2; 4; 5 6; gas 1 3; 2; 4; 5 6;");
}
