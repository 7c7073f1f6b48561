// The stand-in's import command: hands over what a file holds once all of it was sound.
#include "FluidBench/Impl/Command/ImportCommand.h"

#include "MflText.h"

#include <utility>

namespace Orv::FluidBench::Impl::Command {

using Common::ErrorReport;
using Common::TarnExtraData;

BaseCommand::BaseCommand() = default;
BaseCommand::BaseCommand(const BaseCommand&) = default;
BaseCommand& BaseCommand::operator=(const BaseCommand&) = default;
BaseCommand::~BaseCommand() = default;

std::int32_t BaseCommand::GetId() const {
    return id_;
}
void BaseCommand::SetId(std::int32_t id) {
    id_ = id;
}
std::string BaseCommand::GetCommandName() const {
    return "Command";
}
CommandLogManager* BaseCommand::GetCommandLogManager() const {
    return nullptr;
}
CommandXMLHelper* BaseCommand::GetCommandXMLHelper() const {
    return nullptr;
}

ImportCommand::ImportCommand() = default;
ImportCommand::~ImportCommand() = default;

void ImportCommand::SetFileName(const std::string& fileName) {
    fileName_ = fileName;
}
const std::string& ImportCommand::GetFileName() const {
    return fileName_;
}
std::string ImportCommand::GetCommandName() const {
    return "Import MFL file";
}

ErrorReport ImportCommand::Import(CompositionalFluidCommand& fluidCommand,
                                  std::vector<std::vector<double>>& streams) const {
    return Import(fluidCommand, streams, {});
}

ErrorReport ImportCommand::ImportForTarn(CompositionalFluidCommand& fluidCommand,
                                         TarnExtraData& extraData) const {
    return ImportForTarn(fluidCommand, extraData, {});
}

ErrorReport ImportCommand::Import(CompositionalFluidCommand& fluidCommand,
                                  std::vector<std::vector<double>>& streams,
                                  const ImportProblemSink& tell) const {
    MflContent content;
    ErrorReport report = ReadMflText(fileName_, content, tell);
    if (!report.HasErrors()) {
        fluidCommand = std::move(content.fluid);
        streams = std::move(content.streams);
    }
    return report;
}

ErrorReport ImportCommand::ImportForTarn(CompositionalFluidCommand& fluidCommand,
                                         TarnExtraData& extraData,
                                         const ImportProblemSink& tell) const {
    return Import(fluidCommand, extraData.Streams, tell);
}

} // namespace Orv::FluidBench::Impl::Command
