// Writing and reading black-oil files of a million rows, against loops that only format or parse
// the same cells: std::to_chars with block writes, std::getline with std::from_chars. What plain
// stream insertion and atof take is told next to them.
#include "Baselines.h"
#include "Ratios.h"
#include "Scratch.h"
#include "Usage.h"
#include "io/BlackOilExportFileWriter.h"

#include <benchmark/benchmark.h>

#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <map>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using FluidBenchBenchmark::ScratchFolder;
using Orv::FluidBench::Common::Units;
using Orv::FluidBench::IO::BlackOilExportFileWriter;
using Orv::FluidBench::Model::BlackOilDataRecords;
using Orv::FluidBench::Model::BlackOilTable;

constexpr std::int64_t smallSize = 100'000;
constexpr std::int64_t fullSize = 1'000'000;
constexpr std::int64_t largeSize = 10'000'000;
constexpr std::int64_t rowsPerRecord = 10;
constexpr int decimals = 8;

enum Form : std::int64_t { keywords, csv };

// One row as the baselines have it: its cells in the units and the order of the file.
using Cells = std::array<double, 4>;

// A table half of oil and half of gas, and the cells of its rows.
struct Sample {
    BlackOilTable table;
    std::vector<Cells> rows;
};

Sample MakeSample(std::int64_t rows) {
    std::mt19937_64 random(5);
    std::uniform_real_distribution<double> bar(20.0, 600.0);
    std::uniform_real_distribution<double> gasOilRatio(10.0, 300.0);
    std::uniform_real_distribution<double> oilGasRatio(0.0, 0.001);
    std::uniform_real_distribution<double> oilVolumeFactor(1.0, 2.0);
    std::uniform_real_distribution<double> gasVolumeFactor(0.003, 0.05);
    std::uniform_real_distribution<double> centipoise(0.01, 3.0);
    Sample sample;
    BlackOilDataRecords oil;
    BlackOilDataRecords gas;
    for (std::int64_t i = 0; i < rows; ++i) {
        const bool isOil = i < rows / 2;
        const double pressure = bar(random);
        const double ratio = isOil ? gasOilRatio(random) : oilGasRatio(random);
        const double volumeFactor = isOil ? oilVolumeFactor(random) : gasVolumeFactor(random);
        const double viscosity = centipoise(random);
        const std::int64_t row = isOil ? i : i - rows / 2;
        (isOil ? oil : gas)
            .AddEntry(static_cast<std::uint64_t>(row / rowsPerRecord), pressure * 1e5, ratio,
                      volumeFactor, viscosity * 1e-3);
        sample.rows.push_back(isOil ? Cells{ratio, pressure, volumeFactor, viscosity}
                                    : Cells{pressure, ratio, volumeFactor, viscosity});
    }
    sample.table.SetLiveOilData(oil);
    sample.table.SetWetGasData(gas);
    return sample;
}

const Sample& SampleOf(std::int64_t rows) {
    static std::map<std::int64_t, Sample> samples;
    const auto found = samples.find(rows);
    return found != samples.end() ? found->second
                                  : samples.emplace(rows, MakeSample(rows)).first->second;
}

bool LacksFirstCell(std::size_t row, Form form) {
    return form == keywords && row % rowsPerRecord != 0;
}

void Export(const Sample& sample, const std::string& file, Form form) {
    const auto report = BlackOilExportFileWriter().ExportToFile(
        sample.table, file, Units::METRIC, BlackOilExportFileWriter::LIVE_OIL_WET_GAS,
        form == csv ? BlackOilExportFileWriter::CSV : BlackOilExportFileWriter::PVO);
    if (report.HasErrors()) {
        throw std::runtime_error("The export failed");
    }
}

void Write(benchmark::State& state) {
    const Sample& sample = SampleOf(state.range(0));
    const std::string file = ScratchFolder() / "written";
    for (auto _ : state) {
        Export(sample, file, Form(state.range(1)));
    }
}

void ToChars(benchmark::State& state) {
    const std::vector<Cells>& rows = SampleOf(fullSize).rows;
    const Form form = Form(state.range(0));
    const char separator = form == csv ? ',' : '\t';
    constexpr std::size_t roomOfRow = 256;
    std::vector<char> block(std::size_t{64} * 1024);
    for (auto _ : state) {
        std::ofstream out(ScratchFolder() / "written");
        char* position = block.data();
        char* const end = block.data() + block.size();
        for (std::size_t row = 0; row < rows.size(); ++row) {
            if (static_cast<std::size_t>(end - position) < roomOfRow) {
                out.write(block.data(), position - block.data());
                position = block.data();
            }
            for (std::size_t cell = LacksFirstCell(row, form) ? 1 : 0; cell < 4; ++cell) {
                *position++ = separator;
                position = std::to_chars(position, end, rows[row][cell], std::chars_format::fixed,
                                         decimals)
                               .ptr;
            }
            *position++ = '\n';
        }
        out.write(block.data(), position - block.data());
    }
}

void StreamInsertion(benchmark::State& state) {
    const std::vector<Cells>& rows = SampleOf(fullSize).rows;
    const Form form = Form(state.range(0));
    const char separator = form == csv ? ',' : '\t';
    for (auto _ : state) {
        std::ofstream out(ScratchFolder() / "written");
        out << std::fixed << std::setprecision(decimals);
        for (std::size_t row = 0; row < rows.size(); ++row) {
            for (std::size_t cell = LacksFirstCell(row, form) ? 1 : 0; cell < 4; ++cell) {
                out << separator << rows[row][cell];
            }
            out << '\n';
        }
    }
}

