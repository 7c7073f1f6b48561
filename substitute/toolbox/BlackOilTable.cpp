// The toolbox's black-oil tables: values without any computation behind them.
#include "FluidBench/Model/BlackOilTable.h"

#include "FluidBench/Model/BlackOilDataRecords.h"
#include "Room.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace Orv::FluidBench::Model {

BlackOilDataRecords::BlackOilDataRecords() = default;
BlackOilDataRecords::BlackOilDataRecords(const BlackOilDataRecords&) = default;
BlackOilDataRecords::BlackOilDataRecords(BlackOilDataRecords&&) noexcept = default;
BlackOilDataRecords& BlackOilDataRecords::operator=(const BlackOilDataRecords& other) {
    return *this = BlackOilDataRecords(other);
}
BlackOilDataRecords& BlackOilDataRecords::operator=(BlackOilDataRecords&&) noexcept = default;
BlackOilDataRecords::~BlackOilDataRecords() = default;

std::uint64_t BlackOilDataRecords::GetTableSize() const noexcept {
    return recordEnds_.size();
}

std::uint64_t BlackOilDataRecords::GetRecordContentSize(std::uint64_t record) const {
    return End(record) - Begin(record);
}

double BlackOilDataRecords::GetPressure(std::uint64_t record, std::uint64_t entry) const {
    return At(record, entry).pressure;
}
double BlackOilDataRecords::GetProperty(std::uint64_t record, std::uint64_t entry) const {
    return At(record, entry).property;
}
double BlackOilDataRecords::GetFormationVolumeFactor(std::uint64_t record,
                                                     std::uint64_t entry) const {
    return At(record, entry).formationVolumeFactor;
}
double BlackOilDataRecords::GetViscosity(std::uint64_t record, std::uint64_t entry) const {
    return At(record, entry).viscosity;
}

std::uint64_t BlackOilDataRecords::AddEntry(std::uint64_t record, double pressure, double property,
                                            double formationVolumeFactor, double viscosity) {
    const std::uint64_t records = recordEnds_.size();
    if (record > records) {
        throw std::out_of_range("A black-oil table gains its records one after another");
    }
    const Entry entry{pressure, property, formationVolumeFactor, viscosity};
    if (record == records) {
        return AddRecord({entry}), 0;
    }
    const std::uint64_t end = End(record);
    Append(entry);
    for (std::uint64_t i = NumberOfEntries(); i > end; --i) {
        EntryAt(i) = EntryAt(i - 1);
    }
    EntryAt(end) = entry;
    for (std::uint64_t i = record; i < records; ++i) {
        ++recordEnds_[i];
    }
    return end - Begin(record);
}

std::uint64_t BlackOilDataRecords::AddRecord(std::span<const Entry> entries) {
    if (entries.empty()) {
        throw std::invalid_argument("A record of a black-oil table has at least one entry");
    }
    MakeRoomForOneMore(recordEnds_);
    const std::uint64_t size = NumberOfEntries();
    try {
        std::ranges::for_each(entries, [this](const Entry& entry) { Append(entry); });
    } catch (...) {
        Truncate(size);
        throw;
    }
    recordEnds_.push_back(size + entries.size());
    return recordEnds_.size() - 1;
}

void BlackOilDataRecords::Append(const Entry& entry) {
    if (blocks_.empty() || blocks_.back().size() == entriesOfBlock) {
        std::vector<Entry> block;
        if (!blocks_.empty()) { // a small table takes little memory
            block.reserve(entriesOfBlock);
        }
        block.push_back(entry);
        blocks_.push_back(std::move(block));
    } else {
        blocks_.back().push_back(entry);
    }
}

void BlackOilDataRecords::Truncate(std::uint64_t size) noexcept {
    blocks_.resize((size + entriesOfBlock - 1) / entriesOfBlock);
    if (size % entriesOfBlock != 0) {
        blocks_.back().resize(size % entriesOfBlock);
    }
}

BlackOilTable::BlackOilTable() = default;
BlackOilTable::BlackOilTable(const BlackOilTable&) = default;
BlackOilTable::BlackOilTable(BlackOilTable&&) noexcept = default;
BlackOilTable& BlackOilTable::operator=(const BlackOilTable& other) {
    return *this = BlackOilTable(other);
}
BlackOilTable& BlackOilTable::operator=(BlackOilTable&&) noexcept = default;
BlackOilTable::~BlackOilTable() = default;

const BlackOilDataRecords& BlackOilTable::GetLiveOilData() const noexcept {
    return liveOil_;
}
const BlackOilDataRecords& BlackOilTable::GetDeadOilData() const noexcept {
    return deadOil_;
}
const BlackOilDataRecords& BlackOilTable::GetWetGasData() const noexcept {
    return wetGas_;
}
const BlackOilDataRecords& BlackOilTable::GetDryGasData() const noexcept {
    return dryGas_;
}

void BlackOilTable::SetLiveOilData(const BlackOilDataRecords& records) {
    liveOil_ = records;
}
void BlackOilTable::SetLiveOilData(BlackOilDataRecords&& records) noexcept {
    liveOil_ = std::move(records);
}
void BlackOilTable::SetDeadOilData(const BlackOilDataRecords& records) {
    deadOil_ = records;
}
void BlackOilTable::SetDeadOilData(BlackOilDataRecords&& records) noexcept {
    deadOil_ = std::move(records);
}
void BlackOilTable::SetWetGasData(const BlackOilDataRecords& records) {
    wetGas_ = records;
}
void BlackOilTable::SetWetGasData(BlackOilDataRecords&& records) noexcept {
    wetGas_ = std::move(records);
}
void BlackOilTable::SetDryGasData(const BlackOilDataRecords& records) {
    dryGas_ = records;
}
void BlackOilTable::SetDryGasData(BlackOilDataRecords&& records) noexcept {
    dryGas_ = std::move(records);
}

double BlackOilTable::GetOilDensity() const noexcept {
    return oilDensity_;
}
double BlackOilTable::GetGasDensity() const noexcept {
    return gasDensity_;
}
double BlackOilTable::GetWaterDensity() const noexcept {
    return waterDensity_;
}
void BlackOilTable::SetOilDensity(double density) noexcept {
    oilDensity_ = density;
}
void BlackOilTable::SetGasDensity(double density) noexcept {
    gasDensity_ = density;
}
void BlackOilTable::SetWaterDensity(double density) noexcept {
    waterDensity_ = density;
}

double BlackOilTable::GetSaturationPointRs() const noexcept {
    return saturationRs_;
}
double BlackOilTable::GetSaturationPointPressure() const noexcept {
    return saturationPressure_;
}
void BlackOilTable::SetSaturationPoint(double rs, double pressure) noexcept {
    saturationRs_ = rs;
    saturationPressure_ = pressure;
}

} // namespace Orv::FluidBench::Model
