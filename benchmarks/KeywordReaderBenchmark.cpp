// Reading keyword files of a million rows, against loops that read the same lines by std::getline
// and the same numbers by std::from_chars and keep nothing; and the memory that it takes, as a
// multiple of the file.
#include "Ratios.h"
#include "Scratch.h"
#include "io/BlackOilExportFileWriter.h"
#include "io/BlackOilKeywordReader.h"

#include <benchmark/benchmark.h>

#include <charconv>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using FluidBenchBenchmark::ScratchFolder;
using Orv::FluidBench::Common::ErrorReport;
using Orv::FluidBench::Common::Units;
using Orv::FluidBench::IO::BlackOilExportFileWriter;
using Orv::FluidBench::IO::BlackOilKeywordReader;
using Orv::FluidBench::Model::BlackOilDataRecords;
using Orv::FluidBench::Model::BlackOilTable;

constexpr int rows = 1'000'000;
constexpr int rowsPerRecord = 10;

enum Table : std::int64_t { oil, gas, tables };

std::string FileOf(std::int64_t table) {
    return ScratchFolder() / ("table-" + std::to_string(table));
}

void Require(bool isTrue) {
    if (!isTrue) {
        throw std::runtime_error("A file wasn't written or read whole");
    }
}

void WriteBlackOil(Table table) {
    BlackOilDataRecords records;
    std::vector<BlackOilDataRecords::Entry> record(rowsPerRecord);
    for (int i = 0; i < rows / rowsPerRecord; ++i) {
        const double rise = 1e-3 * i;
        for (int j = 0; j < rowsPerRecord; ++j) {
            const double pressure = (20.0 + rise + (table == oil ? 7.0 * j : 0.0)) * 1e5;
            const double ratio = table == oil ? 10.0 + rise : 1e-3 / (1.0 + j + rise);
            record[static_cast<std::size_t>(j)] = {pressure, ratio, 1.2345 + 1e-2 / (1.0 + rise),
                                                   1e-3 / (1.0 + rise + j)};
        }
        records.AddRecord(record);
    }
    BlackOilTable written;
    written.SetOilDensity(800.0);
    (table == oil ? written.SetLiveOilData(std::move(records))
                  : written.SetWetGasData(std::move(records)));
    Require(!BlackOilExportFileWriter()
                 .ExportToFile(written, FileOf(table), Units::METRIC,
                               BlackOilExportFileWriter::LIVE_OIL_WET_GAS,
                               BlackOilExportFileWriter::PVO)
                 .HasErrors());
}

void ReadTable(std::int64_t table) {
    std::vector<BlackOilTable> regions;
    const ErrorReport report = BlackOilKeywordReader().Read(FileOf(table), regions);
    Require(
        !report.HasErrors() && regions.size() == 1 &&
        (table == oil ? regions[0].GetLiveOilData() : regions[0].GetWetGasData()).GetTableSize() ==
            rows / rowsPerRecord);
}

void Read(benchmark::State& state) {
    for (auto _ : state) {
        ReadTable(state.range(0));
    }
}

void FromChars(benchmark::State& state) {
    for (auto _ : state) {
        std::ifstream stream(FileOf(state.range(0)));
        double sum = 0.0;
        for (std::string line; std::getline(stream, line);) {
            const char* const end = line.data() + line.size();
            for (const char* position = line.data(); position != end;) {
                if (*position == ' ' || *position == '\t') {
                    ++position;
                    continue;
                }
                double value = 0.0;
                const auto [behind, error] = std::from_chars(position, end, value);
                if (error != std::errc()) {
                    break;
                }
                sum += value;
                position = behind;
            }
        }
        benchmark::DoNotOptimize(sum);
    }
}

// Runs the operation in a process of its own and gives the most memory that it had, in bytes.
std::int64_t PeakMemoryOf(const std::function<void()>& operation) {
    const pid_t child = fork();
    if (child == 0) {
        operation();
        _exit(0);
    }
    int status = 0;
    rusage usage{};
    Require(wait4(child, &status, 0, &usage) == child && status == 0);
    return std::int64_t{usage.ru_maxrss} * 1024;
}

void PrintMemory(std::int64_t table, const char* name) {
    const std::int64_t nothing = PeakMemoryOf([] {});
    const std::int64_t reading = PeakMemoryOf([=] { ReadTable(table); });
    const auto size = static_cast<double>(std::filesystem::file_size(FileOf(table)));
    std::printf("memory for reading %s : file of %.0f MB  %.2f, at most 3.0\n", name, size / 1e6,
                static_cast<double>(reading - nothing) / size);
}

BENCHMARK(Read)->Unit(benchmark::kMillisecond)->DenseRange(0, tables - 1);
BENCHMARK(FromChars)->Unit(benchmark::kMillisecond)->DenseRange(0, tables - 1);

} // namespace

int main(int argumentCount, char** arguments) {
    ScratchFolder();
    for (const Table table : {oil, gas}) {
        PeakMemoryOf([=] { WriteBlackOil(table); });
    }
    PrintMemory(oil, "PVTO");
    PrintMemory(gas, "PVTG");
    return FluidBenchBenchmark::RunAndPrintRatios(
        argumentCount, arguments,
        {{"reading PVTO : getline and from_chars", "Read/0", "FromChars/0", 1.5},
         {"reading PVTG : getline and from_chars", "Read/1", "FromChars/1", 1.5}});
}
