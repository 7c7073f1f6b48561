// The program's `check`: any text has one verdict, what it tells has the form of messages, and a
// file that it calls good stays good when the program converts it.
#include "Commands.h"
#include "Descriptor.h"
#include "FormatFinder.h"
#include "Fuzz.h"

#include <algorithm>
#include <sstream>

namespace {

using namespace FluidBenchFuzz;
using namespace FluidBenchTool;

// Parts the file from the one with the pressures beside it.
constexpr std::string_view parting = "\n===FT===\n";

struct Verdict {
    bool isFailure = false;
    std::uint64_t errors = 0;
    std::uint64_t warnings = 0;
    std::string said;
};

// Runs a command as the program does, but for the standard output, which nobody sees.
Verdict Run(const Command& command, const std::vector<std::string>& words) {
    std::ostringstream said;
    Messages messages(said, false, false);
    const Arguments arguments(command, words);
    StandardOutput standardOutput;
    Call call(arguments, standardOutput, messages);
    Verdict verdict;
    try {
        command.run(call);
    } catch (const CommandFailed&) {
        verdict.isFailure = true;
    }
    Require(verdict.isFailure == messages.IsFailure(), "A command fails where there are errors");
    return {messages.IsFailure(), messages.Errors(), messages.Warnings(), said.str()};
}

std::uint64_t Count(std::string_view text, std::string_view what) {
    std::uint64_t count = 0;
    for (std::size_t place = text.find(what); place != std::string_view::npos;
         place = text.find(what, place + 1)) {
        ++count;
    }
    return count;
}

// "FILE:LINE: warning: sentence [code]", each on a line of its own, whatever is in the file.
void RequireForm(const Verdict& verdict) {
    std::uint64_t counts[3] = {};
    std::istringstream lines(verdict.said);
    for (std::string line; std::getline(lines, line);) {
        constexpr std::string_view kinds[] = {": error: ", ": warning: ", ": note: "};
        const auto* const kind = std::ranges::min_element(
            kinds, {}, [&](std::string_view each) { return line.find(each); });
        const std::size_t place = line.find(*kind);
        Require(place != std::string::npos && line.ends_with(']') && line.rfind(" [") > place &&
                    Count(line, "\x1b") == 0,
                "A message has its form: '" + line + "'");
        ++counts[kind - kinds];
    }
    Require(counts[0] == verdict.errors && counts[1] == verdict.warnings,
            "Each message is told once");
}

// The words of a conversion of a file to another, by the format.
struct Conversion {
    std::string_view format;
    std::vector<std::string> options;
};
const Conversion conversions[] = {
    {"blackoil", {"--to", "keywords"}}, {"kvalues", {"--to", "keywords"}},
    {"thermal", {"--to", "keywords"}},  {"depth", {"--to", "keywords"}},
    {"envelope", {"--to", "comma"}},    {"deck", {}}};

void RequireConverts(const std::string& file, std::string_view format) {
    const auto* const found = std::ranges::find(conversions, format, &Conversion::format);
    const auto family = std::ranges::find(Families(), format, &Family::name);
    if (found == std::end(conversions) || family == Families().end()) {
        return;
    }
    const auto convert = std::ranges::find(family->commands, "convert", &Command::verb);
    std::vector<std::string> words = {file, PathOf("converted")};
    words.insert(words.end(), found->options.begin(), found->options.end());
    const Verdict conversion = Run(*convert, words);
    Require(!conversion.isFailure, "A good file is converted: " + conversion.said);
    const Verdict verdict = Run(GeneralCommands().front(), {PathOf("converted")});
    // The form with commas may have rows in any order, and names longer than a cell of K-values.
    const auto told = [&](const char* code) { return Count(verdict.said, code); };
    Require(verdict.errors == told("[keywords.row-order]") + told("[keywords.row-length]") +
                                  told("[keywords.name-twice]"),
            "What a good file is converted to is good: " + verdict.said);
}

} // namespace

std::vector<std::string> FluidBenchFuzz::Samples() {
    std::vector<std::string> samples;
    for (const char* const folder :
         {"examples/data", "tests/data/tool", "tests/data/black-oil", "tests/data/deck-export",
          "tests/data/depth-tables", "tests/data/thermal"}) {
        for (std::string& sample : ProjectFiles(folder, "")) {
            samples.push_back(sample.substr(0, std::size_t{16} * 1024));
        }
    }
    samples.push_back(ProjectFile("examples/data/north-field_DFA.txt"));
    samples.back() += parting;
    samples.back() += ProjectFile("examples/data/north-field_FT.txt");
    return samples;
}

void FluidBenchFuzz::TestOneInput(std::string_view input) {
    const std::size_t end = std::min(input.find(parting), input.size());
    const std::string file = FileWith("input_DFA.txt", input.substr(0, end));
    FileWith("input_FT.txt", end < input.size() ? input.substr(end + parting.size()) : "");
    const Verdict verdict = Run(GeneralCommands().front(), {file});
    RequireForm(verdict);
    Require(Run(GeneralCommands().front(), {file}).said == verdict.said, "A verdict is for good");
    if (verdict.errors + verdict.warnings == 0) {
        std::istringstream text{std::string(input)};
        RequireConverts(file, FindFormat(text).name);
    }
}
