// A finite number other than zero is m * 2^e with 0 < m < 2^53 and -1074 <= e <= 971, exactly. Its
// digits before the point, and behind it times a power of ten, are whole numbers that 128 bits hold
// together with what rounding needs. No step loses a bit, so the text is that of the exact value,
// rounded half to even. Why nothing overflows:
//
// Numbers from 2^64 on are refused: m has its 53rd bit set unless the number is tiny, so e <= 11 is
// asked for, and m * 2^e < 2^64 for every e from 0 to 11.
//
// Fixed notation with p decimals, 1 <= p <= 19, of a number with e < 0:
// - With k = min(-e, 127) the whole part is m / 2^k, which is below 2^52, and zero for k > 52; the
//   rest f is below 2^k and below 2^53.
// - f * 10^p < 2^53 * 2^63.12 < 2^117 fits. f * 10^p / 2^k < 10^p < 2^64 fits 64 bits, and so does
//   the 10^p that rounding may make of it, which carries one into the whole part.
// - With k < 64 what is rounded away is below 2^63, so that it fits 64 bits with the one that is
//   added for an odd digit, and so does the half that it is held against.
// - Where -e > 127, k is too small, but then f * 10^p / 2^k < 2^-10 rounds to zero as the right
//   quotient does.
//
// P significant digits, 1 <= P <= 17, of a number v whose first digit counts 10^x:
// - 2^b <= v < 2^(b+1) tells x but for one: with g = floor(b * log10(2)) it is g or g + 1, because
//   log10(2) < 1. floor(b * 1233 / 2^12) is g for every b from -93 to 63.
// - With s = max(P - g, 0) the whole number q = floor(v * 10^s) has all digits that count and at
//   least one more. Rounding drops d of them, looks at the dropped ones, and at whether v * 10^s
//   had a fraction.
// - s > 0: q <= v * 10^s < 10^(g+2+s) = 10^(P+2) <= 10^19 < 2^64 fits 64 bits. s <= 27 is asked
// for.
//   v * 10^s is m * 5^s * 2^(e+s), and m * 5^s < 2^53 * 2^62.7 < 2^116 fits. e + s >= 0 shifts it
//   to the left, up to q. Otherwise v * 10^s >= 10^P >= 10 makes 2^-(e+s) less than m * 5^s: the
//   shift to the right is by fewer than 116 bits.
// - s = 0: q <= v < 2^64 fits, g <= 18, and e <= 0 shifts by no more than 52 bits since v >= 1.
// - q has g + s + 1 digits or one more, so d = g + s + 1 - P or one more. 1 <= d <= 19, and 10^d
// fits
//   64 bits.
// - s <= 27 gives g >= P - 27 >= -26 and so b >= -86; v < 2^64 gives b <= 63.
#include "NumberDigits.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace Orv::Text {

