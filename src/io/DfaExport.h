// Reads one text export of a downhole fluid analysis job, whose form `DFAReader` draws.
#pragma once

#include "Diagnostics.h"
#include "io/DFAReader.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <istream>
#include <optional>
#include <span>
#include <vector>

namespace Orv::FluidBench::Impl::IO {

/// A column of a row that somebody reads, counted from 0.
struct DfaColumn {
    std::size_t index;
    const char* name;
};

inline constexpr std::size_t dfaDepthColumn = 0; // of both files, in ft

namespace MainColumn {
inline constexpr std::size_t gasOilRatio = 2;
inline constexpr std::size_t firstFraction = 3;
inline constexpr std::size_t density = 8;
inline constexpr std::size_t temperature = 17;
inline constexpr std::size_t stationValue = 19;
} // namespace MainColumn

namespace PressureColumn {
inline constexpr std::size_t pressure = 2;
} // namespace PressureColumn

/// One of the two files of a pair: what it is called, how many columns a row has at least, and
/// which of them count.
struct DfaFile {
    const char* name;
    std::size_t columns;
    std::span<const DfaColumn> columnsRead;
};

inline constexpr auto mainColumnsRead = std::to_array<DfaColumn>({
    {dfaDepthColumn, "depth"},
    {MainColumn::gasOilRatio, "gas-oil ratio"},
    {MainColumn::firstFraction, "C1"},
    {MainColumn::firstFraction + 1, "C2"},
    {MainColumn::firstFraction + 2, "C3 to C5"},
    {MainColumn::firstFraction + 3, "C6 and heavier"},
    {MainColumn::firstFraction + 4, "CO2"},
    {MainColumn::density, "density"},
    {MainColumn::temperature, "temperature"},
    {MainColumn::stationValue, "station value"},
});

inline constexpr auto pressureColumnsRead = std::to_array<DfaColumn>({
    {dfaDepthColumn, "depth"},
    {PressureColumn::pressure, "pressure"},
});

inline constexpr DfaFile mainFile{"main file", 20, mainColumnsRead};
inline constexpr DfaFile pressureFile{"FT file", 3, pressureColumnsRead};

/// The rows of an export, the short ones among them. With somebody who listens, entry k of `lines`
/// is the number of row k's line.
struct DfaExport {
    FluidBench::IO::Data data;
    std::vector<std::uint64_t> lines;
};

/// Reads the stream to its end, line by line; no more of the text than a line is held. Nothing
/// where the header isn't there or reading failed.
std::optional<DfaExport> ReadDfaExport(std::istream& in, const DfaFile& file,
                                       Diagnostics& diagnostics);

} // namespace Orv::FluidBench::Impl::IO
