// K-value tables.
#include "Families.h"
#include "FluidBench/Model/KValuesTable.h"
#include "Streams.h"
#include "Values.h"
#include "io/KValuesExportFileWriter.h"

#include <string>

namespace FluidBenchPython {

namespace py = pybind11;
using Orv::FluidBench::IO::KValuesExportFileWriter;
using Orv::FluidBench::Model::KValuesTable;

namespace {

// A row of `records` is a pressure in Pa and the K-values.
KValuesTable TableFromPython(const py::sequence& components, const Numbers& records,
                             double temperature) {
    KValuesTable table(NamesFromPython(components));
    table.Temperature = temperature;
    const auto cells = records.unchecked<2>();
    for (py::ssize_t i = 0; i < cells.shape(0); ++i) {
        const double* const row = cells.data(i, 0);
        table.AddRecord({row, row + cells.shape(1)});
    }
    return table;
}

py::tuple Write(const py::function& write, const py::sequence& components, const Numbers& records,
                double temperature, const std::string& units, bool highPrecision) {
    const KValuesTable table = TableFromPython(components, records, temperature);
    const auto unitType = UnitsFromPython(units);
    Findings findings;
    findings.Add(WriteTo(write, [&](std::ostream& out) {
        return KValuesExportFileWriter(highPrecision).ExportToFile(table, out, unitType);
    }));
    return findings.With(py::none());
}

} // namespace

void AddKValues(py::module_& module) {
    module.def("write_k_values", Write, py::arg("write"), py::arg("components"), py::arg("records"),
               py::arg("temperature"), py::arg("units"), py::arg("high_precision"));
}

} // namespace FluidBenchPython
