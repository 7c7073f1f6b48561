// What is wrong with a keyword file, and where.
#pragma once

#include "TextInput.h"

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace Orv::Text {

/// A line of a file; lines count from 1.
struct FilePlace {
    std::string file;
    std::uint64_t line = 0;
};

/// "FILE, line N" for a message; "line N" for a text without a name.
std::string Describe(const FilePlace& place);

/// Why a keyword file wasn't read, at a place of it. `what()` is the place and the rest of the
/// sentence.
class KeywordFileError : public std::runtime_error {
public:
    const FilePlace& Place() const noexcept { return place_; }
    /// The sentence without the place.
    const std::string& Sentence() const noexcept { return sentence_; }

protected:
    KeywordFileError(const FilePlace& place, std::string_view separator,
                     const std::string& sentence);

private:
    FilePlace place_;
    std::string sentence_;
};

/// A keyword file that isn't understood. The sentence has the keyword, unless it is empty, what
/// was expected there and what was found.
class KeywordError : public KeywordFileError {
public:
    KeywordError(const FilePlace& place, std::string_view keyword, const std::string& expected,
                 const std::string& found);
};

/// A file whose reading failed before its end.
class ReadFailed : public KeywordFileError {
public:
    explicit ReadFailed(const FilePlace& place);
};

/// A file that isn't plain text, by the look of it.
class OddText : public KeywordFileError {
public:
    OddText(const FilePlace& place, TextKind kind);
    TextKind Kind() const noexcept { return kind_; }

private:
    TextKind kind_;
};

} // namespace Orv::Text
