// K-values of a fluid's components against pressure.
#pragma once

#include "Visibility.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Orv::FluidBench::Model {

/// A value that owns its records. Element 0 of a record is a pressure in Pa; the K-values of the
/// components follow it in the order of `GetComponents`. One thread at a time may change a table.
class FLUIDBENCH_BOUNDARY_API KValuesTable {
public:
    /// K; negative where the table gives none.
    double Temperature = -1.0;

    /// Number of records.
    std::uint64_t GetTableSize() const noexcept;
    /// Length of every record: the number of components and one for the pressure.
    std::uint64_t GetRecordSize() const noexcept;
    /// Valid until a record is added. Throws `std::out_of_range` where there is no such record.
    const std::vector<double>& GetRecord(std::uint64_t record) const;
    /// The names, in the order of the K-values.
    std::vector<std::string> GetComponents() const;

    // The stand-in's own operations.

    /// A table of these components, without records and without a temperature.
    explicit KValuesTable(std::vector<std::string> components);
    KValuesTable(const KValuesTable&);
    KValuesTable(KValuesTable&&) noexcept;
    KValuesTable& operator=(const KValuesTable&);
    KValuesTable& operator=(KValuesTable&&) noexcept;
    ~KValuesTable();

    /// Appends a record; throws `std::invalid_argument` unless it is `GetRecordSize()` long.
    void AddRecord(std::vector<double> record);

private:
    std::vector<std::string> components_;
    std::vector<std::vector<double>> records_;
};

} // namespace Orv::FluidBench::Model
