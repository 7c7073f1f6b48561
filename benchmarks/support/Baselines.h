// What more than one benchmark is compared with.
#pragma once

#include <string>

namespace FluidBenchBenchmark {

/// Adds up the numbers of a text file, read by `std::getline` and `std::from_chars` alone: what it
/// takes to read the file without making anything of it.
double SumOfNumbers(const std::string& fileName);

} // namespace FluidBenchBenchmark
