#include "Baselines.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <fstream>
#include <iterator>
#include <system_error>
#include <vector>

namespace FluidBenchBenchmark {

double SumOfNumbers(const std::string& fileName) {
    std::ifstream stream(fileName);
    std::string line;
    double sum = 0.0;
    while (std::getline(stream, line)) {
        const char* position = line.data();
        const char* const end = position + line.size();
        while (position < end) {
            double value = 0.0;
            const auto [behind, error] = std::from_chars(position, end, value);
            sum += value;
            position = error == std::errc() ? behind : position + 1;
        }
    }
    return sum;
}

void CopyBytes(benchmark::State& state, const std::string& fileName) {
    std::ifstream file(fileName, std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(file), {});
    std::vector<char> block(std::size_t{64} * 1024);
    for (auto _ : state) {
        for (std::size_t begin = 0; begin < text.size(); begin += block.size()) {
            std::memcpy(block.data(), text.data() + begin,
                        std::min(block.size(), text.size() - begin));
            benchmark::DoNotOptimize(block.data());
            benchmark::ClobberMemory();
        }
    }
}

} // namespace FluidBenchBenchmark
