// A phase envelope file as an object: what is kept of it between calls.
#pragma once

#include "Diagnostics.h"
#include "FluidBench/Common/CommonPlottingObject.h"

#include <istream>
#include <ostream>
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

    void SetDiagnosticSink(FluidBench::IO::DiagnosticSink sink);

    /// Replaces the plots by those of the file. What goes wrong is told by `GetLastError`; false
    /// means that no plot was read or that the last one has no headings. Throws `std::out_of_range`
    /// where a number in a heading line has no separator behind it.
    bool ReadEnvelopes();
    /// The same from a stream that diagnostics call `name`.
    bool ReadEnvelopes(std::istream& in, const std::string& name);

    int NumberOfPlots() const noexcept;
    /// Valid until the next read; it may be moved from. Throws `IOInvalidIndex`.
    Common::CommonPlottingObject& GetPlot(int index);

    /// False, and told by `GetLastError`, when the file can't be opened.
    bool Write(const std::vector<Common::CommonPlottingObject>& plots);
    /// Whether the stream is still good.
    bool Write(std::ostream& out, const std::vector<Common::CommonPlottingObject>& plots) const;

    /// The text of the last failure of any call; only the next failure replaces it.
    const std::string& GetLastError() const noexcept;

private:
    bool Read(std::istream& in, Diagnostics& diagnostics);

    char writeSeparator_;
    std::string fileName_;
    std::vector<Common::CommonPlottingObject> plots_;
    std::string lastError_;
    FluidBench::IO::DiagnosticSink sink_;
};

} // namespace Orv::FluidBench::Impl::IO
