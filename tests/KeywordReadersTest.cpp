// Keyword files come back: there and back for each writer, files that people type, and what is
// refused.
#include "Diagnosed.h"
#include "TestSupport.h"
#include "io/BlackOilExportFileWriter.h"
#include "io/BlackOilKeywordReader.h"
#include "io/CompositionTableReader.h"
#include "io/DepthTableReader.h"
#include "io/KValuesExportFileWriter.h"
#include "io/KValuesKeywordReader.h"
#include "io/PVOFileWriter.h"
#include "io/ThermalExportFileWriter.h"
#include "io/ThermalKeywordReader.h"

#ifdef FLUIDBENCH_HAS_RAPIDCHECK
#include <rapidcheck/gtest.h>
#endif

#include <algorithm>
#include <memory>
#include <sstream>

using namespace Orv::FluidBench;
using namespace FluidBenchTest;
using Common::Units;
using Model::BlackOilDataRecords;
using Model::BlackOilTable;
using Model::KValuesTable;
using Model::ThermalExportTable;
using BlackOilWriter = IO::BlackOilExportFileWriter;

namespace {

// What a reader gives for a text, and what it tells.
template <typename Reader, typename Result>
struct Outcome {
    Outcome(const std::string& text, std::optional<Units::UNIT_TYPE> units) {
        Reader reader;
        reader.SetDiagnosticSink(diagnosed.Sink());
        std::istringstream stream(text);
        report = reader.Read(stream, result, units);
        for (const auto& diagnostic : diagnosed.All()) {
            sentences += diagnostic.sentence + '\n';
        }
        told = diagnosed.Take(IO::Severity::Warning);
    }
    Result result{};
    Common::ErrorReport report;
    Diagnosed diagnosed;
    std::string told;
    std::string sentences;
};
using Regions = std::vector<BlackOilTable>;

template <typename Reader, typename Result>
Result ReadSound(const std::string& text) {
    const Outcome<Reader, Result> outcome(text, std::nullopt);
    EXPECT_EQ(outcome.told, "") << outcome.sentences << text;
    EXPECT_TRUE(outcome.report.GetMessages().empty());
    return outcome.result;
}

// Each reads a file of its writer and writes it again.
struct Form {
    Units::UNIT_TYPE units = Units::METRIC;
    bool isPrecise = false;
    BlackOilWriter::EXPORT_TYPE tables = BlackOilWriter::LIVE_OIL_WET_GAS;
};

std::string Write(const BlackOilTable& table, const Form& form) {
    std::ostringstream out;
    BlackOilWriter(form.isPrecise)
        .ExportToFile(table, out, form.units, form.tables, BlackOilWriter::PVO);
    return out.str();
}
std::string BlackOilAgain(const std::string& text, const Form& form) {
    const auto regions = ReadSound<IO::BlackOilKeywordReader, Regions>(text);
    return regions.size() == 1 ? Write(regions.front(), form) : "";
}

std::string Write(const KValuesTable& table, const Form& form) {
    std::ostringstream out;
    IO::KValuesExportFileWriter(form.isPrecise).ExportToFile(table, out, form.units);
    return out.str();
}

std::string Write(const ThermalExportTable& table, const Form& form) {
    std::ostringstream out;
    IO::ThermalExportFileWriter(form.isPrecise).ExportToFile(table, out, form.units);
    return out.str();
}
std::string ThermalAgain(const std::string& text, const Form& form) {
    return Write(ReadSound<IO::ThermalKeywordReader, ThermalExportTable>(text), form);
}

Model::CompositionalFluid FluidOf(const std::vector<double>& fractions) {
    Model::CompositionalFluid fluid("");
    for (std::size_t i = 0; i < fractions.size(); ++i) {
        fluid.SetComponent(Model::FluidComponent("C" + std::to_string(i + 1)), fractions[i]);
    }
    return fluid;
}

// A depth run that gives these tables: a stage for each row, and the contact where the second
// table begins.
std::string Write(const std::vector<IO::DepthTable>& tables, const Form& form) {
    const std::string& keyword = tables.front().Keyword;
    Experiments::ExperimentResults results;
    const auto ratios = std::make_shared<std::vector<double>>();
    for (const IO::DepthTable& table : tables) {
        for (std::size_t i = 0; i < table.Depths.size(); ++i) {
            Experiments::Stage stage;
            stage.Results->Depth.Set(table.Depths[i]);
            stage.Results->GasOilRatio.Set(1.0);
            stage.Results->SaturationPressure.Set(table.Values[i].front());
            stage.LiquidPhase.SetPresent(keyword == "PBVD");
            stage.FluidState = keyword == "RSVD" ? Experiments::oilLikeFluidState : 0;
            if (keyword == "ZMFVD") {
                stage.Fluid = FluidOf(table.Values[i]);
            }
            const double value = table.Values[i].front();
            ratios->push_back(table.Keyword == "RVVD" ? 1.0 / value : value);
            results.Stages.push_back(stage);
        }
    }
    if (tables.size() > 1) {
        results.ContactStage.Results->Depth.Set(tables[1].Depths.front());
    }
    const auto next = std::make_shared<std::size_t>(0);
    const Experiments::MSTExperiment experiment([=](const auto&, const auto&) {
        Experiments::ExperimentResults run;
        run.Stages.emplace_back().Results->GasOilRatio.Set(ratios->at((*next)++));
        return run;
    });
    std::ostringstream out;
    const IO::PVOFileWriter writer;
    if (keyword == "ZMFVD") {
        const Model::CompositionalFluid names = FluidOf(tables.front().Values.front());
        writer.ExportZMFVD(names, results, out, form.units);
    } else if (keyword.starts_with('P')) {
        writer.ExportPSATVD(results, out, form.units);
    } else {
        writer.ExportRSVD(results, experiment, {}, out, form.units);
    }
    return out.str();
}
std::string DepthTablesAgain(const std::string& text, const Form& form) {
    return Write(ReadSound<IO::DepthTableReader, std::vector<IO::DepthTable>>(text), form);
}

std::string Write(const IO::CompositionTable& table, const Form& form) {
    Experiments::ExperimentResults results;
    for (std::size_t i = table.Pressures.size(); i-- > 0;) {
        Experiments::Stage& stage = results.Stages.emplace_back();
        stage.Results->Pressure.Set(table.Pressures[i]);
        stage.VapourPhase.Set(table.VapourFractions[i]);
        stage.LiquidPhase.Set(table.LiquidFractions[i]);
    }
    std::ostringstream out;
    BlackOilWriter(form.isPrecise)
        .ExportXMFYMFVP(Model::CompositionalFluid(""), results, out, form.units);
    return out.str();
}
std::string CompositionsAgain(const std::string& text, const Form& form) {
    const auto tables =
        ReadSound<IO::CompositionTableReader, std::vector<IO::CompositionTable>>(text);
    return tables.size() == 1 ? Write(tables.front(), form) : "";
}

} // namespace

