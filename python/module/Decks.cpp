// Keyword decks.
#include "Families.h"
#include "Fluids.h"
#include "Streams.h"
#include "Values.h"
#include "io/PVOFileReader.h"
#include "io/PVOFileWriter.h"

namespace FluidBenchPython {

namespace py = pybind11;
using Orv::FluidBench::Common::ErrorReport;
using Orv::FluidBench::Common::pvtEnumPVOErrorSeverityLevel;
using Orv::FluidBench::Common::pvtEnumPVOUnitSystemType;
using Orv::FluidBench::Common::Units;
using Orv::FluidBench::IO::PVOFileReader;
using Orv::FluidBench::IO::PVOFileWriter;
using Orv::FluidBench::Model::CompositionalFluid;

namespace {

py::tuple ReadDeck(const std::string& path, const std::string& units) {
    const bool detectUnits = units == "auto";
    PVOFileReader reader;
    reader.SetPVOName(path);
    reader.SetPVOErrorMessageSeverityLevel(pvtEnumPVOErrorSeverityLevel::Debug);
    if (!detectUnits) {
        reader.SetPVOUnitSystem(UnitsFromPython(units) == Units::FIELD
                                    ? pvtEnumPVOUnitSystemType::Field
                                    : pvtEnumPVOUnitSystemType::Metric);
    }
    Findings findings;
    reader.SetDiagnosticSink(findings.Sink());
    CompositionalFluid fluid("");
    const ErrorReport report = WithoutGlobalLock([&] { return reader.Read(fluid, detectUnits); });
    findings.Add(report);
    py::dict result = FluidToPython(fluid);
    result["units"] =
        reader.GetPVOUnitSystemToUse() == pvtEnumPVOUnitSystemType::Field ? "field" : "metric";
    if (const auto temperature = reader.GetReservoirTemperature()) {
        result["temperature"] = *temperature;
    }
    return findings.With(result);
}

py::tuple WriteDeck(const py::function& write, const py::dict& fluid, double temperature,
                    const std::string& units, bool runspec) {
    const CompositionalFluid written = FluidFromPython(fluid);
    const bool metric = UnitsFromPython(units) == Units::METRIC;
    Findings findings;
    findings.Add(WriteTo(write, [&](std::ostream& out) {
        return PVOFileWriter().ExportToPVO(written, out, temperature, metric, runspec);
    }));
    return findings.With(py::none());
}

} // namespace

void AddDecks(py::module_& module) {
    module.attr("COMPONENT_PROPERTIES") = ComponentProperties();
    module.def("read_deck", ReadDeck, py::arg("path"), py::arg("units"));
    module.def("write_deck", WriteDeck, py::arg("write"), py::arg("fluid"), py::arg("temperature"),
               py::arg("units"), py::arg("runspec"));
}

} // namespace FluidBenchPython
