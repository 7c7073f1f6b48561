#include "io/MFLFileReader.h"

#include "Diagnostics.h"
#include "FluidBench/Impl/Command/ImportCommand.h"

#include <utility>

namespace Orv::FluidBench::IO {

using Common::ErrorReport;
using Common::TarnExtraData;
using Impl::Command::ImportCommand;
using Impl::Command::ImportProblem;
using Impl::Command::ImportProblemSink;
using Impl::IO::DiagnosticKind;
using Impl::IO::Diagnostics;
using Model::CompositionalFluid;
namespace Kinds = Impl::IO::Kinds;
namespace MflKinds = Impl::IO::MflKinds;

namespace {

// A kind that a later command may have counts as a bad row.
const DiagnosticKind& KindOf(ImportProblem::Kind kind) noexcept {
    switch (kind) {
    case ImportProblem::Kind::CantOpen:
        return Kinds::cantOpen;
    case ImportProblem::Kind::ReadFailed:
        return Kinds::readFailed;
    case ImportProblem::Kind::Utf16:
        return Kinds::utf16;
    case ImportProblem::Kind::CarriageReturns:
        return Kinds::carriageReturns;
    case ImportProblem::Kind::Form:
        return MflKinds::form;
    case ImportProblem::Kind::Keyword:
        return MflKinds::keyword;
    case ImportProblem::Kind::Table:
        return MflKinds::table;
    case ImportProblem::Kind::Row:
        return MflKinds::row;
    case ImportProblem::Kind::Value:
        return MflKinds::value;
    case ImportProblem::Kind::LineTooLong:
        return MflKinds::lineTooLong;
    case ImportProblem::Kind::Incomplete:
        return MflKinds::incomplete;
    case ImportProblem::Kind::TooMany:
        return MflKinds::tooMany;
    }
    return MflKinds::row;
}

std::string Sentence(std::string text) {
    if (!text.empty() && text.front() >= 'a' && text.front() <= 'z') {
        text.front() = static_cast<char>(text.front() - 'a' + 'A');
    }
    return text + '.';
}

// Calls `import` with a function for its problems, which go to the sink.
template <typename Import>
ErrorReport ImportAndTell(const DiagnosticSink& sink, const std::string& file, Import import) {
    Diagnostics diagnostics(sink, file);
    ErrorReport report = import(ImportProblemSink([&](const ImportProblem& problem) {
        diagnostics.Tell(KindOf(problem.kind), problem.line, Sentence(problem.text));
    }));
    diagnostics.Finish();
    return report;
}

} // namespace

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

void MFLFileReader::SetDiagnosticSink(DiagnosticSink sink) {
    diagnosticSink_ = std::move(sink);
}

ErrorReport MFLFileReader::Read(CompositionalFluid& fluid) const {
    std::vector<std::vector<double>> streams;
    return ReadStreams(fluid, streams);
}

ErrorReport MFLFileReader::ReadForTarn(CompositionalFluid& fluid, TarnExtraData& extraData) const {
    if (!diagnosticSink_) {
        return command_->ImportForTarn(fluid.GetFluidCommand(), extraData);
    }
    return ImportAndTell(diagnosticSink_, GetMFLFileName(), [&](const ImportProblemSink& tell) {
        return command_->ImportForTarn(fluid.GetFluidCommand(), extraData, tell);
    });
}

ErrorReport MFLFileReader::ReadStreams(CompositionalFluid& fluid,
                                       std::vector<std::vector<double>>& streams) const {
    if (!diagnosticSink_) {
        return command_->Import(fluid.GetFluidCommand(), streams);
    }
    return ImportAndTell(diagnosticSink_, GetMFLFileName(), [&](const ImportProblemSink& tell) {
        return command_->Import(fluid.GetFluidCommand(), streams, tell);
    });
}

} // namespace Orv::FluidBench::IO
