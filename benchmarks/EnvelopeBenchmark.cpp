// Reading and writing a phase envelope of a million rows, against loops that only parse or format
// the same cells: std::getline with std::from_chars, std::to_chars with block writes. What plain
// stream insertion and atof take is told next to them.
#include "Baselines.h"
#include "Ratios.h"
#include "Scratch.h"
#include "io/PhaseEnvelopeReaderWriter.h"

#include <benchmark/benchmark.h>

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using FluidBenchBenchmark::ScratchFolder;
using Orv::FluidBench::Common::CommonPlottingObject;
using Orv::FluidBench::Common::Line;
using Orv::FluidBench::IO::PhaseEnvelopeReaderWriter;
using Plots = std::vector<CommonPlottingObject>;

constexpr std::int64_t smallSize = 100'000;
constexpr std::int64_t fullSize = 1'000'000;
constexpr std::int64_t largeSize = 10'000'000;
constexpr char separator = ',';
constexpr std::size_t columns = 8;
constexpr std::size_t criticalColumn = 4; // its two columns have one value each

// One row as the baselines have it.
using Cells = std::array<double, columns>;

// Bubble and dew lines and a quality line of as many points as there are rows, and their critical
// point.
struct Sample {
    Plots plots;
    std::vector<Cells> rows;
};

std::vector<Cells> MakeRows(std::int64_t count) {
    std::vector<Cells> rows;
    for (std::int64_t i = 0; i < count; ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(count);
        const double bubble = 250.0 + 200.0 * part;
        const double dew = 450.0 + 50.0 * std::sin(3.0 * part);
        rows.push_back({bubble, 3e6 + 5e6 * std::sqrt(part), dew, 8e6 * part + 1e5, 450.0, 8e6,
                        bubble + 20.0, 2e6 + 6e6 * part * part});
    }
    return rows;
}

Sample MakeSample(std::int64_t count) {
    Sample sample;
    sample.rows = MakeRows(count);
    std::array<std::vector<double>, columns> cells;
    for (const Cells& row : sample.rows) {
        for (std::size_t column = 0; column < columns; ++column) {
            if (column / 2 != criticalColumn / 2 || cells[column].empty()) {
                cells[column].push_back(row[column]);
            }
        }
    }
    auto& plot = sample.plots.emplace_back(CommonPlottingObject::AxisType::Temperature,
                                           CommonPlottingObject::AxisType::Pressure);
    const auto type = Line::Type::PhaseCurve;
    plot.AddLine({"", cells[0], cells[1], type, Line::Phase::Bubble});
    plot.AddLine({"", cells[2], cells[3], type, Line::Phase::Dew});
    plot.AddLine({"", cells[4], cells[5], type, Line::Phase::CriticalPoint});
    plot.AddLine({"", cells[6], cells[7], type, Line::Phase::VapourFraction, 0.5});
    return sample;
}

const Sample& SampleOf(std::int64_t rows) {
    static std::map<std::int64_t, Sample> samples;
    const auto found = samples.find(rows);
    return found != samples.end() ? found->second
                                  : samples.emplace(rows, MakeSample(rows)).first->second;
}

void WriteFile(const Sample& sample, const std::string& fileName) {
    PhaseEnvelopeReaderWriter file(true);
    file.SetFileName(fileName);
    if (!file.Write(sample.plots)) {
        throw std::runtime_error("The file wasn't written");
    }
}

void Write(benchmark::State& state) {
    const Sample& sample = SampleOf(state.range(0));
    const std::string file = ScratchFolder() / "written";
    for (auto _ : state) {
        WriteFile(sample, file);
    }
}

bool IsBlank(std::size_t row, std::size_t column) {
    return row > 0 && column / 2 == criticalColumn / 2;
}