std::string FileToRead(std::int64_t rows) {
    std::string file = ScratchFolder() / ("read-" + std::to_string(rows));
    if (!std::filesystem::exists(file)) {
        Export(SampleOf(rows), file, csv);
    }
    return file;
}

void ReadFile(std::int64_t rows) {
    const BlackOilTable table = BlackOilExportFileWriter().GetTableFromCSVFile(FileToRead(rows));
    const auto records = static_cast<std::uint64_t>(rows / rowsPerRecord / 2);
    if (table.GetLiveOilData().GetTableSize() != records ||
        table.GetWetGasData().GetTableSize() != records) {
        throw std::runtime_error("The file wasn't read whole");
    }
}

void Read(benchmark::State& state) {
    FileToRead(state.range(0));
    for (auto _ : state) {
        ReadFile(state.range(0));
    }
}

// Both baselines take the numbers behind the commas of each line; nothing keeps them.
template <typename Parse>
void ReadLines(benchmark::State& state, Parse parse) {
    const std::string file = FileToRead(fullSize);
    for (auto _ : state) {
        std::ifstream stream(file);
        std::string line;
        double sum = 0.0;
        while (std::getline(stream, line)) {
            const char* const end = line.data() + line.size();
            for (std::size_t comma = line.find(','); comma != std::string::npos;
                 comma = line.find(',', comma + 1)) {
                sum += parse(line.data() + comma + 1, end);
            }
        }
        benchmark::DoNotOptimize(sum);
    }
}

void FromChars(benchmark::State& state) {
    ReadLines(state, [](const char* begin, const char* end) {
        double value = 0.0;
        std::from_chars(begin, end, value);
        return value;
    });
}

void Atof(benchmark::State& state) {
    ReadLines(state, [](const char* begin, const char*) { return std::atof(begin); });
}

std::string KeywordFile() {
    std::string file = ScratchFolder() / "keywords";
    Export(SampleOf(fullSize), file, keywords);
    return file;
}

void Copy(benchmark::State& state) {
    FluidBenchBenchmark::CopyBytes(state,
                                   state.range(0) == csv ? FileToRead(fullSize) : KeywordFile());
}

// What a process of its own has in memory for reading alone, beside what it begins with.
void PrintMemory(std::int64_t rows) {
    FluidBenchBenchmark::UsageOf([=] { FileToRead(rows); });
    const std::int64_t nothing = FluidBenchBenchmark::UsageOf([] {}).peakMemory;
    const std::int64_t reading =
        FluidBenchBenchmark::UsageOf([=] { ReadFile(rows); }).peakMemory - nothing;
    const auto size = std::filesystem::file_size(FileToRead(rows));
    std::printf("%-60s %6.0f MB, %.2f of the file\n",
                ("peak memory of reading " + std::to_string(rows) + " rows of CSV").c_str(),
                static_cast<double>(reading) * 1e-6,
                static_cast<double>(reading) / static_cast<double>(size));
}

BENCHMARK(Write)
    ->Unit(benchmark::kMillisecond)
    ->ArgsProduct({{smallSize, fullSize, largeSize}, {keywords, csv}});
BENCHMARK(ToChars)->Unit(benchmark::kMillisecond)->Arg(keywords)->Arg(csv);
BENCHMARK(StreamInsertion)->Unit(benchmark::kMillisecond)->Arg(keywords)->Arg(csv);
BENCHMARK(Read)->Unit(benchmark::kMillisecond)->Arg(smallSize)->Arg(fullSize)->Arg(largeSize);
BENCHMARK(Copy)->Unit(benchmark::kMillisecond)->Arg(keywords)->Arg(csv);
BENCHMARK(FromChars)->Unit(benchmark::kMillisecond);
BENCHMARK(Atof)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argumentCount, char** arguments) {
    ScratchFolder();
    PrintMemory(smallSize);
    PrintMemory(fullSize);
    PrintMemory(largeSize);
    return FluidBenchBenchmark::RunAndPrintRatios(
        argumentCount, arguments,
        {{"writing keywords : to_chars and block writes", "Write/1000000/0", "ToChars/0", 0.65},
         {"writing CSV : to_chars and block writes", "Write/1000000/1", "ToChars/1", 0.65},
         {"reading CSV : getline and from_chars", "Read/1000000", "FromChars", 1.0},
         {"growth of writing keywords, 100,000 to 1,000,000 rows", "Write/1000000/0",
          "Write/100000/0", 11.5},
         {"growth of writing CSV", "Write/1000000/1", "Write/100000/1", 11.5},
         {"growth of reading", "Read/1000000", "Read/100000", 11.5},
         {"growth of writing keywords, 1,000,000 to 10,000,000 rows", "Write/10000000/0",
          "Write/1000000/0", 11.5},
         {"growth of writing CSV", "Write/10000000/1", "Write/1000000/1", 11.5},
         {"growth of reading", "Read/10000000", "Read/1000000", 11.5},
         {"writing keywords : memcpy of the bytes", "Write/1000000/0", "Copy/0", 0.0},
         {"writing CSV : memcpy of the bytes", "Write/1000000/1", "Copy/1", 0.0},
         {"reading CSV : memcpy of the bytes", "Read/1000000", "Copy/1", 0.0},
         {"plain insertion of keyword cells : writing keywords", "StreamInsertion/0",
          "Write/1000000/0", 0.0},
         {"plain insertion of CSV cells : writing CSV", "StreamInsertion/1", "Write/1000000/1",
          0.0},
         {"getline and atof : reading CSV", "Atof", "Read/1000000", 0.0}});
}