#ifdef FLUIDBENCH_HAS_RAPIDCHECK // which not every system has

namespace {

std::string KValuesAgain(const std::string& text, const Form& form) {
    const auto tables = ReadSound<IO::KValuesKeywordReader, std::vector<KValuesTable>>(text);
    return tables.size() == 1 ? Write(tables.front(), form) : "";
}

// Generated numbers have all digits that a double has.
double Between(double low, double high) {
    constexpr auto steps = std::uint64_t{1} << 53;
    const auto step = *rc::gen::inRange<std::uint64_t>(0, steps);
    return low + (high - low) * (static_cast<double>(step) / static_cast<double>(steps));
}
std::vector<double> Several(std::size_t count, double low, double high) {
    std::vector<double> values(count);
    for (double& value : values) {
        value = Between(low, high);
    }
    return values;
}
std::size_t Count(std::size_t least, std::size_t most) {
    return *rc::gen::inRange(least, most + 1);
}
Form AnyForm() {
    return {*rc::gen::element(Units::METRIC, Units::FIELD), *rc::gen::arbitrary<bool>(),
            static_cast<BlackOilWriter::EXPORT_TYPE>(*rc::gen::inRange(0, 4))};
}

// Records of entries whose pressures and ratios rise.
BlackOilDataRecords AnyRecords(bool isOil, std::size_t entriesOfRecord) {
    BlackOilDataRecords records;
    const std::size_t count = Count(1, 4);
    double saturated = 0.0;
    double ratio = 0.0;
    for (std::size_t i = 0; i < count; ++i) {
        saturated += Between(1e5, 9e6);
        ratio += isOil ? Between(1.0, 90.0) : Between(1e-6, 1e-4);
        const std::size_t entries = Count(1, entriesOfRecord);
        double pressure = saturated;
        double vaporised = ratio;
        for (std::size_t j = 0; j < entries; ++j) {
            records.AddEntry(i, pressure, isOil ? ratio : vaporised, Between(0.001, 2.0),
                             Between(1e-6, 1e-3));
            pressure += isOil ? Between(1e5, 2e7) : 0.0;
            vaporised *= Between(0.0, 1.0);
        }
    }
    return records;
}

} // namespace

RC_GTEST_PROP(KeywordFiles, BlackOilComesBack, ()) {
    const Form form = AnyForm();
    BlackOilTable table;
    table.SetOilDensity(Between(500.0, 1100.0));
    table.SetGasDensity(Between(0.5, 2.0));
    table.SetSaturationPoint(Between(0.0, 300.0), Between(0.0, 9e7));
    table.SetLiveOilData(AnyRecords(true, 4));
    table.SetWetGasData(AnyRecords(false, 4));
    table.SetDeadOilData(AnyRecords(true, 1));
    table.SetDryGasData(AnyRecords(false, 1));
    const std::string text = Write(table, form);
    RC_ASSERT(BlackOilAgain(text, form) == text);
    if (form.isPrecise && form.tables == BlackOilWriter::LIVE_OIL_WET_GAS) {
        const auto& written = table.GetLiveOilData();
        const auto read = ReadSound<IO::BlackOilKeywordReader, Regions>(text)[0].GetLiveOilData();
        RC_ASSERT(read.GetTableSize() == written.GetTableSize());
        const double pressure = written.GetPressure(0, 0);
        RC_ASSERT(std::abs(read.GetPressure(0, 0) - pressure) <= 1e-15 * pressure);
    }
}

RC_GTEST_PROP(KeywordFiles, KValuesComeBack, ()) {
    const Form form = AnyForm();
    std::vector<std::string> names(Count(0, 4));
    for (std::size_t i = 0; i < names.size(); ++i) {
        names[i] = std::to_string(i) +
                   *rc::gen::element<std::string>("", " of", "-and-longer-than-a-cell-is");
    }
    KValuesTable table(names);
    table.Temperature = Between(-100.0, 500.0);
    for (std::size_t count = Count(1, 4); count > 0; --count) {
        std::vector<double> row = Several(names.size() + 1, 0.0, 20.0);
        row.front() *= 1e6;
        table.AddRecord(std::move(row));
    }
    const std::string text = Write(table, form);
    RC_ASSERT(KValuesAgain(text, form) == text);
}

