#include "NumberText.h"

#include "Characters.h"
#include "NumberDigits.h"
#include "PlainDecimal.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>
#include <system_error>

namespace Orv::Text {

namespace {

using Flags = std::ios_base::fmtflags;

constexpr int defaultPrecision = 6;
constexpr std::size_t longestInteger = 309; // digits before the point of the largest double
constexpr std::size_t longestDressing = 16; // sign, point and exponent
constexpr std::size_t longestHexadecimal = 32;

int PrecisionOf(NumberFormat format) noexcept {
    return format.precision < 0 ? defaultPrecision : format.precision;
}

// printf's '#' flag in general notation: the precision counts digits and none of them is dropped.
NumberFormat KeepTrailingZeros(double value, NumberFormat format) {
    const int digits = std::max(PrecisionOf(format), 1);
    std::string text;
    AppendNumber(text, value, {std::chars_format::scientific, digits - 1});
    const std::size_t letter = text.find('e');
    int exponent = 0;
    const std::size_t first = letter + (text[letter + 1] == '+' ? 2 : 1);
    std::from_chars(text.data() + first, text.data() + text.size(), exponent);
    if (exponent < -4 || exponent >= digits) {
        return {std::chars_format::scientific, digits - 1};
    }
    return {std::chars_format::fixed, digits - 1 - exponent};
}

void InsertPoint(std::string& number, char exponentLetter) {
    if (number.find('.') == std::string::npos) {
        number.insert(std::min(number.find(exponentLetter), number.size()), ".");
    }
}

// The rarer flags of a stream: all of them change the text of the number itself.
std::string DressedNumber(double value, NumberFormat format, Flags flags) {
    const bool isHexadecimal = (flags & std::ios_base::floatfield) == std::ios_base::floatfield;
    const bool showPoint = (flags & std::ios_base::showpoint) != 0 && std::isfinite(value);
    std::string number;
    if (isHexadecimal && std::isfinite(value)) {
        std::array<char, longestHexadecimal> digits;
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                       std::abs(value), std::chars_format::hex)
                             .ptr;
        number = (std::signbit(value) ? "-0x" : "0x") + std::string(digits.data(), end);
    } else {
        if (showPoint && format.notation == std::chars_format::general) {
            format = KeepTrailingZeros(value, format);
        }
        AppendNumber(number, value, format);
    }
    if (showPoint) {
        InsertPoint(number, isHexadecimal ? 'p' : 'e');
    }
    if ((flags & std::ios_base::showpos) != 0 && !number.starts_with('-')) {
        number.insert(0, "+");
    }
    if ((flags & std::ios_base::uppercase) != 0) {
        std::ranges::transform(number, number.begin(), [](char c) {
            return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
        });
    }
    return number;
}

// Where the fill goes with internal adjustment: behind a sign, or else behind "0x".
std::size_t PrefixLength(std::string_view number) {
    if (number.starts_with('-') || number.starts_with('+')) {
        return 1;
    }
    return number.starts_with("0x") || number.starts_with("0X") ? 2 : 0;
}

// Fills the field of the number as the stream would.
void Pad(TextBuffer& text, std::size_t width, const std::ostream& out) {
    const std::string_view number = text.View();
    if (number.size() >= width) {
        return;
    }
    const Flags adjustment = out.flags() & std::ios_base::adjustfield;
    const std::size_t where = adjustment == std::ios_base::left       ? number.size()
                              : adjustment == std::ios_base::internal ? PrefixLength(number)
                                                                      : 0;
    text.Insert(where, width - number.size(), out.fill());
}

std::size_t TakeWidth(std::ostream& out) {
    return static_cast<std::size_t>(std::max<std::streamsize>(out.width(0), 0));
}

constexpr bool IsHexadecimalDigit(char c) noexcept {
    return IsDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

std::string_view SkipSpace(std::string_view text) noexcept {
    while (!text.empty() && IsSpace(text.front())) {
        text.remove_prefix(1);
    }
    return text;
}

bool TakeSign(std::string_view& text) noexcept {
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    return isNegative;
}

// A number without its sign, and what stands behind it.
struct MagnitudeOfText {
    double value = 0.0;
    bool isThere = false;
    bool isTooLarge = false;
    std::string_view rest;
};

// Tells an overflow from an underflow: where the first digit other than zero stands, counted from
// the point and moved by the exponent.
bool IsHuge(std::string_view number, std::chars_format notation) noexcept {
    const bool isHexadecimal = notation == std::chars_format::hex;
    constexpr std::int64_t limit = std::numeric_limits<std::int32_t>::max();
    std::int64_t place = 0; // digits between the first one that counts and the point
    bool counts = false;
    bool behindPoint = false;
    std::size_t position = 0;
    for (; position < number.size(); ++position) {
        const char c = number[position];
        if (c == '.') {
            behindPoint = true;
        } else if (!(isHexadecimal ? IsHexadecimalDigit(c) : IsDigit(c))) {
            break;
        } else {
            counts = counts || c != '0';
            place += behindPoint ? (counts ? 0 : -1) : (counts ? 1 : 0);
        }
    }
    std::int64_t exponent = 0;
    if (position < number.size()) {
        std::string_view digits = number.substr(position + 1);
        const bool isNegative = TakeSign(digits);
        for (const char c : digits) {
            exponent = std::min(exponent * 10 + (c - '0'), limit);
        }
        exponent = isNegative ? -exponent : exponent;
    }
    // The exponent of a hexadecimal number counts bits, of which a digit has four.
    return place * (isHexadecimal ? 4 : 1) + exponent > 0;
}

MagnitudeOfText ReadMagnitude(std::string_view text, std::chars_format notation) noexcept {
    MagnitudeOfText number;
    if (notation == std::chars_format::general) {
        const char* const textEnd = text.data() + text.size();
        const char* const end = ReadPlainDecimal(text.data(), textEnd, number.value);
        if (end != nullptr) {
            number.isThere = true;
            number.rest = std::string_view(end, static_cast<std::size_t>(textEnd - end));
            return number;
        }
    }
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), number.value, notation);
    if (error == std::errc::invalid_argument) {
        return number;
    }
    number.isThere = true;
    const auto length = static_cast<std::size_t>(end - text.data());
    number.rest = text.substr(length);
    if (error == std::errc::result_out_of_range) {
        number.isTooLarge = IsHuge(text.substr(0, length), notation);
        number.value = number.isTooLarge ? std::numeric_limits<double>::infinity() : 0.0;
    }
    return number;
}