namespace {

__extension__ using Uint128 = unsigned __int128;

// Powers of ten, or of five, as far as 64 bits reach.
template <std::uint64_t base, std::size_t count>
constexpr std::array<std::uint64_t, count> Powers() {
    std::array<std::uint64_t, count> powers{1};
    for (std::size_t i = 1; i < count; ++i) {
        powers[i] = powers[i - 1] * base;
    }
    return powers;
}
constexpr auto powersOfTen = Powers<10, 20>();
constexpr auto powersOfFive = Powers<5, 28>();

std::uint64_t PowerOfTen(int exponent) {
    return powersOfTen[static_cast<std::size_t>(exponent)];
}

constexpr int mostDecimals = 19;
constexpr int mostDigits = 17;
constexpr int mostScaling = 27;
constexpr int mostExponentOfTwo = 11;

// A number without its sign as mantissa * 2^exponent.
struct Magnitude {
    std::uint64_t mantissa;
    int exponent;
};

// What isn't finite gets an exponent that is too large.
Magnitude MagnitudeOf(double value) {
    constexpr int bitsOfFraction = 52;
    constexpr std::uint64_t leadingBit = std::uint64_t{1} << bitsOfFraction;
    constexpr std::uint64_t mostBiased = 0x7ff;
    constexpr int bias = 1075; // of a mantissa that is a whole number
    const auto bits = std::bit_cast<std::uint64_t>(value);
    const std::uint64_t fraction = bits & (leadingBit - 1);
    const int biased = static_cast<int>(bits >> bitsOfFraction & mostBiased);
    return biased == 0 ? Magnitude{fraction, 1 - bias}
                       : Magnitude{fraction | leadingBit, biased - bias};
}

// The decimal exponent of 2^b; of anything up to 2^(b+1) it is this or one more.
int DecimalExponent(int b) {
    return b * 1233 >> 12;
}

// The digits of a number in pairs: "00", "01" and so on.
constexpr auto pairsOfDigits = [] {
    std::array<char, 200> pairs{};
    for (std::size_t i = 0; i < pairs.size(); i += 2) {
        pairs[i] = static_cast<char>('0' + i / 20);
        pairs[i + 1] = static_cast<char>('0' + i / 2 % 10);
    }
    return pairs;
}();

void PutPair(char* out, std::uint32_t number) {
    std::memcpy(out, &pairsOfDigits[std::size_t{2} * number], 2);
}

void PutEight(char* out, std::uint32_t number) {
    const std::uint32_t high = number / 10'000;
    const std::uint32_t low = number % 10'000;
    PutPair(out, high / 100);
    PutPair(out + 2, high % 100);
    PutPair(out + 4, low / 100);
    PutPair(out + 6, low % 100);
}

// Exactly `count` digits, zeros ahead.
char* PutDigits(char* out, std::uint64_t number, int count) {
    char* const end = out + count;
    if (count == 8) { // what most tables have
        PutEight(out, static_cast<std::uint32_t>(number));
        return end;
    }
    for (; count >= 8; count -= 8) {
        PutEight(out + count - 8, static_cast<std::uint32_t>(number % 100'000'000));
        number /= 100'000'000;
    }
    auto rest = static_cast<std::uint32_t>(number);
    for (; count >= 2; count -= 2) {
        PutPair(out + count - 2, rest % 100);
        rest /= 100;
    }
    if (count == 1) {
        *out = static_cast<char>('0' + rest);
    }
    return end;
}

char* PutWhole(char* out, std::uint64_t number) {
    if (number < 10) {
        *out = static_cast<char>('0' + number);
        return out + 1;
    }
    const int exponent = DecimalExponent(static_cast<int>(std::bit_width(number)) - 1);
    const bool hasOneMore = number >= PowerOfTen(exponent + 1);
    return PutDigits(out, number, exponent + (hasOneMore ? 2 : 1));
}

// fraction * power / 2^shift, rounded half to even. `Word` is one of more than `shift` bits.
template <class Word>
std::uint64_t RoundDecimals(std::uint64_t fraction, std::uint64_t power, int shift) {
    const Word one = Word{1} << shift;
    const Uint128 scaled = Uint128{fraction} * power;
    const Word remainder = static_cast<Word>(scaled) & (one - 1);
    const auto decimals = static_cast<std::uint64_t>(scaled >> shift);
    const bool isOdd = decimals % 2 == 1;
    return decimals + (remainder + isOdd > one / 2 ? 1 : 0);
}

char* PutFixed(char* out, Magnitude number, int precision) {
    if (precision < 1 || precision > mostDecimals || number.exponent > mostExponentOfTwo) {
        return nullptr;
    }
    const std::uint64_t power = PowerOfTen(precision);
    std::uint64_t whole = 0;
    std::uint64_t decimals = 0;
    if (number.exponent >= 0) {
        whole = number.mantissa << number.exponent;
    } else if (number.exponent > -64) {
        const int shift = -number.exponent;
        whole = number.mantissa >> shift;
        decimals = RoundDecimals<std::uint64_t>(number.mantissa - (whole << shift), power, shift);
    } else {
        const int shift = std::min(-number.exponent, 127);
        decimals = RoundDecimals<Uint128>(number.mantissa, power, shift);
    }
    if (decimals == power) {
        decimals = 0;
        ++whole;
    }
    out = PutWhole(out, whole);
    *out++ = '.';
    return PutDigits(out, decimals, precision);
}

// The significant digits of a number as a whole number; the first of them counts 10^exponent.
struct Significant {
    std::uint64_t digits = 0;
    int exponent = 0;
};

bool RoundToDigits(Magnitude number, int count, Significant& rounded) {
    if (number.mantissa == 0) {
        return true;
    }
    const int b = static_cast<int>(std::bit_width(number.mantissa)) - 1 + number.exponent;
    const int least = DecimalExponent(b);
    const int scaling = std::max(count - least, 0);
    if (scaling > mostScaling || number.exponent > mostExponentOfTwo) {
        return false;
    }
    Uint128 scaled = Uint128{number.mantissa} * powersOfFive[static_cast<std::size_t>(scaling)];
    bool isExact = true;
    const int shift = number.exponent + scaling;
    if (shift >= 0) {
        scaled <<= shift;
    } else {
        isExact = (scaled & ((Uint128{1} << -shift) - 1)) == 0;
        scaled >>= -shift;
    }
    const auto all = static_cast<std::uint64_t>(scaled);
    const bool hasOneMore = all >= PowerOfTen(least + scaling + 1);
    const std::uint64_t unit = PowerOfTen(least + scaling + 1 - count + (hasOneMore ? 1 : 0));
    const std::uint64_t half = unit / 2;
    const std::uint64_t dropped = all % unit;
    rounded.digits = all / unit;
    rounded.exponent = least + (hasOneMore ? 1 : 0);
    const bool isOdd = rounded.digits % 2 == 1;
    rounded.digits += dropped + (isOdd | !isExact) > half ? 1 : 0;
    if (rounded.digits == PowerOfTen(count)) {
        rounded.digits /= 10;
        ++rounded.exponent;
    }
    return true;
}

// Puts `count` digits with the point behind the first `whole` of them.
char* PutWithPoint(char* out, std::uint64_t digits, int count, int whole) {
    char* const end = PutDigits(out + 1, digits, count);
    for (int i = 0; i < whole; ++i) {
        out[i] = out[i + 1];
    }
    out[whole] = '.';
    return end;
}

char* PutExponent(char* out, int exponent) {
    *out++ = 'e';
    *out++ = exponent < 0 ? '-' : '+';
    return PutDigits(out, static_cast<std::uint64_t>(exponent < 0 ? -exponent : exponent), 2);
}

// General notation has no zeros at the end of its decimals, and no point without decimals.
char* DropZeros(char* end) {
    while (end[-1] == '0') {
        --end;
    }
    return end[-1] == '.' ? end - 1 : end;
}

char* PutScientific(char* out, Magnitude number, int precision) {
    Significant rounded;
    if (precision < 1 || precision >= mostDigits ||
        !RoundToDigits(number, precision + 1, rounded)) {
        return nullptr;
    }
    out = PutWithPoint(out, rounded.digits, precision + 1, 1);
    return PutExponent(out, rounded.exponent);
}

char* PutGeneral(char* out, Magnitude number, int precision) {
    constexpr int leastExponentWithout = -4; // an exponent part
    Significant rounded;
    if (precision < 1 || precision > mostDigits || !RoundToDigits(number, precision, rounded)) {
        return nullptr;
    }
    if (rounded.exponent < leastExponentWithout || rounded.exponent >= precision) {
        out = DropZeros(PutWithPoint(out, rounded.digits, precision, 1));
        return PutExponent(out, rounded.exponent);
    }
    if (rounded.exponent >= 0) {
        return DropZeros(PutWithPoint(out, rounded.digits, precision, rounded.exponent + 1));
    }
    constexpr std::string_view zeros = "0.000"; // as many as the least exponent needs
    zeros.copy(out, zeros.size());
    return DropZeros(PutDigits(out + 1 - rounded.exponent, rounded.digits, precision));
}

} // namespace

char* WriteDigits(char* out, double value, std::chars_format notation, int precision) noexcept {
    *out = '-';
    out += std::bit_cast<std::int64_t>(value) < 0 ? 1 : 0;
    const Magnitude number = MagnitudeOf(value);
    switch (notation) {
    case std::chars_format::fixed:
        return PutFixed(out, number, precision);
    case std::chars_format::scientific:
        return PutScientific(out, number, precision);
    case std::chars_format::general:
        return PutGeneral(out, number, precision);
    default:
        return nullptr;
    }
}

} // namespace Orv::Text