RC_GTEST_PROP(KeywordFiles, ThermalTablesComeBackWithALineForEachHeatCapacity, ()) {
    const Form form = AnyForm();
    const std::size_t n = Count(0, 3);
    ThermalExportTable table;
    table.StandardTemperature = Between(250.0, 320.0);
    table.StandardPressure = Between(9e4, 2e5);
    table.ComponentCount = n;
    for (std::size_t i = 0; i < n; ++i) {
        table.ComponentNames.push_back("it's C" + std::to_string(i));
    }
    table.MolecularWeights = Several(n, 2.0, 500.0);
    table.CriticalTemperatures = Several(n, 5.0, 900.0);
    table.CriticalPressures = Several(n, 1e5, 2e7);
    table.ReferenceTemperatures = Several(n, 200.0, 400.0);
    table.ReferencePressures = Several(n, 1e4, 1e6);
    table.ReferenceDensities = Several(n, 1.0, 1000.0);
    table.AcentricFactors = Several(n, -0.3, 1.5);
    table.SpecificHeatA = Several(n, -5.0, 40.0);
    table.SpecificHeatB = Several(n, 0.05, 0.7);
    table.SpecificHeatC = Several(n, -1e-5, 1e-4);
    table.SpecificHeatD = Several(n, -1e-8, 1e-8);
    table.SetHeatVaps(Several(n, 0.0, 600.0));
    table.SetCRefs(Several(n, 0.0, 1e-8));
    table.SetThermEx1s(Several(n, 0.0, 0.01));
    table.SetZFactors(Several(n, 0.1, 2.0));
    table.SetZis(Several(n, 0.0, 1.0));
    if (*rc::gen::arbitrary<bool>()) {
        table.SetCrookston(Several(n, 0.0, 1.0), Several(n, 0.0, 1e10), Several(n, 0.0, 1e-8),
                           Several(n, 100.0, 4000.0), Several(n, -50.0, 50.0));
    }
    const std::string text = Write(table, form);
    RC_ASSERT(ThermalAgain(text, form) == text);
}

RC_GTEST_PROP(KeywordFiles, DepthTablesAndCompositionsComeBack, ()) {
    const Form form = AnyForm();
    const std::size_t n = Count(1, 4);
    IO::DepthTable table;
    table.Keyword = *rc::gen::element<std::string>("ZMFVD", "PBVD", "PDVD", "RSVD", "RVVD");
    IO::CompositionTable compositions;
    for (std::size_t count = Count(1, 4); count > 0; --count) {
        table.Depths.push_back((table.Depths.empty() ? 0.0 : table.Depths.back()) +
                               Between(10.0, 1000.0));
        table.Values.push_back(table.Keyword == "ZMFVD" ? Several(n, 0.0, 1.0)
                                                        : Several(1, 1e-5, 5e7));
        compositions.Pressures.push_back(Between(0.0, 5e7));
        compositions.VapourFractions.push_back(Several(n, 0.0, 1.0));
        compositions.LiquidFractions.push_back(Several(n, 0.0, 1.0));
    }
    const std::string depths = Write(std::vector{table}, form);
    RC_ASSERT(DepthTablesAgain(depths, form) == depths);
    const std::string pressures = Write(compositions, form);
    RC_ASSERT(CompositionsAgain(pressures, form) == pressures);
}

#endif // FLUIDBENCH_HAS_RAPIDCHECK

TEST(KeywordFiles, GoldenFilesComeBack) {
    struct Case {
        const char* file;
        std::string (*again)(const std::string&, const Form&);
        BlackOilWriter::EXPORT_TYPE tables = BlackOilWriter::LIVE_OIL_WET_GAS;
    };
    const Case cases[] = {
        {"black-oil/live-oil-wet-gas", BlackOilAgain},
        {"black-oil/dead-oil-wet-gas", BlackOilAgain, BlackOilWriter::DEAD_OIL_WET_GAS},
        {"black-oil/compositions", CompositionsAgain},
        {"depth-tables/zmfvd", DepthTablesAgain},
        {"depth-tables/psatvd", DepthTablesAgain},
        {"depth-tables/rsvd", DepthTablesAgain},
        {"thermal/fit", ThermalAgain},
        {"thermal/no-fit", ThermalAgain},
    };
    const ForeignGlobalLocale foreign;
    for (const Case& each : cases) {
        for (const auto units : {Units::METRIC, Units::FIELD}) {
            const std::string text = ReadData(
                each.file + std::string(units == Units::METRIC ? "-metric.txt" : "-field.txt"));
            EXPECT_EQ(each.again(text, {units, false, each.tables}), text) << each.file;
        }
    }
}

namespace {

constexpr double pascalPerBar = 1e5;

// "oil 50: 100 150; 80: 200;" for live oil, a record's ratio and its pressures in bar; "gas 100:
// 0.1 0;" for wet gas; dead oil and dry gas have pressures alone.
void Tell(std::ostream& out, const char* name, const BlackOilDataRecords& records, bool isLive,
          bool isOil) {
    out << (records.GetTableSize() == 0 ? "" : name);
    for (std::uint64_t i = 0; i < records.GetTableSize(); ++i) {
        const auto pressure = [&](std::uint64_t j) {
            return records.GetPressure(i, j) / pascalPerBar;
        };
        if (isLive) {
            out << ' ' << (isOil ? records.GetProperty(i, 0) : pressure(0)) << ':';
        }
        for (std::uint64_t j = 0; j < records.GetRecordContentSize(i); ++j) {
            out << ' ' << (isLive && !isOil ? records.GetProperty(i, j) : pressure(j));
        }
        out << ';';
    }
}

std::string Summary(const Regions& regions) {
    std::ostringstream out;
    for (const BlackOilTable& region : regions) {
        out << '[' << region.GetOilDensity() << ' ' << region.GetSaturationPointRs();
        Tell(out, " oil", region.GetLiveOilData(), true, true);
        Tell(out, " dead", region.GetDeadOilData(), false, true);
        Tell(out, " gas", region.GetWetGasData(), true, false);
        Tell(out, " dry", region.GetDryGasData(), false, false);
        out << ']';
    }
    return out.str();
}

using BlackOilOutcome = Outcome<IO::BlackOilKeywordReader, Regions>;

const std::string metric = "FILEUNIT\nMETRIC /\n";
const std::string densities = "DENSITY\n800 1000 1 /\n";

} // namespace

