#include "KeywordFile.h"

#include "KeywordError.h"
#include "TextFile.h"

#include <stdexcept>
#include <utility>

namespace Orv::Text {

namespace {

// A keyword file is read more than once and from the middle, which only a regular file allows. It
// also keeps away from what never ends.
std::unique_ptr<std::ifstream> Open(const std::string& name) {
    std::error_code error;
    const auto status = std::filesystem::status(PathOf(name), error);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status) &&
        !std::filesystem::is_directory(status)) {
        throw std::runtime_error("no regular file");
    }
    auto file = std::make_unique<std::ifstream>(OpenForReading(name));
    if (!file->is_open()) {
        throw std::runtime_error(WhyNotReadable(name));
    }
    return file;
}

} // namespace

KeywordFile::KeywordFile(const std::string& name) : name_(name), file_(Open(name)), input_(*file_) {
    Ahead();
}

KeywordFile::KeywordFile(std::istream& stream, std::string name)
    : name_(std::move(name)), input_(stream) {
    Ahead();
}

void KeywordFile::MoveTo(std::uint64_t offset, std::uint64_t line) {
    input_.MoveTo(offset);
    line_ = line;
}

void KeywordFile::RequireEnd() const {
    if (input_.HasFailed()) {
        throw ReadFailed({name_, line_});
    }
}

} // namespace Orv::Text
