#include "InputFile.h"

#include "TextFile.h"

#include <cerrno>

namespace Orv::FluidBench::Impl::IO {

std::ifstream OpenOrTell(const std::string& fileName, Diagnostics& diagnostics) {
    errno = 0;
    std::ifstream file = Text::OpenForReading(fileName);
    if (!file.is_open() && diagnostics.AreWanted()) {
        diagnostics.Tell(Kinds::cantOpen, 0,
                         "Expected a file to read, found " + Text::WhyNotReadable(fileName) + ".");
    }
    return file;
}

} // namespace Orv::FluidBench::Impl::IO
