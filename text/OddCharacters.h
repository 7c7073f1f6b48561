// Characters that look like another one, or like nothing.
#pragma once

#include <string>
#include <string_view>

namespace Orv::Text {

/// The first character of a text in UTF-8 that a person takes for another one or doesn't see, as a
/// message names it: "U+00A0, a no-break space". Empty where there is none: letters of any language
/// aren't odd.
std::string NameOddCharacter(std::string_view text);

} // namespace Orv::Text
