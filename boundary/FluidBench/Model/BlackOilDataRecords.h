// One table of a black-oil description: records of entries.
#pragma once

#include "Visibility.h"

#include <cstdint>
#include <initializer_list>
#include <span>
#include <stdexcept>
#include <vector>

namespace Orv::FluidBench::Model {

/// A value that owns its entries. A record is what belongs together, such as the undersaturated
/// branch above one saturation point; an entry is one row of it: a pressure, the table's ratio
/// (gas-oil or oil-gas), a formation volume factor and a viscosity. Numbers are kept as given.
///
/// The stand-in holds entries in blocks, 32 bytes each, with 8 more for each record. Reading
/// an entry takes constant time, and so does appending to the last record; appending to an earlier
/// one moves everything behind it. One thread at a time may change a table.
///
/// Every index is checked: one that isn't there throws `std::out_of_range`.
class FLUIDBENCH_BOUNDARY_API BlackOilDataRecords {
public:
    /// An empty table.
    BlackOilDataRecords();
    BlackOilDataRecords(const BlackOilDataRecords&);
    BlackOilDataRecords(BlackOilDataRecords&&) noexcept;
    BlackOilDataRecords& operator=(const BlackOilDataRecords&);
    BlackOilDataRecords& operator=(BlackOilDataRecords&&) noexcept;
    ~BlackOilDataRecords();

    /// Number of records.
    std::uint64_t GetTableSize() const noexcept;
    /// Number of entries of a record; at least one.
    std::uint64_t GetRecordContentSize(std::uint64_t record) const;

    /// Pa.
    double GetPressure(std::uint64_t record, std::uint64_t entry) const;
    /// Gas-oil or oil-gas ratio, m3/m3.
    double GetProperty(std::uint64_t record, std::uint64_t entry) const;
    /// m3/m3.
    double GetFormationVolumeFactor(std::uint64_t record, std::uint64_t entry) const;
    /// Pa.s.
    double GetViscosity(std::uint64_t record, std::uint64_t entry) const;

    /// Appends an entry to the record and gives its index there. The record number after the last
    /// one begins a new record; a higher one throws `std::out_of_range` and changes nothing.
    std::uint64_t AddEntry(std::uint64_t record, double pressure, double property,
                           double formationVolumeFactor, double viscosity);

    // The stand-in's own operations.

    /// One row of a record.
    struct Entry {
        double pressure = 0.0;              ///< Pa
        double property = 0.0;              ///< gas-oil or oil-gas ratio, m3/m3
        double formationVolumeFactor = 0.0; ///< m3/m3
        double viscosity = 0.0;             ///< Pa.s
    };

    /// Appends a record and gives its index. Throws `std::invalid_argument` for one without
    /// entries.
    std::uint64_t AddRecord(std::span<const Entry> entries);
    std::uint64_t AddRecord(std::initializer_list<Entry> entries) {
        return AddRecord(std::span<const Entry>(entries.begin(), entries.size()));
    }

private:
    // Inline, so that a getter isn't four calls.
    std::uint64_t Begin(std::uint64_t record) const noexcept {
        return record == 0 ? 0 : recordEnds_[record - 1];
    }
    std::uint64_t End(std::uint64_t record) const { return recordEnds_.at(record); }
    const Entry& At(std::uint64_t record, std::uint64_t entry) const {
        if (entry >= End(record) - Begin(record)) {
            throw std::out_of_range("The record of the black-oil table has no such entry");
        }
        return EntryAt(Begin(record) + entry);
    }

    // Entries lie in blocks, so that a table that grows copies none of them.
    static constexpr std::uint64_t entriesOfBlock = 2048;
    std::uint64_t NumberOfEntries() const noexcept {
        return recordEnds_.empty() ? 0 : recordEnds_.back();
    }
    const Entry& EntryAt(std::uint64_t index) const noexcept {
        return blocks_[index / entriesOfBlock][index % entriesOfBlock];
    }
    Entry& EntryAt(std::uint64_t index) noexcept {
        return blocks_[index / entriesOfBlock][index % entriesOfBlock];
    }
    void Append(const Entry& entry);
    void Truncate(std::uint64_t size) noexcept;

    std::vector<std::vector<Entry>> blocks_; // record after record; all are full but the last
    std::vector<std::uint64_t> recordEnds_;  // one past the last entry of each record
};

} // namespace Orv::FluidBench::Model
