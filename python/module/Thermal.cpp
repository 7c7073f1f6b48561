// Thermal tables.
#include "Families.h"
#include "FluidBench/Model/ThermalExportTable.h"
#include "Keywords.h"
#include "Streams.h"
#include "Values.h"
#include "io/ThermalExportFileWriter.h"
#include "io/ThermalKeywordReader.h"

#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

namespace FluidBenchPython {

namespace py = pybind11;
using Orv::FluidBench::IO::ThermalExportFileWriter;
using Orv::FluidBench::IO::ThermalKeywordReader;
using Orv::FluidBench::Model::ThermalExportTable;

namespace {

// A column of the table that everybody may set.
struct Column {
    const char* name;
    const char* unit;
    std::vector<double> ThermalExportTable::*values;
};

// A column behind a getter and a setter.
struct GuardedColumn {
    const char* name;
    const char* unit;
    const std::vector<double>& (ThermalExportTable::*get)() const noexcept;
    void (ThermalExportTable::*set)(std::vector<double>);
};

// clang-format off
using Table = ThermalExportTable;
constexpr Column columns[]{
    {"molecular_weight",      "g/mol",       &Table::MolecularWeights},
    {"critical_temperature",  "K",           &Table::CriticalTemperatures},
    {"critical_pressure",     "Pa",          &Table::CriticalPressures},
    {"reference_temperature", "K",           &Table::ReferenceTemperatures},
    {"reference_pressure",    "Pa",          &Table::ReferencePressures},
    {"reference_density",     "kg/m3",       &Table::ReferenceDensities},
    {"acentric_factor",       "1",           &Table::AcentricFactors},
    {"heat_capacity_a",       "J/(mol K)",   &Table::SpecificHeatA},
    {"heat_capacity_b",       "J/(mol K2)",  &Table::SpecificHeatB},
    {"heat_capacity_c",       "J/(mol K3)",  &Table::SpecificHeatC},
    {"heat_capacity_d",       "J/(mol K4)",  &Table::SpecificHeatD},
};
constexpr GuardedColumn guardedColumns[]{
    {"heat_of_vaporisation",  "kJ/kg", &Table::GetHeatVaps,  &Table::SetHeatVaps},
    {"compressibility",       "1/Pa",  &Table::GetCRefs,     &Table::SetCRefs},
    {"thermal_expansion",     "1/K",   &Table::GetThermEx1s, &Table::SetThermEx1s},
    {"z_factor",              "1",     &Table::GetZFactors,  &Table::SetZFactors},
    {"fraction",              "1",     &Table::GetZis,       &Table::SetZis},
};
// The fit K = (A + B/p + C p) exp(-D / (T - E)).
constexpr const char* fitColumns[][2]{
    {"crookston_a", "1"}, {"crookston_b", "Pa"}, {"crookston_c", "1/Pa"},
    {"crookston_d", "K"}, {"crookston_e", "K"},
};
// clang-format on

py::list ColumnsToPython() {
    py::list list;
    for (const Column& column : columns) {
        list.append(py::make_tuple(column.name, column.unit));
    }
    for (const GuardedColumn& column : guardedColumns) {
        list.append(py::make_tuple(column.name, column.unit));
    }
    for (const auto& column : fitColumns) {
        list.append(py::make_tuple(column[0], column[1]));
    }
    return list;
}

// `values` has an array for each column; those of the fit are all there or all missing.
Table TableFromPython(const py::sequence& names, const py::dict& values, double temperature,
                      double pressure) {
    const auto column = [&values](const char* name) {
        return FromPython(values[name].cast<Numbers>());
    };
    Table table;
    table.StandardTemperature = temperature;
    table.StandardPressure = pressure;
    table.ComponentNames = NamesFromPython(names);
    table.ComponentCount = table.ComponentNames.size();
    for (const Column& open : columns) {
        table.*open.values = column(open.name);
    }
    for (const GuardedColumn& guarded : guardedColumns) {
        (table.*guarded.set)(column(guarded.name));
    }
    if (values.contains(fitColumns[0][0])) {
        table.SetCrookston(column(fitColumns[0][0]), column(fitColumns[1][0]),
                           column(fitColumns[2][0]), column(fitColumns[3][0]),
                           column(fitColumns[4][0]));
    }
    return table;
}

// (names, an array for each column, standard temperature and pressure)
py::tuple Read(const py::object& source, const py::str& name, const std::string& units) {
    Findings findings;
    Table table;
    ReadKeywords<ThermalKeywordReader>(source, name, units, findings, table);
    py::dict values;
    for (const Column& column : columns) {
        values[column.name] = ToPython(table.*column.values);
    }
    for (const GuardedColumn& column : guardedColumns) {
        values[column.name] = ToPython((table.*column.get)());
    }
    if (table.HasCrookstonData()) {
        const std::vector<double> fit[]{table.GetCrookstonA(), table.GetCrookstonB(),
                                        table.GetCrookstonC(), table.GetCrookstonD(),
                                        table.GetCrookstonE()};
        for (std::size_t i = 0; i < std::size(fit); ++i) {
            values[fitColumns[i][0]] = ToPython(fit[i]);
        }
    }
    return findings.With(py::make_tuple(NamesToPython(table.ComponentNames), values,
                                        table.StandardTemperature, table.StandardPressure));
}

py::tuple Write(const py::function& write, const py::sequence& names, const py::dict& values,
                double temperature, double pressure, const std::string& units, bool highPrecision) {
    const Table table = TableFromPython(names, values, temperature, pressure);
    const auto unitType = UnitsFromPython(units);
    Findings findings;
    findings.Add(WriteTo(write, [&](std::ostream& out) {
        return ThermalExportFileWriter(highPrecision).ExportToFile(table, out, unitType);
    }));
    return findings.With(py::none());
}

} // namespace

void AddThermal(py::module_& module) {
    module.attr("THERMAL_COLUMNS") = ColumnsToPython();
    module.def("read_thermal", Read, py::arg("source"), py::arg("name"), py::arg("units"));
    module.def("write_thermal", Write, py::arg("write"), py::arg("names"), py::arg("values"),
               py::arg("standard_temperature"), py::arg("standard_pressure"), py::arg("units"),
               py::arg("high_precision"));
}

} // namespace FluidBenchPython
