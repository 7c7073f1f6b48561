// Every allocation of an operation fails in turn, and the object is what it was before.
#include "CapturedLog.h"
#include "FailingAllocations.h"
#include "PublicOperations.h"

#include "FluidBench/Common/CommonPlottingObject.h"
#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Common/PTline.h"
#include "FluidBench/Experiments/ExperimentResults.h"
#include "FluidBench/Experiments/ObservedExperiment.h"
#include "FluidBench/Model/BlackOilTable.h"
#include "FluidBench/Model/Characterisation.h"
#include "FluidBench/Model/CompositionalFluid.h"
#include "FluidBench/Model/KValuesTable.h"
#include "FluidBench/Model/ThermalExportTable.h"
#include "Kes/SimFluid/StdDepthTable.h"
#include "Kes/SimFluid/StdTemperatureTable.h"
#include "Kes/SimFluid/StdTracerModel.h"
#include "io/DFAReader.h"
#include "io/PhaseEnvelopeReaderWriter.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

using namespace Orv::FluidBench;
using namespace Orv::Kes::SimFluid;
using namespace FluidBenchTest;
using Model::FluidComponent;

namespace {

// Names too long to stand inside a string object.
const std::string first = "the first of the components";
const std::string second = "the second of the components";
const std::string third = "the third of the components";

void Tell(std::ostream& out, const Model::CompositionalFluid& fluid) {
    constexpr auto set = Common::pvtEnumBICType::ReservoirEoS;
    out << fluid.GetName() << ' ' << fluid.NumberOfComponents();
    const std::vector<std::string> names = fluid.ListComponents();
    const std::vector<std::string> globalNames = fluid.ListComponentsGlobalNames();
    for (std::size_t i = 0; i < names.size(); ++i) {
        out << "; " << names[i] << ' ' << fluid.GetComponentFraction(names[i]) << ' '
            << globalNames[i] << ' ' << fluid.GetComponentFractionByGlobalName(globalNames[i])
            << ' ' << fluid.GetOrderedComponents()[i].GetVcritViscosity();
        for (std::size_t j = 0; j < i; ++j) {
            out << ' ' << fluid.GetBIC(names[i], names[j], set);
        }
    }
    for (const std::string& name : {first, second, third, "global " + first}) {
        out << ' ' << fluid.HasComponentWithGlobalName(name);
    }
}

void Tell(std::ostream& out, const Model::BlackOilDataRecords& records) {
    for (std::uint64_t i = 0; i < records.GetTableSize(); ++i) {
        out << " record";
        for (std::uint64_t j = 0; j < records.GetRecordContentSize(i); ++j) {
            out << ' ' << records.GetPressure(i, j);
        }
    }
}

void Tell(std::ostream& out, const Model::BlackOilTable& table) {
    for (const auto* const records : {&table.GetLiveOilData(), &table.GetDeadOilData(),
                                      &table.GetWetGasData(), &table.GetDryGasData()}) {
        Tell(out, *records);
    }
}

void Tell(std::ostream& out, const Common::ErrorReport& report) {
    out << report.HasErrors();
    for (const Common::Message& message : report.GetMessages()) {
        out << ' ' << message.GetText() << message.GetParameters().size();
    }
}

void Tell(std::ostream& out, const Common::CommonPlottingObject& plot) {
    out << static_cast<int>(plot.GetXAxisType()) << plot.GetLines().size();
    for (const Common::Line& line : plot.GetLines()) {
        const int count = plot.NumberOfLines(line.GetType(), line.GetPhase());
        const Common::Line& last = plot.GetLine(line.GetType(), line.GetPhase(), count - 1);
        out << ' ' << line.GetName() << line.ViewPoints().size() << count << last.GetName();
    }
}

void Tell(std::ostream& out, const Common::PTline& line) {
    out << static_cast<int>(line.GetLineType());
    for (const auto& column : {line.GetPressures(), line.GetTemperatures()}) {
        out << ' ' << column.size() << ' ' << (column.empty() ? 0.0 : column.front());
    }
}

void Tell(std::ostream& out, const Model::KValuesTable& table) {
    out << table.GetComponents().size() << ' ' << table.GetComponents().back();
    for (std::uint64_t i = 0; i < table.GetTableSize(); ++i) {
        out << ' ' << table.GetRecord(i).back();
    }
}

void Tell(std::ostream& out, const Model::ThermalExportTable& table) {
    out << table.ComponentNames.size() << table.MolecularWeights.size() << table.GetZis().size()
        << table.HasCrookstonData() << table.GetCrookstonE().size();
}

void Tell(std::ostream& out, const std::vector<Experiments::Stage>& stages) {
    for (const Experiments::Stage& stage : stages) {
        out << " stage " << stage.Results->Depth.GetValue() << ' '
            << stage.LiquidPhase.Composition.size() << ' ';
        Tell(out, stage.Fluid);
    }
}

void Tell(std::ostream& out, const Experiments::ExperimentResults& results) {
    out << results.Failed << ' ' << results.ContactStage.Fluid.GetName();
    Tell(out, results.Stages);
}

void Tell(std::ostream& out, const Experiments::ObservedExperiment& experiment) {
    out << static_cast<int>(experiment.GetType());
    Tell(out, experiment.Stages);
}

void Tell(std::ostream& out, const StdDepthTable& table) {
    for (int row = 0; row < table.getNumRows(); ++row) {
        out << table.getDepth(row) << ' ' << table.getValue(row, table.getNumColumns() - 1) << ' ';
    }
}

void Tell(std::ostream& out, const StdTemperatureTable& table) {
    out << table.getNumTemperatures() << ' ' << table.getNumComponents();
    for (int row = 0; row < table.getNumTemperatures(); ++row) {
        out << ' ' << table.getTemperature(row) << ' '
            << table.getProperty(row, table.getNumComponents() - 1);
    }
}

void Tell(std::ostream& out, const IO::DFAReader& reader) {
    for (const IO::WellData& well : reader.GetExtractedData()) {
        out << well.name << ' ' << well.depths.front() << ' ' << well.pressures.size() << ' '
            << well.compositions.size() << ' ';
    }
}

template <typename Object>
std::string Text(const Object& object) {
    std::ostringstream out;
    Tell(out, object);
    return out.str();
}

// Changes a copy of the sample with each allocation failing, and then without.
template <typename Object, typename Change>
void ChangesAsAWhole(const char* what, const Object& sample, Change change) {
    SCOPED_TRACE(what);
    Object changed(sample);
    change(changed);
    ASSERT_NE(Text(changed), Text(sample));
    const std::uint64_t failures = ForEachAllocation([&](FailingAllocations& memory) {
        Object object(sample);
        if (!memory.Run([&] { change(object); })) {
            EXPECT_EQ(Text(object), Text(sample));
            change(object);
        }
        EXPECT_EQ(Text(object), Text(changed));
    });
    EXPECT_GT(failures, 0U);
}

template <typename Object>
void IsAssignedAsAWhole(const char* what, const Object& sample, const Object& other) {
    ChangesAsAWhole(what, sample, [&](Object& object) { object = other; });
}

Model::CompositionalFluid Fluid() {
    Model::CompositionalFluid fluid("a fluid with two components");
    fluid.SetComponent(FluidComponent(first), 0.25);
    fluid.SetComponent(FluidComponent(second), 0.75);
    fluid.SetBIC(second, first, 0.125);
    return fluid;
}

Model::BlackOilDataRecords Records() {
    Model::BlackOilDataRecords records;
    records.AddRecord({{1.0, 2.0, 3.0, 4.0}, {2.0, 2.0, 3.0, 4.0}});
    records.AddRecord({{3.0, 2.0, 3.0, 4.0}});
    return records;
}

Common::Line Line(const std::string& name, Common::Line::Phase phase) {
    return {name, {1.0, 2.0}, {3.0, 4.0}, Common::Line::Type::PhaseCurve, phase};
}

Experiments::Stage Stage(double depth) {
    Experiments::Stage stage;
    stage.Results->Depth.Set(depth);
    stage.LiquidPhase.Set({depth, 0.5});
    stage.Fluid = Fluid();
    return stage;
}

} // namespace

