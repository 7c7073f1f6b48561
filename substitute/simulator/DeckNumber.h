// Number text of a deck, the only place of the deck parser that turns text into numbers.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace Orv::Kes::KesModel {

/// Gives the number that `text` is from its first character to its last: decimal digits with an
/// optional sign, point and exponent, whose letter is E or D in either case. False for anything
/// else: not-a-numbers, infinities and numbers beyond the range of a double are no numbers of a
/// deck.
bool ParseNumber(std::string_view text, double& number);

/// The whole number that `text` is, without a sign. Nothing for anything else.
std::optional<std::uint64_t> ParseCount(std::string_view text) noexcept;

} // namespace Orv::Kes::KesModel
