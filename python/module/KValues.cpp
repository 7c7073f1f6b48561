// K-value tables.
#include "Families.h"
#include "FluidBench/Model/KValuesTable.h"
#include "Keywords.h"
#include "Streams.h"
#include "Values.h"
#include "io/KValuesExportFileWriter.h"
#include "io/KValuesKeywordReader.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace FluidBenchPython {

namespace py = pybind11;
using Orv::FluidBench::IO::KValuesExportFileWriter;
using Orv::FluidBench::IO::KValuesKeywordReader;
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

// (components, records, temperature) for each table.
py::tuple Read(const py::object& source, const py::str& name, const std::string& units) {
    Findings findings;
    std::vector<KValuesTable> tables;
    ReadKeywords<KValuesKeywordReader>(source, name, units, findings, tables);
    py::list result;
    for (const KValuesTable& table : tables) {
        const auto rows = static_cast<py::ssize_t>(table.GetTableSize());
        Numbers records({rows, static_cast<py::ssize_t>(table.GetRecordSize())});
        double* next = records.mutable_data();
        for (std::uint64_t i = 0; i < table.GetTableSize(); ++i) {
            next = std::ranges::copy(table.GetRecord(i), next).out;
        }
        result.append(
            py::make_tuple(NamesToPython(table.GetComponents()), records, table.Temperature));
    }
    return findings.With(result);
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
    module.def("read_k_values", Read, py::arg("source"), py::arg("name"), py::arg("units"));
    module.def("write_k_values", Write, py::arg("write"), py::arg("components"), py::arg("records"),
               py::arg("temperature"), py::arg("units"), py::arg("high_precision"));
}

} // namespace FluidBenchPython
