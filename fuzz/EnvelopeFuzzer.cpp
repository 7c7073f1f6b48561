// Phase envelope files: any text gives whole plots, and plots that are written read back as they
// were.
#include "Fuzz.h"
#include "io/PhaseEnvelopeReaderWriter.h"

#include <algorithm>
#include <stdexcept>

namespace {

using namespace FluidBenchFuzz;
using Orv::FluidBench::Common::CommonPlottingObject;
using Orv::FluidBench::Common::Line;
using Orv::FluidBench::IO::PhaseEnvelopeReaderWriter;
using Plots = std::vector<CommonPlottingObject>;

struct Outcome {
    bool isRead = false;
    bool isThrown = false;
    Plots plots;
};

Outcome Read(const std::string& fileName) {
    Outcome outcome;
    std::vector<std::string> messages;
    PhaseEnvelopeReaderWriter file;
    file.SetFileName(fileName);
    try {
        outcome.isRead = file.Read(outcome.plots, messages);
    } catch (const std::out_of_range& error) {
        Require(error.what() == std::string("invalid string position"),
                "The exception has its text");
        outcome.isThrown = true;
    }
    Require(messages.size() == (outcome.isThrown ? 0 : 1), "There is one message");
    Require(!outcome.isRead || !outcome.plots.empty(), "What was read has a plot");
    return outcome;
}

std::string Written(const Plots& plots, bool useComma) {
    PhaseEnvelopeReaderWriter file(useComma);
    file.SetFileName(PathOf("written"));
    Require(file.Write(plots), "The file opens");
    return ReadFile(PathOf("written"));
}

void RequireLines(const CommonPlottingObject& plot) {
    for (const auto phase : {Line::Phase::Bubble, Line::Phase::Dew, Line::Phase::CriticalPoint}) {
        Require(plot.NumberOfLines(Line::Type::PhaseCurve, phase) == 1,
                "A plot has the three lines that are always there");
    }
}

// Lines that are too long, and infinities, aren't read.
bool IsReadable(std::string_view text) {
    constexpr std::size_t longestLine = 499;
    std::size_t begin = 0;
    for (std::size_t end = text.find('\n'); end != std::string_view::npos;
         end = text.find('\n', begin)) {
        if (end - begin > longestLine) {
            return false;
        }
        begin = end + 1;
    }
    return text.find("inf") == std::string_view::npos;
}

} // namespace

std::vector<std::string> FluidBenchFuzz::Samples() {
    return {ProjectFile("examples/data/rich-gas-envelope.csv").substr(0, 2000),
            ProjectFile("examples/data/separator-train-envelopes.txt"),
            "Flash\n\n\n\nBubble,,Dew,,Critical point,,Ice,,Aqueous,,Hydrate type I,,Hydrate type "
            "II,,Vapour,0.5,PX2,1,\nT,P,\n1,2,3,4,5,6, , ,-,.,1e5,1,\r\n\nFlash\nBubble\n1,2,3\n"};
}

void FluidBenchFuzz::TestOneInput(std::string_view input) {
    const Outcome outcome = Read(FileWith("input", input));
    std::ranges::for_each(outcome.plots, RequireLines);
    for (const bool useComma : {false, true}) {
        const std::string written = Written(outcome.plots, useComma);
        if (outcome.plots.empty() || !IsReadable(written)) {
            continue;
        }
        const Outcome again = Read(PathOf("written"));
        Require(again.isRead && again.plots.size() == outcome.plots.size(),
                "All plots are written and read");
        Require(Written(again.plots, useComma) == written, "Lines are written and read");
    }
}
