// The main program of a fuzz program: runs the family's test on changed samples or on given files.
//
// An input that makes the test throw, or keeps it busy for too long, is written to a file in the
// current folder. One that ends the whole program is left in the folder that is named at the start;
// its number is less than a thousand behind the one that was printed last.
#include "Fuzz.h"
#include "Mutator.h"

#include <charconv>
#include <chrono>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace FluidBenchFuzz;
using Clock = std::chrono::steady_clock;

constexpr double longestProcessorSeconds = 5.0; // for one input

constexpr std::string_view usage =
    "usage: %s [--seed=N] [--first=N] [--runs=N] [--seconds=N]\n"
    "       %s FILE...\n"
    "       %s --samples=FOLDER\n"
    "\n"
    "Runs the test on samples that are changed at random, or on the given files.\n"
    "  --seed=N          another row of inputs (1)\n"
    "  --first=N         number of the first input (0)\n"
    "  --runs=N          how many inputs (10000)\n"
    "  --seconds=N       stop after this time (no limit)\n"
    "  --samples=FOLDER  write the unchanged samples there, to begin another fuzzer with\n";

struct Options {
    std::uint64_t seed = 1;
    std::uint64_t first = 0;
    std::uint64_t runs = 10'000;
    std::uint64_t seconds = 0;
    std::string sampleFolder;
    std::vector<std::string> files;
    bool areGood = true;
};

bool Take(std::string_view argument, std::string_view name, std::uint64_t& value) {
    if (!argument.starts_with(name)) {
        return false;
    }
    const std::string_view text = argument.substr(name.size());
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size();
}

Options ReadOptions(int argumentCount, char** arguments) {
    Options options;
    constexpr std::string_view samples = "--samples=";
    for (int i = 1; i < argumentCount; ++i) {
        const std::string_view argument = arguments[i];
        if (argument.starts_with(samples)) {
            options.sampleFolder = argument.substr(samples.size());
        } else if (!argument.starts_with("--")) {
            options.files.emplace_back(argument);
        } else {
            options.areGood &= Take(argument, "--seed=", options.seed) ||
                               Take(argument, "--first=", options.first) ||
                               Take(argument, "--runs=", options.runs) ||
                               Take(argument, "--seconds=", options.seconds);
        }
    }
    return options;
}

double ProcessorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

// What is wrong with the input; empty where nothing is.
std::string FaultOf(std::string_view input) {
    const double begin = ProcessorSeconds();
    try {
        TestOneInput(input);
    } catch (const std::exception& error) {
        return error.what();
    } catch (...) {
        return "Something that isn't an exception was thrown";
    }
    const double taken = ProcessorSeconds() - begin;
    return taken < longestProcessorSeconds ? "" : "It took " + std::to_string(taken) + " s";
}

int RunFiles(const std::vector<std::string>& files) {
    int status = 0;
    for (const std::string& file : files) {
        const std::string fault = FaultOf(ReadFile(file));
        std::cout << file << ": " << (fault.empty() ? "good" : fault) << '\n';
        status = fault.empty() ? status : 1;
    }
    return status;
}

int RunMutations(const Options& options, const std::string& family) {
    Mutator mutator(Samples(), options.seed);
    const auto end = Clock::now() + std::chrono::seconds(options.seconds);
    std::cout << family << ", seed " << options.seed << "; the input at work is in " << Folder()
              << std::endl;
    std::uint64_t number = options.first;
    for (; number - options.first < options.runs; ++number) {
        if (options.seconds > 0 && Clock::now() > end) {
            break;
        }
        if (number % 1000 == 0) {
            std::cout << "input " << number << std::endl;
        }
        const std::string input = mutator.Make(number);
        const std::string fault = FaultOf(input);
        if (!fault.empty()) {
            const std::string file =
                family + "-failure-" + std::to_string(options.seed) + '-' + std::to_string(number);
            std::ofstream(file, std::ios_base::binary) << input;
            std::cout << "input " << number << ", now in the file " << file << ": " << fault
                      << std::endl;
            return 1;
        }
    }
    std::cout << number - options.first << " inputs, all of them good" << std::endl;
    return 0;
}

} // namespace

int main(int argumentCount, char** arguments) {
    const std::string family = std::filesystem::path(arguments[0]).filename().string();
    const Options options = ReadOptions(argumentCount, arguments);
    if (!options.areGood) {
        std::string text(usage);
        for (std::size_t mark = text.find("%s"); mark != std::string::npos;
             mark = text.find("%s")) {
            text.replace(mark, 2, family);
        }
        std::cerr << text;
        return 2;
    }
    try {
        if (!options.sampleFolder.empty()) {
            WriteSamples(options.sampleFolder);
            return 0;
        }
        return options.files.empty() ? RunMutations(options, family) : RunFiles(options.files);
    } catch (const std::exception& error) {
        std::cerr << family << ": " << error.what() << '\n';
        return 1;
    }
}
