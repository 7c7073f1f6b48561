#include "CellNumber.h"

#include "Characters.h"
#include "NumberText.h"

#include <charconv>
#include <cmath>
#include <cstddef>
#include <system_error>

namespace Orv::Text {

namespace {

// Digits with a decimal point at the most, and too few of them for an infinity: what nearly every
// cell holds, told without reading the number.
bool IsPlainDecimal(std::string_view text) noexcept {
    constexpr std::size_t finiteDigits = 300;
    std::size_t digits = 0;
    std::size_t points = 0;
    for (const char c : text) {
        digits += IsDigit(c) ? 1 : 0;
        points += c == '.' ? 1 : 0;
    }
    return digits > 0 && points <= 1 && digits + points == text.size() && digits <= finiteDigits;
}

} // namespace

CellContent LookAtCell(std::string_view cell) noexcept {
    std::string_view text = WithoutBlanks(cell);
    if (text.empty()) {
        return CellContent::Nothing;
    }
    if (text[0] == '+' || text[0] == '-') {
        text.remove_prefix(1);
    }
    if (IsPlainDecimal(text)) {
        return CellContent::Number;
    }
    if (text.starts_with("0x") || text.starts_with("0X")) {
        return CellContent::Hexadecimal;
    }
    double number = 0.0;
    const char* const end = text.data() + text.size();
    const auto [behind, error] = std::from_chars(text.data(), end, number);
    const bool hasSecondSign = text.starts_with('-');
    if (error == std::errc::invalid_argument || hasSecondSign) {
        return CellContent::NoNumber;
    }
    const bool isWord = IsLetter(text[0]);
    if (behind != end) {
        // "info" begins like an infinity and isn't meant as one.
        return isWord ? CellContent::NoNumber : CellContent::TextBehind;
    }
    // What is too small for a double is as good as zero; the reader knows which it was.
    const bool isFinite = error == std::errc::result_out_of_range ? std::isfinite(ParseAsAtof(text))
                                                                  : std::isfinite(number);
    return isFinite ? CellContent::Number : CellContent::NotFinite;
}

} // namespace Orv::Text
