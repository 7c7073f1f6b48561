// Exporting a fluid of a thousand components with all its interaction coefficients as a deck,
// against a loop that only formats the same coefficients with std::to_chars into memory.
#include "Baselines.h"
#include "Ratios.h"
#include "Scratch.h"
#include "io/PVOFileWriter.h"

#include <benchmark/benchmark.h>

#include <charconv>
#include <cstdint>
#include <map>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using FluidBenchBenchmark::ScratchFolder;
using Orv::FluidBench::IO::PVOFileWriter;
using Orv::FluidBench::Model::CompositionalFluid;
using Orv::FluidBench::Model::FluidComponent;

constexpr std::int64_t smallSize = 500;
constexpr std::int64_t fullSize = 1000;
constexpr int significantDigits = 10;

struct Sample {
    CompositionalFluid fluid{"sample"};
    std::vector<double> coefficients;
};

Sample MakeSample(std::int64_t components) {
    std::mt19937_64 random(5);
    std::uniform_real_distribution<double> molecularWeight(16.0, 500.0);
    std::uniform_real_distribution<double> coefficient(-0.05, 0.25);
    Sample sample;
    for (std::int64_t i = 0; i < components; ++i) {
        FluidComponent component("Pseudo" + std::to_string(i));
        component.SetMolecularWeight(molecularWeight(random));
        component.SetTcrit(molecularWeight(random) + 200.0);
        component.SetPcrit(4e8 / component.GetMolecularWeight());
        sample.fluid.SetComponent(component, 1.0 / static_cast<double>(components));
    }
    const std::vector<std::string> names = sample.fluid.ListComponents();
    for (std::size_t row = 1; row < names.size(); ++row) {
        for (std::size_t column = 0; column < row; ++column) {
            const double value = coefficient(random);
            sample.fluid.SetBIC(names[row], names[column], value);
            sample.coefficients.push_back(value);
        }
    }
    return sample;
}

const Sample& SampleOf(std::int64_t components) {
    static std::map<std::int64_t, Sample> samples;
    const auto found = samples.find(components);
    return found != samples.end()
               ? found->second
               : samples.emplace(components, MakeSample(components)).first->second;
}

std::string File() {
    return ScratchFolder() / "deck";
}

void Write(const Sample& sample) {
    if (PVOFileWriter().ExportToPVO(sample.fluid, File(), 350.0, true, true).HasErrors()) {
        throw std::runtime_error("The export failed");
    }
}

void Export(benchmark::State& state) {
    const Sample& sample = SampleOf(state.range(0));
    for (auto _ : state) {
        Write(sample);
    }
}

void ToChars(benchmark::State& state) {
    const std::vector<double>& coefficients = SampleOf(fullSize).coefficients;
    constexpr std::size_t longestNumber = 32;
    std::vector<char> text(coefficients.size() * longestNumber);
    for (auto _ : state) {
        char* position = text.data();
        for (const double value : coefficients) {
            position = std::to_chars(position, text.data() + text.size(), value,
                                     std::chars_format::general, significantDigits)
                           .ptr;
            *position++ = ' ';
        }
        benchmark::DoNotOptimize(position);
        benchmark::ClobberMemory();
    }
}

void Copy(benchmark::State& state) {
    Write(SampleOf(fullSize));
    FluidBenchBenchmark::CopyBytes(state, File());
}

BENCHMARK(Export)->Unit(benchmark::kMillisecond)->Arg(smallSize)->Arg(fullSize);
BENCHMARK(ToChars)->Unit(benchmark::kMillisecond);
BENCHMARK(Copy)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argumentCount, char** arguments) {
    return FluidBenchBenchmark::RunAndPrintRatios(
        argumentCount, arguments,
        {{"export of 499,500 coefficients : to_chars into memory", "Export/1000", "ToChars", 1.2},
         {"growth from 124,750 to 499,500 coefficients, 4.0 times", "Export/1000", "Export/500",
          4.6},
         {"export of 499,500 coefficients : memcpy of the bytes", "Export/1000", "Copy", 0.0}});
}
