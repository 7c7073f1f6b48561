// A disk that fails while a file is read.
#pragma once

#include <cstddef>
#include <string>

namespace FluidBenchTest {

/// From here on that call of `read` or `lseek` on files whose path has that part fails, counted
/// from 1; an empty path ends it. Gives how many there were since the last time. For one thread.
__attribute__((visibility("default"))) int FailCall(const std::string& partOfPath, int call);

/// From here on `read` fails behind that many bytes of files whose path has that part; an empty
/// path ends it. For one thread. Part of a shared library that stands ahead of the C library's
/// `read` in a program that is linked to it, and in any other that is started with
///
///     LD_PRELOAD=libFailingRead.so FAILING_READ=BYTES:PART-OF-PATH
__attribute__((visibility("default"))) void FailReads(const std::string& partOfPath,
                                                      std::size_t behind);

} // namespace FluidBenchTest
