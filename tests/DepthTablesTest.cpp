// Depth variation tables: whole files, where the contact goes, and which rows there are.
#include "TestSupport.h"
#include "io/PVOFileWriter.h"

#include <limits>
#include <sstream>

using namespace Orv::FluidBench;
using namespace FluidBenchTest;
using Common::Units;
using Experiments::ExperimentResults;
using Experiments::MSTExperiment;
using Experiments::Stage;
using Model::CompositionalFluid;
using Model::FluidComponent;

namespace {

Stage StageAt(double depth, double fractionOfC1, double saturationBar) {
    Stage stage;
    stage.Results->Depth = {true, depth};
    stage.Results->SaturationPressure = {true, saturationBar * 1e5};
    stage.Results->GasOilRatio = {true, 1.0};
    stage.Fluid.SetComponent(FluidComponent("C1"), fractionOfC1);
    return stage;
}

// A gas column over a contact at 2050 m. The fluid of the contact lacks the component C10.
ExperimentResults GasOverOil() {
    ExperimentResults results;
    results.Stages = {StageAt(2000.0, 0.7, 312.5), StageAt(2100.0, 0.65, 301.25)};
    results.ContactStage = StageAt(2050.0, 0.6525, 305.0);
    results.Stages[0].Fluid.SetComponent(FluidComponent("C10"), 0.3);
    results.Stages[1].Fluid.SetComponent(FluidComponent("C10"), 0.35);
    return results;
}

// A column without a contact, by depth.
ExperimentResults Column(const std::vector<double>& depths) {
    ExperimentResults results;
    for (const double depth : depths) {
        results.Stages.push_back(StageAt(depth, 1.0, 300.0));
    }
    return results;
}

Stage SeparatorStage(double gasOilRatio) {
    Stage stage;
    stage.Results->GasOilRatio = {true, gasOilRatio};
    return stage;
}

// A first separator stage by the fluid's share of C1, and a second one without a ratio between it
// and the last.
ExperimentResults Separate(const CompositionalFluid& fluid, const std::vector<Stage>& stages) {
    EXPECT_EQ(stages.size(), 2U);
    const double share = fluid.GetComponentFraction("C1");
    ExperimentResults run;
    run.Stages = {SeparatorStage(share > 0.69    ? 2400.0
                                 : share > 0.651 ? 80.5
                                                 : 75.25),
                  Stage(), SeparatorStage(100.0)};
    return run;
}

// Each table's keyword and the depths of its rows: "PDVD 2000 | PBVD 2050 2100".
std::string Summary(const std::string& file) {
    std::istringstream lines(file);
    std::string summary;
    for (std::string line; std::getline(lines, line) && line != "FILEUNIT";) {
        if (line.ends_with("VD")) {
            summary += (summary.empty() ? "" : " | ") + line;
        } else if (line.find('\t') != std::string::npos) {
            summary += line.substr(line.find_last_of(' ', line.find('\t')), line.find('\t'));
            summary.erase(summary.find('\t'));
        }
    }
    return summary;
}

class DepthTables : public testing::Test {
protected:
    std::string SaturationPressures(const ExperimentResults& results) {
        writer.ExportPSATVD(results, path, Units::METRIC);
        return ReadFile(path);
    }
    std::string Ratios(const ExperimentResults& results, const MSTExperiment& experiment,
                       Units::UNIT_TYPE units = Units::METRIC) {
        writer.ExportRSVD(results, experiment, {Stage(), Stage()}, path, units);
        return ReadFile(path);
    }

    TemporaryFolder folder;
    std::string path = folder / "table";
    IO::PVOFileWriter writer;
};

} // namespace

TEST_F(DepthTables, GasOverOil) {
    const ForeignGlobalLocale foreign;
    CompositionalFluid names("");
    names.SetComponent(FluidComponent("C1"), 1.0);
    names.SetComponent(FluidComponent("decane"), 0.0);
    names.SetGlobalName("decane", "C10");
    for (const auto units : {Units::METRIC, Units::FIELD}) {
        const std::string suffix = units == Units::METRIC ? "-metric.txt" : "-field.txt";
        writer.ExportZMFVD(names, GasOverOil(), path, units);
        EXPECT_EQ(ReadFile(path), ReadData("depth-tables/zmfvd" + suffix));
        writer.ExportPSATVD(GasOverOil(), path, units);
        EXPECT_EQ(ReadFile(path), ReadData("depth-tables/psatvd" + suffix));
        EXPECT_EQ(Ratios(GasOverOil(), MSTExperiment(Separate), units),
                  ReadData("depth-tables/rsvd" + suffix));
    }
    std::string lab = ReadData("depth-tables/psatvd-metric.txt");
    lab.replace(lab.find("METRIC"), 6, "FIELD");
    writer.ExportPSATVD(GasOverOil(), path, Units::LAB);
    EXPECT_EQ(ReadFile(path), lab);
}

