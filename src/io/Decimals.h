// How many decimals the tables for simulators have.
#pragma once

namespace Orv::FluidBench::IO {

inline constexpr int decimalsOfTables = 8;
inline constexpr int decimalsOfHighPrecision = 15;

} // namespace Orv::FluidBench::IO
