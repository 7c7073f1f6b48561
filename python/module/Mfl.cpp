// MFL fluid files.
#include "Families.h"
#include "Fluids.h"
#include "Streams.h"
#include "Values.h"
#include "io/MFLFileReader.h"

#include <algorithm>
#include <string>
#include <vector>

namespace FluidBenchPython {

namespace py = pybind11;
using Orv::FluidBench::Common::ErrorReport;
using Orv::FluidBench::IO::MFLFileReader;
using Orv::FluidBench::Model::CompositionalFluid;

namespace {

// The fluid, and a row of amounts for each stream.
py::tuple ReadMfl(const std::string& path) {
    MFLFileReader reader;
    reader.SetMFLFileName(path);
    Findings findings;
    reader.SetDiagnosticSink(findings.Sink());
    CompositionalFluid fluid("");
    std::vector<std::vector<double>> streams;
    const ErrorReport report =
        WithoutGlobalLock([&] { return reader.ReadStreams(fluid, streams); });
    findings.Add(report);
    py::list rows;
    for (const std::vector<double>& stream : streams) {
        rows.append(ToPython(stream));
    }
    py::dict result = FluidToPython(fluid);
    result["streams"] = rows;
    return findings.With(result);
}

} // namespace

void AddMfl(py::module_& module) {
    module.def("read_mfl", ReadMfl, py::arg("path"));
}

} // namespace FluidBenchPython
