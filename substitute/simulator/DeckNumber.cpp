#include "DeckNumber.h"

#include <charconv>
#include <string>
#include <system_error>

namespace Orv::Kes::KesModel {

namespace {

template <typename Number>
std::optional<Number> ParseWhole(std::string_view text) noexcept {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [behind, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && behind == end ? std::optional(number) : std::nullopt;
}

constexpr bool IsDigit(char c) noexcept {
    return c >= '0' && c <= '9';
}

// Programs of a certain age write the exponent of a double-precision number with a D.
std::optional<double> ParseWithD(std::string_view text) {
    const std::size_t letter = text.find_first_of("dD");
    if (letter == std::string_view::npos) {
        return std::nullopt;
    }
    std::string withE(text);
    withE[letter] = 'E';
    return ParseWhole<double>(withE);
}

} // namespace

std::optional<double> ParseNumber(std::string_view text) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) {
            return std::nullopt;
        }
    }
    // The words for infinity and not-a-number have no digit ahead of their letters.
    const std::size_t first = text.find_first_not_of("-.");
    if (first == std::string_view::npos || !IsDigit(text[first])) {
        return std::nullopt;
    }
    const std::optional<double> number = ParseWhole<double>(text);
    return number ? number : ParseWithD(text);
}

std::optional<std::uint64_t> ParseCount(std::string_view text) noexcept {
    return ParseWhole<std::uint64_t>(text);
}

} // namespace Orv::Kes::KesModel
