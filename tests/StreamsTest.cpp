// What every writer does with a stream: the bytes of a file, failures that show, the format kept.
#include "FluidData.h"
#include "TestSupport.h"
#include "io/BlackOilExportFileWriter.h"
#include "io/KValuesExportFileWriter.h"
#include "io/PVOFileWriter.h"
#include "io/PhaseEnvelopeReaderWriter.h"
#include "io/ThermalExportFileWriter.h"

#include <functional>
#include <iomanip>
#include <sstream>

using namespace Orv::FluidBench;
using namespace FluidBenchTest;
using Common::ErrorReport;
using Common::Units;
using Experiments::ExperimentResults;
using Experiments::Stage;
using IO::BlackOilExportFileWriter;
using IO::KValuesExportFileWriter;
using IO::PVOFileWriter;
using IO::ThermalExportFileWriter;

namespace {

ExperimentResults Column(const Model::CompositionalFluid& fluid) {
    ExperimentResults results;
    for (const double depth : {2000.0, 2100.0}) {
        Stage stage;
        stage.Fluid = fluid;
        stage.Results->Depth.Set(depth);
        stage.Results->Pressure.Set(3.1e7);
        stage.Results->SaturationPressure.Set(2.5e7);
        stage.Results->GasOilRatio.Set(1.0);
        results.Stages.push_back(stage);
    }
    return results;
}

Model::BlackOilTable BlackOil() {
    Model::BlackOilTable table;
    Model::BlackOilDataRecords records;
    records.AddRecord({{1e7, 50, 1.2, 5e-4}, {2e7, 90, 1.3, 4e-4}});
    table.SetLiveOilData(records);
    table.SetWetGasData(records);
    return table;
}

Model::KValuesTable KValues() {
    Model::KValuesTable table({"C1", "C2"});
    table.Temperature = 350.0;
    table.AddRecord({1e7, 2.5, 0.75});
    return table;
}

Model::ThermalExportTable Thermal() {
    Model::ThermalExportTable table;
    table.ComponentCount = 1;
    table.ComponentNames = {"C1"};
    table.MolecularWeights = table.CriticalTemperatures = table.CriticalPressures =
        table.ReferenceTemperatures = table.ReferencePressures = table.ReferenceDensities =
            table.AcentricFactors = table.SpecificHeatA = table.SpecificHeatB =
                table.SpecificHeatC = table.SpecificHeatD = {1.5};
    table.SetHeatVaps({1.5});
    table.SetCRefs({1.5});
    table.SetThermEx1s({1.5});
    table.SetZFactors({1.5});
    table.SetZis({1.0});
    table.SetCrookston({1.5}, {1.5}, {1.5}, {1.5}, {1.5});
    return table;
}

// Phase envelopes are written by an object that has the name of its file.
struct EnvelopeWrite {
    ErrorReport operator()(const std::string& fileName) const {
        IO::PhaseEnvelopeReaderWriter file(true);
        file.SetFileName(fileName);
        EXPECT_TRUE(file.Write({plot}));
        return {};
    }
    ErrorReport operator()(std::ostream& out) const {
        const bool isWritten = IO::PhaseEnvelopeReaderWriter(true).Write(out, {plot});
        EXPECT_EQ(isWritten, out.good());
        return {};
    }

    Common::CommonPlottingObject plot;
};

EnvelopeWrite Envelope() {
    using AxisType = Common::CommonPlottingObject::AxisType;
    EnvelopeWrite write{{AxisType::Temperature, AxisType::Pressure}};
    write.plot.AddLine({"",
                        {285.5, 300.0},
                        {1.02e7, 1.08e7},
                        Common::Line::Type::PhaseCurve,
                        Common::Line::Phase::Bubble});
    return write;
}

// One operation with either target.
struct Operation {
    template <typename Write>
    Operation(const char* ofName, Write write) : name(ofName), toFile(write), toStream(write) {}

