// What more than one benchmark is compared with.
#pragma once

#include <benchmark/benchmark.h>

#include <string>

namespace FluidBenchBenchmark {

/// Adds up the numbers of a text file, read by `std::getline` and `std::from_chars` alone: what it
/// takes to read the file without making anything of it.
double SumOfNumbers(const std::string& fileName);

/// The benchmark of copying the bytes of a text file, which are in memory already, in blocks by
/// `std::memcpy`: the least that reading or writing it can take.
void CopyBytes(benchmark::State& state, const std::string& fileName);

} // namespace FluidBenchBenchmark
