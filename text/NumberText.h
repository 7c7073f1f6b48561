// Number text in both directions, the only place of the library that formats or parses numbers.
// Nothing here asks any locale: the decimal separator is a point and digits are never grouped.
#pragma once

#include "PlainDecimal.h"
#include "TextBuffer.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

namespace Orv::Text {

/// How a floating-point number is written: `general` is printf's %.*g, `fixed` its %.*f and
/// `scientific` its %.*e, each with `precision` as the asterisk.
struct NumberFormat {
    std::chars_format notation = std::chars_format::general;
    int precision = 6;
};

/// Appends the number to `text`, with blanks ahead where it is shorter than `width`. Many numbers
/// belong into a `TextBuffer`, where they are written in place.
void AppendNumber(TextBuffer& text, double value, NumberFormat format, std::size_t width = 0);
void AppendNumber(TextBuffer& text, std::uint64_t value);
void AppendNumber(std::string& text, double value, NumberFormat format, std::size_t width = 0);
void AppendNumber(std::string& text, std::uint64_t value);

/// The notation and precision that the stream has at the moment. A stream set to hexadecimal
/// notation counts as general.
NumberFormat FormatOf(const std::ostream& out);

/// Appends what `out << value` would write without a width in the classic locale, whatever locale
/// is imbued: notation, precision, sign, point and letter case flags are the stream's.
void AppendAsInserted(TextBuffer& text, double value, const std::ostream& out);

/// Writes the number as `out << value` would in the classic locale; the width is the stream's
/// too. Clears the width, as an insertion does.
void WriteNumber(std::ostream& out, double value);
void WriteNumber(std::ostream& out, std::uint64_t value);

/// The number that `text` begins with, by the rules of the C library's `atof` in the C locale:
/// white space ahead is skipped, infinities, not-a-numbers and hexadecimal numbers count, the text
/// behind the number doesn't matter, and no number is 0.0. What is too large gives an infinity.
inline double ParseAsAtof(std::string_view text) noexcept;

/// The same, and passes the number: `text` is then what stands behind it. Where it begins with no
/// number, it stays as it is.
inline double TakeAsAtof(std::string_view& text) noexcept;

/// As `ParseAsAtof`, for decimal numbers alone: digits with an optional sign, point and exponent.
inline double ParseLeadingDecimal(std::string_view text) noexcept;
/// The same, and passes the number as `TakeAsAtof` does.
inline double TakeLeadingDecimal(std::string_view& text) noexcept;

/// The number that `stream >> value` would extract in the classic locale from a stream of `text`;
/// nothing where the extraction would fail: no number, an exponent without digits, a number too
/// large for a double.
inline std::optional<double> ExtractDecimal(std::string_view text) noexcept;
/// The same, and passes the number as `TakeAsAtof` does.
inline std::optional<double> TakeExtracted(std::string_view& text) noexcept;

/// Gives the number that `text` is from its first character to its last: decimal digits with an
/// optional sign, point and exponent, whose letter is E or D in either case. False for anything
/// else: not-a-numbers, infinities and numbers beyond the range of a double are no numbers of
/// a keyword file.
bool ParseNumber(std::string_view text, double& number);

/// Reads the number that the text begins with, in the form of `ParseNumber` but without a plus sign
/// and a D, and gives its end; null where there is none. The text behind it doesn't matter.
const char* ReadNumberAhead(const char* begin, const char* end, double& number) noexcept;

/// The whole number that `text` is, without a sign. Nothing for anything else.
std::optional<std::uint64_t> ParseCount(std::string_view text) noexcept;

// The operations above for every text; inline is only the way of the usual number, which is quicker
// without a call. Each gives the end of the number; where there is none, `ReadExtracted` gives null
// and the others the beginning.
namespace AnyNumber {
const char* ReadAsAtof(const char* begin, const char* end, double& number) noexcept;
const char* ReadLeadingDecimal(const char* begin, const char* end, double& number) noexcept;
const char* ReadExtracted(const char* begin, const char* end, double& number) noexcept;
} // namespace AnyNumber

inline double TakeAsAtof(std::string_view& text) noexcept {
    const char* const end = text.data() + text.size();
    double number = 0.0;
    const char* behind = ReadSignedPlainDecimal(text.data(), end, number);
    if (behind == nullptr) {
        behind = AnyNumber::ReadAsAtof(text.data(), end, number);
    }
    text = {behind, static_cast<std::size_t>(end - behind)};
    return number;
}

inline double ParseAsAtof(std::string_view text) noexcept {
    return TakeAsAtof(text);
}

inline double TakeLeadingDecimal(std::string_view& text) noexcept {
    const char* const end = text.data() + text.size();
    double number = 0.0;
    const char* behind = ReadSignedPlainDecimal(text.data(), end, number);
    if (behind == nullptr) {
        behind = AnyNumber::ReadLeadingDecimal(text.data(), end, number);
    }
    text = {behind, static_cast<std::size_t>(end - behind)};
    return number;
}

inline double ParseLeadingDecimal(std::string_view text) noexcept {
    return TakeLeadingDecimal(text);
}

inline std::optional<double> TakeExtracted(std::string_view& text) noexcept {
    const char* const end = text.data() + text.size();
    double number = 0.0;
    const char* behind = ReadSignedPlainDecimal(text.data(), end, number);
    if (behind == nullptr || (behind != end && (*behind == 'e' || *behind == 'E'))) {
        behind = AnyNumber::ReadExtracted(text.data(), end, number);
        if (behind == nullptr) {
            return std::nullopt;
        }
    }
    text = {behind, static_cast<std::size_t>(end - behind)};
    return number;
}

inline std::optional<double> ExtractDecimal(std::string_view text) noexcept {
    return TakeExtracted(text);
}

} // namespace Orv::Text
