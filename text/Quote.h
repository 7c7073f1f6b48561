// Text of a file, as a message shows it.
#pragma once

#include <string>
#include <string_view>

namespace Orv::Text {

/// Text of a file in quotes, fit for a message: cut when it is long, and without characters that a
/// terminal would obey.
std::string Quote(std::string_view text);

} // namespace Orv::Text
