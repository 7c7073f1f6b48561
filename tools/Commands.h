// The program's groups of commands. Each adds its subcommands to the program; a subcommand's
// callback throws `CommandFailed` when the program should end in failure.
#pragma once

#include <stdexcept>
#include <string>

namespace CLI {
class App;
}

namespace FluidBenchTool {

/// A command that was understood and could not be carried out. `what()` is for a person to read and
/// may be empty when everything was said before.
class CommandFailed : public std::runtime_error {
public:
    explicit CommandFailed(const std::string& reason = {}) : std::runtime_error(reason) {}
};

void AddBlackOilCommands(CLI::App& program);
void AddDeckCommands(CLI::App& program);
void AddDfaCommands(CLI::App& program);
void AddEnvelopeCommands(CLI::App& program);
void AddMflCommands(CLI::App& program);

} // namespace FluidBenchTool
