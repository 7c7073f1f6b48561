#include "OutputFile.h"

#include "Messages.h"
#include "TextFile.h"

namespace Orv::FluidBench::Impl::IO {

std::ofstream OpenOrReport(const std::string& fileName, Common::ErrorReport& report,
                           std::span<char> buffer) {
    std::ofstream file = Text::OpenForWriting(fileName, buffer);
    if (!file.is_open()) {
        report.Add(CantOpenForWriting(fileName));
    }
    return file;
}

} // namespace Orv::FluidBench::Impl::IO
