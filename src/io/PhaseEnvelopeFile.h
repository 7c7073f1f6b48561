// A phase envelope file as an object: what is kept of it between calls.
#pragma once

#include "FluidBench/Common/CommonPlottingObject.h"

#include <string>
#include <vector>

namespace Orv::FluidBench::Impl::IO {

/// Owns the plots of the last read. One thread at a time.
class PhaseEnvelopeFile {
public:
    /// The separator is that of the files that are written.
    explicit PhaseEnvelopeFile(char separator);

    void SetFileName(const std::string& fileName);
    const std::string& GetFileName() const noexcept;

    /// Replaces the plots by those of the file. What goes wrong is told by `GetLastError`; false
    /// means that no plot was read or that the last one has no headings. Throws `std::out_of_range`
    /// where a number in a heading line has no separator behind it.
    bool ReadEnvelopes();

    int NumberOfPlots() const noexcept;
    /// Valid until the next read. Throws `IOInvalidIndex`.
    const Common::CommonPlottingObject& GetPlot(int index) const;

    /// False, and told by `GetLastError`, when the file can't be opened.
    bool Write(const std::vector<Common::CommonPlottingObject>& plots);

    /// The text of the last failure of any call; only the next failure replaces it.
    const std::string& GetLastError() const noexcept;

private:
    char writeSeparator_;
    std::string fileName_;
    std::vector<Common::CommonPlottingObject> plots_;
    std::string lastError_;
};

} // namespace Orv::FluidBench::Impl::IO
