// What a fuzz program is made of. A program of a family defines `Samples` and `TestOneInput`; the
// driver behind them changes the samples at random and runs the test on what comes out.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace FluidBenchFuzz {

/// Good inputs, which the driver begins with.
std::vector<std::string> Samples();

/// Reads the input as the family's readers do and throws, `BrokenPromise` or anything else, where
/// they don't keep what they promise. The same input has to have the same outcome each time.
void TestOneInput(std::string_view input);

/// What a reader or writer promises doesn't hold.
class BrokenPromise : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

void Require(bool holds, const std::string& promise);

/// The bytes of a file of the project, by its path in the project.
std::string ProjectFile(const std::string& path);
/// All files of a folder of the project whose names end so, in the order of their names.
std::vector<std::string> ProjectFiles(const std::string& folder, std::string_view ending);

/// Path of a file that holds the input or takes an output. It lies in a folder of this process, in
/// memory where the system offers that, which goes away when the process ends in order.
std::string PathOf(const std::string& name);
std::string FileWith(const std::string& name, std::string_view content);
std::string ReadFile(const std::string& path);
const std::filesystem::path& Folder();
/// For a process that doesn't end in order.
void RemoveFolder();

/// Writes the samples to files of a folder, for another fuzzer to begin with.
void WriteSamples(const std::string& folder);

} // namespace FluidBenchFuzz
