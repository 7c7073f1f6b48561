// Reads a fluid from a data file of the examples, which has field units.
//
// The file has a temperature, then a table of components under its heading, then a table of
// interaction coefficients under another; see data/six-component-fluid.csv.
#pragma once

#include "ExampleData.h"

#include "FluidBench/Common/Units.h"
#include "FluidBench/Model/CompositionalFluid.h"

#include <filesystem>
#include <string>
#include <vector>

namespace ExampleData {

/// A fluid and its reservoir temperature in K.
struct ReservoirFluid {
    Orv::FluidBench::Model::CompositionalFluid fluid;
    double temperature;
};

/// The component of a row of the file. Its critical volume follows from Pc Vc = Zc R Tc, and its
/// constants are those of the Peng-Robinson equation of 1976.
inline Orv::FluidBench::Model::FluidComponent MakeComponent(const std::vector<std::string>& row) {
    using Orv::FluidBench::Common::Units;
    constexpr double gasConstant = 8.31446261815324; // J/(mol K)
    constexpr double rankinePerKelvin = 1.8;
    const double pc = Units::Pressure_psi_To_Pa(Number(row.at(1)));
    const double tc = Number(row.at(2)) / rankinePerKelvin;
    const double zc = Number(row.at(5));
    const double vc = zc * gasConstant * tc / pc;

    Orv::FluidBench::Model::FluidComponent component(row.at(0));
    component.SetMolecularWeight(Number(row.at(3)));
    component.SetOmegaA(0.457235529);
    component.SetOmegaB(0.077796074);
    component.SetTcrit(tc);
    component.SetPcrit(pc);
    component.SetVcrit(vc);
    component.SetVcritViscosity(vc);
    component.SetZcrit(zc);
    component.SetAcf(Number(row.at(4)));
    return component;
}

/// Makes all coefficients known: those that a file doesn't give are zero.
inline void SetCoefficientsToZero(Orv::FluidBench::Model::CompositionalFluid& fluid) {
    const std::vector<std::string> names = fluid.ListComponents();
    for (std::size_t second = 1; second < names.size(); ++second) {
        for (std::size_t first = 0; first < second; ++first) {
            fluid.SetBIC(names[first], names[second], 0.0);
        }
    }
}

/// Throws `std::exception` for a file that can't be opened or isn't of that form.
inline ReservoirFluid ReadFluid(const std::string& fileName) {
    using Orv::FluidBench::Common::Units;
    enum class Table { None, Components, Coefficients } table = Table::None;
    const std::string name = std::filesystem::path(fileName).stem().string();
    ReservoirFluid result{Orv::FluidBench::Model::CompositionalFluid(name), 0.0};
    result.fluid.SetEoS(Orv::FluidBench::Common::pvtEnumEoS::PengRobinson);
    for (const std::vector<std::string>& row : ReadRows(fileName)) {
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

} // namespace ExampleData
