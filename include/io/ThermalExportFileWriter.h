// Writes thermal tables as keyword files.
#pragma once

#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Common/Units.h"
#include "FluidBench/Model/ThermalExportTable.h"
#include "io/Export.h"

#include <cstdint>
#include <iosfwd>
#include <string>

namespace Orv::FluidBench::IO {

class IThermalTableFormatter;

/// Holds two options: an object may be used any number of times, by one thread at a time. The
/// caller owns the table; a file is open only during a call.
///
/// The operation on a stream writes the same bytes as the one on a file; the stream belongs to the
/// caller, and its format flags, precision, width and fill are put back.
class FLUIDBENCH_IO_API ThermalExportFileWriter {
public:
    /// Form of a file. Only the keyword form is available; any value but PVO counts as CSV.
    enum FILE_TYPE : std::int32_t { PVO = 0, CSV = 1 };

    /// The standard conditions and the molecular weights have 15 decimals with high precision and 8
    /// without. All that follows them has 16 in either case.
    explicit ThermalExportFileWriter(bool useHighPrecision = false, FILE_TYPE type = PVO);

    /// Writes the table, replacing an existing file, in field units (psia, R, lb/ft3, Btu) for
    /// FIELD and in metric ones (bar, K, kg/m3, kJ) otherwise; the closing record says METRIC for
    /// METRIC and FIELD for anything else. Compressibilities are the exception: they are in 1/bar
    /// for METRIC, and stay in 1/Pa for a choice that is neither METRIC nor FIELD.
    ///
    /// The file has the heat capacity per mass, and its slope, at one temperature: the table's
    /// standard temperature, but 60 degrees Fahrenheit in field units.
    ///
    /// An empty report is success. Message 3369 with the file name tells that the file can't be
    /// opened, and nothing is written; message 1001 that the CSV form was asked for, and the file
    /// is empty. A write that fails afterwards, on a full disk for instance, isn't detected:
    /// whoever has to know gives a stream and asks it when it is flushed.
    ///
    /// Throws `std::invalid_argument`, and leaves the file as it was, where a vector of the table
    /// has fewer or more values than the table has components. Its text names the vector and both
    /// numbers.
    Common::ErrorReport ExportToFile(const Model::ThermalExportTable& table,
                                     const std::string& fileName,
                                     Common::Units::UNIT_TYPE unitType) const;
    /// The same to a stream. The report is empty, or message 1001 tells that the CSV form was asked
    /// for, and nothing is written. Throws as above, ahead of the first byte.
    Common::ErrorReport ExportToFile(const Model::ThermalExportTable& table, std::ostream& out,
                                     Common::Units::UNIT_TYPE unitType) const;

private:
    // From the model's units to those of a field file. The heat capacity's coefficients are for
    // J/(mol K), one for each power of the temperature.
    static double ConvertInverseTemperatureToField(double value);
    static double ConvertSpechACoeffToField(double value);
    static double ConvertSpechBCoeffToField(double value);
    static double ConvertSpechCCoeffToField(double value);
    static double ConvertSpechDCoeffToField(double value);

    struct SpecificHeat;
    static SpecificHeat SpecificHeatOf(const Model::ThermalExportTable& table, bool isField);

    static void WriteSections(std::ostream& out, const IThermalTableFormatter& formatter,
                              const Model::ThermalExportTable& table,
                              Common::Units::UNIT_TYPE unitType);

    bool highPrecision;
    FILE_TYPE fileType;
};

} // namespace Orv::FluidBench::IO
