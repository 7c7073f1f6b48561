#include "OddCharacters.h"

#include <cstddef>
#include <cstdint>

namespace Orv::Text {

namespace {

struct OddRange {
    std::uint32_t first, last;
    const char* name;
};
// clang-format off
constexpr OddRange oddCharacters[] = {
    {0x0000, 0x0008, "a control character"},    {0x000E, 0x001F, "a control character"},
    {0x007F, 0x009F, "a control character"},    {0x00A0, 0x00A0, "a no-break space"},
    {0x00AD, 0x00AD, "a soft hyphen"},          {0x2000, 0x2006, "a space of another width"},
    {0x2007, 0x2007, "a figure space"},         {0x2008, 0x200A, "a space of another width"},
    {0x200B, 0x200F, "an invisible character"}, {0x2010, 0x2015, "a typographic dash"},
    {0x2018, 0x201F, "a typographic quote"},    {0x2028, 0x202E, "an invisible character"},
    {0x202F, 0x202F, "a narrow no-break space"},{0x205F, 0x206F, "an invisible character"},
    {0x2212, 0x2212, "a typographic minus"},    {0x3000, 0x3000, "a wide space"},
    {0xFEFF, 0xFEFF, "a byte order mark"},      {0xFF0B, 0xFF19, "a wide digit or sign"},
};
// clang-format on

std::string Hexadecimal(std::uint32_t number, int digits) {
    std::string text;
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
        text += "0123456789ABCDEF"[number >> static_cast<unsigned>(shift) & 0xFU];
    }
    return text;
}

struct Character {
    std::uint32_t code = 0;
    std::size_t length = 0; // 0 for bytes that aren't UTF-8
};

// As far as it takes to tell characters apart: overlong forms pass.
Character Decode(std::string_view text) noexcept {
    const auto first = static_cast<unsigned char>(text[0]);
    const std::size_t length = first < 0x80U                     ? 1
                               : first >= 0xC2U && first < 0xE0U ? 2
                               : first >= 0xE0U && first < 0xF0U ? 3
                               : first >= 0xF0U && first < 0xF5U ? 4
                                                                 : 0;
    if (length == 0 || length > text.size()) {
        return {};
    }
    std::uint32_t code = length == 1 ? first : first & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0U) != 0x80U) {
            return {};
        }
        code = code << 6U | (next & 0x3FU);
    }
    return {code, length};
}

} // namespace

std::string NameOddCharacter(std::string_view text) {
    while (!text.empty()) {
        const Character character = Decode(text);
        if (character.length == 0) {
            return "the byte " + Hexadecimal(static_cast<unsigned char>(text[0]), 2) +
                   ", which isn't UTF-8";
        }
        for (const OddRange& odd : oddCharacters) {
            if (character.code >= odd.first && character.code <= odd.last) {
                return "U+" + Hexadecimal(character.code, 4) + ", " + odd.name;
            }
        }
        text.remove_prefix(character.length);
    }
    return {};
}

} // namespace Orv::Text
