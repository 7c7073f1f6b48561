// Importing the exports of a downhole fluid analysis job: how the time grows with the number of
// stations, and how it compares with merely reading the numbers of both files.
#include "Baselines.h"
#include "Ratios.h"
#include "Scratch.h"
#include "io/DFAReader.h"

#include <benchmark/benchmark.h>

#include <charconv>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>

namespace {

using FluidBenchBenchmark::ScratchFolder;
using Orv::FluidBench::IO::DFAReader;

constexpr int halfSize = 50'000;
constexpr int fullSize = 100'000;

// How the depths of the stations follow each other.
enum Order : std::int64_t { taken, equal };

std::string Number(double value) {
    char text[32];
    return {text, std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, 2).ptr};
}

// Ten wells. Stations come in the order in which they were taken, up and down the well, or all of
// them lie at one depth. Every station has its pressure in the FT file.
std::string MainFile(int stations, Order order) {
    std::string name = (ScratchFolder() / std::to_string(stations)).string();
    name += order == equal ? "equal_" : "taken_";
    std::mt19937 random(11);
    std::uniform_real_distribution<double> anyDepth(6000.0, 10'000.0);
    std::string mainName = name + "DFA.txt";
    std::ofstream main(mainName);
    std::ofstream pressure(name + "FT.txt");
    main << "BEGIN HEADER\nEND HEADER\n";
    pressure << "BEGIN HEADER\nEND HEADER\n";
    for (int i = 0; i < stations; ++i) {
        const std::string depth = Number(order == equal ? 9850.0 : anyDepth(random));
        const int well = i / (stations / 10);
        main << "1 \"WELL " << well << "\" " << depth
             << " 1 1190.50 52.10 7.90 12.40 26.90 0.70 0.69 \"STATION " << i
             << "\" 0.35 1.20 0.08 4.00 2.00 0.11 0.97 35.20 187.50 3.00 12.25\n";
        pressure << "1 \"WELL " << well << "\" " << depth << " 1 4310.75 \"STATION " << i
                 << "\" 1.20 0.03\n";
    }
    return mainName;
}

void Import(benchmark::State& state) {
    const std::string file = MainFile(static_cast<int>(state.range(0)), Order(state.range(1)));
    for (auto _ : state) {
        DFAReader reader;
        if (!reader.Import(file) || reader.GetExtractedData().size() != 10) {
            throw std::runtime_error("The import failed");
        }
        benchmark::DoNotOptimize(reader);
    }
}

void ReadNumbers(benchmark::State& state) {
    const std::string file = MainFile(fullSize, taken);
    const std::string stem = file.substr(0, file.size() - 7);
    for (auto _ : state) {
        for (const std::string& name : {file, stem + "FT.txt"}) {
            benchmark::DoNotOptimize(FluidBenchBenchmark::SumOfNumbers(name));
        }
    }
}

// Of both files.
void Copy(benchmark::State& state) {
    const std::string file = MainFile(fullSize, taken);
    const std::string both = ScratchFolder() / "both";
    std::ofstream out(both);
    for (const std::string& name : {file, file.substr(0, file.size() - 7) + "FT.txt"}) {
        out << std::ifstream(name).rdbuf();
    }
    out.close();
    FluidBenchBenchmark::CopyBytes(state, both);
}

BENCHMARK(Import)
    ->Unit(benchmark::kMillisecond)
    ->Args({halfSize, taken})
    ->Args({fullSize, taken})
    ->Args({halfSize, equal})
    ->Args({fullSize, equal});
BENCHMARK(Copy)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadNumbers)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argumentCount, char** arguments) {
    return FluidBenchBenchmark::RunAndPrintRatios(
        argumentCount, arguments,
        {{"import of 100,000 stations : getline and from_chars", "Import/100000/0", "ReadNumbers",
          1.5},
         {"growth, 50,000 to 100,000 stations in any order", "Import/100000/0", "Import/50000/0",
          2.3},
         {"growth, 50,000 to 100,000 stations at one depth", "Import/100000/1", "Import/50000/1",
          2.3},
         {"import of 100,000 stations : memcpy of the bytes", "Import/100000/0", "Copy", 0.0}});
}
