#include "PhaseEnvelopeFile.h"

#include "IOException.h"
#include "PhaseEnvelopeParser.h"
#include "PhaseEnvelopeWriter.h"
#include "TextFile.h"

namespace Orv::FluidBench::Impl::IO {

using Common::CommonPlottingObject;
using Text::OpenForReading;
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

bool PhaseEnvelopeFile::ReadEnvelopes() {
    plots_.clear();
    std::ifstream file = OpenForReading(fileName_);
    if (!file.is_open()) {
        lastError_ = cantOpen;
        return false;
    }
    EnvelopeLines lines(file);
    const auto separator = lines.Separator();
    return separator && PhaseEnvelopeParser(lines, *separator, plots_, lastError_).Run();
}

int PhaseEnvelopeFile::NumberOfPlots() const noexcept {
    return static_cast<int>(plots_.size());
}

const CommonPlottingObject& PhaseEnvelopeFile::GetPlot(int index) const {
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
    WritePhaseEnvelopes(out, plots, writeSeparator_);
    return true;
}

const std::string& PhaseEnvelopeFile::GetLastError() const noexcept {
    return lastError_;
}

} // namespace Orv::FluidBench::Impl::IO
