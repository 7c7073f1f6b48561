// The way of a reader's diagnostics to whoever wants them.
#pragma once

#include "DiagnosticKinds.h"
#include "LineReader.h"
#include "TextInput.h"
#include "io/Diagnostics.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace Orv::FluidBench::Impl::IO {

/// The diagnostics of one file while it is read: they go to the sink, which outlives the object, at
/// most so many of one kind. Without a sink every operation does nothing; a reader asks
/// `AreWanted` before it looks for what only a diagnostic needs. One thread at a time.
class Diagnostics {
public:
    static constexpr std::size_t mostOfOneKind = 20;

    Diagnostics(const FluidBench::IO::DiagnosticSink& sink, std::string file);
    Diagnostics(const Diagnostics&) = delete;
    Diagnostics& operator=(const Diagnostics&) = delete;

    bool AreWanted() const noexcept { return areWanted_; }

    void Tell(const DiagnosticKind& kind, std::uint64_t line, const std::string& sentence) {
        Tell(kind, file_, line, sentence);
    }
    /// Of another file, one that the file includes.
    void Tell(const DiagnosticKind& kind, const std::string& file, std::uint64_t line,
              const std::string& sentence);

    /// Of another source, with a severity and a code of its own.
    void Tell(const FluidBench::IO::Diagnostic& diagnostic);

    /// To be called when the file is read: counts what wasn't told one by one.
    void Finish();

private:
    struct Count {
        std::string code;
        FluidBench::IO::Severity severity;
        std::size_t number;
    };

    const FluidBench::IO::DiagnosticSink& sink_;
    bool areWanted_;
    std::string file_;
    std::vector<Count> counts_;
};

/// Tells of a text that no reader can take apart, by the look of it.
void TellOddText(Diagnostics& diagnostics, Text::TextKind kind);

/// Tells that reading failed behind that line.
void TellReadFailed(Diagnostics& diagnostics, std::uint64_t line);

/// Tells why the lines end ahead of the end of the text, and gives false; true where they don't.
bool TellHowEnded(Diagnostics& diagnostics, const Text::LineReader& lines);

} // namespace Orv::FluidBench::Impl::IO