TEST(BlackOilKeywords, TextsThatPeopleType) {
    struct Case {
        std::string text;
        const char* summary;
        const char* told;
        std::optional<Units::UNIT_TYPE> units = Units::METRIC;
    };
    const Case cases[] = {
        // A record a line, several rows a line, and a value a line; either line end; the units
        // first.
        {metric + densities +
             "PVTO\n 50 100 1.2 0.5 /\n 80 120 1.3 0.4\r\n 150 1.2 2*0.45\r\n/\n/\n",
         "", "8:repeat-count", std::nullopt},
        {metric + densities +
             "PVTO\n 50 100 1.2 0.5 /\n 80 120 1.3 0.4\r\n 150 2*1.2 \r\n/\n"
             " 90 130 1.4 .3 140 1.3 3.5D-1 / the last one\n/\n",
         "[800 0 oil 50: 100; 80: 120 150; 90: 130 140;]", "", std::nullopt},
        {"PVDG\n100\n-- comment\n0.01\n.02\n\n200 0.005\n.03 /\nDENSITY 700 1000 1/",
         "[700 0 dry 100; 200;]", ""},
        // Regions: several tables after one keyword, and a keyword again.
        {densities + "850 1000 1 /\nPVDO\n100 1.1 1 200 1.0 2 /\n150 1.1 1 /\nRSCONSTT\n30 90 /\n"
                     "40 95 /\nDENSITY\n900 1000 1 /\nPVDO\n170 1.1 1 /\n",
         "[800 30 dead 100 200;][850 40 dead 150;][900 0 dead 170;]", "0:fewer-regions"},
        {densities + "PVTG\n100 1e-4 0.01 0.02\n 0 0.011 0.02 /\n/\n120 1e-4 0.01 0.02 /\n/\n/\n",
         "[800 0 gas 100: 0.0001 0;][0 0 gas 120: 0.0001;]", "9:no-rows 0:fewer-regions"},
        // What isn't wanted: text, other keywords with and without a record, sections.
        {"TITLE\nPVTO of A/B isn't a table\nPROPS\nPVTW\n 200 1.0 4e-5 0.3 0 /\nRPTPROPS\n"
         "  PVTO 3*1 'DENSITY' /\nEQLDIMS 1 2*\n/\n" +
             densities + "SKIP\nPVDO\n1 1 1 /\nENDSKIP\nPVDO\n100 1 1 /\n(see PVTO)\nEND\nPVDO\n",
         "[800 0 dead 100;]", "7:not-taken"},
        {densities + "pvdo\n100 1 1 /\n  PVDO\n200 1 1 / PVTO\nPVTO /\n/\n", "[800 0]",
         "3:not-taken 5:not-taken 7:no-rows 8:no-rows"},
        {densities + "  PVDO\n200 1 1 /\n", "[800 0 dead 200;]", ""},
        {densities + "PVDO\n200 1 1 / PVDG\n", "[800 0 dead 200;]", "4:not-taken"},
        {"DENSITY\n800 2* /\nPVDO\n100 1 1 /\nSKIP\n", "[800 0 dead 100;]",
         "2:default-is-zero 5:skip-not-closed"},
        {"PVDO\n100 1 1 /", "[0 0 dead 100;]", "0:no-densities"},
    };
    for (const Case& each : cases) {
        const BlackOilOutcome outcome(each.text, each.units);
        const bool isRefused = outcome.report.HasErrors();
        EXPECT_EQ(outcome.told, each.told) << outcome.sentences << each.text;
        EXPECT_EQ(Summary(outcome.result), isRefused ? "" : each.summary) << each.text;
    }
    const BlackOilOutcome field("DENSITY\n50 62.4 0.06 /\nPVTO\n1 2000 1.2 0.5 /\n/\n",
                                Units::FIELD);
    const BlackOilDataRecords& oil = field.result.at(0).GetLiveOilData();
    EXPECT_NEAR(field.result[0].GetOilDensity(), 800.923, 1e-3);
    EXPECT_NEAR(field.result[0].GetWaterDensity(), 999.55, 1e-2);
    EXPECT_NEAR(oil.GetProperty(0, 0), 178.108, 1e-3); // 1000 ft3 to a barrel of 5.6146 ft3
    EXPECT_NEAR(oil.GetPressure(0, 0), 137.895e5, 1e2);
    EXPECT_DOUBLE_EQ(oil.GetViscosity(0, 0), 0.5e-3);
    EXPECT_NE(field.sentences.find("Expected a water density of 1000 kg/m3"), std::string::npos);
}

