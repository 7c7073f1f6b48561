// Tells what is wrong with a cell of a table of numbers.
#pragma once

#include "Diagnostics.h"

#include <cstdint>
#include <string_view>

namespace Orv::FluidBench::Impl::IO {

/// How a family of formats calls it.
struct CellKinds {
    const DiagnosticKind& notANumber;
    const DiagnosticKind& textBehindNumber;
    const DiagnosticKind& notFinite;
    double (*read)(std::string_view cell) noexcept; ///< what the reader makes of a cell
};

/// Tells where the cell isn't a decimal number and nothing else, and what the reader makes of it;
/// `column` says what the number should be. `asRead` is what becomes of a cell without a number.
void TellCell(Diagnostics& diagnostics, const CellKinds& kinds, std::uint64_t line,
              std::string_view column, std::string_view cell, std::string_view asRead);

} // namespace Orv::FluidBench::Impl::IO
