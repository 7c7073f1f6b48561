// Every diagnostic of the library's own readers: its code and how much it matters. What each means
// and what to do about it stands in docs/diagnostics.md.
#pragma once

#include "io/Diagnostics.h"

namespace Orv::FluidBench::Impl::IO {

struct DiagnosticKind {
    const char* code;
    FluidBench::IO::Severity severity;
};

// clang-format off
namespace Kinds {

using enum FluidBench::IO::Severity;

// Of all readers.
inline constexpr DiagnosticKind cantOpen         {"file.cant-open", Error};
inline constexpr DiagnosticKind readFailed       {"file.read-failed", Error};
inline constexpr DiagnosticKind utf16            {"file.utf-16", Error};
inline constexpr DiagnosticKind carriageReturns  {"file.carriage-returns", Error};

} // namespace Kinds

namespace BlackOilKinds {

using enum FluidBench::IO::Severity;

inline constexpr DiagnosticKind noTable          {"blackoil.no-table", Error};
inline constexpr DiagnosticKind noRows           {"blackoil.no-rows", Warning};
inline constexpr DiagnosticKind rowSkipped       {"blackoil.row-skipped", Warning};
inline constexpr DiagnosticKind otherSeparator   {"blackoil.other-separator", Warning};
inline constexpr DiagnosticKind paddedRow        {"blackoil.padded-row", Warning};
inline constexpr DiagnosticKind notANumber       {"blackoil.not-a-number", Warning};
inline constexpr DiagnosticKind textBehindNumber {"blackoil.text-behind-number", Warning};
inline constexpr DiagnosticKind notFinite        {"blackoil.not-finite", Warning};
inline constexpr DiagnosticKind otherUnits       {"blackoil.other-units", Warning};
inline constexpr DiagnosticKind headingInTable   {"blackoil.heading-in-table", Warning};
inline constexpr DiagnosticKind headingForm      {"blackoil.heading-form", Warning};
inline constexpr DiagnosticKind secondTable      {"blackoil.second-table", Warning};
inline constexpr DiagnosticKind pressureOrder    {"blackoil.pressure-order", Warning};
inline constexpr DiagnosticKind negativeValue    {"blackoil.negative-value", Warning};
inline constexpr DiagnosticKind noDensities      {"blackoil.no-densities", Warning};

} // namespace BlackOilKinds
// clang-format on

} // namespace Orv::FluidBench::Impl::IO
