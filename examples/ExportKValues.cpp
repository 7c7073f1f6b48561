// Writes a table of K-values against pressure, from Wilson's correlation (1968):
//
//     ExportKValues k-values.txt
#include "FluidBench/Common/Units.h"
#include "io/KValuesExportFileWriter.h"

#include <cmath>
#include <iostream>
#include <vector>

int main(int argumentCount, char** arguments) {
    using namespace Orv::FluidBench;
    using Common::Units;
    if (argumentCount != 2) {
        std::cerr << "usage: ExportKValues OUT\n";
        return 2;
    }
    struct Component {
        double criticalTemperature; // K
        double criticalPressure;    // bar
        double acentricFactor;
    };
    const std::vector<Component> components{
        {190.556, 46.0432, 0.0130}, {369.833, 42.4924, 0.1524}, {507.444, 30.1232, 0.3007}};
    Model::KValuesTable table({"C1", "C3", "C6"});
    table.Temperature = 344.261; // K
    for (const double pressure : {25.0, 50.0, 100.0, 300.0}) {
        std::vector<double> record{Units::Pressure_bar_To_Pa(pressure)};
        for (const auto& [tc, pc, acf] : components) {
            record.push_back(pc / pressure *
                             std::exp(5.373 * (1.0 + acf) * (1.0 - tc / table.Temperature)));
        }
        table.AddRecord(record);
    }
    // The K-values of heavy components are small: 15 decimals show more of them than 8.
    constexpr bool highPrecision = true;
    const auto report =
        IO::KValuesExportFileWriter(highPrecision).ExportToFile(table, arguments[1], Units::METRIC);
    for (const auto& message : report.GetMessages()) {
        std::cerr << message.GetText() << '\n';
    }
    return report.HasErrors() ? 1 : 0;
}
