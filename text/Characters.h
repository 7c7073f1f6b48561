// The letters, digits and blanks of a text, in any locale.
#pragma once

#include <cstddef>
#include <string_view>

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

/// White space by the C library.
constexpr bool IsSpace(char c) noexcept {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// The text without the white space around it.
constexpr std::string_view WithoutBlanks(std::string_view text) noexcept {
    constexpr std::string_view blanks = " \t\r\v\f\n";
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::string_view::npos
               ? std::string_view()
               : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// The text without the separators that spreadsheets and people leave behind it.
constexpr std::string_view WithoutPadding(std::string_view text) noexcept {
    return text.substr(0, text.find_last_not_of(", \t") + 1);
}

constexpr bool Holds(std::string_view text, std::string_view words) noexcept {
    return text.find(words) != std::string_view::npos;
}

} // namespace Orv::Text