    std::string name;
    std::function<ErrorReport(const std::string&)> toFile;
    std::function<ErrorReport(std::ostream&)> toStream;
};

std::vector<Operation> Operations() {
    const auto reservoir =
        ExampleData::ReadFluid(std::string(FLUIDBENCH_EXAMPLE_DATA) + "/six-component-fluid.csv");
    const auto& fluid = reservoir.fluid;
    const ExperimentResults results = Column(fluid);
    const Experiments::MSTExperiment separator(
        [=](const auto&, const auto&) { return Column(fluid); });
    const auto blackOil = [](BlackOilExportFileWriter::FILE_TYPE form) {
        return [=](auto& target) {
            return BlackOilExportFileWriter().ExportToFile(
                BlackOil(), target, Units::FIELD, BlackOilExportFileWriter::LIVE_OIL_WET_GAS, form);
        };
    };
    const auto kValues = [](KValuesExportFileWriter::FILE_TYPE form) {
        return [=](auto& target) {
            return KValuesExportFileWriter(true, form)
                .ExportToFile(KValues(), target, Units::METRIC);
        };
    };
    const auto thermal = [](ThermalExportFileWriter::FILE_TYPE form) {
        return [=](auto& target) {
            return ThermalExportFileWriter(false, form)
                .ExportToFile(Thermal(), target, Units::FIELD);
        };
    };
    return {
        {"deck",
         [=](auto& target) {
             return PVOFileWriter().ExportToPVO(fluid, target, 344.26, false, true);
         }},
        {"compositions by depth",
         [=](auto& target) {
             return PVOFileWriter().ExportZMFVD(fluid, results, target, Units::FIELD);
         }},
        {"saturation pressures by depth",
         [=](auto& target) {
             return PVOFileWriter().ExportPSATVD(results, target, Units::METRIC);
         }},
        {"ratios by depth",
         [=](auto& target) {
             return PVOFileWriter().ExportRSVD(results, separator, {}, target, Units::METRIC);
         }},
        {"no saturation pressures",
         [=](auto& target) { return PVOFileWriter().ExportPSATVD({}, target, Units::METRIC); }},
        {"no ratios",
         [=](auto& target) {
             return PVOFileWriter().ExportRSVD({}, separator, {}, target, Units::METRIC);
         }},
        {"black-oil keywords", blackOil(BlackOilExportFileWriter::PVO)},
        {"black-oil CSV", blackOil(BlackOilExportFileWriter::CSV)},
        {"compositions by pressure",
         [=](auto& target) {
             return BlackOilExportFileWriter().ExportXMFYMFVP(fluid, results, target, Units::FIELD);
         }},
        {"K-values", kValues(KValuesExportFileWriter::PVO)},
        {"K-values as CSV", kValues(KValuesExportFileWriter::CSV)},
        {"thermal", thermal(ThermalExportFileWriter::PVO)},
        {"thermal as CSV", thermal(ThermalExportFileWriter::CSV)},
        {"phase envelopes", Envelope()},
    };
}

// Has room for so many bytes, as a full disk.
class FullBuffer : public std::streambuf {
public:
    explicit FullBuffer(std::size_t room) : room_(room) {}
    std::string text;

protected:
    int_type overflow(int_type c) override {
        if (text.size() == room_) {
            return traits_type::eof();
        }
        text += traits_type::to_char_type(c);
        return c;
    }

private:
    std::size_t room_;
};

} // namespace

TEST(Streams, GetTheBytesAndReportsOfFilesAndKeepTheirFormat) {
    const TemporaryFolder folder;
    const std::string path = folder / "file";
    for (const Operation& each : Operations()) {
        const auto expected = MessageIds(each.toFile(path));
        std::ostringstream out;
        const std::locale foreign = ForeignLocale();
        out.imbue(foreign);
        out << std::scientific << std::uppercase << std::showpos << std::left
            << std::setprecision(3) << std::setfill('*') << std::setw(9);
        const auto flags = out.flags();
        EXPECT_EQ(MessageIds(each.toStream(out)), expected) << each.name;
        EXPECT_EQ(out.str(), ReadFile(path)) << each.name;
        EXPECT_EQ(out.str().empty(), !expected.empty()) << each.name;
        EXPECT_EQ(out.flags(), flags) << each.name;
        EXPECT_EQ(out.precision(), 3) << each.name;
        EXPECT_EQ(out.width(), 9) << each.name;
        EXPECT_EQ(out.fill(), '*') << each.name;
        EXPECT_EQ(out.getloc(), foreign) << each.name;
    }
}

TEST(Streams, AFullOneSaysSoAndKeepsWhatHadRoom) {
    for (const Operation& each : Operations()) {
        std::ostringstream whole;
        each.toStream(whole);
        const std::string text = whole.str();
        for (std::size_t room = 0; room < text.size(); room += 1 + text.size() / 7) {
            FullBuffer buffer(room);
            std::ostream out(&buffer);
            EXPECT_TRUE(MessageIds(each.toStream(out)).empty()) << each.name;
            EXPECT_TRUE(out.fail()) << each.name << ' ' << room;
            EXPECT_EQ(buffer.text, text.substr(0, room)) << each.name;
        }
        if (!text.empty()) {
            FullBuffer buffer(text.size() - 1);
            std::ostream throwing(&buffer);
            throwing.exceptions(std::ios_base::badbit | std::ios_base::failbit);
            throwing.width(9);
            EXPECT_THROW(each.toStream(throwing), std::ios_base::failure) << each.name;
            EXPECT_EQ(throwing.width(), 9) << each.name;
        }
    }
}
