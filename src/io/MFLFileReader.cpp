#include "io/MFLFileReader.h"

#include "FluidBench/Impl/Command/ImportCommand.h"

namespace Orv::FluidBench::IO {

using Common::ErrorReport;
using Common::TarnExtraData;
using Impl::Command::ImportCommand;
using Model::CompositionalFluid;

MFLFileReader::MFLFileReader() : command_(std::make_unique<ImportCommand>()) {}
MFLFileReader::~MFLFileReader() = default;
MFLFileReader::MFLFileReader(MFLFileReader&&) noexcept = default;
MFLFileReader& MFLFileReader::operator=(MFLFileReader&&) noexcept = default;

void MFLFileReader::SetMFLFileName(const std::string& fileName) {
    command_->SetFileName(fileName);
}

const std::string& MFLFileReader::GetMFLFileName() const {
    return command_->GetFileName();
}

ErrorReport MFLFileReader::Read(CompositionalFluid& fluid) const {
    std::vector<std::vector<double>> streams;
    return ReadStreams(fluid, streams);
}

ErrorReport MFLFileReader::ReadForTarn(CompositionalFluid& fluid, TarnExtraData& extraData) const {
    return command_->ImportForTarn(fluid.GetFluidCommand(), extraData);
}

ErrorReport MFLFileReader::ReadStreams(CompositionalFluid& fluid,
                                       std::vector<std::vector<double>>& streams) const {
    return command_->Import(fluid.GetFluidCommand(), streams);
}

} // namespace Orv::FluidBench::IO
