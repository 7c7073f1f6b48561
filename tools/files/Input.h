// The text that a command reads, wherever it comes from.
#pragma once

#include "Descriptor.h"
#include "Messages.h"

#include <istream>
#include <memory>
#include <string>
#include <vector>

namespace FluidBenchTool {

/// A file, or the standard input, which is read once and kept in a file while the object lives, so
/// that it can be read as often as a file can. Messages call it "<stdin>".
///
/// One thread at a time; there may be one object for the standard input.
class Input {
public:
    /// Opens what the name stands for. Tells of an error and throws `CommandFailed` where there is
    /// nothing to read: no file, a folder, a pipe or a device by its name.
    Input(const std::string& name, Messages& messages);
    ~Input();
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;

    /// What messages call it.
    const std::string& Name() const noexcept { return name_; }

    /// The text from its beginning. The stream is the object's, and valid until this or `FileName`
    /// is called anew.
    std::istream& Text();

    /// A file with the text, for readers that take names. Of the standard input a copy is made in
    /// the current folder, where the files are that it includes, or else in that of temporary
    /// files; it goes with the object.
    const std::string& FileName();

private:
    void Keep();

    Messages& messages_;
    std::string name_;
    std::string fileName_;               // empty as long as the standard input has none
    Descriptor kept_;                    // the standard input's text
    std::string keptName_;               // by which it is opened
    std::vector<std::string> temporary_; // names of files to be removed
    std::unique_ptr<std::istream> text_;
};

} // namespace FluidBenchTool
