// The letters and digits of a text, in any locale.
#pragma once

namespace Orv::Text {

constexpr bool IsSmallLetter(char c) noexcept {
    return c >= 'a' && c <= 'z';
}
constexpr bool IsLetter(char c) noexcept {
    return (c >= 'A' && c <= 'Z') || IsSmallLetter(c);
}
constexpr bool IsDigit(char c) noexcept {
    return c >= '0' && c <= '9';
}

} // namespace Orv::Text
