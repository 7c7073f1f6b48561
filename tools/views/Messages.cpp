#include "Messages.h"

#include "Shown.h"

#include <algorithm>

namespace FluidBenchTool {

using Orv::FluidBench::Common::ErrorReport;
using Orv::FluidBench::Common::pvtEnumErrorCode;
using Orv::FluidBench::IO::Diagnostic;
using Orv::FluidBench::IO::DiagnosticSink;
using Orv::FluidBench::IO::Severity;

namespace {

constexpr const char* programName = "fluidbench-io";

const char* WordOf(Severity severity) {
    switch (severity) {
    case Severity::Note:
        return "note";
    case Severity::Warning:
        return "warning";
    case Severity::Error:
        return "error";
    }
    return "message";
}

} // namespace

void Messages::Tell(const Diagnostic& diagnostic) {
    if (diagnostic.severity == Severity::Note && !tellsNotes_) {
        return;
    }
    errors_ += diagnostic.severity == Severity::Error ? 1 : 0;
    warnings_ += diagnostic.severity == Severity::Warning ? 1 : 0;
    const auto called =
        std::ranges::find(names_, diagnostic.file, &std::pair<std::string, std::string>::first);
    std::string text = Shown(called == names_.end() ? diagnostic.file : called->second);
    if (text.empty()) {
        text = programName;
    }
    if (diagnostic.line > 0) {
        text += ':' + std::to_string(diagnostic.line);
    }
    text += std::string(": ") + WordOf(diagnostic.severity) + ": " + Shown(diagnostic.sentence) +
            " [" + diagnostic.code + "]\n";
    const std::lock_guard lock(mutex_);
    ClearLine();
    out_ << text << std::flush;
}

void Messages::ShowLine(const std::string& text) {
    const std::lock_guard lock(mutex_);
    ClearLine();
    out_ << Shown(text) << std::flush;
    hasLine_ = true;
}

void Messages::HideLine() {
    const std::lock_guard lock(mutex_);
    ClearLine();
    out_ << std::flush;
}

void Messages::ClearLine() {
    if (hasLine_) {
        out_ << "\r\x1b[K";
        hasLine_ = false;
    }
}

void Messages::Tell(const ToolKind& kind, const std::string& file, const std::string& sentence,
                    std::uint64_t line) {
    Tell({kind.severity, file, line, kind.code, sentence});
}

void Messages::Fail(const ToolKind& kind, const std::string& file, const std::string& sentence,
                    std::uint64_t line) {
    Tell(kind, file, sentence, line);
    throw CommandFailed();
}

DiagnosticSink Messages::Sink() {
    return [this](const Diagnostic& diagnostic) { Tell(diagnostic); };
}

void Messages::TellReport(const ErrorReport& report, const std::string& file,
                          std::uint64_t errorsBefore) {
    const bool isTold = errors_ > errorsBefore;
    for (const auto& message : report.GetMessages()) {
        const bool isError = message.GetErrorCode() == pvtEnumErrorCode::Error;
        if (!isError || !isTold) {
            Tell(isError ? ToolKinds::reported : ToolKinds::reportedWarning, file,
                 message.GetText());
        }
    }
    if (report.HasErrors()) {
        throw CommandFailed();
    }
}

void Messages::CallFile(std::string file, std::string name) {
    names_.emplace_back(std::move(file), std::move(name));
}

void Messages::RequireNoFailure() const {
    if (IsFailure()) {
        throw CommandFailed();
    }
}

} // namespace FluidBenchTool