TEST(Torture, Fluids) {
    const Model::CompositionalFluid fluid = Fluid();
    using F = Model::CompositionalFluid;
    ChangesAsAWhole("a component", fluid,
                    [](F& object) { object.SetComponent(FluidComponent(third), 0.5); });
    ChangesAsAWhole("a component again", fluid,
                    [](F& object) { object.SetComponent(FluidComponent(first), 0.5); });
    ChangesAsAWhole("a global name", fluid,
                    [](F& object) { object.SetGlobalName(first, "global " + first); });
    FluidComponent incomplete(second);
    incomplete.SetVcrit(1e-4);
    F known = fluid;
    known.SetComponent(incomplete, 0.5);
    ChangesAsAWhole("what is missing", known, [](F& object) {
        Model::Characterisation().CharacteriseFor(object, Model::CharacterisationControl());
    });
    F three = fluid;
    three.SetComponent(FluidComponent(third), 0.5);
    ChangesAsAWhole("a coefficient", three, [](F& object) { object.SetBIC(first, third, 0.5); });
    IsAssignedAsAWhole("all", fluid, three);
}

TEST(Torture, Tables) {
    using Records = Model::BlackOilDataRecords;
    const Records records = ::Records();
    ChangesAsAWhole("an entry", records, [](Records& object) { object.AddEntry(0, 9, 0, 0, 0); });
    ChangesAsAWhole("a first entry", records,
                    [](Records& object) { object.AddEntry(2, 9, 0, 0, 0); });
    ChangesAsAWhole("a record", records, [](Records& object) {
        object.AddRecord({{9.0, 0.0, 0.0, 0.0}, {10.0, 0.0, 0.0, 0.0}});
    });
    IsAssignedAsAWhole("records", Records(), records);
    Model::BlackOilTable blackOil;
    blackOil.SetWetGasData(records);
    blackOil.SetDryGasData(records);
    IsAssignedAsAWhole("a black-oil table", Model::BlackOilTable(), blackOil);

    Model::KValuesTable kValues({first, second});
    kValues.AddRecord({1.0, 2.0, 3.0});
    using K = Model::KValuesTable;
    ChangesAsAWhole("a record", kValues, [](K& object) { object.AddRecord({1.0, 2.0, 9.0}); });
    IsAssignedAsAWhole("a K-value table", kValues, K({first, second, third}));

    Model::ThermalExportTable thermal;
    thermal.ComponentNames = {first, second};
    thermal.MolecularWeights = {1.0, 2.0};
    thermal.SetZis({0.5, 0.5});
    thermal.SetCrookston({1.0}, {1.0}, {1.0}, {1.0}, {1.0});
    IsAssignedAsAWhole("a thermal table", Model::ThermalExportTable(), thermal);
}

