// Writes a compositional fluid as a PVO keyword deck, and depth runs as depth variation tables.
#pragma once

#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Common/Units.h"
#include "FluidBench/Experiments/ExperimentResults.h"
#include "FluidBench/Experiments/MSTExperiment.h"
#include "FluidBench/Experiments/Stage.h"
#include "FluidBench/Model/CompositionalFluid.h"
#include "io/Export.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace Orv::FluidBench::IO {

struct DepthTable; // in DepthTableReader.h

/// Holds no state: an object may be used any number of times, by one thread at a time. The caller
/// owns every model object; a file is open only during a call.
///
/// A file that can't be opened is reported by message 3369 with its name, and nothing is written.
/// A write that fails afterwards, on a full disk for instance, isn't detected: whoever has to know
/// gives a stream and asks it when it is flushed. The operations on streams write the same bytes as
/// those on files; the stream belongs to the caller, and its format flags, precision, width and
/// fill are put back.
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
    /// The same to a stream. The report is empty.
    Common::ErrorReport ExportToPVO(const Model::CompositionalFluid& fluid, std::ostream& out,
                                    double reservoirTemperature, bool metric, bool writeRunspec);

    // Depth variation tables, each in a file of its own that replaces an existing one. The rows are
    // the stages of the results, which are the depths of the run. A contact stage that has a depth
    // is put among them by depth, unless a stage stands there already (to 0.1 % of the depth).
    // Depths are in ft for FIELD and in m otherwise; the closing record says METRIC for METRIC and
    // FIELD for anything else.

    /// Writes the composition of each stage ("ZMFVD"): the fraction of each component that `fluid`
    /// lists, by global name, or 0 where the stage's fluid lacks it.
    Common::ErrorReport ExportZMFVD(const Model::CompositionalFluid& fluid,
                                    const Experiments::ExperimentResults& results,
                                    const std::string& fileName,
                                    Common::Units::UNIT_TYPE units) const;
    /// The same to a stream. The report is empty.
    Common::ErrorReport ExportZMFVD(const Model::CompositionalFluid& fluid,
                                    const Experiments::ExperimentResults& results,
                                    std::ostream& out, Common::Units::UNIT_TYPE units) const;

    /// Writes the saturation pressure of each stage that has one, in psia for FIELD and in bar
    /// otherwise: the bubble points ("PBVD") when the first stage has a liquid phase, else the dew
    /// points ("PDVD") and, from the contact down, the bubble points in a second table.
    ///
    /// Results without stages are told by message 1001, which is no error; the file is empty then.
    Common::ErrorReport ExportPSATVD(const Experiments::ExperimentResults& results,
                                     const std::string& fileName,
                                     Common::Units::UNIT_TYPE units) const;
    /// The same to a stream. Results without stages are told as above, and nothing is written.
    Common::ErrorReport ExportPSATVD(const Experiments::ExperimentResults& results,
                                     std::ostream& out, Common::Units::UNIT_TYPE units) const;

    /// Writes the ratio that the separator gives for the fluid of each stage with a gas-oil ratio:
    /// the dissolved gas ("RSVD") when the first stage holds an oil-like fluid, else the vaporised
    /// oil ("RVVD"), which is the inverse, and, from the contact down, the dissolved gas in a
    /// second table. In Mscf/stb and stb/Mscf for FIELD and in m3/m3 otherwise. A run that failed,
    /// or whose last stage has no gas-oil ratio, gives 0.
    ///
    /// `experiment` runs once for each row. Results without stages are as for `ExportPSATVD`.
    Common::ErrorReport ExportRSVD(const Experiments::ExperimentResults& results,
                                   Experiments::MSTExperiment experiment,
                                   const std::vector<Experiments::Stage>& separatorStages,
                                   const std::string& fileName,
                                   Common::Units::UNIT_TYPE units) const;
    /// The same to a stream.
    Common::ErrorReport ExportRSVD(const Experiments::ExperimentResults& results,
                                   Experiments::MSTExperiment experiment,
                                   const std::vector<Experiments::Stage>& separatorStages,
                                   std::ostream& out, Common::Units::UNIT_TYPE units) const;

    /// Writes the tables that `DepthTableReader` gives, in their order, in one file: what the three
    /// operations above write, and any choice of it. The report is empty; a keyword that is none of
    /// the five throws `std::invalid_argument`.
    Common::ErrorReport ExportDepthTables(const std::vector<DepthTable>& tables, std::ostream& out,
                                          Common::Units::UNIT_TYPE units) const;

private:
    /// Whether the rows from `depth` on belong to the liquid below the contact and those before it
    /// didn't. Depths are in m.
    bool SwitchToLiquidRegion(bool hasContact, bool inLiquidRegion, double depth,
                              double contactDepth) const;

    /// Adds the stage's gas-oil ratio, if it has one.
    void UpdateGOR(double& gasOilRatio, const Experiments::Stage& stage) const;

    /// The stages with the contact put among them; `contactDepth` is left as it is without one.
    std::vector<Experiments::Stage>
    UpdateStageResults(const std::vector<Experiments::Stage>& stages,
                       const Experiments::Stage& contactStage, bool hasContact,
                       double& contactDepth) const;
};

} // namespace Orv::FluidBench::IO
