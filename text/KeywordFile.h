// The text of one keyword file, with its name and the line of the position in it.
#pragma once

#include "TextInput.h"

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <istream>
#include <memory>
#include <string>
#include <string_view>

namespace Orv::Text {

/// A position in a keyword file that moves forward, as in `TextInput`. A read that fails throws
/// `ReadFailed`, so that the text behind it is never taken for absent. One thread at a time.
class KeywordFile {
public:
    /// Opens the file, owns it, and stands at its first character. Throws `std::runtime_error`,
    /// with what was found in place of a file to read, where there is no regular file to read, and
    /// `OddText` where it isn't plain text.
    explicit KeywordFile(const std::string& name);

    /// Stands at the first character of the stream, which belongs to the caller and outlives the
    /// object. The name is what messages call it. Throws `OddText`.
    KeywordFile(std::istream& stream, std::string name);

    const std::string& Name() const noexcept { return name_; }
    /// Bytes ahead of the position.
    std::uint64_t Offset() const noexcept { return input_.Offset(); }
    /// The line of the position; the first line is 1.
    std::uint64_t Line() const noexcept { return line_; }

    /// Goes to where `Offset` and `Line` gave these values. Only for files and for streams that can
    /// seek.
    void MoveTo(std::uint64_t offset, std::uint64_t line);

    /// What is ahead of the position; empty at the file's end only. Valid until the next call of an
    /// operation that isn't const.
    std::string_view Ahead() {
        const std::string_view ahead = input_.Ahead();
        if (ahead.empty()) {
            RequireEnd();
        }
        return ahead;
    }

    /// The same with another block behind it; not longer than before when the file has ended.
    std::string_view MoreAhead() {
        const std::string_view ahead = input_.MoreAhead();
        RequireEnd();
        return ahead;
    }

    /// Passes that many of the characters ahead, none of which may be a newline.
    void Pass(std::size_t count) noexcept { input_.Pass(count); }
    void PassNewline() noexcept {
        Pass(1);
        ++line_;
    }
    /// Passes that many of the characters ahead, behind which is that line.
    void PassLines(std::size_t count, std::uint64_t line) noexcept {
        input_.Pass(count);
        line_ = line;
    }

private:
    void RequirePlainText();
    void RequireEnd() const;

    std::string name_;
    std::unique_ptr<std::ifstream> file_; // null where the stream is the caller's
    TextInput input_;
    std::uint64_t line_ = 1;
};

} // namespace Orv::Text
