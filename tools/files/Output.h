// Files that are written whole or not at all.
#pragma once

#include "Messages.h"

#include <functional>
#include <memory>
#include <ostream>
#include <string>

namespace FluidBenchTool {

/// The name that stands for the standard input or output.
inline constexpr const char* standardStream = "-";

/// The program's standard output. A terminal gets what is written with everything escaped that it
/// would obey. One object lives as long as the program runs.
class StandardOutput {
public:
    StandardOutput();
    ~StandardOutput();
    StandardOutput(const StandardOutput&) = delete;
    StandardOutput& operator=(const StandardOutput&) = delete;

    std::ostream& Stream();
    /// Writes out what was written and gives what stood in the way, in the system's words; empty
    /// where nothing did, or where nobody reads any more, as behind "| head", which needs no words.
    std::string Finish();
    /// Whether something stood in the way of `Finish`.
    bool HasFailed() const noexcept;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

/// Has `write` write a file of that name. A new file is made beside the place of the old one,
/// written, closed, put on the disk, and then takes the place; a link stays and what it leads to is
/// replaced. Whatever goes wrong on the way, an old file stands as it was: an error is told and
/// `CommandFailed` thrown, or what `write` throws passes through. So a file may be written from
/// what is still read of it.
///
/// A device or a pipe is written as it is, and `standardStream` goes to `standardOutput`.
void WriteOutput(const std::string& name, StandardOutput& standardOutput, Messages& messages,
                 const std::function<void(std::ostream&)>& write);

/// Whether both names lead to one file.
bool IsSameFile(const std::string& first, const std::string& second);

} // namespace FluidBenchTool
