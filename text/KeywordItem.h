// What an item of a record of a keyword file is.
#pragma once

#include "KeywordLexer.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace Orv::Text {

/// One item of a record of numbers: so many times the number, or its default.
struct RepeatedNumber {
    std::uint64_t count = 1; ///< at least 1
    bool isDefault = false;
    double number = 0.0;
};

/// "16.04", "3*0.5" or "2*". Nothing for anything else, and for a count of zero.
std::optional<RepeatedNumber> ParseRepeated(std::string_view text);

/// Whether the item is a name: text in quotes, or a word that is no number and has neither an
/// asterisk nor a quote in it.
bool IsName(const Token& item);

/// Whether whoever wrote the item meant a number: "16.04" and "3*", and also "l6.04", "*16", "nan".
bool IsMeantAsNumber(const Token& item);

} // namespace Orv::Text
