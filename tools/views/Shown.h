// Text of files and names, as a terminal may have it.
#pragma once

#include <string>
#include <string_view>

namespace FluidBenchTool {

/// The text with everything escaped that a terminal would obey instead of showing it: control
/// characters of both sets, marks and overrides of the writing direction, other line ends, and what
/// isn't UTF-8. "\x1b" stands for one byte, "\u202e" for a character beyond ASCII. Every text that
/// comes from outside goes through here on its way to a person.
std::string Shown(std::string_view text);

} // namespace FluidBenchTool
