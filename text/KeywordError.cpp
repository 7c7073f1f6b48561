#include "KeywordError.h"

namespace Orv::Text {

std::string Describe(const FilePlace& place) {
    return (place.file.empty() ? "line " : place.file + ", line ") + std::to_string(place.line);
}

KeywordError::KeywordError(const FilePlace& place, std::string_view keyword,
                           const std::string& expected, const std::string& found)
    : std::runtime_error(Describe(place) + (keyword.empty() ? "" : ", keyword ") +
                         std::string(keyword) + ": expected " + expected + ", found " + found +
                         ".") {}

ReadFailed::ReadFailed(const FilePlace& place)
    : std::runtime_error(Describe(place) +
                         ": expected to read on, found a failure of the file or its disk."),
      place_(place) {}

} // namespace Orv::Text
