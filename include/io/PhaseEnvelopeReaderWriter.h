// Reads and writes phase envelope files.
#pragma once

#include "FluidBench/Common/CommonPlottingObject.h"
#include "io/Diagnostics.h"
#include "io/Export.h"

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace Orv::FluidBench::Impl::IO {
class PhaseEnvelopeFile;
}

namespace Orv::FluidBench::IO {

/// A phase envelope file has one block for each plot, and in it one pair of columns for each line:
///
///     Flash:
///     Source:
///     Units: T(K), P(Pa)
///
///     Bubble,,Dew,,Critical point,,Vapour,0.5,
///     T,P,T,P,T,P,T,P,
///     285,1.02e+07,426,236000,521.9,1.12e+07,285,892000,
///     300,1.08e+07,440,298000, , ,300,1.02e+06,
///
/// The separator is a comma or a tab. Reading is tolerant of what stands around the columns; a line
/// of the file may be 499 characters long. docs/formats/phase-envelope.md has the whole of it.
///
/// Owns its file's name, the plots of the last read and the text of the last failure; a file is
/// open only during a call. Name a file, then read or write it any number of times; one thread at a
/// time. The operations on streams read and write the same bytes as those on files and need no
/// name; the stream belongs to the caller, and its format and locale play no part and stay as they
/// are. Movable; an object that was moved from may only be assigned to or destroyed.
class FLUIDBENCH_IO_API PhaseEnvelopeReaderWriter {
public:
    /// Files are written with commas or else with tabs between their cells. What a file has that is
    /// read, the reader finds out.
    explicit PhaseEnvelopeReaderWriter(bool useComma = false);
    ~PhaseEnvelopeReaderWriter();
    PhaseEnvelopeReaderWriter(PhaseEnvelopeReaderWriter&&) noexcept;
    PhaseEnvelopeReaderWriter& operator=(PhaseEnvelopeReaderWriter&&) noexcept;
    PhaseEnvelopeReaderWriter(const PhaseEnvelopeReaderWriter&) = delete;
    PhaseEnvelopeReaderWriter& operator=(const PhaseEnvelopeReaderWriter&) = delete;

    /// Path of the file that `Read` reads and `Write` writes.
    void SetFileName(const std::string& fileName);
    /// Valid until the name is set again or the object goes.
    const std::string& GetFileName() const;

    /// Takes what `Read` has to say beside its result ("envelope..." and "file...").
    void SetDiagnosticSink(DiagnosticSink sink);

    /// Replaces `plots` by the envelopes of the file, temperature in K along x and pressure in Pa
    /// along y, and `messages` by exactly one text: that of the last failure of this object, empty
    /// when there was none yet. True tells that an envelope was read and none was cut off ahead of
    /// its headings; a file that was read to its end has "No more envelopes found" for a text.
    /// After a failure, `plots` has the envelopes ahead of it. A file whose reading fails midway
    /// counts as ending there; the diagnostics tell.
    ///
    /// Throws `std::out_of_range` where a number in a heading line has no separator behind it; both
    /// vectors are empty then, as they are after any other exception.
    bool Read(std::vector<Common::CommonPlottingObject>& plots, std::vector<std::string>& messages);
    /// The same from a stream, which is read to its end or to where the file's reading would stop;
    /// diagnostics call it `name`.
    bool Read(std::istream& in, std::vector<Common::CommonPlottingObject>& plots,
              std::vector<std::string>& messages, const std::string& name = {});

    /// Writes the plots, replacing an existing file, with six significant digits. Lines of a type
    /// other than `PhaseCurve` or of an unknown phase are left out, and so is all but the first
    /// line of phases that are there once. So many vapour fractions that a line of the file has
    /// more than 499 characters can be written, but not read back. False when the file can't be
    /// opened; a write that fails afterwards, on a full disk for instance, isn't detected.
    bool Write(const std::vector<Common::CommonPlottingObject>& plots) const;
    /// The same to a stream. False when the stream isn't good any more; what it still holds back,
    /// only its flush can tell.
    bool Write(std::ostream& out, const std::vector<Common::CommonPlottingObject>& plots) const;

private:
    std::unique_ptr<Impl::IO::PhaseEnvelopeFile> file_;
};

} // namespace Orv::FluidBench::IO
