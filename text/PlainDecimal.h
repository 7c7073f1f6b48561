// The quick way to numbers as files mostly have them; it is inline because it stands in the
// innermost loop of every reader.
#pragma once

#include "Characters.h"

#include <array>
#include <bit>
#include <cfloat>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace Orv::Text {

/// Reads the decimal number that the text begins with: digits with an optional point and exponent,
/// without a sign. Gives its end; null for every other text, and for a number that has to be read
/// by `std::from_chars`.
///
/// Up to 19 digits make a whole number that 64 bits hold. When it is at most 2^53, a double has it
/// exactly, as it has the powers of ten up to the 22nd; dividing or multiplying these two rounds
/// once, so it gives the nearest double.
inline const char* ReadPlainDecimal(const char* position, const char* end, double& value) noexcept;

/// The same behind white space and a sign; null for a hexadecimal number too.
inline const char* ReadSignedPlainDecimal(const char* position, const char* end,
                                          double& value) noexcept;

namespace PlainDecimal {

constexpr std::ptrdiff_t mostDigits = 19;
constexpr std::uint64_t mostExact = std::uint64_t{1} << 53;
constexpr std::ptrdiff_t digitsAtOnce = 8;
constexpr std::uint64_t tenToTheEighth = 100'000'000;

constexpr auto powersOfTen = [] {
    std::array<double, 23> powers{1.0};
    for (std::size_t i = 1; i < powers.size(); ++i) {
        powers[i] = powers[i - 1] * 10.0;
    }
    return powers;
}();

// The value of eight digits, of which the first one is the lowest byte. False where not all of them
// are digits: a byte is one when its upper half is 3, and still is when 6 is added.
constexpr bool ReadEightDigits(std::uint64_t bytes, std::uint64_t& number) noexcept {
    constexpr std::uint64_t inEachByte = 0x0101010101010101;
    constexpr std::uint64_t upperHalves = 0xF0 * inEachByte;
    if ((bytes & upperHalves) != '0' * inEachByte ||
        ((bytes + 6 * inEachByte) & upperHalves) != '0' * inEachByte) {
        return false;
    }
    // Neighbours are joined, the first one being the greater: digits to pairs, pairs to fours,
    // fours to the number. None of the sums leaves its place.
    const std::uint64_t digits = bytes - '0' * inEachByte;
    const std::uint64_t pairs = (digits * 10 + (digits >> 8)) & 0x00FF00FF00FF00FF;
    const std::uint64_t fours = (pairs * 100 + (pairs >> 16)) & 0x0000FFFF0000FFFF;
    number = (fours * 10'000 + (fours >> 32)) & 0xFFFFFFFF;
    return true;
}

// Passes digits and puts them behind those of the number.
inline const char* PassDigits(const char* position, const char* end,
                              std::uint64_t& number) noexcept {
    for (; position != end && IsDigit(*position); ++position) {
        number = number * 10 + static_cast<std::uint64_t>(*position - '0');
    }
    return position;
}

// The same, and the quicker way where there are many, as behind a point.
inline const char* PassManyDigits(const char* position, const char* end,
                                  std::uint64_t& number) noexcept {
    if constexpr (std::endian::native == std::endian::little) {
        std::uint64_t bytes = 0;
        std::uint64_t eight = 0;
        while (end - position >= digitsAtOnce) {
            std::memcpy(&bytes, position, sizeof bytes);
            if (!ReadEightDigits(bytes, eight)) {
                break;
            }
            number = number * tenToTheEighth + eight;
            position += digitsAtOnce;
        }
    }
    return PassDigits(position, end, number);
}

// The exponent behind a mantissa: a letter, a sign and digits. Moves to its end and gives its
// value; gives zero and stays where there is none, and a large value where it has more than three
// digits.
inline int TakeExponent(const char*& position, const char* end) noexcept {
    const char* digit = position;
    if (digit == end || (*digit != 'e' && *digit != 'E')) {
        return 0;
    }
    ++digit;
    const bool isNegative = digit != end && *digit == '-';
    if (digit != end && (*digit == '-' || *digit == '+')) {
        ++digit;
    }
    int value = 0;
    const char* const first = digit;
    for (; digit != end && IsDigit(*digit) && value < 1000; ++digit) {
        value = value * 10 + (*digit - '0');
    }
    if (digit == first) {
        return 0;
    }
    position = digit;
    return isNegative ? -value : value;
}

} // namespace PlainDecimal

inline const char* ReadPlainDecimal(const char* position, const char* end, double& value) noexcept {
    using namespace PlainDecimal;
    std::uint64_t mantissa = 0;
    const char* const first = position;
    position = PassDigits(position, end, mantissa);
    std::ptrdiff_t digits = position - first;
    std::ptrdiff_t decimals = 0;
    if (position != end && *position == '.') {
        const char* const firstDecimal = ++position;
        position = PassManyDigits(position, end, mantissa);
        decimals = position - firstDecimal;
        digits += decimals;
    }
    if (FLT_EVAL_METHOD != 0 || digits == 0 || digits > mostDigits || mantissa > mostExact) {
        return nullptr;
    }
    const int exponent = TakeExponent(position, end) - static_cast<int>(decimals);
    const auto power = static_cast<std::size_t>(std::abs(exponent));
    if (power >= powersOfTen.size()) {
        return nullptr;
    }
    const auto whole = static_cast<double>(mantissa);
    value = exponent < 0 ? whole / powersOfTen[power] : whole * powersOfTen[power];
    return position;
}

inline const char* ReadSignedPlainDecimal(const char* position, const char* end,
                                          double& value) noexcept {
    while (position != end && IsSpace(*position)) {
        ++position;
    }
    const bool isNegative = position != end && *position == '-';
    if (position != end && (isNegative || *position == '+')) {
        ++position;
    }
    const bool isHexadecimal =
        end - position > 1 && *position == '0' && (position[1] == 'x' || position[1] == 'X');
    double magnitude = 0.0;
    position = isHexadecimal ? nullptr : ReadPlainDecimal(position, end, magnitude);
    value = isNegative ? -magnitude : magnitude;
    return position;
}

} // namespace Orv::Text
