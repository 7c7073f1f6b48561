#include "KeywordError.h"

namespace Orv::Text {

std::string Describe(const FilePlace& place) {
    return (place.file.empty() ? "line " : place.file + ", line ") + std::to_string(place.line);
}

KeywordFileError::KeywordFileError(const FilePlace& place, std::string_view separator,
                                   const std::string& sentence)
    : std::runtime_error(Describe(place) + std::string(separator) + sentence),
      place_(place),
      sentence_(sentence) {}

KeywordError::KeywordError(const FilePlace& place, std::string_view keyword,
                           const std::string& expected, const std::string& found)
    : KeywordFileError(place, keyword.empty() ? ": " : ", ",
                       (keyword.empty() ? "" : "keyword " + std::string(keyword) + ": ") +
                           "expected " + expected + ", found " + found + ".") {}

ReadFailed::ReadFailed(const FilePlace& place)
    : KeywordFileError(place, ": ",
                       "expected to read on, found a failure of the file or its disk.") {}

OddText::OddText(const FilePlace& place, TextKind kind)
    : KeywordFileError(place, ": ", WhatIsOdd(kind) + '.'), kind_(kind) {}

} // namespace Orv::Text