void ToChars(benchmark::State& state) {
    const std::vector<Cells>& rows = SampleOf(fullSize).rows;
    constexpr int digits = 6;
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
            for (std::size_t column = 0; column < columns; ++column) {
                if (IsBlank(row, column)) {
                    *position++ = ' ';
                } else {
                    position = std::to_chars(position, end, rows[row][column],
                                             std::chars_format::general, digits)
                                   .ptr;
                }
                *position++ = separator;
            }
            *position++ = '\n';
        }
        out.write(block.data(), position - block.data());
    }
}

void StreamInsertion(benchmark::State& state) {
    const std::vector<Cells>& rows = SampleOf(fullSize).rows;
    for (auto _ : state) {
        std::ofstream out(ScratchFolder() / "written");
        for (std::size_t row = 0; row < rows.size(); ++row) {
            for (std::size_t column = 0; column < columns; ++column) {
                if (IsBlank(row, column)) {
                    out << ' ';
                } else {
                    out << rows[row][column];
                }
                out << separator;
            }
            out << '\n';
        }
    }
}

std::string FileToRead(std::int64_t rows) {
    std::string file = ScratchFolder() / ("read-" + std::to_string(rows));
    if (!std::filesystem::exists(file)) {
        WriteFile(SampleOf(rows), file);
    }
    return file;
}

void Read(benchmark::State& state) {
    PhaseEnvelopeReaderWriter file;
    file.SetFileName(FileToRead(state.range(0)));
    for (auto _ : state) {
        Plots plots;
        std::vector<std::string> messages;
        if (!file.Read(plots, messages) ||
            plots.at(0).GetLine(Line::Type::PhaseCurve, Line::Phase::Dew, 0).GetPoints().size() !=
                static_cast<std::size_t>(state.range(0))) {
            throw std::runtime_error("The file wasn't read whole");
        }
    }
}

// Both baselines take the numbers ahead of the separators of each line; nothing keeps them.
template <typename Parse>
void ReadLines(benchmark::State& state, Parse parse) {
    const std::string file = FileToRead(fullSize);
    for (auto _ : state) {
        std::ifstream stream(file);
        std::string line;
        double sum = 0.0;
        while (std::getline(stream, line)) {
            std::size_t begin = 0;
            for (std::size_t end = line.find(separator); end != std::string::npos;
                 end = line.find(separator, begin)) {
                sum += parse(line.data() + begin, line.data() + end);
                begin = end + 1;
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

void Copy(benchmark::State& state) {
    FluidBenchBenchmark::CopyBytes(state, FileToRead(fullSize));
}

BENCHMARK(Write)->Unit(benchmark::kMillisecond)->Arg(smallSize)->Arg(fullSize)->Arg(largeSize);
BENCHMARK(ToChars)->Unit(benchmark::kMillisecond);
BENCHMARK(StreamInsertion)->Unit(benchmark::kMillisecond);
BENCHMARK(Read)->Unit(benchmark::kMillisecond)->Arg(smallSize)->Arg(fullSize)->Arg(largeSize);
BENCHMARK(Copy)->Unit(benchmark::kMillisecond);
BENCHMARK(FromChars)->Unit(benchmark::kMillisecond);
BENCHMARK(Atof)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argumentCount, char** arguments) {
    return FluidBenchBenchmark::RunAndPrintRatios(
        argumentCount, arguments,
        {{"reading : getline and from_chars", "Read/1000000", "FromChars", 1.1},
         {"writing : to_chars and block writes", "Write/1000000", "ToChars", 0.65},
         {"growth of reading, 100,000 to 1,000,000 rows", "Read/1000000", "Read/100000", 11.5},
         {"growth of writing", "Write/1000000", "Write/100000", 11.5},
         {"growth of reading, 1,000,000 to 10,000,000 rows", "Read/10000000", "Read/1000000", 11.5},
         {"growth of writing", "Write/10000000", "Write/1000000", 11.5},
         {"reading : memcpy of the bytes", "Read/1000000", "Copy", 0.0},
         {"writing : memcpy of the bytes", "Write/1000000", "Copy", 0.0},
         {"getline and atof : reading", "Atof", "Read/1000000", 0.0},
         {"plain insertion : writing", "StreamInsertion", "Write/1000000", 0.0}});
}
