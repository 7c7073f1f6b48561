// A disk that fails while a file is read.
#pragma once

#include <cstddef>
#include <string>

namespace FluidBenchTest {

/// From here on `read` fails behind that many bytes of files whose path ends so; an empty path ends
/// it. For one thread. Part of a shared library that stands ahead of the C library's `read` in a
/// program that is linked to it, and in any other that is started with
///
///     LD_PRELOAD=libFailingRead.so FAILING_READ=BYTES:END-OF-PATH
__attribute__((visibility("default"))) void FailReads(const std::string& endOfPath,
                                                      std::size_t behind);

} // namespace FluidBenchTest
