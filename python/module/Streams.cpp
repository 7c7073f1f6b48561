#include "Streams.h"

#include "Values.h"

#include <cstddef>
#include <ios>

namespace FluidBenchPython {

namespace py = pybind11;

namespace {

constexpr std::size_t blockSize = std::size_t{1} << 18;

} // namespace

void PythonInput::RethrowFailure() const {
    if (failure_) {
        std::rethrow_exception(failure_);
    }
}

PythonInput::int_type PythonInput::underflow() {
    const py::gil_scoped_acquire acquire;
    try {
        block_ = py::bytes(read_(blockSize));
    } catch (...) {
        failure_ = std::current_exception();
    }
    if (failure_) { // outside of the handler, so that the exception has one owner
        throw std::ios_base::failure("The file object can't be read");
    }
    char* const begin = PyBytes_AS_STRING(block_.ptr());
    char* const end = begin + PyBytes_GET_SIZE(block_.ptr());
    setg(begin, begin, end);
    return begin == end ? traits_type::eof() : traits_type::to_int_type(*begin);
}

PythonOutput::PythonOutput(py::function write) : write_(std::move(write)), block_(blockSize) {
    setp(block_.data(), block_.data() + block_.size());
}

void PythonOutput::HandOn() {
    const auto size = static_cast<std::size_t>(pptr() - pbase());
    setp(block_.data(), block_.data() + block_.size());
    if (failure_ || size == 0) {
        return;
    }
    const py::gil_scoped_acquire acquire;
    try {
        write_(py::bytes(block_.data(), size));
    } catch (...) {
        failure_ = std::current_exception();
    }
}

PythonOutput::int_type PythonOutput::overflow(int_type byte) {
    HandOn();
    if (failure_) {
        return traits_type::eof();
    }
    if (!traits_type::eq_int_type(byte, traits_type::eof())) {
        *pptr() = traits_type::to_char_type(byte);
        pbump(1);
    }
    return traits_type::not_eof(byte);
}

void PythonOutput::Finish() {
    HandOn();
    if (failure_) {
        std::rethrow_exception(failure_);
    }
}

Source::Source(const py::object& pathOrRead, const py::str& name) : name_(NameFromPython(name)) {
    if (py::isinstance<py::bytes>(pathOrRead)) {
        name_ = pathOrRead.cast<std::string>();
    } else {
        read_ = py::function(pathOrRead);
    }
}

} // namespace FluidBenchPython
