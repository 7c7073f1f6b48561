// Exports of a downhole fluid analysis.
#include "Families.h"
#include "Fluids.h"
#include "Streams.h"
#include "Values.h"
#include "io/DFAReader.h"

#include <array>
#include <cstddef>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace FluidBenchPython {

namespace py = pybind11;
using Orv::FluidBench::Common::Result;
using Orv::FluidBench::Experiments::Stage;
using Orv::FluidBench::Experiments::StageResults;
using Orv::FluidBench::IO::DFAReader;
using Orv::FluidBench::IO::WellData;

namespace {

struct Quantity {
    const char* name;
    const char* fileUnit;
    const char* modelUnit;
    std::vector<double> WellData::*inFile;
    Result StageResults::*inModel;
};

// clang-format off
constexpr std::array quantities{
    Quantity{"depth",         "ft",      "m",     &WellData::depths,        &StageResults::Depth},
    Quantity{"pressure",      "psi",     "Pa",    &WellData::pressures,     &StageResults::Pressure},
    Quantity{"temperature",   "F",       "K",     &WellData::temperatures,  &StageResults::Temperature},
    Quantity{"density",       "g/cc",    "kg/m3", &WellData::densities,     &StageResults::Density},
    Quantity{"gas_oil_ratio", "scf/stb", "m3/m3", &WellData::gasOilRatios,  &StageResults::GasOilRatio},
    Quantity{"station_value", "as in the file", "as in the file",
                                                  &WellData::stationValues, &StageResults::StationValue},
};
// clang-format on
constexpr std::array fractions{"C1", "C2", "C3-C5", "C6+", "CO2"};

// A block of numbers for all stations, a row each.
struct Block {
    Block(std::size_t rows, std::size_t columns)
        : numbers({static_cast<py::ssize_t>(rows), static_cast<py::ssize_t>(columns)}),
          next(numbers.mutable_data()) {}
    void Add(double value) { *next++ = value; }

    Numbers numbers;
    double* next;
};

/// The wells of one import. Holds the reader, which makes the raw fluids when they are asked for.
class DfaImport {
public:
    explicit DfaImport(DFAReader reader) : reader_(std::move(reader)) {}

    /// The number of each station's well, and the quantities of all stations.
    py::tuple Stations() {
        const std::vector<WellData>& wells = reader_.GetExtractedData();
        std::size_t rows = 0;
        py::list names;
        for (const WellData& well : wells) {
            names.append(NameToPython(well.name));
            rows += well.depths.size();
        }
        Integers wellOfRow(static_cast<py::ssize_t>(rows));
        Block inFile(rows, quantities.size());
        Block inModel(rows, quantities.size());
        Block composition(rows, fractions.size());
        std::int64_t* nextWell = wellOfRow.mutable_data();
        for (std::size_t i = 0; i < wells.size(); ++i) {
            reader_.SetIndexOfWell(static_cast<int>(i));
            const auto experiment = reader_.GetDFAExperiment();
            for (std::size_t k = 0; k < wells[i].depths.size(); ++k) {
                *nextWell++ = static_cast<std::int64_t>(i);
                for (const Quantity& quantity : quantities) {
                    const Result& result = (*experiment.Stages[k].Results).*quantity.inModel;
                    const bool isAbsent = IsAbsent(wells[i], quantity, k);
                    inFile.Add(isAbsent ? missing : (wells[i].*quantity.inFile)[k]);
                    inModel.Add(isAbsent || !result.IsSet ? missing : result.GetValue());
                }
                for (const double fraction : wells[i].compositions[k]) {
                    composition.Add(fraction);
                }
            }
        }
        return py::make_tuple(names, wellOfRow, inFile.numbers, inModel.numbers,
                              composition.numbers);
    }

    py::dict RawFluid(int well, int station) {
        reader_.SetIndexOfWell(well);
        return FluidToPython(reader_.GetRawFluid(station));
    }

private:
    static constexpr double missing = std::numeric_limits<double>::quiet_NaN();

    // A station without a pressure has zero.
    static bool IsAbsent(const WellData& well, const Quantity& quantity, std::size_t station) {
        return quantity.inFile == &WellData::pressures && well.pressures[station] == 0.0;
    }

    DFAReader reader_;
};

template <typename Import>
py::tuple ImportWith(Import import) {
    Findings findings;
    DFAReader reader;
    reader.SetDiagnosticSink(findings.Sink());
    const bool isRead = import(reader);
    reader.SetDiagnosticSink({}); // `findings` goes, and the reader stays
    return findings.With(isRead ? py::cast(DfaImport(std::move(reader))) : py::none());
}

py::tuple ReadFile(const std::string& path) {
    return ImportWith(
        [&](DFAReader& reader) { return WithoutGlobalLock([&] { return reader.Import(path); }); });
}

py::tuple ReadStreams(const py::function& main, const py::function& pressures,
                      const py::str& mainName, const py::str& pressuresName) {
    const std::string main_ = NameFromPython(mainName);
    const std::string pressures_ = NameFromPython(pressuresName);
    PythonInput mainBuffer(main);
    PythonInput pressuresBuffer(pressures);
    std::istream mainIn(&mainBuffer);
    std::istream pressuresIn(&pressuresBuffer);
    py::tuple answer = ImportWith([&](DFAReader& reader) {
        return WithoutGlobalLock(
            [&] { return reader.Import(mainIn, pressuresIn, mainName, pressuresName); });
    });
    mainBuffer.RethrowFailure();
    pressuresBuffer.RethrowFailure();
    return answer;
}

template <typename UnitOf>
py::list QuantitiesToPython(UnitOf unitOf) {
    py::list list;
    for (const Quantity& quantity : quantities) {
        list.append(py::make_tuple(quantity.name, quantity.*unitOf));
    }
    return list;
}

} // namespace

void AddDfa(py::module_& module) {
    module.attr("DFA_FILE_UNITS") = QuantitiesToPython(&Quantity::fileUnit);
    module.attr("DFA_MODEL_UNITS") = QuantitiesToPython(&Quantity::modelUnit);
    module.attr("DFA_COMPONENTS") = NamesToPython({fractions.begin(), fractions.end()});
    py::class_<DfaImport>(module, "DfaImport")
        .def("stations", &DfaImport::Stations)
        .def("raw_fluid", &DfaImport::RawFluid, py::arg("well"), py::arg("station"));
    module.def("read_dfa", ReadFile, py::arg("path"));
    module.def("read_dfa_streams", ReadStreams, py::arg("main"), py::arg("pressures"),
               py::arg("main_name"), py::arg("pressures_name"));
}

} // namespace FluidBenchPython
