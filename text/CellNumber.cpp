#include "CellNumber.h"

#include "Characters.h"
#include "NumberText.h"
#include "PlainDecimal.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace Orv::Text {

CellContent LookAtCell(std::string_view cell) noexcept {
    std::string_view text = WithoutBlanks(cell);
    if (text.empty()) {
        return CellContent::Nothing;
    }
    if (text[0] == '+' || text[0] == '-') {
        text.remove_prefix(1);
    }
    double number = 0.0;
    const char* const end = text.data() + text.size();
    if (ReadPlainDecimal(text.data(), end, number) == end) { // as nearly every cell
        return CellContent::Number;
    }
    if (text.starts_with("0x") || text.starts_with("0X")) {
        return CellContent::Hexadecimal;
    }
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
