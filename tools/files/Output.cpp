#include "Output.h"

#include "Descriptor.h"
#include "Shown.h"
#include "TextFile.h"

#include <cerrno>
#include <filesystem>
#include <locale>
#include <system_error>
#include <utility>

namespace FluidBenchTool {

using Orv::Text::PathOf;
namespace fs = std::filesystem;

namespace {

// Passes text on line by line, escaped. A line that is very long comes in pieces.
class EscapingBuffer : public std::streambuf {
public:
    explicit EscapingBuffer(std::streambuf& to) : to_(to) {}

    void PassOn() {
        const std::string shown = Shown(text_);
        to_.sputn(shown.data(), static_cast<std::streamsize>(shown.size()));
        text_.clear();
    }

protected:
    int_type overflow(int_type character) override {
        if (traits_type::eq_int_type(character, traits_type::eof())) {
            return traits_type::not_eof(character);
        }
        constexpr std::size_t longestPiece = 4096;
        const char c = traits_type::to_char_type(character);
        const bool beginsCharacter = (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
        const bool isLayout = c == '\n' || c == '\t';
        if (isLayout || (text_.size() >= longestPiece && beginsCharacter)) {
            PassOn();
        }
        if (isLayout) {
            return to_.sputc(c);
        }
        text_ += c;
        return character;
    }

private:
    std::streambuf& to_;
    std::string text_;
};

// A new file beside the place of another, which it takes when it is kept; else it goes.
class PartFile {
public:
    explicit PartFile(std::string target) : target_(std::move(target)) {
        file_ = MakeBeside(target_, name_);
        if (!file_.IsOpen()) {
            error_ = errno;
            return;
        }
        std::error_code ignored;
        if (fs::exists(PathOf(target_), ignored)) {
            CopyRights(target_, file_);
        }
    }
    ~PartFile() {
        if (error_ == 0 && !isKept_) {
            file_.Close(); // some systems keep a file that is open
            Remove(name_);
        }
    }
    PartFile(const PartFile&) = delete;
    PartFile& operator=(const PartFile&) = delete;

    /// Why the file couldn't be made, or 0.
    int Error() const noexcept { return error_; }
    int Number() const noexcept { return file_.Number(); }

    /// Gives an error number, or 0.
    int Keep() noexcept {
        int error = MakeDurable(file_);
        if (const int closing = file_.Close(); error == 0) {
            error = closing;
        }
        if (error == 0) {
            error = Replace(name_, target_);
        }
        isKept_ = error == 0;
        return error;
    }

private:
    std::string target_;
    std::string name_;
    Descriptor file_;
    int error_ = 0;
    bool isKept_ = false;
};

// Where a name leads to through links, also when nothing is there yet.
std::string BehindLinks(const std::string& name) {
    constexpr int mostLinks = 40;
    fs::path path = PathOf(name);
    std::error_code error;
    for (int i = 0; i < mostLinks && fs::is_symlink(path, error); ++i) {
        // A path that is absolute replaces what it is appended to.
        path = path.parent_path() / fs::read_symlink(path, error);
    }
    return Orv::Text::NameOf(path);
}

void CantWrite(Messages& messages, const std::string& name, const std::string& found) {
    messages.Fail(ToolKinds::cantWrite, name, "Expected a file to write, found " + found + ".");
}

// Gives an error number, or 0.
int WriteTo(int descriptor, const std::function<void(std::ostream&)>& write) {
    DescriptorBuffer buffer(descriptor);
    std::ostream out(&buffer);
    out.imbue(std::locale::classic());
    write(out);
    const int error = buffer.Finish();
    return error == 0 && !out ? EIO : error;
}

} // namespace

struct StandardOutput::Parts {
    Parts() : buffer(Streams::output), escaping(buffer), stream(&buffer) {
        if (IsTerminal(Streams::output)) {
            stream.rdbuf(&escaping);
        }
        stream.imbue(std::locale::classic());
    }

    DescriptorBuffer buffer;
    EscapingBuffer escaping;
    std::ostream stream;
    int error = 0;
};

StandardOutput::StandardOutput() : parts_(std::make_unique<Parts>()) {}
StandardOutput::~StandardOutput() = default;

std::ostream& StandardOutput::Stream() {
    return parts_->stream;
}

std::string StandardOutput::Finish() {
    parts_->escaping.PassOn();
    parts_->error = parts_->buffer.Finish();
    if (parts_->error == 0 && !parts_->stream) {
        parts_->error = EIO;
    }
    return parts_->error == 0 || parts_->error == EPIPE ? std::string() : ReasonOf(parts_->error);
}

bool StandardOutput::HasFailed() const noexcept {
    return parts_->error != 0;
}

void WriteOutput(const std::string& name, StandardOutput& standardOutput, Messages& messages,
                 const std::function<void(std::ostream&)>& write) {
    if (name == standardStream) {
        write(standardOutput.Stream());
        return;
    }
    const std::string target = BehindLinks(name);
    std::error_code ignored;
    const fs::file_status status = fs::status(PathOf(target), ignored);
    if (fs::is_directory(status)) {
        CantWrite(messages, name, "a folder");
    }
    const bool isThere = fs::exists(status);
    if (isThere && !fs::is_regular_file(status)) {
        Descriptor device = OpenExisting(target);
        int error = device.IsOpen() ? WriteTo(device.Number(), write) : errno;
        if (const int closing = device.Close(); error == 0) {
            error = closing;
        }
        if (error != 0) {
            CantWrite(messages, name, "that it can't be written (" + ReasonOf(error) + ")");
        }
        return;
    }
    if (isThere && !MayBeWritten(target)) {
        CantWrite(messages, name, "one that may not be changed");
    }
    PartFile part(target);
    if (part.Error() != 0) {
        CantWrite(messages, name,
                  "that none can be made in its folder (" + ReasonOf(part.Error()) + ")");
    }
    int error = WriteTo(part.Number(), write);
    if (error == 0) {
        error = part.Keep();
    }
    if (error != 0) {
        CantWrite(messages, name,
                  "that it can't be written whole (" + ReasonOf(error) + "); " +
                      (isThere ? "the old file stands" : "there is none"));
    }
}

bool IsSameFile(const std::string& first, const std::string& second) {
    std::error_code error;
    return fs::equivalent(PathOf(first), PathOf(second), error);
}

} // namespace FluidBenchTool
