// What the reader and the writer of phase envelope files both know of the format.
//
//     Flash:                                              the flash line begins a block
//     Source:
//     Units: T(K), P(Pa)
//
//     Bubble,,Dew,,Critical point,,Vapour,0.5,            the heading line
//     T,P,T,P,T,P,T,P,                                    the letter line
//     285,1.02e+07,426,236000,521.9,1.12e+07,285,892000,  rows
//     300,1.08e+07,440,298000, , ,300,1.02e+06,
//                                                         ends the block
//
// Each line of the plot has a pair of columns, and each cell a separator behind it.
#pragma once

#include "FluidBench/Common/Line.h"
#include "FluidBench/Common/PTline.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace Orv::FluidBench::Impl::IO {

/// The type of all lines of these files.
inline constexpr Common::Line::Type lineType = Common::Line::Type::PhaseCurve;

/// How many pairs of columns a kind of line has, and what the second heading cell of a pair holds.
enum class Pairs {
    One,              // also where the plot has no such line; nothing
    OneIfThere,       // nothing
    EachWithFraction, // the phase fraction
    EachWithNumber    // a count of all lines that are so numbered
};

/// A kind of line; the first heading cell of its pairs is `heading`.
struct LineKind {
    std::string_view heading;
    Common::Line::Phase phase;
    Pairs pairs;
    std::optional<Common::PTline::PTlineIdentifier> identifier; ///< none where it is only written
};

/// In the order of the columns.
inline constexpr auto lineKinds = [] {
    using enum Common::Line::Phase;
    using Identifier = Common::PTline::PTlineIdentifier;
    return std::to_array<LineKind>({
        {"Bubble", Bubble, Pairs::One, Identifier::Bubble},
        {"Dew", Dew, Pairs::One, Identifier::Dew},
        {"Critical point", CriticalPoint, Pairs::One, Identifier::Critical},
        {"Aqueous", Aqueous, Pairs::OneIfThere, Identifier::Aqueous},
        {"Ice", Ice, Pairs::OneIfThere, Identifier::Ice},
        {"Hydrate type I", HydrateTypeI, Pairs::OneIfThere, Identifier::HydrateTypeI},
        {"Hydrate type II", HydrateTypeII, Pairs::OneIfThere, Identifier::HydrateTypeII},
        {"Vapour", VapourFraction, Pairs::EachWithFraction, Identifier::Quality},
        {"PX2", PX2, Pairs::EachWithNumber, std::nullopt},
        {"PX3", PX3, Pairs::EachWithNumber, std::nullopt},
        {"TX2", TX2, Pairs::EachWithNumber, std::nullopt},
        {"TX3", TX3, Pairs::EachWithNumber, std::nullopt},
    });
}();

/// The kind of a line that was read.
inline const LineKind& KindOf(const Common::PTline& line) {
    return *std::ranges::find(lineKinds, line.GetLineType(), &LineKind::identifier);
}

/// Where a number in a cell begins, for the reader.
constexpr bool BeginsNumber(char c) noexcept {
    return (c >= '0' && c <= '9') || c == '.' || c == '-';
}

} // namespace Orv::FluidBench::Impl::IO
