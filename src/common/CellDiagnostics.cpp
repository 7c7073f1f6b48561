#include "CellDiagnostics.h"

#include "CellNumber.h"
#include "NumberText.h"
#include "Quote.h"

#include <cmath>
#include <string>

namespace Orv::FluidBench::Impl::IO {

using Text::CellContent;

namespace {

// "16 was taken"
std::string Taken(double number) {
    std::string text;
    if (std::isnan(number)) {
        text = "a not-a-number";
    } else if (std::isinf(number)) {
        text = number < 0.0 ? "minus infinity" : "infinity";
    } else {
        Text::AppendNumber(text, number, {});
    }
    return text + " was taken";
}

} // namespace

void TellCell(Diagnostics& diagnostics, const CellKinds& kinds, std::uint64_t line,
              std::string_view column, std::string_view cell, std::string_view asRead) {
    const CellContent content = Text::LookAtCell(cell);
    if (content == CellContent::Number) {
        return;
    }
    const std::string expected = "Expected a number for the " + std::string(column) + ", found ";
    const std::string found = expected + Text::Quote(cell);
    switch (content) {
    case CellContent::Number:
        break;
    case CellContent::Nothing:
        diagnostics.Tell(kinds.notANumber, line,
                         expected + "an empty cell; " + std::string(asRead) + ".");
        break;
    case CellContent::NoNumber:
        diagnostics.Tell(kinds.notANumber, line, found + "; " + std::string(asRead) + ".");
        break;
    case CellContent::TextBehind:
        diagnostics.Tell(kinds.textBehindNumber, line,
                         found + "; the number ahead of the text was taken.");
        break;
    case CellContent::NotFinite:
        diagnostics.Tell(kinds.notFinite, line,
                         found + ", which isn't finite; " + Taken(kinds.read(cell)) + '.');
        break;
    case CellContent::Hexadecimal:
        diagnostics.Tell(kinds.notFinite, line,
                         found + ", which is hexadecimal; " + Taken(kinds.read(cell)) + '.');
        break;
    }
}

} // namespace Orv::FluidBench::Impl::IO
