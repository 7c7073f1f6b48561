#include "Input.h"

#include "Output.h"
#include "Progress.h"
#include "TextFile.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <vector>

namespace FluidBenchTool {

namespace fs = std::filesystem;

namespace {

constexpr const char* nameOfStandardInput = "<stdin>";

// What stands in the place of a file to read.
std::string WhatItIs(const std::string& name) {
    std::error_code error;
    switch (fs::status(Orv::Text::PathOf(name), error).type()) {
    case fs::file_type::fifo:
        return "a pipe; a pipe is read as the standard input, with - for a name";
    case fs::file_type::character:
    case fs::file_type::block:
        return "a device";
    case fs::file_type::socket:
        return "a socket";
    default:
        return Orv::Text::WhyNotReadable(name);
    }
}

} // namespace

Input::Input(const std::string& name, Messages& messages) : messages_(messages), name_(name) {
    if (name == standardStream) {
        name_ = nameOfStandardInput;
        Keep();
        return;
    }
    fileName_ = name;
    errno = 0;
    if (!Orv::Text::OpenForReading(name).is_open()) {
        messages_.Fail(ToolKinds::cantRead, name,
                       "Expected a file to read, found " + WhatItIs(name) + ".");
    }
}

Input::~Input() {
    text_.reset(); // some systems don't remove what is open
    kept_.Close();
    for (const std::string& name : temporary_) {
        Remove(name);
    }
}

void Input::Keep() {
    const Progress progress(messages_, "Reading " + name_);
    std::error_code error;
    const std::string folder = Orv::Text::NameOf(fs::temp_directory_path(error));
    std::string name;
    kept_ = MakeTemporary(folder, name);
    if (!kept_.IsOpen()) {
        messages_.Fail(ToolKinds::cantRead, name_,
                       "Expected a folder for temporary files, found that none can be made in '" +
                           folder + "' (" + ReasonOf(errno) + "); " + temporaryFolderVariable +
                           " names another.");
    }
    keptName_ = Unname(kept_, name);
    if (keptName_ == name) {
        temporary_.push_back(name);
    }
    DescriptorBuffer buffer(kept_.Number());
    std::vector<char> block(Orv::Text::blockSize);
    std::ptrdiff_t count = 0;
    while ((count = ReadSome(Streams::input, block.data(), block.size())) > 0) {
        buffer.sputn(block.data(), count);
    }
    if (count < 0) {
        messages_.Fail(ToolKinds::cantRead, name_,
                       "Expected text, found that it can't be read (" + ReasonOf(errno) + ").");
    }
    if (const int writing = buffer.Finish(); writing != 0) {
        messages_.Fail(ToolKinds::cantRead, name_,
                       "Expected room for it in '" + folder +
                           "', found that it can't be written (" + ReasonOf(writing) + "); " +
                           temporaryFolderVariable + " names another folder.");
    }
}

std::istream& Input::Text() {
    const std::string name = kept_.IsOpen() ? keptName_ : fileName_;
    text_.reset(); // one file at a time
    auto file = std::make_unique<std::ifstream>(Orv::Text::OpenForReading(name));
    if (!file->is_open()) {
        messages_.Fail(ToolKinds::cantRead, name_,
                       "Expected a file to read, found " + Orv::Text::WhyNotReadable(name) + ".");
    }
    text_ = std::move(file);
    return *text_;
}

const std::string& Input::FileName() {
    text_.reset(); // some systems replace no file that is open
    if (!fileName_.empty()) {
        return fileName_;
    }
    std::string name;
    Descriptor copy = MakeTemporary(".", name);
    fileName_ = keptName_;
    if (copy.IsOpen()) {
        temporary_.push_back(name);
        DescriptorBuffer buffer(copy.Number());
        std::ostream(&buffer) << Text().rdbuf();
        text_.reset();
        if (buffer.Finish() == 0 && copy.Close() == 0) {
            fileName_ = name;
        }
    }
    messages_.CallFile(fileName_, name_);
    return fileName_;
}

} // namespace FluidBenchTool
