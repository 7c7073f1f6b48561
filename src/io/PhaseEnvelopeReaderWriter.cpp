#include "io/PhaseEnvelopeReaderWriter.h"

#include "PhaseEnvelopeFile.h"

#include <utility>

namespace Orv::FluidBench::IO {

using Common::CommonPlottingObject;
using Impl::IO::PhaseEnvelopeFile;

namespace {

// What may fail for want of memory comes first, so that the caller gets all of it or nothing. Plots
// may be large: they move.
void HandOver(PhaseEnvelopeFile& file, std::vector<CommonPlottingObject>& plots,
              std::vector<std::string>& messages) {
    plots.reserve(static_cast<std::size_t>(file.NumberOfPlots()));
    messages.push_back(file.GetLastError());
    for (int i = 0; i < file.NumberOfPlots(); ++i) {
        plots.push_back(std::move(file.GetPlot(i)));
    }
}

} // namespace

PhaseEnvelopeReaderWriter::PhaseEnvelopeReaderWriter(bool useComma)
    : file_(std::make_unique<PhaseEnvelopeFile>(useComma ? ',' : '\t')) {}
PhaseEnvelopeReaderWriter::~PhaseEnvelopeReaderWriter() = default;
PhaseEnvelopeReaderWriter::PhaseEnvelopeReaderWriter(PhaseEnvelopeReaderWriter&&) noexcept =
    default;
PhaseEnvelopeReaderWriter&
PhaseEnvelopeReaderWriter::operator=(PhaseEnvelopeReaderWriter&&) noexcept = default;

void PhaseEnvelopeReaderWriter::SetFileName(const std::string& fileName) {
    file_->SetFileName(fileName);
}

const std::string& PhaseEnvelopeReaderWriter::GetFileName() const {
    return file_->GetFileName();
}

void PhaseEnvelopeReaderWriter::SetDiagnosticSink(DiagnosticSink sink) {
    file_->SetDiagnosticSink(std::move(sink));
}

bool PhaseEnvelopeReaderWriter::Read(std::vector<CommonPlottingObject>& plots,
                                     std::vector<std::string>& messages) {
    plots.clear();
    messages.clear();
    const bool isRead = file_->ReadEnvelopes();
    HandOver(*file_, plots, messages);
    return isRead;
}

bool PhaseEnvelopeReaderWriter::Read(std::istream& in, std::vector<CommonPlottingObject>& plots,
                                     std::vector<std::string>& messages, const std::string& name) {
    plots.clear();
    messages.clear();
    const bool isRead = file_->ReadEnvelopes(in, name);
    HandOver(*file_, plots, messages);
    return isRead;
}

bool PhaseEnvelopeReaderWriter::Write(const std::vector<CommonPlottingObject>& plots) const {
    return file_->Write(plots);
}

bool PhaseEnvelopeReaderWriter::Write(std::ostream& out,
                                      const std::vector<CommonPlottingObject>& plots) const {
    return std::as_const(*file_).Write(out, plots);
}

} // namespace Orv::FluidBench::IO
