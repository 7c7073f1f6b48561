// What a cell of a table holds where a number should be.
#pragma once

#include <string_view>

namespace Orv::Text {

enum class CellContent {
    Number,      ///< a finite decimal number, with blanks around it at the most
    Nothing,     ///< blanks at the most
    NoNumber,    ///< text that doesn't begin with a number
    TextBehind,  ///< a number and text behind it
    NotFinite,   ///< an infinity, a not-a-number, or a number too large for a double
    Hexadecimal, ///< a number after "0x"
};

/// Looks at the whole of a cell, to tell of what a reader passes over. No locale plays a part.
CellContent LookAtCell(std::string_view cell) noexcept;

} // namespace Orv::Text
