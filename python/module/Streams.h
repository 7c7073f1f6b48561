// C++ streams over Python's file objects, and calls into the library without Python's global lock.
#pragma once

#include <pybind11/pybind11.h>

#include <exception>
#include <istream>
#include <ostream>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

namespace FluidBenchPython {

/// Runs `operation` while other threads of Python run. It may not touch a Python object.
template <typename Operation>
auto WithoutGlobalLock(Operation operation) {
    const pybind11::gil_scoped_release release;
    return operation();
}

/// Gives what `read(n)` of a Python file object gives, in large blocks, and takes the global lock
/// for that alone. An exception of Python's is kept here: the stream counts as failed, and whoever
/// made it calls `RethrowFailure` when the library is done with it. Made and destroyed with the
/// lock held.
class PythonInput : public std::streambuf {
public:
    explicit PythonInput(pybind11::function read) : read_(std::move(read)) {}
    void RethrowFailure() const;

protected:
    int_type underflow() override;

private:
    pybind11::function read_;
    pybind11::bytes block_; // what the stream reads from
    std::exception_ptr failure_;
};

/// Hands what is written to `write(bytes)` of a Python file object, in large blocks. Flushing hands
/// nothing on, since some writers flush with every line; `Finish` does.
class PythonOutput : public std::streambuf {
public:
    explicit PythonOutput(pybind11::function write);
    /// Hands on the rest and rethrows what Python threw. With the lock held.
    void Finish();

protected:
    int_type overflow(int_type byte) override;

private:
    void HandOn();

    pybind11::function write_;
    std::vector<char> block_;
    std::exception_ptr failure_;
};

/// Where a read takes its text from: a file by its path, or a Python file object by its `read`.
class Source {
public:
    /// `pathOrRead` is a `bytes` path or a function; `name` is what diagnostics call a file object.
    Source(const pybind11::object& pathOrRead, const pybind11::str& name);

    /// Calls `ofFile` with the path or `ofStream` with a stream and its name, without the lock.
    template <typename OfFile, typename OfStream>
    auto Read(OfFile ofFile, OfStream ofStream) const {
        if (!read_) {
            return WithoutGlobalLock([&] { return ofFile(name_); });
        }
        PythonInput buffer(pybind11::reinterpret_borrow<pybind11::function>(read_));
        std::istream in(&buffer);
        try {
            auto result = WithoutGlobalLock([&] { return ofStream(in, name_); });
            buffer.RethrowFailure();
            return result;
        } catch (...) {
            buffer.RethrowFailure(); // it came first, and says more
            throw;
        }
    }

private:
    pybind11::object read_;
    std::string name_;
};

/// Has `operation` write to a stream that hands on to `write`, without the lock.
template <typename Operation>
auto WriteTo(const pybind11::function& write, Operation operation) {
    PythonOutput buffer(write);
    std::ostream out(&buffer);
    auto result = WithoutGlobalLock([&] { return operation(out); });
    buffer.Finish();
    return result;
}

} // namespace FluidBenchPython
