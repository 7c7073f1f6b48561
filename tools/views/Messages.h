// What the program says beside its results, and what becomes of it: the one place that prints
// messages and knows how a command ended.
#pragma once

#include "FluidBench/Common/ErrorReport.h"
#include "ToolKinds.h"
#include "io/Diagnostics.h"

#include <cstdint>
#include <mutex>
#include <ostream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace FluidBenchTool {

/// A command that was understood and could not be carried out. The reason was told.
class CommandFailed : public std::runtime_error {
public:
    CommandFailed() : std::runtime_error("The command failed") {}
};

/// Prints messages as compilers do, so that editors find the place:
///
///     FILE:LINE: warning: sentence [code]
///
/// The line is left out where there is none, and a message without a file bears the program's name.
/// The stream is the caller's and outlives the object. One thread tells messages; another one may
/// show and hide a line of progress meanwhile.
class Messages {
public:
    /// Whether the stream is a terminal's, and whether warnings count as errors.
    Messages(std::ostream& out, bool isOnTerminal, bool isStrict)
        : out_(out), isOnTerminal_(isOnTerminal), isStrict_(isStrict) {}
    Messages(const Messages&) = delete;
    Messages& operator=(const Messages&) = delete;

    /// Notes are told from here on; until then they aren't.
    void TellNotes() noexcept { tellsNotes_ = true; }

    void Tell(const Orv::FluidBench::IO::Diagnostic& diagnostic);
    void Tell(const ToolKind& kind, const std::string& file, const std::string& sentence,
              std::uint64_t line = 0);
    /// Tells of an error and throws `CommandFailed`.
    [[noreturn]] void Fail(const ToolKind& kind, const std::string& file,
                           const std::string& sentence, std::uint64_t line = 0);

    /// For a reader, which the object has to outlive.
    Orv::FluidBench::IO::DiagnosticSink Sink();

    /// Prints the messages of a report on `file` but the errors of a failure that the sink told of,
    /// with the place, since `Errors` was `errorsBefore`. Throws `CommandFailed` where the report
    /// has errors.
    void TellReport(const Orv::FluidBench::Common::ErrorReport& report, const std::string& file,
                    std::uint64_t errorsBefore = 0);

    /// From here on the messages call this file by the other name.
    void CallFile(std::string file, std::string name);

    bool IsOnTerminal() const noexcept { return isOnTerminal_; }
    /// A line that stays until it is hidden or replaced; messages come above it.
    void ShowLine(const std::string& text);
    void HideLine();

    std::uint64_t Errors() const noexcept { return errors_; }
    std::uint64_t Warnings() const noexcept { return warnings_; }
    /// Whether there were errors, or warnings that count as such.
    bool IsFailure() const noexcept { return errors_ > 0 || (isStrict_ && warnings_ > 0); }
    /// Throws `CommandFailed` where `IsFailure` holds: nothing is to be written then.
    void RequireNoFailure() const;

private:
    void ClearLine();

    std::ostream& out_;
    bool isOnTerminal_;
    bool isStrict_;
    bool tellsNotes_ = false;
    std::mutex mutex_; // of the stream and the line
    bool hasLine_ = false;
    std::uint64_t errors_ = 0;
    std::uint64_t warnings_ = 0;
    std::vector<std::pair<std::string, std::string>> names_;
};

} // namespace FluidBenchTool
