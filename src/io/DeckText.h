// What all keyword files share: lines, numbers of a deck, and the record that names the units.
#pragma once

#include "FluidBench/Common/Enumerations.h"
#include "NumberText.h"
#include "TextBuffer.h"

#include <ostream>
#include <string>

namespace Orv::FluidBench::IO {

/// Ten significant digits, as printf's %.10g: every number of a deck.
inline constexpr Text::NumberFormat deckNumber{std::chars_format::general, 10};

/// The record that tells a keyword file's unit system, with its line ends:
///
///     FILEUNIT
///     METRIC
///     /
std::string FileUnitHeader(bool metric);

/// Writes `text` as a line, flushes the stream and leaves `text` empty, so that one object serves
/// line after line.
void WriteDeckLine(std::ostream& deck, std::string& text);
void WriteDeckLine(std::ostream& deck, Text::TextBuffer& text);

/// Writes a line of fixed text.
void WriteDeckLine(std::ostream& deck, const char* text);

/// The word of the deck's EOS record. The corrected Peng-Robinson equations have the plain word
/// there: the keyword PRCORR tells the correction.
std::string DeckEoSName(Common::pvtEnumEoS eos);

} // namespace Orv::FluidBench::IO