TEST(BlackOilKeywords, WhatIsRefused) {
    const std::string oil = densities + "PVTO\n50 100 1.2 0.5 /\n";
    struct Case {
        std::string text;
        const char* told;
        std::optional<Units::UNIT_TYPE> units = Units::METRIC;
    };
    const Case cases[] = {
        {"", "1:no-table"},
        {std::string("\0\1\xff/\n'\n\0--", 9), "3:no-table"},
        {"DENSITY of the oil\n", "1:not-a-number"},
        {oil, "5:record-not-closed"},
        {oil + "PVTG\n", "5:record-not-closed"},
        {oil + "60 120 1.3 0.4\nPVTG\n", "6:record-not-closed"},
        {oil + "60 /\n/\n", "5:row-length"},
        {oil + "60 120 1.3 0.4 130 1.2 /\n/\n", "5:row-length"},
        {"DENSITY\n800 1000 1 7 /\n", "2:row-length"},
        {"DENSITY\n/\n", "2:row-length"},
        {oil + "40 120 1.3 0.4 /\n/\n", "5:row-order"},
        {oil + "60 90 1.3 0.4 /\n/\n", "5:row-order"},
        {oil + "60 120 1.3 0.4\n110 1.3 0.4 /\n/\n", "6:row-order"},
        {"PVTG\n100 1e-4 0.01 0.02\n2e-4 0.01 0.02 /\n/\n", "3:row-order"},
        {"PVDO\n100 1 1 90 1 1 /\n", "2:row-order"},
        {"PVDG\n\t100.0\t\t0.01\t0.02\n\t       \t\t0.009\t0.02\n\t/\n", "3:no-pressure"},
        {"PVDG\n\t100.0\t\t0.01\t0.02\n\t       \t\t0.009\t0.02\n\t200.0\t\t0.01\t0.02\n\t/\n",
         "3:no-pressure"},
        {oil + "60 120 1.3 nan /\n/\n", "5:not-a-number"},
        {oil + "60 120 1.3 1e999 /\n/\n", "5:not-a-number"},
        {oil + "60 1,2 1.3 0.4 /\n/\n", "5:not-a-number"},
        {oil + "60 'a' 1.3 0.4 /\n/\n", "5:not-a-number"},
        {oil + "60 120 2* /\n/\n", "5:no-default"},
        {oil + "60 120 1000000000*0.4 /\n/\n", "5:repeat-count"},
        {oil + "60 120 99999999999999999999*1 /\n/\n", "5:not-a-number"},
        {oil + "60 120 1.3 0.4 / 70 130 1.3 0.4 /\n/\n", "5:text-behind-slash"},
        {oil + "60 120 1.3 0.4 / /\n", "5:text-behind-slash"},
        {"INCLUDE\n'no such file' /\n", "1:include"},
        {"INCLUDE\n5 6 /\n", "1:include"},
        {densities, "3:no-units", std::nullopt},
        {densities + metric, "4:units-contradicted", Units::FIELD},
        {"-- Units: psia  rb /stb\n" + densities + metric, "1:units-contradicted", std::nullopt},
        {densities + metric + metric, "6:second-units", std::nullopt},
        {densities + "FILEUNIT\nLAB /\n", "4:other-units", std::nullopt},
        {densities + "FILEUNIT\nMETRIC\n", "5:record-not-closed", std::nullopt},
        {"DENSITY\r800 1000 1 /\r", "1:carriage-returns"},
        {std::string("D\0E\0N\0S\0", 8), "1:utf-16"},
    };
    for (const Case& each : cases) {
        const BlackOilOutcome outcome(each.text, each.units);
        EXPECT_EQ(outcome.told, each.told) << outcome.sentences << each.text;
        EXPECT_TRUE(outcome.result.empty());
        EXPECT_EQ(MessageIds(outcome.report), std::vector<std::int32_t>{1001});
        EXPECT_TRUE(outcome.report.HasErrors());
    }
    const BlackOilOutcome outcome(oil + "60 /\n/\n", Units::METRIC);
    EXPECT_EQ(outcome.report.GetMessages().front().GetText(),
              "line 5, keyword PVTO: expected a gas-oil ratio, a pressure, a volume factor and a "
              "viscosity, found '/' behind 1 of them.");
}

TEST(BlackOilKeywords, EachUnitInACommentContradictsTheOtherSystem) {
    const std::string metricUnits[] = {"bar", "barsa", "K",  "m",  "m3",
                                       "sm3", "rm3",   "kg", "kJ", "Metric"};
    const std::string fieldUnits[] = {"psi", "psia", "R",  "ft",  "Mscf",
                                      "stb", "rb",   "lb", "Btu", "Field"};
    for (const bool isField : {false, true}) {
        for (const std::string& unit : isField ? fieldUnits : metricUnits) {
            const std::string text = "-- Units: " + unit + '\n' + densities;
            const BlackOilOutcome same(text, isField ? Units::FIELD : Units::METRIC);
            const BlackOilOutcome other(text, isField ? Units::METRIC : Units::FIELD);
            EXPECT_EQ(same.told, "") << unit;
            EXPECT_EQ(other.told, "1:units-contradicted") << unit;
        }
    }
}

TEST(BlackOilKeywords, ATableThatIsCutAnywhere) {
    const std::string text = ReadData("black-oil/live-oil-wet-gas-metric.txt");
    for (std::size_t size = 0; size + 1 < text.size(); ++size) {
        const BlackOilOutcome outcome(text.substr(0, size), std::nullopt);
        EXPECT_TRUE(outcome.report.HasErrors() && outcome.result.empty()) << text.substr(0, size);
    }
    const std::string typed = "PVTO\n50 100 1.25 0.5\n150 1.2 0.55 /\n60 120 1.3 0.45 /\n/\n";
    for (std::size_t size = 0; size + 2 < typed.size(); ++size) {
        const BlackOilOutcome outcome(typed.substr(0, size), Units::METRIC);
        EXPECT_TRUE(outcome.report.HasErrors() && outcome.result.empty()) << typed.substr(0, size);
    }
}

TEST(BlackOilKeywords, FilesAndWhatTheyInclude) {
    const TemporaryFolder folder;
    Diagnosed diagnosed;
    IO::BlackOilKeywordReader reader;
    reader.SetDiagnosticSink(diagnosed.Sink());
    Regions regions(1);
    const auto read = [&](const std::string& path) {
        const bool hasErrors = reader.Read(path, regions, Units::METRIC).HasErrors();
        EXPECT_EQ(hasErrors, regions.empty());
        return diagnosed.Take();
    };
    std::filesystem::create_directory(folder.Path() / "pvt");
    folder.Write("pvt/rows.inc", "50 100 1.2 0.5 /\n60 120 1.3 0.4 /\n/\n");
    folder.Write("pvt/oil.inc", densities + "PVTO\nINCLUDE\n'rows.inc' /\n");
    EXPECT_EQ(read(folder.Write("a", "INCLUDE\n'pvt\\oil.inc' /\nPVDO\n100 1 1 /\n")), "");
    EXPECT_EQ(Summary(regions), "[800 0 oil 50: 100; 60: 120; dead 100;]");
    std::istringstream stream("INCLUDE\n'pvt/oil.inc' /\n");
    EXPECT_FALSE(reader.Read(stream, regions, Units::METRIC, folder / "of.stream").HasErrors());

    folder.Write("pvt/oil.inc", "PVTO\n50 100 1.2 0.5\n");
    EXPECT_EQ(read(folder / "a"), "3:record-not-closed");
    read(folder / "a");
    EXPECT_TRUE(diagnosed.All().empty());
    folder.Write("pvt/oil.inc", "INCLUDE\n'../a' /\n");
    EXPECT_EQ(read(folder / "a"), "1:include");
    EXPECT_EQ(read(folder.Path().string()), "0:cant-open");
    EXPECT_EQ(read(folder / "missing"), "0:cant-open");
    EXPECT_EQ(read(folder.Write("b", "INCLUDE\n/\n")), "1:include");
    for (int i = 0; i < 17; ++i) {
        folder.Write(std::to_string(i), "INCLUDE\n'" + std::to_string(i + 1) + "' /\n");
    }
    folder.Write("17", densities + "PVDO\n100 1 1 /\n");
    EXPECT_EQ(read(folder / "1"), "");
    EXPECT_EQ(read(folder / "0"), "1:include");
    std::string many = densities + "PVDO\n100 1 1 /\n";
    for (int i = 0; i < 10'000; ++i) {
        many += "INCLUDE\n'empty' /\n";
    }
    folder.Write("empty", "");
    EXPECT_EQ(read(folder.Write("many", many)), "");
    EXPECT_EQ(read(folder.Write("many", many + "INCLUDE\n'empty' /\n")), "20005:include");

    std::string text = densities + "PVDO\n";
    for (int i = 1; i < 20'000; ++i) {
        text += std::to_string(i) + " 1 1\n";
    }
    FailingInput failing(text, text.size());
    std::istream failingStream(&failing);
    EXPECT_TRUE(reader.Read(failingStream, regions, Units::METRIC).HasErrors());
    EXPECT_EQ(diagnosed.All().back().code, "file.read-failed");
}

