// Reading keyword decks, against loops over the same files: a fluid of 1,000 components with all of
// its interaction coefficients, against std::getline with std::from_chars; and a deck of 256 MiB
// whose data hardly anybody wants, against std::getline alone. The memory and the processor time
// that the large deck takes with its units looked for are measured in a process of its own, beside
// those of `wc -l`.
#include "Baselines.h"
#include "Ratios.h"
#include "Scratch.h"
#include "Usage.h"
#include "io/PVOFileReader.h"
#include "io/PVOFileWriter.h"

#include <benchmark/benchmark.h>

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <functional>
#include <random>
#include <stdexcept>
#include <string>

namespace {

using FluidBenchBenchmark::ScratchFolder;
using FluidBenchBenchmark::Usage;
using namespace Orv::FluidBench;

constexpr int components = 1000;
constexpr std::size_t mebibyte = std::size_t{1} << 20;
constexpr std::size_t largeDeckSize = 256 * mebibyte;
constexpr double mostPeakMemory = 64.0; // MiB

Model::CompositionalFluid Fluid(int n) {
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> any(0.001, 0.2);
    Model::CompositionalFluid fluid("");
    for (int i = 0; i < n; ++i) {
        Model::FluidComponent component("PC" + std::to_string(i));
        component.SetMolecularWeight(100.0 + any(random));
        component.SetTcrit(400.0 + any(random));
        component.SetPcrit(3e6 + any(random));
        component.SetVcrit(1e-4 + 1e-3 * any(random));
        component.SetAcf(any(random));
        component.SetOmegaA(0.457235529);
        component.SetOmegaB(0.077796074);
        fluid.SetComponent(component, 1.0 / n);
    }
    const std::vector<std::string> names = fluid.ListComponents();
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < i; ++j) {
            fluid.SetBIC(names[static_cast<std::size_t>(i)], names[static_cast<std::size_t>(j)],
                         any(random));
        }
    }
    return fluid;
}

const std::string& FluidDeck() {
    static const std::string deck = [] {
        std::string file = ScratchFolder() / "fluid.dat";
        IO::PVOFileWriter().ExportToPVO(Fluid(components), file, 350.0, true, false);
        return file;
    }();
    return deck;
}

// A simulation deck: the fluid is a small part of it, and the grid nearly all.
const std::string& LargeDeck() {
    static const std::string deck = [] {
        std::string file = ScratchFolder() / "large.dat";
        std::ofstream out(file);
        out << "RUNSPEC\nFIELD\nGRID\nPERMX\n";
        std::string lines;
        std::mt19937_64 random(7);
        std::uniform_real_distribution<double> millidarcy(0.1, 2000.0);
        while (lines.size() < mebibyte) {
            for (int i = 0; i < 8; ++i) {
                lines += ' ' + std::to_string(millidarcy(random));
            }
            lines += '\n';
        }
        for (std::size_t size = 0; size < largeDeckSize; size += lines.size()) {
            out << lines;
        }
        out << "/\nPROPS\nFILEUNIT\nFIELD /\nEOS\nPR /\nCNAMES\nC1 C10 /\nMW\n16.04 142.29 /\n"
               "TCRIT\n343 1111.8 /\nZI\n0.6 0.4 /\n";
        return file;
    }();
    return deck;
}

void Read(const std::string& file, int expectedComponents, bool detectUnitSystem = false) {
    IO::PVOFileReader reader;
    reader.SetPVOName(file);
    Model::CompositionalFluid fluid("");
    if (reader.Read(fluid, detectUnitSystem).HasErrors() ||
        fluid.NumberOfComponents() != expectedComponents) {
        throw std::runtime_error("The deck wasn't read");
    }
    benchmark::DoNotOptimize(fluid);
}

void ReadFluid(benchmark::State& state) {
    for (auto _ : state) {
        Read(FluidDeck(), components);
    }
}

void FromChars(benchmark::State& state) {
    const std::string& file = FluidDeck();
    for (auto _ : state) {
        benchmark::DoNotOptimize(FluidBenchBenchmark::SumOfNumbers(file));
    }
}

void ReadLarge(benchmark::State& state) {
    for (auto _ : state) {
        Read(LargeDeck(), 2);
    }
}

void GetLine(benchmark::State& state) {
    const std::string& file = LargeDeck();
    for (auto _ : state) {
        std::ifstream stream(file);
        std::string line;
        std::size_t length = 0;
        while (std::getline(stream, line)) {
            length += line.size();
        }
        benchmark::DoNotOptimize(length);
    }
}

void Copy(benchmark::State& state) {
    FluidBenchBenchmark::CopyBytes(state, FluidDeck());
}

void CountLines(const std::string& file) {
    execlp("wc", "wc", "-l", file.c_str(), nullptr);
    throw std::runtime_error("There is no program wc");
}

// The least of several runs, each in a process of its own. Called before anything else makes this
// process large.
Usage LeastUsageOf(const std::function<void()>& operation) {
    Usage least = FluidBenchBenchmark::UsageOf(operation);
    for (int i = 0; i < 4; ++i) {
        const Usage usage = FluidBenchBenchmark::UsageOf(operation);
        least.processorTime = std::min(least.processorTime, usage.processorTime);
    }
    return least;
}

void PrintUsageOfLargeDeck() {
    constexpr bool detectUnitSystem = true;
    constexpr double mostOfWc = 2.2;
    const std::string& deck = LargeDeck();
    const Usage wc = LeastUsageOf([&] { CountLines(deck); });
    const Usage reading = LeastUsageOf([&] { Read(deck, 2, detectUnitSystem); });
    const double ratio = reading.processorTime / wc.processorTime;
    std::printf("%-60s %6.2f  (at most %.2f%s)\n", "reading 256 MiB, units looked for : wc -l",
                ratio, mostOfWc, ratio <= mostOfWc ? "" : ", MISSED");
    const double memory = static_cast<double>(reading.peakMemory) / mebibyte;
    std::printf("%-60s %6.2f MiB  (at most %.0f MiB%s)\n", "peak memory of reading 256 MiB", memory,
                mostPeakMemory, memory <= mostPeakMemory ? "" : ", MISSED");
}

BENCHMARK(ReadFluid)->Unit(benchmark::kMillisecond);
BENCHMARK(FromChars)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadLarge)->Unit(benchmark::kMillisecond);
BENCHMARK(GetLine)->Unit(benchmark::kMillisecond);
BENCHMARK(Copy)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argumentCount, char** arguments) {
    PrintUsageOfLargeDeck();
    return FluidBenchBenchmark::RunAndPrintRatios(
        argumentCount, arguments,
        {{"reading 1,000 components : getline and from_chars", "ReadFluid", "FromChars", 2.0},
         {"reading 256 MiB of other data : getline", "ReadLarge", "GetLine", 2.0},
         {"reading 1,000 components : memcpy of the bytes", "ReadFluid", "Copy", 0.0}});
}