TEST(Torture, Reports) {
    using Common::Message;
    const auto error = [](const std::string& text) {
        return Message(Common::pvtEnumErrorType::General, Common::pvtEnumErrorCode::Error, 1001,
                       std::vector<std::string>{text});
    };
    Common::ErrorReport report;
    ChangesAsAWhole("a message", report,
                    [&](Common::ErrorReport& object) { object.Add(error(first)); });
    report.Add(error(first));
    Common::ErrorReport other;
    other.Add(error(second));
    other.Add(error(third));
    IsAssignedAsAWhole("a report", report, other);
}

TEST(Torture, Plots) {
    using Common::CommonPlottingObject;
    using Phase = Common::Line::Phase;
    using Axis = CommonPlottingObject::AxisType;
    CommonPlottingObject plot(Axis::Temperature, Axis::Pressure);
    plot.AddLine(Line(first, Phase::Dew));
    for (const Phase phase : {Phase::Bubble, Phase::Dew}) {
        ChangesAsAWhole("a line", plot,
                        [&](CommonPlottingObject& object) { object.AddLine(Line(second, phase)); });
    }
    CommonPlottingObject other(Axis::Density, Axis::Pressure);
    other.AddLine(Line(second, Phase::Ice));
    other.AddLine(Line(third, Phase::Ice));
    IsAssignedAsAWhole("a plot", plot, other);

    using Common::PTline;
    const PTline line(PTline::PTlineIdentifier::Dew, 0.0);
    const std::vector<double> column = {1.0, 2.0};
    ChangesAsAWhole("columns", line, [&](PTline& object) { object.SetLine(column, column); });
    ChangesAsAWhole("new columns", line, [](PTline& object) { object.SetLine({1.0, 2.0}, {3.0}); });
    PTline quality(PTline::PTlineIdentifier::Quality, 0.5);
    quality.SetLine({1.0}, {2.0});
    IsAssignedAsAWhole("a line of columns", line, quality);
}

TEST(Torture, Experiments) {
    Experiments::ExperimentResults results;
    results.Stages = {Stage(1.0), Stage(2.0)};
    results.ContactStage = Stage(3.0);
    IsAssignedAsAWhole("results", Experiments::ExperimentResults(), results);
    Experiments::ObservedExperiment observed(Experiments::ExperimentType::DownholeFluidAnalysis);
    observed.Stages = {Stage(1.0)};
    Experiments::ObservedExperiment other(Experiments::ExperimentType(0));
    other.Stages = {Stage(2.0), Stage(3.0)};
    IsAssignedAsAWhole("an experiment", observed, other);
    ChangesAsAWhole("a stage of it", observed, [](Experiments::ObservedExperiment& object) {
        object.Stages.push_back(Stage(4.0));
    });
    ChangesAsAWhole("a stage anew", observed, [&](Experiments::ObservedExperiment& object) {
        object.Stages.front() = other.Stages.front();
    });
}

