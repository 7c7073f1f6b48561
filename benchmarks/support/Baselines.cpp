#include "Baselines.h"

#include <charconv>
#include <fstream>
#include <system_error>

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

} // namespace FluidBenchBenchmark
