// Writing a K-value table of 100,000 records and 20 components, compared with merely putting the
// same numbers through std::to_chars into cells of the same width. Both flush at each line end.
#include "Baselines.h"
#include "Ratios.h"
#include "Scratch.h"
#include "io/KValuesExportFileWriter.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace {

using FluidBenchBenchmark::ScratchFolder;
using Orv::FluidBench::Common::Units;
using Orv::FluidBench::IO::KValuesExportFileWriter;
using Orv::FluidBench::Model::KValuesTable;

constexpr int recordCount = 100'000;
constexpr int componentCount = 20;
constexpr int decimals = 8;
constexpr std::size_t cellWidth = 24;

std::string TargetFile() {
    return (ScratchFolder() / "k-values").string();
}

const KValuesTable& Table() {
    static const KValuesTable table = [] {
        std::vector<std::string> names;
        for (int i = 0; i < componentCount; ++i) {
            names.push_back("C" + std::to_string(i + 1));
        }
        KValuesTable filled(std::move(names));
        std::mt19937 random(5);
        std::uniform_real_distribution<double> exponent(-6.0, 3.0);
        for (int i = 0; i < recordCount; ++i) {
            std::vector<double> record{1e5 + 400.0 * i};
            for (int j = 0; j < componentCount; ++j) {
                record.push_back(std::pow(10.0, exponent(random)));
            }
            filled.AddRecord(std::move(record));
        }
        return filled;
    }();
    return table;
}

void Export(benchmark::State& state) {
    const KValuesTable& table = Table();
    const std::string file = TargetFile();
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            KValuesExportFileWriter().ExportToFile(table, file, Units::METRIC));
    }
    state.SetBytesProcessed(state.iterations() *
                            static_cast<std::int64_t>(std::filesystem::file_size(file)));
}

void ToChars(benchmark::State& state) {
    const KValuesTable& table = Table();
    const std::string file = TargetFile();
    for (auto _ : state) {
        std::ofstream out(file);
        char line[1024];
        for (std::uint64_t i = 0; i < table.GetTableSize(); ++i) {
            char* position = line;
            for (const double value : table.GetRecord(i)) {
                char* const end = position + cellWidth + 1;
                position =
                    std::to_chars(position, end, value, std::chars_format::fixed, decimals).ptr;
                position = std::fill_n(position, end - position, ' ');
            }
            *position++ = '\n';
            out.write(line, position - line);
            out.flush();
        }
    }
    state.SetBytesProcessed(state.iterations() *
                            static_cast<std::int64_t>(std::filesystem::file_size(file)));
}

void Copy(benchmark::State& state) {
    KValuesExportFileWriter().ExportToFile(Table(), TargetFile(), Units::METRIC);
    FluidBenchBenchmark::CopyBytes(state, TargetFile());
}

BENCHMARK(Export)->Unit(benchmark::kMillisecond);
BENCHMARK(ToChars)->Unit(benchmark::kMillisecond);
BENCHMARK(Copy)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argumentCount, char** arguments) {
    return FluidBenchBenchmark::RunAndPrintRatios(
        argumentCount, arguments,
        {{"100,000 records of 20 components : to_chars", "Export", "ToChars", 0.8},
         {"100,000 records of 20 components : memcpy of the bytes", "Export", "Copy", 0.0}});
}
