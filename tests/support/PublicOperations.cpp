#include "PublicOperations.h"

#include "FluidData.h"
#include "io/BlackOilExportFileWriter.h"
#include "io/BlackOilKeywordReader.h"
#include "io/CompositionTableReader.h"
#include "io/DFAReader.h"
#include "io/DepthTableReader.h"
#include "io/KValuesExportFileWriter.h"
#include "io/KValuesKeywordReader.h"
#include "io/MFLFileReader.h"
#include "io/PVOFileReader.h"
#include "io/PVOFileWriter.h"
#include "io/PhaseEnvelopeReaderWriter.h"
#include "io/ThermalExportFileWriter.h"
#include "io/ThermalKeywordReader.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>

using namespace Orv::FluidBench;
using Common::ErrorReport;
using Common::Units;
using Experiments::ExperimentResults;
using Experiments::Stage;
using IO::BlackOilExportFileWriter;
using IO::KValuesExportFileWriter;
using IO::PVOFileWriter;
using IO::ThermalExportFileWriter;

namespace FluidBenchTest {

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

} // namespace

std::vector<WriteOperation> WriteOperations() {
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

namespace {

std::string Sample(const char* name) {
    return std::string(FLUIDBENCH_EXAMPLE_DATA) + '/' + name;
}

void TellRows(std::ostream& out, const std::vector<std::vector<double>>& rows) {
    for (const auto& row : rows) {
        for (const double value : row) {
            out << value << ' ';
        }
        out << '\n';
    }
}

void Tell(std::ostream& out, const Model::CompositionalFluid& fluid) {
    PVOFileWriter().ExportToPVO(fluid, out, 350.0, false, false);
}

void Tell(std::ostream& out, const Model::BlackOilTable& table) {
    BlackOilExportFileWriter().ExportToFile(table, out, Units::METRIC,
                                            BlackOilExportFileWriter::LIVE_OIL_WET_GAS,
                                            BlackOilExportFileWriter::CSV);
}

void Tell(std::ostream& out, const Model::KValuesTable& table) {
    KValuesExportFileWriter(true).ExportToFile(table, out, Units::METRIC);
}

void Tell(std::ostream& out, const Model::ThermalExportTable& table) {
    ThermalExportFileWriter().ExportToFile(table, out, Units::METRIC);
}

void Tell(std::ostream& out, const IO::DepthTable& table) {
    out << table.Keyword << '\n';
    TellRows(out, {table.Depths});
    TellRows(out, table.Values);
}

void Tell(std::ostream& out, const IO::CompositionTable& table) {
    TellRows(out, {table.Pressures});
    TellRows(out, table.VapourFractions);
    TellRows(out, table.LiquidFractions);
}

void Tell(std::ostream& out, const Common::CommonPlottingObject& plot) {
    IO::PhaseEnvelopeReaderWriter().Write(out, {plot});
}

void Tell(std::ostream& out, const IO::WellData& well) {
    out << well.name << '\n';
    TellRows(out, {well.depths, well.pressures, well.densities});
    TellRows(out, well.compositions);
}

template <typename Object>
std::string Text(const Object& object) {
    std::ostringstream out;
    Tell(out, object);
    return out.str();
}

template <typename Object>
std::string Text(const std::vector<Object>& objects) {
    std::string all;
    for (const Object& object : objects) {
        all += Text(object);
    }
    return all;
}

// A reader and its result, alive together; `read` takes both.
template <typename Reader, typename Result, typename Read>
ReadOperation Operation(const char* name, Result empty, Read read) {
    return {name, [=]() -> Reading {
                const auto reader = std::make_shared<Reader>();
                const auto result = std::make_shared<Result>(empty);
                return {[=] { return read(*reader, *result); }, [=] { return Text(*result); }};
            }};
}

template <typename Reader, typename Result>
ReadOperation KeywordOperation(const char* name, const char* sample) {
    return Operation<Reader>(name, Result(), [=](Reader& reader, Result& result) {
        return !reader.Read(Sample(sample), result).HasErrors();
    });
}

} // namespace

std::vector<ReadOperation> ReadOperations() {
    using Fluid = Model::CompositionalFluid;
    using Plots = std::vector<Common::CommonPlottingObject>;
    return {
        Operation<IO::PVOFileReader>("deck", Fluid(""),
                                     [](IO::PVOFileReader& reader, Fluid& fluid) {
                                         reader.SetPVOName(Sample("reservoir-oil-field.dat"));
                                         return !reader.Read(fluid, true).HasErrors();
                                     }),
        Operation<IO::MFLFileReader>("MFL", Fluid(""),
                                     [](IO::MFLFileReader& reader, Fluid& fluid) {
                                         reader.SetMFLFileName(Sample("six-component-oil.mfl"));
                                         return !reader.Read(fluid).HasErrors();
                                     }),
        Operation<BlackOilExportFileWriter>(
            "black-oil CSV", Model::BlackOilTable(),
            [](BlackOilExportFileWriter& reader, Model::BlackOilTable& table) {
                bool isRead = true;
                reader.SetDiagnosticSink([&](const IO::Diagnostic& diagnostic) {
                    isRead = isRead && diagnostic.severity != IO::Severity::Error;
                });
                table = reader.GetTableFromCSVFile(Sample("reservoir-black-oil.csv"));
                reader.SetDiagnosticSink({});
                return isRead;
            }),
        Operation<IO::PhaseEnvelopeReaderWriter>(
            "envelopes", Plots(),
            [](IO::PhaseEnvelopeReaderWriter& reader, Plots& plots) {
                std::vector<std::string> messages;
                reader.SetFileName(Sample("rich-gas-envelope.csv"));
                return reader.Read(plots, messages);
            }),
        Operation<IO::DFAReader>("DFA", std::vector<IO::WellData>(),
                                 [](IO::DFAReader& reader, std::vector<IO::WellData>& wells) {
                                     const bool isRead =
                                         reader.Import(Sample("north-field_DFA.txt"));
                                     wells = reader.GetExtractedData();
                                     return isRead;
                                 }),
        KeywordOperation<IO::BlackOilKeywordReader, std::vector<Model::BlackOilTable>>(
            "black-oil keywords", "two-region-black-oil.inc"),
        KeywordOperation<IO::KValuesKeywordReader, std::vector<Model::KValuesTable>>(
            "K-values", "two-temperatures-k-values.inc"),
        KeywordOperation<IO::ThermalKeywordReader, Model::ThermalExportTable>(
            "thermal", "two-component-thermal.inc"),
        KeywordOperation<IO::DepthTableReader, std::vector<IO::DepthTable>>(
            "depth tables", "north-flank-depth.inc"),
        KeywordOperation<IO::CompositionTableReader, std::vector<IO::CompositionTable>>(
            "compositions", "north-flank-compositions.inc"),
    };
}

} // namespace FluidBenchTest
