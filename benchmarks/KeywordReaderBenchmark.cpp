// Reading keyword files of a million rows, or of K-values with two million numbers, against loops
// that read the same lines by std::getline and the same numbers by std::from_chars and keep
// nothing; and the memory that it takes, as a multiple of the file.
#include "Baselines.h"
#include "Ratios.h"
#include "Scratch.h"
#include "Usage.h"
#include "io/BlackOilExportFileWriter.h"
#include "io/BlackOilKeywordReader.h"
#include "io/KValuesExportFileWriter.h"
#include "io/KValuesKeywordReader.h"

#include <benchmark/benchmark.h>

#include <charconv>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using FluidBenchBenchmark::ScratchFolder;
using FluidBenchBenchmark::UsageOf;
using Orv::FluidBench::Common::ErrorReport;
using Orv::FluidBench::Common::Units;
using Orv::FluidBench::IO::BlackOilExportFileWriter;
using Orv::FluidBench::IO::BlackOilKeywordReader;
using Orv::FluidBench::IO::KValuesExportFileWriter;
using Orv::FluidBench::IO::KValuesKeywordReader;
using Orv::FluidBench::Model::BlackOilDataRecords;
using Orv::FluidBench::Model::BlackOilTable;
using Orv::FluidBench::Model::KValuesTable;

constexpr int blackOilRows = 1'000'000;
constexpr int rowsPerRecord = 10;

constexpr int kValueRecords = 100'000;
constexpr int components = 20;

enum Table : std::int64_t { oil, gas, kValues, tables };

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
    for (int i = 0; i < blackOilRows / rowsPerRecord; ++i) {
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

void WriteKValues() {
    std::vector<std::string> names;
    for (int i = 0; i < components; ++i) {
        names.push_back("C" + std::to_string(i + 1));
    }
    KValuesTable table(std::move(names));
    for (int i = 0; i < kValueRecords; ++i) {
        std::vector<double> record{1e5 + 400.0 * i};
        for (int j = 0; j < components; ++j) {
            record.push_back(100.0 / (1.0 + 3.0 * j + 1e-3 * i));
        }
        table.AddRecord(std::move(record));
    }
    Require(
        !KValuesExportFileWriter().ExportToFile(table, FileOf(kValues), Units::METRIC).HasErrors());
}

bool IsWhole(const BlackOilDataRecords& table) {
    return table.GetTableSize() == blackOilRows / rowsPerRecord;
}

void ReadTable(std::int64_t table) {
    if (table == kValues) {
        std::vector<KValuesTable> read;
        Require(!KValuesKeywordReader().Read(FileOf(table), read).HasErrors() && read.size() == 1 &&
                read[0].GetTableSize() == kValueRecords);
        return;
    }
    std::vector<BlackOilTable> regions;
    const ErrorReport report = BlackOilKeywordReader().Read(FileOf(table), regions);
    Require(!report.HasErrors() && regions.size() == 1 &&
            IsWhole(table == oil ? regions[0].GetLiveOilData() : regions[0].GetWetGasData()));
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

void Copy(benchmark::State& state) {
    FluidBenchBenchmark::CopyBytes(state, FileOf(state.range(0)));
}

void PrintMemory(std::int64_t table, const char* name) {
    const std::int64_t nothing = UsageOf([] {}).peakMemory;
    const std::int64_t reading = UsageOf([=] { ReadTable(table); }).peakMemory;
    const auto size = static_cast<double>(std::filesystem::file_size(FileOf(table)));
    std::printf("memory for reading %s : file of %.0f MB  %.2f, at most 3.0\n", name, size / 1e6,
                static_cast<double>(reading - nothing) / size);
}

BENCHMARK(Read)->Unit(benchmark::kMillisecond)->DenseRange(0, tables - 1);
BENCHMARK(FromChars)->Unit(benchmark::kMillisecond)->DenseRange(0, tables - 1);
BENCHMARK(Copy)->Unit(benchmark::kMillisecond)->DenseRange(0, tables - 1);

} // namespace

int main(int argumentCount, char** arguments) {
    ScratchFolder();
    UsageOf([] {
        WriteBlackOil(oil);
        WriteBlackOil(gas);
        WriteKValues();
    });
    PrintMemory(oil, "PVTO");
    PrintMemory(gas, "PVTG");
    PrintMemory(kValues, "KVTABLE");
    return FluidBenchBenchmark::RunAndPrintRatios(
        argumentCount, arguments,
        {{"reading PVTO : getline and from_chars", "Read/0", "FromChars/0", 1.5},
         {"reading PVTG : getline and from_chars", "Read/1", "FromChars/1", 1.5},
         {"reading KVTABLE : getline and from_chars", "Read/2", "FromChars/2", 1.5},
         {"reading PVTO : memcpy of the bytes", "Read/0", "Copy/0", 0.0},
         {"reading PVTG : memcpy of the bytes", "Read/1", "Copy/1", 0.0},
         {"reading KVTABLE : memcpy of the bytes", "Read/2", "Copy/2", 0.0}});
}
