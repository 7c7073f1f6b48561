#include "Quote.h"

#include <algorithm>

namespace Orv::Text {

namespace {

constexpr std::size_t longestQuote = 60;

// A byte of a UTF-8 character that isn't its first.
constexpr bool ContinuesCharacter(char c) noexcept {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

} // namespace

std::string Quote(std::string_view text) {
    const bool isCut = text.size() > longestQuote;
    if (isCut) {
        std::size_t length = longestQuote;
        while (length > 0 && ContinuesCharacter(text[length])) {
            --length;
        }
        text = text.substr(0, length);
    }
    std::string quoted = "'";
    quoted += text;
    std::ranges::replace_if(
        quoted, [](unsigned char c) { return c < ' ' || c == 0x7F; }, '?');
    return quoted + (isCut ? "...'" : "'");
}

} // namespace Orv::Text
