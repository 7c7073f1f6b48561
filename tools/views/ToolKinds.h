// Every message that the program itself has beside those of the library's readers: its code and how
// much it matters. What each means and what to do about it stands in docs/diagnostics.md.
#pragma once

#include "io/Diagnostics.h"

namespace FluidBenchTool {

struct ToolKind {
    const char* code;
    Orv::FluidBench::IO::Severity severity;
};

// clang-format off
namespace ToolKinds {

using enum Orv::FluidBench::IO::Severity;

inline constexpr ToolKind cantRead       {"tool.cant-read", Error};
inline constexpr ToolKind cantWrite      {"tool.cant-write", Error};
inline constexpr ToolKind unknownFormat  {"tool.unknown-format", Error};
inline constexpr ToolKind utf16          {"file.utf-16", Error};
inline constexpr ToolKind carriageReturns{"file.carriage-returns", Error};
inline constexpr ToolKind badRow         {"tool.bad-row", Error};
inline constexpr ToolKind nothingRead    {"tool.nothing-read", Error};
inline constexpr ToolKind noSuchRegion   {"tool.no-such-region", Error};
inline constexpr ToolKind noSuchTable    {"tool.no-such-table", Error};
inline constexpr ToolKind tableLeftOut   {"tool.table-left-out", Warning};
inline constexpr ToolKind reported       {"tool.reported", Error};
inline constexpr ToolKind reportedWarning{"tool.reported-warning", Warning};
inline constexpr ToolKind firstRegion    {"tool.first-region", Warning};
inline constexpr ToolKind otherUnits     {"tool.other-units", Error};
inline constexpr ToolKind waterDensity   {"tool.water-density", Warning};
inline constexpr ToolKind noSaturationPoint{"tool.no-saturation-point", Warning};
inline constexpr ToolKind pressureOrder  {"tool.pressure-order", Warning};
inline constexpr ToolKind recordOrder    {"tool.record-order", Warning};
inline constexpr ToolKind noTemperature  {"tool.no-temperature", Warning};
inline constexpr ToolKind longLine       {"tool.long-line", Warning};
inline constexpr ToolKind noMemory       {"tool.no-memory", Error};
inline constexpr ToolKind failure        {"tool.failure", Error};

} // namespace ToolKinds
// clang-format on

} // namespace FluidBenchTool
