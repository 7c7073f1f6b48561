#include "io/PhaseEnvelopeReaderWriter.h"

#include "PhaseEnvelopeFile.h"

namespace Orv::FluidBench::IO {

using Common::CommonPlottingObject;
using Impl::IO::PhaseEnvelopeFile;

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

bool PhaseEnvelopeReaderWriter::Read(std::vector<CommonPlottingObject>& plots,
                                     std::vector<std::string>& messages) {
    plots.clear();
    messages.clear();
    const bool isRead = file_->ReadEnvelopes();
    messages.push_back(file_->GetLastError());
    for (int i = 0; i < file_->NumberOfPlots(); ++i) {
        plots.push_back(file_->GetPlot(i));
    }
    return isRead;
}

bool PhaseEnvelopeReaderWriter::Write(const std::vector<CommonPlottingObject>& plots) const {
    return file_->Write(plots);
}

} // namespace Orv::FluidBench::IO
