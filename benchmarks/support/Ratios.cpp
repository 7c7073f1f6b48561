#include "Ratios.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <map>
#include <string_view>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace FluidBenchBenchmark {

namespace {

class LeastTimes : public benchmark::ConsoleReporter {
public:
    LeastTimes() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration && !run.error_occurred) {
                const double time = run.cpu_accumulated_time / static_cast<double>(run.iterations);
                const auto [place, isNew] = times_.emplace(run.run_name.str(), time);
                place->second = std::min(place->second, time);
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }

    /// Processor seconds of one iteration; 0 where the benchmark didn't run.
    double Of(const std::string& name) const {
        const auto found = times_.find(name);
        return found == times_.end() ? 0.0 : found->second;
    }

private:
    std::map<std::string, double> times_;
};

void Print(const Ratio& ratio, const LeastTimes& times) {
    const double measured = times.Of(ratio.measured);
    const double baseline = times.Of(ratio.baseline);
    if (measured <= 0.0 || baseline <= 0.0) {
        std::printf("%-60s not measured\n", ratio.meaning.c_str());
        return;
    }
    const double value = measured / baseline;
    if (ratio.bar > 0.0) {
        std::printf("%-60s %6.2f  (at most %.2f%s)\n", ratio.meaning.c_str(), value, ratio.bar,
                    value <= ratio.bar ? "" : ", MISSED");
    } else {
        std::printf("%-60s %6.2f\n", ratio.meaning.c_str(), value);
    }
}

// Large pieces of memory come from the heap too, and the heap never shrinks.
void KeepMemory() {
#ifdef __GLIBC__
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
#endif
}

// Takes the argument off the others. False where it isn't there.
bool TakeArgument(std::vector<char*>& arguments, std::string_view argument) {
    return std::erase_if(arguments, [=](const char* each) { return each == argument; }) > 0;
}

} // namespace

int RunAndPrintRatios(int argumentCount, char** arguments, const std::vector<Ratio>& ratios) {
    std::vector<char*> all(arguments, arguments + argumentCount);
    if (!TakeArgument(all, "--fresh-memory")) {
        KeepMemory();
    }
    std::string repetitions = "--benchmark_repetitions=5";
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    all.insert(all.begin() + 1, {repetitions.data(), interleaving.data()});
    int count = static_cast<int>(all.size());
    all.push_back(nullptr);
    benchmark::Initialize(&count, all.data());
    if (benchmark::ReportUnrecognizedArguments(count, all.data())) {
        return 1;
    }
    LeastTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);
    std::printf("\n");
    for (const Ratio& ratio : ratios) {
        Print(ratio, times);
    }
    return 0;
}

} // namespace FluidBenchBenchmark