TEST(KValuesKeywords, HeadingsAndRows) {
    struct Case {
        std::string text;
        const char* summary; // temperature, names and rows of each table
        const char* told;
    };
    const std::string heading = "-- Components: C1 C2\n";
    const Case cases[] = {
        {"--Temperature (F): 80.33\n" + heading + "KVTABLE\n100 2.5 0.75 / first\n-- again\n" +
             "-- Temperature (F): -459.67\n50 2 1 100 2*1 /\nFILEUNIT\nFIELD /\n",
         "300 C1 C2 (2.5 0.75) 0 C1 C2 (2 1) (1 1) ", ""},
        {"KVTABLE\n100 2.5 /\n" + heading + metric, "", "1:no-names"},
        {"CNAMES\nC1 'C 2' /\nKVTABLE\n100 2.5 1\n/\n/\n" + metric, "-1 C1 C 2 (2.5 1) ",
         "6:no-rows"},
        {heading + "KVTABLE\n100 2.5\n/\n" + metric, "", "4:row-length"},
        {heading + "KVTABLE\n100 2.5 1 2\n/\n" + metric, "", "4:row-length"},
        {heading + "KVTABLE\n100 9*2.5\n/\n" + metric, "", "3:repeat-count"},
        {"-- Components: C1 C1\nKVTABLE\n100 2 2\n/\n" + metric, "", "1:name-twice"},
        {heading + heading + "KVTABLE\n100 2 2\n/\n" + metric, "", "2:name-twice"},
        {"-- Temperature (K): warm\n" + heading, "", "1:not-a-number"},
        {"-- Temperature (F): 80\n" + heading + "KVTABLE\n100 2 2\n/\n" + metric, "",
         "1:units-contradicted"},
        {heading + metric, "", "4:no-table"},
    };
    for (const Case& each : cases) {
        const Outcome<IO::KValuesKeywordReader, std::vector<KValuesTable>> outcome(each.text,
                                                                                   std::nullopt);
        std::ostringstream summary;
        for (const KValuesTable& table : outcome.result) {
            summary << table.Temperature << ' ';
            for (const std::string& name : table.GetComponents()) {
                summary << name << ' ';
            }
            for (std::uint64_t i = 0; i < table.GetTableSize(); ++i) {
                const auto& record = table.GetRecord(i);
                summary << '(' << record.at(1) << ' ' << record.at(2) << ") ";
            }
        }
        EXPECT_EQ(outcome.told, each.told) << outcome.sentences << each.text;
        EXPECT_EQ(summary.str(), each.summary) << each.text;
        EXPECT_EQ(outcome.report.HasErrors(), outcome.result.empty());
    }
}

TEST(ThermalKeywords, WhatIsMissingTwiceOrTooShort) {
    const std::string head = "CNAMES\nC1 C2 /\nMW\n16 30 /\n";
    std::string gas = ReadData("thermal/fit-metric.txt");
    const std::size_t value = gas.find('\t', gas.find("SPECHG"));
    gas.replace(value + 1, 1, "7");
    struct Case {
        std::string text;
        const char* told;
    };
    const Case cases[] = {
        {gas, "0:gas-heat"},
        {"MW\n16 30 /\n" + head + metric, "1:no-names"},
        {"NCOMPS\n3 /\n" + head + metric, "9:count-differs"},
        {"NCOMPS\n1000000000 /\nCNAMES\nC1 C1 /\n" + metric, "4:name-twice"},
        {head + "TCRIT\n190 /\n" + metric, "6:row-length"},
        {head + "TCRIT\n190 300 400 /\n" + metric, "6:row-length"},
        {head + "KVCR\n2*1 2*2 2*3 2*4 1 /\n" + metric, "6:row-length"},
        {head + "KVCR\n2*1 2*2 2*3 2*4 1000000000*5 /\n" + metric, "6:repeat-count"},
        {"NCOMPS\ntwo /\n" + metric, "2:not-a-number"},
        {"CNAMES\nC1 2.5 /\n" + metric, "2:not-a-name"},
        {"ECHO\n1 2 /\n" + metric, "5:no-table"},
    };
    for (const Case& each : cases) {
        const Outcome<IO::ThermalKeywordReader, ThermalExportTable> outcome(each.text,
                                                                            std::nullopt);
        EXPECT_EQ(outcome.told, each.told) << outcome.sentences << each.text;
        EXPECT_EQ(outcome.report.HasErrors(), outcome.result.ComponentNames.empty());
    }
    const Outcome<IO::ThermalKeywordReader, ThermalExportTable> stray(
        "7 /\n" + head + " 3*\n1 2 /\nZI\n1 0 /\n" + metric + "9 9\nECHO\n9 /\n", std::nullopt);
    EXPECT_EQ(stray.told.substr(0, 48), "1:stray-numbers 6:stray-numbers 12:stray-numbers");
    const Outcome<IO::ThermalKeywordReader, ThermalExportTable> typed(
        head + "MW\n17 2* /\nSPECHG\n2*3 /\nSPECHH\n0.01 1* /\n" + metric, std::nullopt);
    EXPECT_EQ(typed.told.substr(0, 14), "5:second-time ");
    const Outcome<IO::ThermalKeywordReader, ThermalExportTable> partly(
        head + "MW\n17 1* /\nSTCOND\n0 1 /\nSPECHG\n2*3 /\nSPECHH\n2*.01 /\n" + metric,
        std::nullopt);
    EXPECT_EQ(partly.told.substr(0, 35), "5:second-time 6:default-is-zero 0:m");
    EXPECT_EQ(partly.result.MolecularWeights, (std::vector<double>{17.0, 0.0}));
    EXPECT_NEAR(partly.result.SpecificHeatB.at(0), 0.17, 1e-12);
    EXPECT_NEAR(partly.result.SpecificHeatA.at(0), 17 * 3 - 0.17 * 273.15, 1e-10);
    // No numbers give that value to its last digit; the slope is right all the same.
    const Outcome<IO::ThermalKeywordReader, ThermalExportTable> absurd(
        head + "STCOND\n1e30 1 /\nSPECHG\n2*3 /\nSPECHH\n2*.01 /\n" + metric, std::nullopt);
    EXPECT_NEAR(absurd.result.SpecificHeatB.at(0), 0.16, 1e-12);
    EXPECT_NE(partly.sentences.find("the line through them"), std::string::npos);
    EXPECT_NE(partly.sentences.find("it has no heat capacity"), std::string::npos);
}

