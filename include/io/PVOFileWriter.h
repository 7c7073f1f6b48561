// Writes a compositional fluid as a PVO keyword deck.
#pragma once

#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Model/CompositionalFluid.h"
#include "io/Export.h"

#include <string>

namespace Orv::FluidBench::IO {

/// Holds no state: an object may be used any number of times, by one thread at a time. The caller
/// owns every model object; a file is open only during a call.
///
/// A file that can't be opened is reported by message 3369 with its name, and nothing is written.
/// A write that fails afterwards, on a full disk for instance, isn't detected.
class FLUIDBENCH_IO_API PVOFileWriter {
public:
    PVOFileWriter();
    ~PVOFileWriter();
    PVOFileWriter(const PVOFileWriter&) = default;
    PVOFileWriter& operator=(const PVOFileWriter&) = default;

    /// Writes the fluid as a whole deck, replacing an existing file.
    ///
    /// `reservoirTemperature` is in K and taken without a test. `metric` selects bar, degrees C and
    /// m3/kg-mole, otherwise psia, degrees F and ft3/lb-mole. `writeRunspec` puts a RUNSPEC section
    /// at the head of the deck. A property without a value is written as a zero.
    Common::ErrorReport ExportToPVO(const Model::CompositionalFluid& fluid,
                                    const std::string& fileName, double reservoirTemperature,
                                    bool metric, bool writeRunspec);
};

} // namespace Orv::FluidBench::IO
