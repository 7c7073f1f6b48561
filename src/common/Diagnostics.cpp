#include "Diagnostics.h"

#include <algorithm>
#include <utility>

namespace Orv::FluidBench::Impl::IO {

using FluidBench::IO::Diagnostic;
using FluidBench::IO::DiagnosticSink;
using Text::TextKind;

Diagnostics::Diagnostics(const DiagnosticSink& sink, std::string file)
    : sink_(sink), areWanted_(static_cast<bool>(sink)), file_(std::move(file)) {}

void Diagnostics::Tell(const DiagnosticKind& kind, const std::string& file, std::uint64_t line,
                       const std::string& sentence) {
    if (areWanted_) {
        Tell({kind.severity, file, line, kind.code, sentence});
    }
}

void Diagnostics::Tell(const Diagnostic& diagnostic) {
    if (!areWanted_) {
        return;
    }
    auto count = std::ranges::find(counts_, diagnostic.code, &Count::code);
    if (count == counts_.end()) {
        count = counts_.insert(count, {diagnostic.code, diagnostic.severity, 0});
    }
    if (++count->number <= mostOfOneKind) {
        sink_(diagnostic);
    }
}

void Diagnostics::Finish() {
    for (const auto& [code, severity, number] : counts_) {
        if (number > mostOfOneKind) {
            sink_({severity, file_, 0, code,
                   std::to_string(number - mostOfOneKind) + " more like this."});
        }
    }
    counts_.clear();
}

void TellOddText(Diagnostics& diagnostics, TextKind kind) {
    if (kind == TextKind::Plain) {
        return;
    }
    std::string sentence = Text::WhatIsOdd(kind) + '.';
    sentence[0] = 'E';
    diagnostics.Tell(kind == TextKind::CarriageReturns ? Kinds::carriageReturns : Kinds::utf16, 1,
                     sentence);
}

void TellReadFailed(Diagnostics& diagnostics, std::uint64_t line) {
    diagnostics.Tell(Kinds::readFailed, line,
                     "Expected to read on, found a failure of the file or its disk; what is behind "
                     "this line wasn't read.");
}

bool TellHowEnded(Diagnostics& diagnostics, const Text::LineReader& lines) {
    if (lines.HasFailed()) {
        TellReadFailed(diagnostics, lines.Number());
        return false;
    }
    if (lines.IsCut()) {
        diagnostics.Tell(Kinds::lineTooLong, lines.Number(),
                         "Expected a line of at most " +
                             std::to_string(Text::LineReader::longestOfAll) +
                             " characters, found a longer one: it isn't read, and nothing behind "
                             "it is.");
        return false;
    }
    return true;
}

} // namespace Orv::FluidBench::Impl::IO