MagnitudeOfText ReadDecimal(std::string_view text) noexcept {
    const bool isDecimal = !text.empty() && (IsDigit(text.front()) || text.front() == '.');
    return isDecimal ? ReadMagnitude(text, std::chars_format::general) : MagnitudeOfText();
}

// A sign without a number behind it isn't minus zero.
double Signed(bool isNegative, const MagnitudeOfText& number) noexcept {
    return isNegative && number.isThere ? -number.value : number.value;
}

MagnitudeOfText ReadMagnitudeAsAtof(std::string_view text) noexcept {
    if (text.starts_with("0x") || text.starts_with("0X")) {
        // Some standard libraries take the exponent of "1p+-1" for a number.
        const std::string_view digits = text.substr(2, text.find("+-") - 2);
        const bool isNumber =
            !digits.empty() && (IsHexadecimalDigit(digits.front()) || digits.front() == '.');
        const MagnitudeOfText number =
            isNumber ? ReadMagnitude(digits, std::chars_format::hex) : MagnitudeOfText();
        if (number.isThere) {
            return number;
        }
    }
    const bool hasSecondSign = text.starts_with('-') || text.starts_with('+');
    return hasSecondSign ? MagnitudeOfText() : ReadMagnitude(text, std::chars_format::general);
}

// The whole text as a plain decimal with an optional minus sign.
bool ParsePlainDecimal(std::string_view text, double& number) noexcept {
    const bool isNegative = text.starts_with('-');
    const char* const end = text.data() + text.size();
    double magnitude = 0.0;
    const char* const behind = ReadPlainDecimal(text.data() + (isNegative ? 1 : 0), end, magnitude);
    if (behind == nullptr || behind != end) {
        return false;
    }
    number = isNegative ? -magnitude : magnitude;
    return true;
}

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

void AppendNumber(TextBuffer& text, double value, NumberFormat format, std::size_t width) {
    const std::size_t begin = text.Size();
    const int precision = PrecisionOf(format);
    char* const digits = text.Room(roomForDigits);
    if (const char* const end = WriteDigits(digits, value, format.notation, precision)) {
        text.EndAt(end);
    } else {
        const std::size_t enough =
            static_cast<std::size_t>(precision) + longestInteger + longestDressing;
        char* const number = text.Room(enough);
        text.EndAt(std::to_chars(number, number + enough, value, format.notation, precision).ptr);
    }
    const std::size_t length = text.Size() - begin;
    if (length < width) {
        text.Insert(begin, width - length, ' ');
    }
}

void AppendNumber(TextBuffer& text, std::uint64_t value) {
    constexpr std::size_t enough = std::numeric_limits<std::uint64_t>::digits10 + 1;
    char* const number = text.Room(enough);
    text.EndAt(std::to_chars(number, number + enough, value).ptr);
}

void AppendNumber(std::string& text, double value, NumberFormat format, std::size_t width) {
    TextBuffer number;
    AppendNumber(number, value, format, width);
    text += number.View();
}