TEST(DepthAndCompositionKeywords, RowsOfFractions) {
    struct Case {
        std::string text;
        const char* summary; // depth: fractions; of each row
        const char* told;
    };
    const Case cases[] = {
        {"ZMFVD\n2000 0.7 2*.1 .1\n2100 .6 0.4 0 0/\n", "2000: 0.7 0.1 0.1 0.1 2100: 0.6 0.4 0 0 ",
         ""},
        {"ZMFVD\n2000 0.7\n0.3\n\n2100 0.6\n0.4\n\n/\n", "2000: 0.7 0.3 2100: 0.6 0.4 ", ""},
        {"NCOMPS\n2 /\nZMFVD\n2000\n.7\n.3\n2100 .6 .4 /\n", "2000: 0.7 0.3 2100: 0.6 0.4 ", ""},
        {"CNAMES\nC1 /\nRSVD\n2000 90 2100 80 /\n2000 70 /\n/\n", "2000: 90 2100: 80 2000: 70 ",
         "6:no-rows"},
        {"PBVD\n2100 90\n2000 80\n/\n", "2100: 9e+06 2000: 8e+06 ", "3:depth-order"},
        {"ZMFVD\n2000\n.7\n.3\n2100\n.6\n.4 /\n", "", "2:no-row-end"},
        {"ZMFVD\n2000 .7 .3\n2100 .6 .4 0\n/\n", "", "3:row-length"},
        {"ZMFVD\n2000 .7 .3\n2100 .6\n.4 /\n", "", "3:row-length"},
        {"ZMFVD\n2000 .7 .3\n2100 .6 /\n", "", "3:row-length"},
        {"ZMFVD\n2000 1000000000*.7 /\n", "", "2:repeat-count"},
        {"NCOMPS\n2 /\nCNAMES\nC1 /\nZMFVD\n2000 1 /\n", "", "4:count-differs"},
        {"NCOMPS\n0 /\nZMFVD\n2000 .7\n2100 .6 /\n", "", "4:row-length"},
        {"PDVD\n2000 90 2100 /\n", "", "2:row-length"},
    };
    for (const Case& each : cases) {
        const Outcome<IO::DepthTableReader, std::vector<IO::DepthTable>> outcome(each.text,
                                                                                 Units::METRIC);
        std::ostringstream summary;
        for (const IO::DepthTable& table : outcome.result) {
            for (std::size_t i = 0; i < table.Depths.size(); ++i) {
                summary << table.Depths[i] << ": ";
                for (const double fraction : table.Values[i]) {
                    summary << fraction << ' ';
                }
            }
        }
        EXPECT_EQ(outcome.told, each.told) << outcome.sentences << each.text;
        EXPECT_EQ(summary.str(), each.summary) << each.text;
    }
    using Compositions = Outcome<IO::CompositionTableReader, std::vector<IO::CompositionTable>>;
    EXPECT_EQ(Compositions("YMFVP\n200 .9 .1 /\nXMFVP\n210 .5 .5 /\n", Units::METRIC).told,
              "4:pressures-differ");
    EXPECT_EQ(Compositions("YMFVP\n200 .9 .1 /\nXMFVP\n/\n", Units::METRIC).told,
              "4:pressures-differ");
    const Compositions alone("YMFVP\n200 .9 .1 /\n", Units::METRIC);
    EXPECT_EQ(alone.told, "0:missing-keyword");
    EXPECT_TRUE(alone.result.at(0).LiquidFractions.empty());
}

