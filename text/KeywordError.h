// What is wrong with a keyword file, and where.
#pragma once

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

/// A keyword file that can't be read. `what()` is one sentence: file, line, keyword unless it is
/// empty, what was expected there and what was found.
class KeywordError : public std::runtime_error {
public:
    KeywordError(const FilePlace& place, std::string_view keyword, const std::string& expected,
                 const std::string& found);
};

/// A file whose reading failed before its end. `what()` is one sentence with file and line.
class ReadFailed : public std::runtime_error {
public:
    explicit ReadFailed(const FilePlace& place);

    const FilePlace& Place() const noexcept { return place_; }

private:
    FilePlace place_;
};

} // namespace Orv::Text
