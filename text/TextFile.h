// Opening text files: one way for everything that reads or writes them.
#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>

namespace Orv::Text {

// Fuzz programs are built with less, so that small texts have several blocks.
#ifndef FLUIDBENCH_BLOCK_SIZE
#define FLUIDBENCH_BLOCK_SIZE 65536
#endif

/// How much large files are read and written at once.
inline constexpr std::size_t blockSize = FLUIDBENCH_BLOCK_SIZE;

/// The path of a file whose name is UTF-8, as all names are here. Some systems take other bytes.
std::filesystem::path PathOf(const std::string& fileName);
/// The name of the file at that path, in UTF-8 and with slashes, which every system takes.
std::string NameOf(const std::filesystem::path& path);

/// Opens a text file for writing, which empties an existing one. The stream is in the classic
/// locale whatever the program's global locale is. It isn't open where the file can't be written.
///
/// A writer of large files gives a buffer of `blockSize`, which makes fewer and larger writes of
/// its text than a stream's own; the buffer has to outlive the stream.
std::ofstream OpenForWriting(const std::string& fileName, std::span<char> buffer = {});

/// Whether there is a regular file of that name: not a folder, and not a pipe or a device, which
/// may never end or never begin.
bool IsRegularFile(const std::string& fileName);

/// Opens a file for reading; its bytes come as they are. The stream isn't open where the file is
/// missing, unreadable or a folder.
std::ifstream OpenForReading(const std::string& fileName);

/// What stands in the way of reading the file, as "found" in a message: "no file of that name", "a
/// folder". To be asked right after the file couldn't be opened.
std::string WhyNotReadable(const std::string& fileName);

} // namespace Orv::Text
