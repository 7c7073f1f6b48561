// Writes the thermal data of three components of an oil for a simulator, in metric units:
//
//     ExportThermal thermal.txt
#include "FluidBench/Common/Units.h"
#include "io/ThermalExportFileWriter.h"

#include <iostream>

int main(int argumentCount, char** arguments) {
    using namespace Orv::FluidBench;
    if (argumentCount != 2) {
        std::cerr << "usage: ExportThermal OUT\n";
        return 2;
    }
    // Pa, K, kg/m3, g/mol, J/mol and kJ/kg; a value for each component.
    Model::ThermalExportTable table;
    table.StandardTemperature = 288.706;
    table.StandardPressure = 101325.0;
    table.ComponentCount = 3;
    table.ComponentNames = {"C1", "C3", "C6"};
    table.MolecularWeights = {16.04, 44.1, 86.18};
    table.CriticalTemperatures = {190.556, 369.833, 507.444};
    table.CriticalPressures = {4.60432e6, 4.24924e6, 3.01232e6};
    table.ReferenceTemperatures = {288.706, 288.706, 288.706};
    table.ReferencePressures = {101325.0, 101325.0, 101325.0};
    table.ReferenceDensities = {300.0, 508.0, 664.0};
    table.AcentricFactors = {0.013, 0.1524, 0.3007};
    // The heat capacities of the ideal gases are A + B T + C T^2 + D T^3.
    table.SpecificHeatA = {19.25, -4.224, -4.413};
    table.SpecificHeatB = {5.213e-2, 3.063e-1, 5.820e-1};
    table.SpecificHeatC = {1.197e-5, -1.586e-4, -3.119e-4};
    table.SpecificHeatD = {-1.132e-8, 3.215e-8, 6.494e-8};
    table.SetHeatVaps({510.0, 355.0, 366.0});
    table.SetCRefs({4e-9, 3e-9, 1.6e-9});
    table.SetThermEx1s({3.5e-3, 3.0e-3, 1.4e-3});
    table.SetZFactors({0.29, 0.277, 0.264});
    table.SetZis({0.5, 0.3, 0.2});
    // The K-values are (A + B / p + C p) exp(-D / (T - E)), the rows in this order.
    table.SetCrookston({0.0, 0.0, 0.0}, {1.06406e9, 2.0768e9, 3.26616e9}, {0.0, 0.0, 0.0},
                       {1037.17, 2289.95, 3546.36}, {0.0, 0.0, 0.0});

    const auto report =
        IO::ThermalExportFileWriter().ExportToFile(table, arguments[1], Common::Units::METRIC);
    for (const auto& message : report.GetMessages()) {
        std::cerr << message.GetText() << '\n';
    }
    return report.HasErrors() ? 1 : 0;
}
