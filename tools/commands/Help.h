// The program's help, made from the tables of its commands.
#pragma once

#include "CommandLine.h"

#include <ostream>

namespace FluidBenchTool {

/// The program as a whole: its formats and how to go on.
void PrintHelp(std::ostream& out);
/// The commands of a format.
void PrintHelp(std::ostream& out, std::string_view format);
/// One command with its operands and options.
void PrintHelp(std::ostream& out, const Command& command);

} // namespace FluidBenchTool
