// Reads a PVO keyword deck into a compositional fluid.
#pragma once

#include "FluidBench/Common/Enumerations.h"
#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Model/CompositionalFluid.h"
#include "io/Diagnostics.h"
#include "io/Export.h"

#include <memory>
#include <optional>
#include <string>

namespace Orv::FluidBench::Impl::IO {
class PVOImporter;
}

namespace Orv::FluidBench::IO {

/// Name a deck, choose its units or have them detected, then read; any number of times. The caller
/// owns the fluid; the deck is open only during a read. One thread at a time.
///
/// Why a deck can't be read, and what in it may mean something else than it seems to, is told to
/// the diagnostic sink ("deck..." and "file...").
///
/// A read sets the severity of the simulator's current logger, which the whole program shares, and
/// doesn't put it back. That logger too is told what the simulator has to say about the deck.
///
/// Movable, and not copyable; a reader that was moved from may only be assigned to or destroyed.
class FLUIDBENCH_IO_API PVOFileReader {
public:
    /// No file name, metric units, and errors alone for the logger.
    PVOFileReader();
    ~PVOFileReader();
    PVOFileReader(PVOFileReader&&) noexcept;
    PVOFileReader& operator=(PVOFileReader&&) noexcept;
    PVOFileReader(const PVOFileReader&) = delete;
    PVOFileReader& operator=(const PVOFileReader&) = delete;

    /// Path of the deck.
    void SetPVOName(const std::string& name);
    /// Valid until the name is set again or the reader goes.
    const std::string& GetPVOName() const;

    /// Units of the decks that are read without detection. A value that isn't field counts as
    /// metric.
    void SetPVOUnitSystem(Common::pvtEnumPVOUnitSystemType unitSystem);
    /// The units last set or last detected.
    Common::pvtEnumPVOUnitSystemType GetPVOUnitSystemToUse() const;

    /// How much the simulator's logger tells from the next read on. Only a `DefaultLogger` heeds
    /// it. The diagnostic sink is told everything.
    void SetPVOErrorMessageSeverityLevel(Common::pvtEnumPVOErrorSeverityLevel level);

    /// Takes what the next reads have to say beside their reports. Two readers on two threads tell
    /// each its own sink of its own deck.
    void SetDiagnosticSink(DiagnosticSink sink);

    /// Replaces the fluid by the deck's; it bears no name. With `detectUnitSystem` the units are
    /// found from the deck's text, a FILEUNIT record or the unit comment ahead of TCRIT, and are
    /// field where it has neither; otherwise they are what was set.
    ///
    /// The fluid is blank when the report has errors:
    ///
    ///     3242, 1001   the file can't be opened, or the toolbox refuses a name or a value; the
    ///                  second message has the reason
    ///     3243         the deck can't be interpreted, can't be read to its end, is no regular file
    ///                  or has specific heats
    ///     3244         its equation of state isn't supported
    ///     3245, 3503   its viscosity or interfacial tension model isn't supported
    ///
    /// Message 3359 is a warning: a component goes without a value that contradicts another, and
    /// without those that come behind it.
    Common::ErrorReport Read(Model::CompositionalFluid& fluid, bool detectUnitSystem);

    /// The reservoir temperature in K that the deck read last has beside its fluid: of several, one
    /// for each region, the first. Empty where it has none, and after a read that failed.
    std::optional<double> GetReservoirTemperature() const;

private:
    std::unique_ptr<Impl::IO::PVOImporter> importer_;
};

} // namespace Orv::FluidBench::IO
