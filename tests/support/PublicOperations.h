// Every operation of the library that writes or reads, in one form each, for the tests that do the
// same to all of them.
#pragma once

#include "FluidBench/Common/ErrorReport.h"

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace FluidBenchTest {

/// One operation that writes, with either target.
struct WriteOperation {
    template <typename Write>
    WriteOperation(const char* ofName, Write write)
        : name(ofName), toFile(write), toStream(write) {}

    std::string name;
    std::function<Orv::FluidBench::Common::ErrorReport(const std::string&)> toFile;
    std::function<Orv::FluidBench::Common::ErrorReport(std::ostream&)> toStream;
};
std::vector<WriteOperation> WriteOperations();

/// A reader, and what it has read.
struct Reading {
    std::function<bool()> read;        ///< reads the sample; false when the reader says it failed
    std::function<std::string()> text; ///< all that was read
};

/// One operation that reads. Each `make` makes a reader of its own.
struct ReadOperation {
    std::string name;
    std::function<Reading()> make;
};
std::vector<ReadOperation> ReadOperations();

} // namespace FluidBenchTest
