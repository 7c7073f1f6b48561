// fluidbench-io: looks into the files of the library and converts them.
//
// Ends with 0 on success, 1 when a command failed and 2 on wrong usage. Results go to the standard
// output, messages to the error stream.
#include "Commands.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <iostream>
#include <string>
#include <string_view>

namespace {

constexpr int success = 0;
constexpr int failure = 1;
constexpr int wrongUsage = 2;

// Says what is wrong, what wasn't understood, and which help tells more.
std::string UsageMessage(const CLI::App* program, const CLI::Error& error) {
    std::string message = std::string(error.what()) + '\n';
    const bool namesExtras = error.get_exit_code() == static_cast<int>(CLI::ExitCodes::ExtrasError);
    if (const auto extras = program->remaining(true); !namesExtras && !extras.empty()) {
        message += "Not understood: '" + extras.front() + "'\n";
    }
    const CLI::App* command = program;
    std::string line = program->get_name();
    while (!command->get_subcommands().empty()) {
        command = command->get_subcommands().front();
        line += ' ' + command->get_name();
    }
    return message + "Run '" + line + " --help' for more information.\n";
}

int Run(int argumentCount, char** arguments) {
    CLI::App program("Looks into the files of reservoir fluids and converts them.",
                     "fluidbench-io");
    program.require_subcommand(1);
    FluidBenchTool::AddDeckCommands(program);
    FluidBenchTool::AddBlackOilCommands(program);
    FluidBenchTool::AddDfaCommands(program);
    FluidBenchTool::AddEnvelopeCommands(program);
    FluidBenchTool::AddMflCommands(program);
    program.failure_message(UsageMessage);
    try {
        program.parse(argumentCount, arguments);
    } catch (const CLI::ParseError& error) {
        return program.exit(error) == 0 ? success : wrongUsage;
    } catch (const std::exception& error) {
        if (!std::string_view(error.what()).empty()) {
            std::cerr << "fluidbench-io: " << error.what() << '\n';
        }
        return failure;
    }
    return success;
}

} // namespace

int main(int argumentCount, char** arguments) {
    const int status = Run(argumentCount, arguments);
    if (!std::cout.flush()) {
        std::cerr << "fluidbench-io: The standard output can't be written.\n";
        return failure;
    }
    return status;
}
