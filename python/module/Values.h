// How texts, numbers, messages and diagnostics cross between C++ and Python.
#pragma once

#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Common/Units.h"
#include "io/Diagnostics.h"

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace FluidBenchPython {

/// One-dimensional or two-dimensional, in the order of C, whatever Python had.
using Numbers = pybind11::array_t<double, pybind11::array::c_style | pybind11::array::forcecast>;
using Integers =
    pybind11::array_t<std::int64_t, pybind11::array::c_style | pybind11::array::forcecast>;

/// A name of a file's, whatever its bytes: those that aren't UTF-8 come back from Python as they
/// were.
pybind11::str NameToPython(const std::string& name);
std::string NameFromPython(const pybind11::handle& name);
pybind11::list NamesToPython(const std::vector<std::string>& names);
std::vector<std::string> NamesFromPython(const pybind11::sequence& names);

/// A sentence for people: bytes that aren't UTF-8 are shown as escapes.
pybind11::str SentenceToPython(const std::string& sentence);

/// Copies of a block of numbers.
Numbers ToPython(const std::vector<double>& values);
std::vector<double> FromPython(const Numbers& values);

/// Rows of equal length as a block of so many columns. Throws `std::invalid_argument` for a row of
/// another length.
Numbers RowsToPython(const std::vector<std::vector<double>>& rows, std::size_t columns);

/// "metric" or "field"; throws `ValueError` for any other.
Orv::FluidBench::Common::Units::UNIT_TYPE UnitsFromPython(const std::string& units);

/// What an operation said beside its result. The sink may be called without the global lock; all
/// else needs it.
class Findings {
public:
    /// To be given to one reader, which the object has to outlive.
    Orv::FluidBench::IO::DiagnosticSink Sink() {
        return [this](const auto& diagnostic) { diagnostics_.push_back(diagnostic); };
    }
    void Add(const Orv::FluidBench::Common::ErrorReport& report);

    /// (result, [(severity, number, sentence)], [(severity, file, line, code, sentence)]) with the
    /// severities of `IO::Severity`.
    pybind11::tuple With(pybind11::object result) const;

private:
    pybind11::list messages_;
    std::vector<Orv::FluidBench::IO::Diagnostic> diagnostics_;
};

} // namespace FluidBenchPython
