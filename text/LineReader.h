// The lines of a text: one way for every reader of lines.
#pragma once

#include "TextInput.h"

#include <cstddef>
#include <cstdint>
#include <istream>
#include <string_view>

namespace Orv::Text {

/// Gives the lines of a text, one after another, in blocks rather than character by character.
///
/// A line ends at a newline; a carriage return ahead of the newline belongs to the line end. A text
/// with n newlines has n + 1 lines, of which the last one may be empty: that is how many times
/// `while (stream) std::getline(stream, line)` runs. What was read of a line before reading failed
/// isn't given: nobody can tell what it would have been.
///
/// Holds one block and one line. The stream belongs to the caller and outlives the object, which
/// reads ahead of what it gives. One thread at a time.
class LineReader {
public:
    /// Far more than a line of any format has: a file with a longer one is another file.
    static constexpr std::size_t longestOfAll = std::size_t{1} << 20;

    /// What becomes of a line that is too long: it isn't given, and none behind it; it is cut, and
    /// is the last one; or it is cut, and the next one follows.
    enum class LongLine { Ends, CutAndEnds, Cut };

    /// Of a line of more than `longestLine` characters.
    explicit LineReader(std::istream& stream, std::size_t longestLine = longestOfAll,
                        LongLine longLine = LongLine::Ends);

    /// Gives the next line without its line end, or false when there is none. The line stays valid
    /// until the next call.
    bool Next(std::string_view& line);

    /// The number of the line that was given last, counted from 1.
    std::uint64_t Number() const noexcept { return number_; }
    /// Whether that line was too long. One that isn't given counts here, and by its number.
    bool IsCut() const noexcept { return isCut_; }

    /// Whether a read failed: there were more lines.
    bool HasFailed() const noexcept { return input_.HasFailed(); }

    /// What the text looks like.
    TextKind Kind() { return input_.Kind(); }

private:
    bool Give(std::string_view& line, std::string_view text, std::size_t lineEnd);
    void PassRestOfLine();

    TextInput input_;
    std::size_t longestLine_;
    LongLine longLine_;
    std::uint64_t number_ = 0;
    bool isCut_ = false;
    bool endsInsideLine_ = false; // behind what was given there is the rest of its line
    bool isDone_ = false;
};

} // namespace Orv::Text
