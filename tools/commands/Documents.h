// What is installed beside the program and made from the tables of its commands: its manual page,
// and what shells complete its command lines with.
#pragma once

#include <ostream>

namespace FluidBenchTool {

/// The manual page, in the macros of man.
void PrintManual(std::ostream& out);
/// A script for bash, to be found by the program's name or sourced.
void PrintBashCompletion(std::ostream& out);
/// A function for zsh, to be found as _fluidbench-io.
void PrintZshCompletion(std::ostream& out);

} // namespace FluidBenchTool
