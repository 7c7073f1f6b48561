// The text of one keyword file, block by block.
#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace Orv::Text {

/// A position in a file that moves forward, with the text behind it. What is ahead lies in one
/// piece of memory, as much of it as was asked for; what was passed is forgotten, so that the
/// object's size depends on the longest piece that somebody asked for, not on the file's.
///
/// The object owns its open file. One thread at a time.
class KeywordFile {
public:
    /// Stands at the first character of the file, behind a byte order mark. Throws
    /// `std::runtime_error`, with what was found in place of a file to read, where there is none.
    explicit KeywordFile(const std::string& name);

    const std::string& Name() const noexcept { return name_; }
    /// Bytes ahead of the position.
    std::uint64_t Offset() const noexcept { return offset_; }
    /// The line of the position; the first line is 1.
    std::uint64_t Line() const noexcept { return line_; }

    /// Goes to where `Offset` and `Line` gave these values.
    void MoveTo(std::uint64_t offset, std::uint64_t line);

    /// What is ahead of the position; empty at the file's end only. Valid until the next call of an
    /// operation that isn't const.
    std::string_view Ahead() {
        if (begin_ == end_) {
            ReadBlock();
        }
        return {buffer_.data() + begin_, end_ - begin_};
    }

    /// The same with another block behind it; not longer than before when the file has ended.
    std::string_view MoreAhead() {
        ReadBlock();
        return Ahead();
    }

    /// Passes that many of the characters ahead, none of which may be a newline.
    void Pass(std::size_t count) noexcept {
        begin_ += count;
        offset_ += count;
    }
    void PassNewline() noexcept {
        Pass(1);
        ++line_;
    }

private:
    void ReadBlock();

    std::string name_;
    std::ifstream file_;
    std::vector<char> buffer_;
    std::size_t begin_ = 0; // of what is ahead
    std::size_t end_ = 0;
    std::uint64_t offset_ = 0;
    std::uint64_t line_ = 1;
};

} // namespace Orv::Text
