// What a reader has to say about a text beside its result: what it skipped, assumed or couldn't
// read.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace Orv::FluidBench::IO {

/// How much a diagnostic matters.
enum class Severity : std::int32_t {
    Note = 0,    ///< worth knowing; nothing is lost
    Warning = 1, ///< something of the text didn't reach the object, or may mean something else
    Error = 2    ///< the text couldn't be read, or holds nothing of what was asked for
};

/// One remark of a reader, about one place of a text. A value.
struct Diagnostic {
    Severity severity = Severity::Note; ///< what to make of it
    std::string file;       ///< as the caller named it; empty for a stream without a name
    std::uint64_t line = 0; ///< counted from 1; 0 where no line applies
    std::string code;     ///< stable, "blackoil.row-skipped" for one; docs/diagnostics.md lists all
    std::string sentence; ///< what was expected and what was found, in English
};

/// Takes the diagnostics of a read, one after another, in the order in which they are found, on the
/// thread that reads. What it throws ends the read and reaches the reader's caller.
///
/// Of one code there come at most 20 for a file, and then, when the file is read, one more that
/// counts the rest, with line 0. A sound text gives no warning and no error. Results and reports
/// are the same with a sink and without; an empty function stands for none.
using DiagnosticSink = std::function<void(const Diagnostic&)>;

} // namespace Orv::FluidBench::IO
