// Writes a fluid as a keyword deck, in both unit systems.
//
//     ExportDeck examples/data/six-component-fluid.csv FOLDER
//
// builds the fluid of the data file, which has field units, and writes
// FOLDER/six-component-fluid-metric.pvo and FOLDER/six-component-fluid-field.pvo.
#include "ExampleData.h"

#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Common/Units.h"
#include "FluidBench/Model/CompositionalFluid.h"
#include "io/PVOFileWriter.h"

#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using ExampleData::Number;
using Orv::FluidBench::Common::ErrorReport;
using Orv::FluidBench::Common::pvtEnumEoS;
using Orv::FluidBench::Common::pvtEnumViscosityMethod;
using Orv::FluidBench::Common::Units;
using Orv::FluidBench::IO::PVOFileWriter;
using Orv::FluidBench::Model::CompositionalFluid;
using Orv::FluidBench::Model::FluidComponent;

using Row = std::vector<std::string>;

constexpr double gasConstant = 8.31446261815324; // J/(mol K)
constexpr double rankinePerKelvin = 1.8;

// The constants of the Peng-Robinson equation of 1976.
constexpr double omegaA = 0.457235529;
constexpr double omegaB = 0.077796074;

struct ReservoirFluid {
    CompositionalFluid fluid;
    double temperature; // K
};

FluidComponent MakeComponent(const Row& row) {
    const double pc = Units::Pressure_psi_To_Pa(Number(row.at(1)));
    const double tc = Number(row.at(2)) / rankinePerKelvin;
    const double zc = Number(row.at(5));
    const double vc = zc * gasConstant * tc / pc;

    FluidComponent component(row.at(0));
    component.SetMolecularWeight(Number(row.at(3)));
    component.SetOmegaA(omegaA);
    component.SetOmegaB(omegaB);
    component.SetTcrit(tc);
    component.SetPcrit(pc);
    component.SetVcrit(vc);
    component.SetVcritViscosity(vc);
    component.SetZcrit(zc);
    component.SetAcf(Number(row.at(4)));
    return component;
}

// All coefficients are known: those that the file doesn't give are zero.
void SetCoefficientsToZero(CompositionalFluid& fluid) {
    const std::vector<std::string> names = fluid.ListComponents();
    for (std::size_t second = 1; second < names.size(); ++second) {
        for (std::size_t first = 0; first < second; ++first) {
            fluid.SetBIC(names[first], names[second], 0.0);
        }
    }
}

// The file has a temperature, then a table of components under its heading, then a table of
// coefficients under another.
ReservoirFluid ReadFluid(const std::string& fileName) {
    enum class Table { None, Components, Coefficients } table = Table::None;
    ReservoirFluid result{CompositionalFluid(std::filesystem::path(fileName).stem()), 0.0};
    result.fluid.SetEoS(pvtEnumEoS::PengRobinson);
    result.fluid.SetViscosityCorrelation(pvtEnumViscosityMethod::LohrenzBrayClark);
    for (const Row& row : ExampleData::ReadRows(fileName)) {
        if (row[0] == "temperature_F") {
            result.temperature = Units::Temperature_F_To_K(Number(row.at(1)));
        } else if (row[0] == "component") {
            table = Table::Components;
        } else if (row[0] == "first") {
            table = Table::Coefficients;
            SetCoefficientsToZero(result.fluid);
        } else if (table == Table::Components) {
            result.fluid.SetComponent(MakeComponent(row), Number(row.at(6)));
        } else if (table == Table::Coefficients) {
            result.fluid.SetBIC(row[0], row.at(1), Number(row.at(2)));
        }
    }
    return result;
}

void Export(const ReservoirFluid& reservoir, const std::string& fileName, bool metric) {
    constexpr bool writeRunspec = true;
    const ErrorReport report = PVOFileWriter().ExportToPVO(
        reservoir.fluid, fileName, reservoir.temperature, metric, writeRunspec);
    if (report.HasErrors()) {
        throw std::runtime_error(report.GetMessages().front().GetText());
    }
    std::cout << fileName << '\n';
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 3) {
        std::cerr << "usage: ExportDeck FLUID.csv FOLDER\n";
        return 2;
    }
    try {
        const ReservoirFluid reservoir = ReadFluid(arguments[1]);
        const std::string stem = std::string(arguments[2]) + "/" + reservoir.fluid.GetName();
        Export(reservoir, stem + "-metric.pvo", true);
        Export(reservoir, stem + "-field.pvo", false);
    } catch (const std::exception& error) {
        std::cerr << "ExportDeck: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
