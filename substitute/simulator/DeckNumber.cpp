#include "DeckNumber.h"

#include "DeckCharacters.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <system_error>

namespace Orv::Kes::KesModel {

namespace {

template <typename Number>
bool ParseWhole(std::string_view text, Number& number) noexcept {
    const char* const end = text.data() + text.size();
    const auto [behind, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && behind == end;
}

// Programs of a certain age write the exponent of a double-precision number with a D.
bool ParseWithD(std::string_view text, double& number) {
    const std::size_t letter = text.find_first_of("dD");
    if (letter == std::string_view::npos) {
        return false;
    }
    std::string withE(text);
    withE[letter] = 'E';
    return ParseWhole(withE, number);
}

} // namespace

bool ParseNumber(std::string_view text, double& number) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) {
            return false;
        }
    }
    // The words for infinity and not-a-number have no digit ahead of their letters.
    const auto* const first =
        std::ranges::find_if_not(text, [](char c) { return c == '-' || c == '.'; });
    return first != text.end() && IsDigit(*first) &&
           (ParseWhole(text, number) || ParseWithD(text, number));
}

std::optional<std::uint64_t> ParseCount(std::string_view text) noexcept {
    std::uint64_t count = 0;
    return ParseWhole(text, count) ? std::optional(count) : std::nullopt;
}

} // namespace Orv::Kes::KesModel
