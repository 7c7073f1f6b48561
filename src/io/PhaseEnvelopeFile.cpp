#include "PhaseEnvelopeFile.h"

#include "IOException.h"
#include "InputFile.h"
#include "PhaseEnvelopeLines.h"
#include "PhaseEnvelopeParser.h"
#include "PhaseEnvelopeWriter.h"
#include "TextFile.h"

#include <utility>

namespace Orv::FluidBench::Impl::IO {

using Common::CommonPlottingObject;
using Text::OpenForWriting;

namespace {

constexpr const char* cantOpen = "Could not open file";

} // namespace

PhaseEnvelopeFile::PhaseEnvelopeFile(char separator) : writeSeparator_(separator) {}

void PhaseEnvelopeFile::SetFileName(const std::string& fileName) {
    fileName_ = fileName;
}

const std::string& PhaseEnvelopeFile::GetFileName() const noexcept {
    return fileName_;
}

void PhaseEnvelopeFile::SetDiagnosticSink(FluidBench::IO::DiagnosticSink sink) {
    sink_ = std::move(sink);
}

bool PhaseEnvelopeFile::ReadEnvelopes() {
    plots_.clear();
    Diagnostics diagnostics(sink_, fileName_);
    std::ifstream file = OpenOrTell(fileName_, diagnostics);
    if (!file.is_open()) {
        lastError_ = cantOpen;
        return false;
    }
    return Read(file, diagnostics);
}

bool PhaseEnvelopeFile::ReadEnvelopes(std::istream& in, const std::string& name) {
    plots_.clear();
    Diagnostics diagnostics(sink_, name);
    return Read(in, diagnostics);
}

bool PhaseEnvelopeFile::Read(std::istream& in, Diagnostics& diagnostics) {
    EnvelopeLines lines(in, diagnostics);
    const auto separator = lines.Separator();
    const bool isRead =
        separator && PhaseEnvelopeParser(lines, *separator, plots_, lastError_, diagnostics).Run();
    diagnostics.Finish();
    return isRead;
}

int PhaseEnvelopeFile::NumberOfPlots() const noexcept {
    return static_cast<int>(plots_.size());
}

CommonPlottingObject& PhaseEnvelopeFile::GetPlot(int index) {
    if (index < 0 || index >= NumberOfPlots()) {
        throw IOInvalidIndex("Common Plotting Object", index);
    }
    return plots_[static_cast<std::size_t>(index)];
}

bool PhaseEnvelopeFile::Write(const std::vector<CommonPlottingObject>& plots) {
    std::ofstream out = OpenForWriting(fileName_);
    if (!out.is_open()) {
        lastError_ = cantOpen;
        return false;
    }
    Write(out, plots);
    return true;
}

bool PhaseEnvelopeFile::Write(std::ostream& out,
                              const std::vector<CommonPlottingObject>& plots) const {
    WritePhaseEnvelopes(out, plots, writeSeparator_);
    return out.good();
}

const std::string& PhaseEnvelopeFile::GetLastError() const noexcept {
    return lastError_;
}

} // namespace Orv::FluidBench::Impl::IO