void AppendNumber(std::string& text, std::uint64_t value) {
    TextBuffer number;
    AppendNumber(number, value);
    text += number.View();
}

NumberFormat FormatOf(const std::ostream& out) {
    const Flags notation = out.flags() & std::ios_base::floatfield;
    return {notation == std::ios_base::fixed        ? std::chars_format::fixed
            : notation == std::ios_base::scientific ? std::chars_format::scientific
                                                    : std::chars_format::general,
            static_cast<int>(out.precision())};
}

void AppendAsInserted(TextBuffer& text, double value, const std::ostream& out) {
    constexpr Flags dressing =
        std::ios_base::showpoint | std::ios_base::showpos | std::ios_base::uppercase;
    const Flags flags = out.flags();
    const bool isHexadecimal = (flags & std::ios_base::floatfield) == std::ios_base::floatfield;
    if ((flags & dressing) == 0 && !isHexadecimal) {
        AppendNumber(text, value, FormatOf(out));
    } else {
        text += DressedNumber(value, FormatOf(out), flags);
    }
}

void WriteNumber(std::ostream& out, double value) {
    TextBuffer number;
    AppendAsInserted(number, value, out);
    Pad(number, TakeWidth(out), out);
    number.WriteTo(out);
}

void WriteNumber(std::ostream& out, std::uint64_t value) {
    TextBuffer number;
    AppendNumber(number, value);
    Pad(number, TakeWidth(out), out);
    number.WriteTo(out);
}

const char* AnyNumber::ReadAsAtof(const char* begin, const char* end, double& number) noexcept {
    std::string_view text = SkipSpace({begin, static_cast<std::size_t>(end - begin)});
    const bool isNegative = TakeSign(text);
    const MagnitudeOfText magnitude = ReadMagnitudeAsAtof(text);
    number = Signed(isNegative, magnitude);
    // What a hexadecimal number was looked for in may end ahead of the text.
    return magnitude.isThere ? magnitude.rest.data() : begin;
}

const char* AnyNumber::ReadLeadingDecimal(const char* begin, const char* end,
                                          double& number) noexcept {
    std::string_view text = SkipSpace({begin, static_cast<std::size_t>(end - begin)});
    const bool isNegative = TakeSign(text);
    const MagnitudeOfText magnitude = ReadDecimal(text);
    number = Signed(isNegative, magnitude);
    return magnitude.isThere ? magnitude.rest.data() : begin;
}

const char* AnyNumber::ReadExtracted(const char* begin, const char* end, double& number) noexcept {
    std::string_view digits = SkipSpace({begin, static_cast<std::size_t>(end - begin)});
    const bool isNegative = TakeSign(digits);
    const MagnitudeOfText magnitude = ReadDecimal(digits);
    if (!magnitude.isThere || magnitude.isTooLarge) {
        return nullptr;
    }
    if (magnitude.rest.starts_with('e') || magnitude.rest.starts_with('E')) {
        // "1e5e" is a whole number and a letter; "1e" is an exponent that never comes.
        const auto taken = digits.substr(0, digits.size() - magnitude.rest.size());
        if (taken.find_first_of("eE") == std::string_view::npos) {
            return nullptr;
        }
    }
    number = Signed(isNegative, magnitude);
    return magnitude.rest.data();
}

bool ParseNumber(std::string_view text, double& number) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) {
            return false;
        }
    }
    if (ParsePlainDecimal(text, number)) {
        return true;
    }
    // The words for infinity and not-a-number have no digit ahead of their letters.
    const auto* const first =
        std::ranges::find_if_not(text, [](char c) { return c == '-' || c == '.'; });
    return first != text.end() && IsDigit(*first) &&
           (ParseWhole(text, number) || ParseWithD(text, number));
}

const char* ReadNumberAhead(const char* begin, const char* end, double& number) noexcept {
    const bool isNegative = begin != end && *begin == '-';
    begin += isNegative ? 1 : 0;
    if (begin == end || !(IsDigit(*begin) || *begin == '.')) {
        return nullptr;
    }
    double magnitude = 0.0;
    const char* behind = ReadPlainDecimal(begin, end, magnitude);
    if (behind == nullptr) {
        const auto [numberEnd, error] = std::from_chars(begin, end, magnitude);
        if (error != std::errc()) {
            return nullptr;
        }
        behind = numberEnd;
    }
    number = isNegative ? -magnitude : magnitude;
    return behind;
}

std::optional<std::uint64_t> ParseCount(std::string_view text) noexcept {
    std::uint64_t count = 0;
    return ParseWhole(text, count) ? std::optional(count) : std::nullopt;
}

} // namespace Orv::Text
