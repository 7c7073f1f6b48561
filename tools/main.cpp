// fluidbench-io: looks into the files of the library and converts them.
//
// Ends with 0 on success, 1 when a command failed and 2 on wrong usage. Results go to the standard
// output, messages to the error stream.
#include "Commands.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <iostream>
#include <string_view>

namespace {

constexpr int success = 0;
constexpr int failure = 1;
constexpr int wrongUsage = 2;

} // namespace

int main(int argumentCount, char** arguments) {
    CLI::App program("Looks into the files of reservoir fluids and converts them.",
                     "fluidbench-io");
    program.require_subcommand(1);
    FluidBenchTool::AddDeckCommands(program);
    FluidBenchTool::AddBlackOilCommands(program);
    FluidBenchTool::AddDfaCommands(program);
    FluidBenchTool::AddEnvelopeCommands(program);
    FluidBenchTool::AddMflCommands(program);
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
