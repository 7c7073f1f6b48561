// Depth variation tables. The writers of the library take a depth run; here one is made of what the
// tables are to hold.
#include "Families.h"
#include "FluidBench/Experiments/ExperimentResults.h"
#include "FluidBench/Experiments/MSTExperiment.h"
#include "FluidBench/Experiments/Stage.h"
#include "FluidBench/Model/CompositionalFluid.h"
#include "Keywords.h"
#include "Streams.h"
#include "Values.h"
#include "io/DepthTableReader.h"
#include "io/PVOFileWriter.h"

#include <pybind11/stl.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace FluidBenchPython {

namespace py = pybind11;
using Orv::FluidBench::Experiments::ExperimentResults;
using Orv::FluidBench::Experiments::MSTExperiment;
using Orv::FluidBench::Experiments::oilLikeFluidState;
using Orv::FluidBench::Experiments::Stage;
using Orv::FluidBench::IO::DepthTable;
using Orv::FluidBench::IO::DepthTableReader;
using Orv::FluidBench::IO::PVOFileWriter;
using Orv::FluidBench::Model::CompositionalFluid;
using Orv::FluidBench::Model::FluidComponent;

namespace {

// A run with a stage at each depth, in m. Its contact stands at the depth of the stage with which a
// second table begins; then nothing is put among the stages.
ExperimentResults RunOf(const std::vector<double>& depths, std::optional<double> contact) {
    ExperimentResults run;
    for (const double depth : depths) {
        run.Stages.emplace_back().Results->Depth.Set(depth);
    }
    if (contact) {
        run.ContactStage.Results->Depth.Set(*contact);
    }
    return run;
}

CompositionalFluid FluidOf(const std::vector<std::string>& names, const double* fractions) {
    CompositionalFluid fluid("");
    for (std::size_t i = 0; i < names.size(); ++i) {
        fluid.SetComponent(FluidComponent(names[i]), fractions[i]);
    }
    return fluid;
}

// (keyword, depths, a row of values for each depth) for each table.
py::tuple Read(const py::object& source, const py::str& name, const std::string& units) {
    Findings findings;
    std::vector<DepthTable> tables;
    ReadKeywords<DepthTableReader>(source, name, units, findings, tables);
    py::list result;
    for (const DepthTable& table : tables) {
        const std::size_t columns = table.Values.empty() ? 0 : table.Values.front().size();
        result.append(py::make_tuple(table.Keyword, ToPython(table.Depths),
                                     RowsToPython(table.Values, columns)));
    }
    return findings.With(result);
}

// A row of `fractions` a depth.
py::tuple WriteCompositions(const py::function& write, const py::sequence& components,
                            const Numbers& depths, const Numbers& fractions,
                            const std::string& units) {
    const std::vector<std::string> names = NamesFromPython(components);
    const auto unitType = UnitsFromPython(units);
    ExperimentResults run = RunOf(FromPython(depths), std::nullopt);
    for (std::size_t i = 0; i < run.Stages.size(); ++i) {
        run.Stages[i].Fluid = FluidOf(names, fractions.data(static_cast<py::ssize_t>(i), 0));
    }
    const CompositionalFluid fluid = FluidOf(names, std::vector<double>(names.size(), 0.0).data());
    Findings findings;
    findings.Add(WriteTo(write, [&](std::ostream& out) {
        return PVOFileWriter().ExportZMFVD(fluid, run, out, unitType);
    }));
    return findings.With(py::none());
}

// Pressures in Pa. The first table has dew points unless `bubbleFirst`; from the contact on it is
// another one, of bubble points.
py::tuple WriteSaturation(const py::function& write, const Numbers& depths,
                          const Numbers& pressures, std::optional<double> contact, bool bubbleFirst,
                          const std::string& units) {
    const auto unitType = UnitsFromPython(units);
    ExperimentResults run = RunOf(FromPython(depths), contact);
    for (std::size_t i = 0; i < run.Stages.size(); ++i) {
        run.Stages[i].Results->SaturationPressure.Set(pressures.at(static_cast<py::ssize_t>(i)));
        run.Stages[i].LiquidPhase.SetPresent(bubbleFirst);
    }
    Findings findings;
    findings.Add(WriteTo(write, [&](std::ostream& out) {
        return PVOFileWriter().ExportPSATVD(run, out, unitType);
    }));
    return findings.With(py::none());
}

// Ratios in m3/m3: of vaporised oil in the first table unless `dissolvedFirst`, of dissolved gas in
// all others. The library asks a separator for each row, one after another, and takes the inverse
// of its gas-oil ratio for vaporised oil; where it gives none, the row has 0.
py::tuple WriteRatios(const py::function& write, const Numbers& depths, const Numbers& ratios,
                      std::optional<double> contact, bool dissolvedFirst,
                      const std::string& units) {
    const auto unitType = UnitsFromPython(units);
    const std::vector<double> depthOfRow = FromPython(depths);
    const std::vector<double> ratioOfRow = FromPython(ratios);
    ExperimentResults run = RunOf(depthOfRow, contact);
    for (Stage& stage : run.Stages) {
        stage.Results->GasOilRatio.Set(0.0); // there is a row for it
        stage.FluidState = dissolvedFirst ? oilLikeFluidState : 0;
    }
    std::size_t row = 0;
    const MSTExperiment separator([&](const CompositionalFluid&, const std::vector<Stage>&) {
        const bool isDissolved = dissolvedFirst || (contact && depthOfRow[row] >= *contact);
        const double ratio = ratioOfRow[row++];
        ExperimentResults results;
        Stage& stage = results.Stages.emplace_back();
        if (isDissolved || ratio != 0.0) {
            stage.Results->GasOilRatio.Set(isDissolved ? ratio : 1.0 / ratio);
        }
        return results;
    });
    Findings findings;
    findings.Add(WriteTo(write, [&](std::ostream& out) {
        return PVOFileWriter().ExportRSVD(run, separator, {}, out, unitType);
    }));
    return findings.With(py::none());
}

} // namespace

void AddDepthTables(py::module_& module) {
    module.def("read_depth_tables", Read, py::arg("source"), py::arg("name"), py::arg("units"));
    module.def("write_depth_compositions", WriteCompositions, py::arg("write"),
               py::arg("components"), py::arg("depths"), py::arg("fractions"), py::arg("units"));
    module.def("write_depth_saturation", WriteSaturation, py::arg("write"), py::arg("depths"),
               py::arg("pressures"), py::arg("contact"), py::arg("bubble_first"), py::arg("units"));
    module.def("write_depth_ratios", WriteRatios, py::arg("write"), py::arg("depths"),
               py::arg("ratios"), py::arg("contact"), py::arg("dissolved_first"), py::arg("units"));
}

} // namespace FluidBenchPython
