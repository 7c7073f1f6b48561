// What the tests of every family share: a folder of their own, whole files, and a foreign locale.
#pragma once

#include "FluidBench/Common/ErrorReport.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <locale>
#include <string>
#include <string_view>
#include <vector>

namespace FluidBenchTest {

/// A folder that is empty at first and goes away with the object.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    /// The path of `name` in the folder.
    std::string operator/(const std::string& name) const;
    const std::filesystem::path& Path() const { return path_; }
    /// Writes a file of that name and gives its path.
    std::string Write(const std::string& name, std::string_view content) const;

private:
    std::filesystem::path path_;
};

/// The text of a file, with a newline for each line end of the system: its bytes, but on Windows.
/// A file that can't be read fails the test.
std::string ReadFile(const std::string& path);

/// A file of tests/data, by its name there, as a path and as its text.
std::string DataPath(const std::string& name);
std::string ReadData(const std::string& name);

/// Expects the sentence of a diagnostic to be, behind its code, a line of
/// tests/data/sentences.txt, to which a new one is added once somebody has read it. A whole path
/// stands as PATH there, and other characters than those of ASCII as question marks.
void ExpectSentence(const std::string& code, const std::string& sentence);

/// The message numbers of a report, in order.
std::vector<std::int32_t> MessageIds(const Orv::FluidBench::Common::ErrorReport& report);

/// While it lives, the program's global locale has a decimal comma and groups digits by twos. Needs
/// no locale of the system.
class ForeignGlobalLocale {
public:
    ForeignGlobalLocale();
    ~ForeignGlobalLocale();
    ForeignGlobalLocale(const ForeignGlobalLocale&) = delete;
    ForeignGlobalLocale& operator=(const ForeignGlobalLocale&) = delete;

private:
    std::locale previous_;
};

/// The locale of `ForeignGlobalLocale`, for a stream.
std::locale ForeignLocale();

} // namespace FluidBenchTest
