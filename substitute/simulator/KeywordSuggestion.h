// What a word that is no keyword was probably meant to be.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace Orv::Kes::KesModel {

/// The word as a keyword would be written: in Latin capitals, without what doesn't belong into one.
/// What follows a bracket, a colon or an equals sign belongs to a remark. "T-CRIT", "*Tcrit",
/// "1.TCRIT" and "TCRIT(K)" give "TCRIT".
std::string BareKeyword(std::string_view text);

/// Whether there are others than ASCII characters in it.
bool HasForeignCharacters(std::string_view text);

/// The keyword that differs from the word, which is in capitals, by a typing error: one letter
/// changed, lost, added or swapped with its neighbour where the keyword has four letters or more,
/// two such where it has six or more. Empty where none does, and for a word that simulators know as
/// another keyword.
std::string_view ClosestKeyword(std::string_view word, std::span<const std::string_view> keywords);

} // namespace Orv::Kes::KesModel
