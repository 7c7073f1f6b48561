// The two text forms of a black-oil table. `BlackOilExportFileWriter` asks for one piece after
// another; a formatter knows what each piece looks like.
#pragma once

#include "FluidBench/Common/Units.h"
#include "TextBuffer.h"
#include "io/BlackOilExportFileWriter.h"

#include <ostream>

namespace Orv::FluidBench::IO {

using EXPORT_TYPE = BlackOilExportFileWriter::EXPORT_TYPE;

/// Which tables an export type names. A type outside the list names none.
constexpr bool HasLiveOil(EXPORT_TYPE type) noexcept {
    return type == BlackOilExportFileWriter::LIVE_OIL_WET_GAS ||
           type == BlackOilExportFileWriter::LIVE_OIL_DRY_GAS;
}
constexpr bool HasDeadOil(EXPORT_TYPE type) noexcept {
    return type == BlackOilExportFileWriter::DEAD_OIL_WET_GAS ||
           type == BlackOilExportFileWriter::DEAD_OIL_DRY_GAS;
}
constexpr bool HasWetGas(EXPORT_TYPE type) noexcept {
    return type == BlackOilExportFileWriter::LIVE_OIL_WET_GAS ||
           type == BlackOilExportFileWriter::DEAD_OIL_WET_GAS;
}
constexpr bool HasDryGas(EXPORT_TYPE type) noexcept {
    return type == BlackOilExportFileWriter::LIVE_OIL_DRY_GAS ||
           type == BlackOilExportFileWriter::DEAD_OIL_DRY_GAS;
}

/// Made for one file. All values come in model units. Numbers are written in the notation and
/// precision that the stream has; each operation leaves the stream's width at zero. Table headers,
/// rows and the end of a record come without their line end, which is the caller's to write.
class IBlackoilTableFormatter {
public:
    IBlackoilTableFormatter() = default;
    IBlackoilTableFormatter(const IBlackoilTableFormatter&) = delete;
    IBlackoilTableFormatter& operator=(const IBlackoilTableFormatter&) = delete;
    virtual ~IBlackoilTableFormatter();

    virtual void OilTableHeader(std::ostream& out) = 0;
    virtual void GasTableHeader(std::ostream& out) = 0;
    virtual void SurfaceDensities(std::ostream& out, double oilDensity, double waterDensity,
                                  double gasDensity) = 0;
    virtual void SaturationPoint(std::ostream& out, double gasOilRatio, double pressure) = 0;
    virtual void OilTableEntry(std::ostream& out, double pressure, double property,
                               double formationVolumeFactor, double viscosity,
                               bool firstOfRecord) = 0;
    virtual void GasTableEntry(std::ostream& out, double pressure, double property,
                               double formationVolumeFactor, double viscosity,
                               bool firstOfRecord) = 0;
    virtual void EndDataRecord(std::ostream& out) = 0;
};

/// The keyword form, in the units of the choice:
///
///     DENSITY                  oil, water, gas
///     RSCONSTT                 dead oil only: gas-oil ratio, pressure
///     PVTO or PVDO             live or dead oil
///     PVTG or PVDG             wet or dry gas
///
/// A row begins with a tab, and tabs part its cells. The first cell of a live oil, wet gas or dry
/// gas row stands in the first row of each record only, and dead oil rows never have it: an empty
/// one is seven blanks wide. A dry gas row keeps an empty second cell. "\t/" ends a record of a
/// live or wet table, behind its last row, and every table, on a line of its own.
class PVOFormatter : public IBlackoilTableFormatter {
public:
    PVOFormatter(Common::Units::UNIT_TYPE unitChoice, EXPORT_TYPE tables);
    ~PVOFormatter() override;

    void OilTableHeader(std::ostream& out) override;
    void GasTableHeader(std::ostream& out) override;
    void SurfaceDensities(std::ostream& out, double oilDensity, double waterDensity,
                          double gasDensity) override;
    void SaturationPoint(std::ostream& out, double gasOilRatio, double pressure) override;
    void OilTableEntry(std::ostream& out, double pressure, double property,
                       double formationVolumeFactor, double viscosity, bool firstOfRecord) override;
    void GasTableEntry(std::ostream& out, double pressure, double property,
                       double formationVolumeFactor, double viscosity, bool firstOfRecord) override;
    void EndDataRecord(std::ostream& out) override;

private:
    bool IsField() const noexcept { return units == Common::Units::FIELD; }

    Common::Units::UNIT_TYPE units;
    EXPORT_TYPE exportType;
    bool hasDensities = false; // what is written further is another region's, below the same title
    bool hasSaturationPoint = false;
    Text::TextBuffer row; // of the entry at hand; kept, so that a row costs no allocation
};

/// The CSV form, in metric units whatever the choice:
///
///     ODEN,   WDEN,   GDEN,           kg/m3
///     RSCONST,                        m3/m3
///     PSAT,                           Pa, unlike the pressures of the rows
///     Units, METRIC
///     PVTO, Rs, PSAT, Bo, Muo
///         ,m3/m3,bar,m3/m3,cP         a row of dead oil, too; an empty line ends a record
///     Units, METRIC
///     PVTG, PSAT, Rv, Bg, Mug
///         ,bar,m3/m3,m3/m3,cP         a row of dry gas, too
///
/// A row begins with a tab and a comma.
class CSVFormatter : public IBlackoilTableFormatter {
public:
    CSVFormatter();
    ~CSVFormatter() override;

    void OilTableHeader(std::ostream& out) override;
    void GasTableHeader(std::ostream& out) override;
    void SurfaceDensities(std::ostream& out, double oilDensity, double waterDensity,
                          double gasDensity) override;
    void SaturationPoint(std::ostream& out, double gasOilRatio, double pressure) override;
    void OilTableEntry(std::ostream& out, double pressure, double property,
                       double formationVolumeFactor, double viscosity, bool firstOfRecord) override;
    void GasTableEntry(std::ostream& out, double pressure, double property,
                       double formationVolumeFactor, double viscosity, bool firstOfRecord) override;
    void EndDataRecord(std::ostream& out) override;

private:
    Text::TextBuffer row; // of the entry at hand; kept, so that a row costs no allocation
};

} // namespace Orv::FluidBench::IO
