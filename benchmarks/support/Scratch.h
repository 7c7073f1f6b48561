// Where a benchmark puts its files.
#pragma once

#include <filesystem>

namespace FluidBenchBenchmark {

/// A folder of this process alone, empty at first. It goes away when the program ends.
const std::filesystem::path& ScratchFolder();

} // namespace FluidBenchBenchmark
