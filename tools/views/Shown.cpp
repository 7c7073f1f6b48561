#include "Shown.h"

#include <cstddef>
#include <cstdint>

namespace FluidBenchTool {

namespace {

struct Range {
    std::uint32_t first;
    std::uint32_t last;
};

// clang-format off
constexpr Range obeyed[] = {
    {0x0000, 0x001F}, {0x007F, 0x009F}, // control characters
    {0x061C, 0x061C}, {0x200E, 0x200F}, // marks of the writing direction
    {0x2028, 0x2029},                   // ends of lines and paragraphs
    {0x202A, 0x202E}, {0x2066, 0x2069}, // overrides and isolates of the writing direction
    {0xFEFF, 0xFEFF},                   // a byte order mark
};
// clang-format on

bool IsObeyed(std::uint32_t character) {
    for (const Range& range : obeyed) {
        if (character >= range.first && character <= range.last) {
            return true;
        }
    }
    return false;
}

struct Character {
    std::uint32_t value = 0;
    std::size_t length = 0; // bytes; 0 where they are no character
};

// The character that a text in UTF-8 begins with. Longer forms than needed, halves of pairs and
// what is beyond the last character are none.
Character FirstCharacter(std::string_view text) {
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const std::uint32_t lead = byte(0);
    if (lead < 0x80) {
        return {lead, 1};
    }
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    constexpr std::uint32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length) {
        return {};
    }
    std::uint32_t value = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80U) {
            return {};
        }
        value = (value << 6U) | (byte(i) & 0x3FU);
    }
    const bool isHalf = value >= 0xD800 && value <= 0xDFFF;
    return value < least[length] || isHalf || value > 0x10FFFF ? Character{}
                                                               : Character{value, length};
}

void AppendHexadecimal(std::string& text, std::uint32_t value, int digits) {
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
        text += "0123456789abcdef"[(value >> static_cast<unsigned>(shift)) & 0xFU];
    }
}

} // namespace

std::string Shown(std::string_view text) {
    std::string shown;
    shown.reserve(text.size());
    while (!text.empty()) {
        const Character character = FirstCharacter(text);
        const std::size_t length = character.length == 0 ? 1 : character.length;
        if (character.length == 0 || (length == 1 && IsObeyed(character.value))) {
            shown += "\\x";
            AppendHexadecimal(shown, static_cast<unsigned char>(text.front()), 2);
        } else if (IsObeyed(character.value)) {
            shown += "\\u";
            AppendHexadecimal(shown, character.value, 4);
        } else {
            shown += text.substr(0, length);
        }
        text.remove_prefix(length);
    }
    return shown;
}

} // namespace FluidBenchTool
