// Reads of keyword files, which are all alike.
#pragma once

#include "Streams.h"
#include "Values.h"

#include <istream>
#include <optional>
#include <string>

namespace FluidBenchPython {

/// Has a `Reader` read `result` from the source, in the units "metric" or "field", or those that
/// the file tells for "auto".
template <typename Reader, typename Result>
void ReadKeywords(const pybind11::object& source, const pybind11::str& name,
                  const std::string& units, Findings& findings, Result& result) {
    using Orv::FluidBench::Common::Units;
    const auto unitType = units == "auto" ? std::optional<Units::UNIT_TYPE>()
                                          : std::optional<Units::UNIT_TYPE>(UnitsFromPython(units));
    Reader reader;
    reader.SetDiagnosticSink(findings.Sink());
    findings.Add(
        Source(source, name)
            .Read([&](const std::string& path) { return reader.Read(path, result, unitType); },
                  [&](std::istream& in, const std::string& called) {
                      return reader.Read(in, result, unitType, called);
                  }));
}

} // namespace FluidBenchPython
