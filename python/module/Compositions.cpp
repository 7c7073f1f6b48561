// Compositions of vapour and liquid against pressure.
#include "Families.h"
#include "FluidBench/Experiments/ExperimentResults.h"
#include "FluidBench/Model/CompositionalFluid.h"
#include "Keywords.h"
#include "Streams.h"
#include "Values.h"
#include "io/BlackOilExportFileWriter.h"
#include "io/CompositionTableReader.h"

#include <cstddef>
#include <string>
#include <vector>

namespace FluidBenchPython {

namespace py = pybind11;
using Orv::FluidBench::Experiments::ExperimentResults;
using Orv::FluidBench::Experiments::Stage;
using Orv::FluidBench::IO::BlackOilExportFileWriter;
using Orv::FluidBench::IO::CompositionTable;
using Orv::FluidBench::IO::CompositionTableReader;
using Orv::FluidBench::Model::CompositionalFluid;

namespace {

py::object PhaseToPython(const std::vector<std::vector<double>>& fractions) {
    if (fractions.empty()) {
        return py::none();
    }
    return RowsToPython(fractions, fractions.front().size());
}

// (pressures, vapour, liquid) for each table; None for a phase that the file lacks.
py::tuple Read(const py::object& source, const py::str& name, const std::string& units) {
    Findings findings;
    std::vector<CompositionTable> tables;
    ReadKeywords<CompositionTableReader>(source, name, units, findings, tables);
    py::list result;
    for (const CompositionTable& table : tables) {
        result.append(py::make_tuple(ToPython(table.Pressures),
                                     PhaseToPython(table.VapourFractions),
                                     PhaseToPython(table.LiquidFractions)));
    }
    return findings.With(result);
}

// A row of fractions for each pressure. A row of zeros stands for a phase that isn't present.
py::tuple Write(const py::function& write, const Numbers& pressures, const Numbers& vapour,
                const Numbers& liquid, const std::string& units, bool highPrecision) {
    const py::ssize_t rows = pressures.size();
    const py::ssize_t components = vapour.shape(1);
    ExperimentResults results;
    for (py::ssize_t row = rows; row-- > 0;) { // the last stage is written first
        const auto phase = [&](const Numbers& fractions) {
            const double* const begin = fractions.data(row, 0);
            return std::vector<double>(begin, begin + components);
        };
        Stage& stage = results.Stages.emplace_back();
        stage.Results->Pressure.Set(pressures.at(row));
        stage.VapourPhase.Set(phase(vapour));
        stage.LiquidPhase.Set(phase(liquid));
    }
    const auto unitType = UnitsFromPython(units);
    const CompositionalFluid fluid(""); // needed for phases that aren't present
    Findings findings;
    findings.Add(WriteTo(write, [&](std::ostream& out) {
        return BlackOilExportFileWriter(highPrecision)
            .ExportXMFYMFVP(fluid, results, out, unitType);
    }));
    return findings.With(py::none());
}

} // namespace

void AddCompositions(py::module_& module) {
    module.def("read_compositions", Read, py::arg("source"), py::arg("name"), py::arg("units"));
    module.def("write_compositions", Write, py::arg("write"), py::arg("pressures"),
               py::arg("vapour"), py::arg("liquid"), py::arg("units"), py::arg("high_precision"));
}

} // namespace FluidBenchPython
