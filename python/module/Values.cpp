#include "Values.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace FluidBenchPython {

namespace py = pybind11;
using Orv::FluidBench::Common::ErrorReport;
using Orv::FluidBench::Common::pvtEnumErrorCode;
using Orv::FluidBench::Common::Units;
using Orv::FluidBench::IO::Diagnostic;
using Orv::FluidBench::IO::Severity;

namespace {

py::str Decode(const std::string& text, const char* errors) {
    PyObject* const decoded =
        PyUnicode_DecodeUTF8(text.data(), static_cast<py::ssize_t>(text.size()), errors);
    if (decoded == nullptr) {
        throw py::error_already_set();
    }
    return py::reinterpret_steal<py::str>(decoded);
}

int SeverityOf(pvtEnumErrorCode code) {
    const Severity severity = code == pvtEnumErrorCode::Error     ? Severity::Error
                              : code == pvtEnumErrorCode::Warning ? Severity::Warning
                                                                  : Severity::Note;
    return static_cast<int>(severity);
}

} // namespace

py::str NameToPython(const std::string& name) {
    return Decode(name, "surrogateescape");
}

std::string NameFromPython(const py::handle& name) {
    if (!py::isinstance<py::str>(name)) {
        throw py::type_error("a name has to be a str");
    }
    return name.attr("encode")("utf-8", "surrogateescape").cast<std::string>();
}

py::list NamesToPython(const std::vector<std::string>& names) {
    py::list list;
    for (const std::string& name : names) {
        list.append(NameToPython(name));
    }
    return list;
}

std::vector<std::string> NamesFromPython(const py::sequence& names) {
    std::vector<std::string> result;
    for (const auto& name : names) {
        result.push_back(NameFromPython(name));
    }
    return result;
}

py::str SentenceToPython(const std::string& sentence) {
    return Decode(sentence, "backslashreplace");
}

Numbers ToPython(const std::vector<double>& values) {
    Numbers numbers(static_cast<py::ssize_t>(values.size()));
    std::ranges::copy(values, numbers.mutable_data());
    return numbers;
}

std::vector<double> FromPython(const Numbers& values) {
    return {values.data(), values.data() + values.size()};
}

Numbers RowsToPython(const std::vector<std::vector<double>>& rows, std::size_t columns) {
    Numbers block({static_cast<py::ssize_t>(rows.size()), static_cast<py::ssize_t>(columns)});
    double* next = block.mutable_data();
    for (const std::vector<double>& row : rows) {
        if (row.size() != columns) {
            throw std::invalid_argument("a row has " + std::to_string(row.size()) +
                                        " numbers in place of " + std::to_string(columns));
        }
        next = std::ranges::copy(row, next).out;
    }
    return block;
}

Units::UNIT_TYPE UnitsFromPython(const std::string& units) {
    if (units != "metric" && units != "field") {
        throw py::value_error("units have to be 'metric' or 'field', not '" + units + "'");
    }
    return units == "field" ? Units::FIELD : Units::METRIC;
}

void Findings::Add(const ErrorReport& report) {
    for (const auto& message : report.GetMessages()) {
        messages_.append(py::make_tuple(SeverityOf(message.GetErrorCode()), message.GetMessageId(),
                                        SentenceToPython(message.GetText())));
    }
}

py::tuple Findings::With(py::object result) const {
    py::list diagnostics;
    for (const Diagnostic& diagnostic : diagnostics_) {
        diagnostics.append(py::make_tuple(static_cast<int>(diagnostic.severity),
                                          NameToPython(diagnostic.file), diagnostic.line,
                                          diagnostic.code, SentenceToPython(diagnostic.sentence)));
    }
    return py::make_tuple(std::move(result), messages_, std::move(diagnostics));
}

} // namespace FluidBenchPython
