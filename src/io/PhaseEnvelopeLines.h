// The lines of a phase envelope file under a cursor.
#pragma once

#include "Diagnostics.h"
#include "LineReader.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <istream>
#include <optional>
#include <string>
#include <string_view>

namespace Orv::FluidBench::Impl::IO {

/// The lines of a file under a cursor that only moves ahead. Holds the lines down to the first
/// letter line, which tells the separator of the whole file, and of the others one at a time.
class EnvelopeLines {
public:
    /// Puts the cursor on the first line of the text, whose stream and diagnostics outlive the
    /// object. A line of more than 499 characters is cut there and is the last.
    EnvelopeLines(std::istream& text, Diagnostics& diagnostics);
    EnvelopeLines(const EnvelopeLines&) = delete; // the cursor points into the object
    EnvelopeLines& operator=(const EnvelopeLines&) = delete;

    /// The second character of the first letter line, if that is a comma or a tab.
    std::optional<char> Separator();

    /// The line under the cursor, valid until the cursor moves; none behind the last line.
    std::optional<std::string_view> Line() const { return line_; }
    /// Its number, counted from 1; behind the last line the number of that one.
    std::uint64_t Number() const noexcept {
        return headTaken_ < headSize_ ? headTaken_ : reader_.Number();
    }
    void Advance();

private:
    static constexpr std::size_t longestLine = 499;
    static constexpr std::size_t linesToLetters = 6; // the letter line is the last of these

    bool ReadLine(std::string_view& line);

    Diagnostics& diagnostics_;
    Text::LineReader reader_;
    std::array<std::string, linesToLetters> head_;
    std::size_t headSize_ = 0;
    std::size_t headTaken_ = 0;
    std::optional<std::string_view> line_;
};

} // namespace Orv::FluidBench::Impl::IO
