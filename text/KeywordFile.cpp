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
    if (!IsRegularFile(name)) {
        throw std::runtime_error(WhyNotReadable(name));
    }
    auto file = std::make_unique<std::ifstream>(OpenForReading(name));
    if (!file->is_open()) {
        throw std::runtime_error(WhyNotReadable(name));
    }
    return file;
}

} // namespace

KeywordFile::KeywordFile(const std::string& name) : name_(name), file_(Open(name)), input_(*file_) {
    RequirePlainText();
}

KeywordFile::KeywordFile(std::istream& stream, std::string name)
    : name_(std::move(name)), input_(stream) {
    RequirePlainText();
}

void KeywordFile::MoveTo(std::uint64_t offset, std::uint64_t line) {
    input_.MoveTo(offset);
    line_ = line;
}

void KeywordFile::RequirePlainText() {
    Ahead();
    if (input_.Kind() != TextKind::Plain) {
        throw OddText({name_, line_}, input_.Kind());
    }
}

void KeywordFile::RequireEnd() const {
    if (input_.HasFailed()) {
        throw ReadFailed({name_, line_});
    }
}

} // namespace Orv::Text
