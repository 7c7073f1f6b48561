#include "KeywordItem.h"

#include "Characters.h"
#include "NumberText.h"

#include <algorithm>
#include <string>

namespace Orv::Text {

using Kind = Token::Kind;

std::optional<RepeatedNumber> ParseRepeated(std::string_view text) {
    double number = 0.0;
    if (ParseNumber(text, number)) {
        return RepeatedNumber{1, false, number};
    }
    const std::size_t asterisk = text.find('*');
    if (asterisk == std::string_view::npos) {
        return std::nullopt;
    }
    const std::uint64_t count = ParseCount(text.substr(0, asterisk)).value_or(0);
    const std::string_view value = text.substr(asterisk + 1);
    if (count == 0 || !(value.empty() || ParseNumber(value, number))) {
        return std::nullopt;
    }
    return RepeatedNumber{count, value.empty(), value.empty() ? 0.0 : number};
}

bool IsName(const Token& item) {
    double number = 0.0;
    const bool isBareName = item.kind == Kind::Word &&
                            item.text.find_first_of("*'\"") == std::string_view::npos &&
                            !ParseNumber(item.text, number);
    return item.kind == Kind::Quoted || isBareName;
}

bool IsMeantAsNumber(const Token& item) {
    if (item.kind != Kind::Word) {
        return false;
    }
    const std::size_t first = item.text.find_first_not_of("+-.");
    if (first != std::string_view::npos && IsDigit(item.text[first])) {
        return true;
    }
    const bool hasDigit = std::ranges::any_of(item.text, IsDigit);
    const std::string word = Capitals(item.text.substr(std::min(first, item.text.size())));
    return (hasDigit && item.text.find_first_of(".*") != std::string_view::npos) || word == "NAN" ||
           word == "INF" || word == "INFINITY";
}

} // namespace Orv::Text
