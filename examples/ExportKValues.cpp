// Writes the K-values and the thermal data of an oil for a simulator, in both unit systems.
//
//     cd examples/data
//     ExportKValues six-component-k-values.csv six-component-thermal.csv FOLDER
//
// fills a K-value table and a thermal table from the two data files and writes
// FOLDER/k-values-metric.txt, FOLDER/k-values-field.txt, FOLDER/thermal-metric.txt and
// FOLDER/thermal-field.txt.
#include "ExampleData.h"

#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Common/Units.h"
#include "FluidBench/Model/KValuesTable.h"
#include "FluidBench/Model/ThermalExportTable.h"
#include "io/KValuesExportFileWriter.h"
#include "io/ThermalExportFileWriter.h"

#include <exception>
#include <iostream>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using ExampleData::Number;
using Orv::FluidBench::Common::ErrorReport;
using Orv::FluidBench::Common::Units;
using Orv::FluidBench::IO::KValuesExportFileWriter;
using Orv::FluidBench::IO::ThermalExportFileWriter;
using Orv::FluidBench::Model::KValuesTable;
using Orv::FluidBench::Model::ThermalExportTable;

using Row = std::vector<std::string>;

Row WithoutFirst(const Row& row) {
    return {row.begin() + 1, row.end()};
}

std::vector<double> Numbers(const Row& cells) {
    std::vector<double> numbers;
    for (const std::string& cell : cells) {
        numbers.push_back(Number(cell));
    }
    return numbers;
}

KValuesTable ReadKValues(const std::string& fileName) {
    double temperature = -1.0; // a negative one is none
    Row components;
    std::vector<std::vector<double>> records;
    for (const Row& row : ExampleData::ReadRows(fileName)) {
        if (row[0] == "temperature") {
            temperature = Number(row.at(1));
        } else if (row[0] == "components") {
            components = WithoutFirst(row);
        } else if (row[0] == "record") {
            records.push_back(Numbers(WithoutFirst(row)));
            records.back().at(0) = Units::Pressure_bar_To_Pa(records.back().at(0));
        }
    }
    KValuesTable table(components);
    table.Temperature = temperature;
    for (const auto& record : records) {
        table.AddRecord(record);
    }
    return table;
}

ThermalExportTable ReadThermalData(const std::string& fileName) {
    std::map<std::string, Row> properties;
    for (const Row& row : ExampleData::ReadRows(fileName)) {
        properties[row[0]] = WithoutFirst(row);
    }
    const auto cells = [&](const char* property) {
        const auto found = properties.find(property);
        if (found == properties.end()) {
            throw std::runtime_error("'" + fileName + "' has no line '" + property + "'");
        }
        return found->second;
    };
    const auto values = [&](const char* property) { return Numbers(cells(property)); };

    ThermalExportTable table;
    table.StandardTemperature = values("standard").at(0);
    table.StandardPressure = values("standard").at(1);
    table.ComponentNames = cells("names");
    table.ComponentCount = table.ComponentNames.size();
    table.MolecularWeights = values("molecular weights");
    table.CriticalTemperatures = values("critical temperatures");
    table.CriticalPressures = values("critical pressures");
    table.ReferenceTemperatures = values("reference temperatures");
    table.ReferencePressures = values("reference pressures");
    table.ReferenceDensities = values("reference densities");
    table.AcentricFactors = values("acentric factors");
    table.SpecificHeatA = values("heat capacities A");
    table.SpecificHeatB = values("heat capacities B");
    table.SpecificHeatC = values("heat capacities C");
    table.SpecificHeatD = values("heat capacities D");
    table.SetHeatVaps(values("heats of vaporisation"));
    table.SetCRefs(values("compressibilities"));
    table.SetThermEx1s(values("thermal expansions"));
    table.SetZFactors(values("Z-factors"));
    table.SetZis(values("fractions"));
    if (properties.contains("fit A")) {
        table.SetCrookston(values("fit A"), values("fit B"), values("fit C"), values("fit D"),
                           values("fit E"));
    }
    return table;
}

void RequireSuccess(const ErrorReport& report) {
    if (report.HasErrors()) {
        throw std::runtime_error(report.GetMessages().front().GetText());
    }
}

void Export(const std::string& kValuesFile, const std::string& thermalFile,
            const std::string& folder) {
    const KValuesTable kValues = ReadKValues(kValuesFile);
    const ThermalExportTable thermalData = ReadThermalData(thermalFile);

    // The K-values of heavy components are small: 15 decimals show more of them than 8.
    const KValuesExportFileWriter kValuesWriter(true);
    const ThermalExportFileWriter thermalWriter;
    RequireSuccess(
        kValuesWriter.ExportToFile(kValues, folder + "/k-values-metric.txt", Units::METRIC));
    RequireSuccess(
        kValuesWriter.ExportToFile(kValues, folder + "/k-values-field.txt", Units::FIELD));
    RequireSuccess(
        thermalWriter.ExportToFile(thermalData, folder + "/thermal-metric.txt", Units::METRIC));
    RequireSuccess(
        thermalWriter.ExportToFile(thermalData, folder + "/thermal-field.txt", Units::FIELD));
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 4) {
        std::cerr << "usage: ExportKValues K-VALUES.csv THERMAL.csv FOLDER\n";
        return 2;
    }
    try {
        Export(arguments[1], arguments[2], arguments[3]);
    } catch (const std::exception& error) {
        std::cerr << "ExportKValues: " << error.what() << '\n';
        return 1;
    }
    std::cout << "The files are in " << arguments[3] << ".\n";
    return 0;
}
