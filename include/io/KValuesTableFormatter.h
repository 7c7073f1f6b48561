// The text of a K-value table, piece by piece, for any stream.
#pragma once

#include "FluidBench/Common/Units.h"
#include "FluidBench/Model/KValuesTable.h"
#include "io/Export.h"

#include <ostream>

namespace Orv::FluidBench::IO {

/// Writes the pieces of a K-value file. The caller owns the stream and sets its notation and
/// precision. Each piece ends in a line end, and each line end flushes the stream.
class FLUIDBENCH_IO_API IKValuesTableFormatter {
public:
    IKValuesTableFormatter() = default;
    IKValuesTableFormatter(const IKValuesTableFormatter&) = default;
    IKValuesTableFormatter& operator=(const IKValuesTableFormatter&) = default;
    virtual ~IKValuesTableFormatter();

    /// The line that has a simulator repeat its input.
    virtual void Echo(std::ostream& out) const = 0;
    /// The table's heading and records.
    virtual void KVTable(std::ostream& out, const Model::KValuesTable& table) const = 0;
    /// What ends the table, where it doesn't carry its own end.
    virtual void EndDataRecord(std::ostream& out) const = 0;
};

/// The keyword form. Pressures are in psi and the temperature in degrees Fahrenheit for FIELD, in
/// bar and K for every other choice. No locale of the stream plays a part. Holds the unit choice
/// alone; one thread at a time may use a stream.
class FLUIDBENCH_IO_API KValuesTableFormatter : public IKValuesTableFormatter {
public:
    /// Takes any value of the choice.
    explicit KValuesTableFormatter(Common::Units::UNIT_TYPE unitType);
    KValuesTableFormatter(const KValuesTableFormatter&) = default;
    KValuesTableFormatter& operator=(const KValuesTableFormatter&) = default;
    ~KValuesTableFormatter() override;

    /// The line that has a simulator repeat its input.
    void Echo(std::ostream& out) const override;

    /// The heading and the records. The stream is left-adjusted from here on. Throws
    /// `std::out_of_range` at a record that is shorter than the table says.
    void KVTable(std::ostream& out, const Model::KValuesTable& table) const override;

    /// Nothing: the table carries its own end.
    void EndDataRecord(std::ostream& out) const override;

private:
    bool IsField() const noexcept { return units == Common::Units::FIELD; }

    Common::Units::UNIT_TYPE units;
};

} // namespace Orv::FluidBench::IO