TEST(Torture, TablesOfTheSimulator) {
    StdDepthTable depths;
    depths.clear(3);
    depths.addRow(1000.0);
    ChangesAsAWhole("a row", depths, [](StdDepthTable& object) { object.addRow(2000.0); });
    IsAssignedAsAWhole("a depth table", StdDepthTable(), depths);

    StdTemperatureTable temperatures;
    temperatures.setNumComponents(2);
    temperatures.setNumTemperatures(2);
    using T = StdTemperatureTable;
    ChangesAsAWhole("rows", temperatures, [](T& object) { object.setNumTemperatures(4); });
    ChangesAsAWhole("columns", temperatures, [](T& object) { object.setNumComponents(3); });
    IsAssignedAsAWhole("a temperature table", StdTemperatureTable(), temperatures);

    ForEachAllocation([](FailingAllocations& memory) {
        StdTracerModel tracer(first);
        const bool made = memory.Run([&] { tracer.makeDepthTable(4); });
        EXPECT_EQ(tracer.hasDepthTablesOfType(4), made);
    });
}

TEST(Torture, Readers) {
    const auto importWell = [](IO::DFAReader& reader, const std::string& well) {
        const std::string header = "BEGIN HEADER\nEND HEADER\n";
        std::string text = header;
        for (const char* const depth : {"2", "1"}) {
            text += "\"" + well + "\" " + depth + " 1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 7 8 9\"S\"\n";
        }
        std::istringstream main(text);
        std::istringstream pressures(text);
        EXPECT_TRUE(reader.Import(main, pressures));
    };
    IO::DFAReader reader;
    importWell(reader, first);
    ChangesAsAWhole("an import", reader,
                    [&](IO::DFAReader& object) { importWell(object, second); });
    IO::DFAReader other;
    importWell(other, third);
    importWell(other, second);
    IsAssignedAsAWhole("a reader", reader, other);

    const std::string block = "Flash\n\n\n\nBubble,,Dew,,Critical point,,\nT,P,\n1,2,3,4,5,6,\n\n";
    const std::uint64_t failures = ForEachAllocation([&](FailingAllocations& memory) {
        IO::PhaseEnvelopeReaderWriter file;
        std::istringstream text(block + block);
        std::vector<Common::CommonPlottingObject> plots;
        std::vector<std::string> messages;
        const bool isDone = memory.Run([&] { EXPECT_TRUE(file.Read(text, plots, messages)); });
        EXPECT_EQ(plots.size(), isDone ? 2U : 0U);
        EXPECT_EQ(messages.size(), isDone ? 1U : 0U);
    });
    EXPECT_GT(failures, 10U);
}

// Whatever is refused, a reader says so or throws, and reads well the next time.
TEST(Torture, EveryReader) {
    const CapturedLog log;
    for (const ReadOperation& each : ReadOperations()) {
        SCOPED_TRACE(each.name);
        const Reading sound = each.make();
        ASSERT_TRUE(sound.read());
        const std::string expected = sound.text();
        ASSERT_NE(expected, each.make().text());
        const std::uint64_t failures = ForEachAllocation([&](FailingAllocations& memory) {
            const Reading reading = each.make();
            bool isRead = false;
            if (memory.Run([&] { isRead = reading.read(); }) && isRead) {
                EXPECT_EQ(reading.text(), expected);
            }
            const Reading next = memory.HaveFailed() ? reading : each.make();
            EXPECT_TRUE(next.read());
        });
        EXPECT_GT(failures, 10U);
    }
}

// A stream never looks good when the operation went without something.
TEST(Torture, EveryWriter) {
    for (const WriteOperation& each : WriteOperations()) {
        SCOPED_TRACE(each.name);
        std::ostringstream sound;
        const bool hasErrors = each.toStream(sound).HasErrors();
        ForEachAllocation([&](FailingAllocations& memory) {
            std::ostringstream out;
            bool isWritten = false;
            if (memory.Run([&] { isWritten = !each.toStream(out).HasErrors() && out.good(); }) &&
                isWritten) {
                EXPECT_EQ(out.str(), sound.str());
            }
            std::ostringstream next;
            EXPECT_EQ(each.toStream(next).HasErrors(), hasErrors);
            EXPECT_EQ(next.str(), sound.str());
        });
    }
}