// Each keyword says in its own words what it should have, and that it stands there twice.
TEST(KeywordFiles, EveryKeywordTellsWhatItHas) {
    using DepthTables = std::vector<IO::DepthTable>;
    using Compositions = std::vector<IO::CompositionTable>;
    const std::string text = "\nx /\n";
    const auto refuses = [](const std::string& keyword, const auto& outcome) {
        EXPECT_TRUE(outcome.told.ends_with(":not-a-number")) << keyword << ' ' << outcome.told;
    };
    for (const std::string keyword : {"DENSITY", "RSCONSTT", "PVTO", "PVDO", "PVTG", "PVDG"}) {
        refuses(keyword, BlackOilOutcome(keyword + text, Units::METRIC));
    }
    for (const std::string keyword : {"ZMFVD", "PBVD", "PDVD", "RSVD", "RVVD"}) {
        refuses(keyword, Outcome<IO::DepthTableReader, DepthTables>(keyword + text, Units::FIELD));
    }
    for (const std::string keyword : {"YMFVP", "XMFVP"}) {
        refuses(keyword,
                Outcome<IO::CompositionTableReader, Compositions>(keyword + text, Units::FIELD));
    }
    using Thermal = Outcome<IO::ThermalKeywordReader, ThermalExportTable>;
    const std::string names = "CNAMES\nC1 /\n";
    for (const std::string keyword : {"STCOND", "NCOMPS", "KVCR", "MW", "TCRIT", "PCRIT", "TREFT",
                                      "PREFT", "DREFT", "ACF", "SPECHA", "SPECHB", "SPECHG",
                                      "SPECHH", "HEATVAPS", "CREF", "THERMEX1", "ZFACTOR", "ZI"}) {
        refuses(keyword, Thermal(names + keyword + text, Units::METRIC));
        const std::string record = keyword + (keyword == "KVCR"     ? "\n5*1 /\n"
                                              : keyword == "STCOND" ? "\n2*1 /\n"
                                                                    : "\n1 /\n");
        EXPECT_TRUE(
            Thermal(names + record + record, Units::METRIC).told.starts_with("5:second-time"))
            << keyword;
    }
    EXPECT_EQ(Thermal(names + names, Units::METRIC).told, "3:name-twice");
    const std::string missing = Thermal(names, Units::METRIC).told;
    EXPECT_EQ(std::ranges::count(missing, ':'), 18) << "each but those of the fit together";
}

// Writers of several tables: what is read comes back whole, and one alone is the one of old.
TEST(KeywordFiles, SeveralTablesAreWrittenTogether) {
    const auto sample = [](const char* name) {
        return ReadFile(std::string(FLUIDBENCH_EXAMPLE_DATA "/") + name);
    };
    const Form precise{Units::METRIC, true, BlackOilWriter::LIVE_OIL_DRY_GAS};
    const auto regions =
        ReadSound<IO::BlackOilKeywordReader, Regions>(sample("two-region-black-oil.inc"));
    const auto writeRegions = [&](const Regions& written) {
        std::ostringstream out;
        BlackOilWriter(true).ExportRegions(written, out, precise.units, precise.tables);
        return out.str();
    };
    ASSERT_EQ(regions.size(), 2u);
    EXPECT_EQ(writeRegions({regions[1]}), Write(regions[1], precise));
    const auto again = ReadSound<IO::BlackOilKeywordReader, Regions>(writeRegions(regions));
    ASSERT_EQ(again.size(), 2u);
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_EQ(Write(again[i], precise), Write(regions[i], precise));
    }

    using Tables = std::vector<KValuesTable>;
    const auto tables =
        ReadSound<IO::KValuesKeywordReader, Tables>(sample("two-temperatures-k-values.inc"));
    std::ostringstream out;
    IO::KValuesExportFileWriter(true).ExportTables(tables, out, Units::FIELD);
    const auto tablesAgain = ReadSound<IO::KValuesKeywordReader, Tables>(out.str());
    ASSERT_EQ(tablesAgain.size(), 2u);
    EXPECT_EQ(Write(tablesAgain[1], precise), Write(tables[1], precise));

    using DepthTables = std::vector<IO::DepthTable>;
    const auto ofDepth =
        ReadSound<IO::DepthTableReader, DepthTables>(sample("north-flank-depth.inc"));
    for (const Units::UNIT_TYPE units : {Units::METRIC, Units::FIELD}) {
        std::ostringstream written;
        IO::PVOFileWriter().ExportDepthTables(ofDepth, written, units);
        const auto depthAgain = ReadSound<IO::DepthTableReader, DepthTables>(written.str());
        ASSERT_EQ(depthAgain.size(), ofDepth.size());
        for (std::size_t i = 0; i < ofDepth.size(); ++i) {
            EXPECT_EQ(depthAgain[i].Keyword, ofDepth[i].Keyword);
            EXPECT_NEAR(depthAgain[i].Values[1][0], ofDepth[i].Values[1][0],
                        1e-5 * ofDepth[i].Values[1][0]);
        }
    }
    try {
        IO::PVOFileWriter().ExportDepthTables({{"SWFN", {}, {}}}, out, Units::METRIC);
        ADD_FAILURE();
    } catch (const std::invalid_argument& error) {
        EXPECT_STREQ(error.what(), "'SWFN' is no table against depth");
    }
}

TEST(KeywordFiles, SamplesAreSound) {
    const auto sample = [](const char* name) {
        return ReadFile(FLUIDBENCH_EXAMPLE_DATA + ("/" + std::string(name)));
    };
    EXPECT_EQ(
        Summary(ReadSound<IO::BlackOilKeywordReader, Regions>(sample("two-region-black-oil.inc"))),
        "[830 0 oil 30: 45; 75: 98 160 220; dry 50; 100; 200;]"
        "[805 0 oil 60: 80 150 210; 123: 158.8; dry 50; 100; 200;]");
    const auto kValues = ReadSound<IO::KValuesKeywordReader, std::vector<KValuesTable>>(
        sample("two-temperatures-k-values.inc"));
    EXPECT_EQ(kValues.at(1).GetTableSize(), 3U);
    EXPECT_NEAR(kValues[1].Temperature, 344.261, 1e-3);
    EXPECT_TRUE((ReadSound<IO::ThermalKeywordReader, ThermalExportTable>(
                     sample("two-component-thermal.inc")))
                    .HasCrookstonData());
    EXPECT_EQ((ReadSound<IO::DepthTableReader, std::vector<IO::DepthTable>>(
                   sample("north-flank-depth.inc")))
                  .size(),
              3U);
    EXPECT_EQ((ReadSound<IO::CompositionTableReader, std::vector<IO::CompositionTable>>(
                   sample("north-flank-compositions.inc")))
                  .size(),
              1U);
}
