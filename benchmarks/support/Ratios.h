// Runs the benchmarks of a program and prints what matters about them: ratios of one to another,
// next to the bar that each has to stay under. Absolute times depend on the machine and on who else
// uses it; a ratio to a baseline of the same run hardly does.
#pragma once

#include <string>
#include <vector>

namespace FluidBenchBenchmark {

/// "`measured` takes so many times as long as `baseline`", both by their registered names.
struct Ratio {
    std::string meaning;
    std::string measured;
    std::string baseline;
    double bar; ///< at most this; 0 where the ratio is only told
};

/// Runs the registered benchmarks, several repetitions of each in random order unless the arguments
/// say otherwise, and prints the ratios of their least processor times. Gives the exit status: 0
/// also where a bar is missed, since a busy machine may be the reason.
///
/// Memory that a repetition gives back stays with the process, so that the next one finds it again:
/// the first use of a page costs what the kernel and the machine make of it, from a tenth of
/// a microsecond to more than ten under some hypervisors, and whether a repetition has to pay
/// for it would hang on what was freed before. With `--fresh-memory` the allocator does as it
/// likes.
int RunAndPrintRatios(int argumentCount, char** arguments, const std::vector<Ratio>& ratios);

} // namespace FluidBenchBenchmark