TEST_F(DepthTables, TheContactAmongTheStages) {
    struct Case {
        double contact;
        std::vector<double> stages;
        const char* summary;
    };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Case cases[] = {
        {1990, {2000, 2100}, "PDVD | PBVD 1990 2000 2100"}, // above all
        {2200, {2000, 2100}, "PDVD 2000 2100 | PBVD 2200"}, // below all
        {2050, {2100, 2000}, "PDVD 2000 | PBVD 2050 2100"}, // put in, and all sorted
        {2100, {2100, 2000}, "PDVD | PBVD 2100 2000"},      // there already, and nothing sorted
        {2001, {2000, 2100}, "PDVD 2000 | PBVD 2100"},      // there within 0.1 %, but not reached
        {2099, {2000, 2100}, "PDVD 2000 | PBVD 2100"},
        {2002.003, {2000, 2100}, "PDVD 2000 | PBVD 2002 2100"}, // just beyond
        {2000.0009, {2000, 2100}, "PDVD | PBVD 2000 2100"},     // reached within 1 mm
        {2000.0011, {2000, 2100}, "PDVD 2000 | PBVD 2100"},
        {2050, {nan, 2000, nan, 2100}, "PDVD 2000 | PBVD 2050 2100 nan nan"},
    };
    for (const Case& each : cases) {
        ExperimentResults results = Column(each.stages);
        results.ContactStage = StageAt(each.contact, 1.0, 300.0);
        EXPECT_EQ(Summary(SaturationPressures(results)), each.summary) << each.contact;
    }
    EXPECT_EQ(Summary(SaturationPressures(Column({2100, 2000}))), "PDVD 2100 2000");
}

TEST_F(DepthTables, StagesWithoutAValueHaveNoRowAndDoNotSwitch) {
    ExperimentResults results = Column({2000, 2100, 2200});
    results.ContactStage = StageAt(2050.0, 1.0, 300.0);
    results.ContactStage.Results->SaturationPressure.IsSet = false;
    results.ContactStage.Results->GasOilRatio.IsSet = false;
    results.Stages[1].Results->SaturationPressure.IsSet = false;
    results.Stages[1].Results->GasOilRatio.IsSet = false;
    results.Stages[0].LiquidPhase.SetPresent(true);
    results.Stages[0].FluidState = Experiments::oilLikeFluidState;
    EXPECT_EQ(Summary(SaturationPressures(results)), "PBVD 2000 | PBVD 2200");
    EXPECT_EQ(Summary(Ratios(results, MSTExperiment([](const auto&, const auto&) {
                                 return ExperimentResults();
                             }))),
              "RSVD 2000 | RSVD 2200");
}

TEST_F(DepthTables, RunsWithoutARatioGiveZero) {
    enum class Run { Failed, NoStage, LastWithoutRatio, ZeroRatio };
    for (const Run kind : {Run::Failed, Run::NoStage, Run::LastWithoutRatio, Run::ZeroRatio}) {
        const MSTExperiment experiment([kind](const auto&, const auto&) {
            ExperimentResults run;
            run.Failed = kind == Run::Failed;
            if (kind != Run::NoStage) {
                run.Stages = {SeparatorStage(kind == Run::ZeroRatio ? 0.0 : 90.0)};
            }
            if (kind == Run::LastWithoutRatio) {
                run.Stages.emplace_back();
            }
            return run;
        });
        const char* const row = kind == Run::ZeroRatio ? "\n        2000\tinf\n" //
                                                       : "\n        2000\t0\n";
        EXPECT_NE(Ratios(Column({2000}), experiment).find(row), std::string::npos)
            << static_cast<int>(kind);
    }
}

TEST_F(DepthTables, EmptyResultsAndPathsThatCannotBeOpened) {
    const MSTExperiment experiment(Separate);
    const auto reports = [&](const std::string& fileName) {
        std::vector<Common::ErrorReport> all;
        all.push_back(writer.ExportPSATVD({}, fileName, Units::METRIC));
        EXPECT_TRUE(fileName != path || ReadFile(path).empty());
        all.push_back(writer.ExportRSVD({}, experiment, {}, fileName, Units::METRIC));
        EXPECT_TRUE(fileName != path || ReadFile(path).empty());
        all.push_back(writer.ExportZMFVD(CompositionalFluid(""), {}, fileName, Units::METRIC));
        return all;
    };
    folder.Write("table", "an older file");
    const auto empty = reports(path);
    for (const auto& report : {empty[0], empty[1]}) {
        ASSERT_EQ(MessageIds(report), std::vector<std::int32_t>{1001});
        EXPECT_EQ(report.GetMessages().front().GetParameters().front(), "Empty results");
        EXPECT_FALSE(report.HasErrors());
    }
    EXPECT_TRUE(empty[2].GetMessages().empty());
    EXPECT_EQ(ReadFile(path), "-- Units: m\nZMFVD\n-- \n-- Total Composition vs Depth\n-- \n"
                              "/\nFILEUNIT\nMETRIC\n/\n");
    for (const auto& report : reports(folder.Path().string())) {
        EXPECT_EQ(MessageIds(report), std::vector<std::int32_t>{3369});
    }
}
