// The toolbox's K-value table: a value without any computation behind it.
#include "FluidBench/Model/KValuesTable.h"

#include <stdexcept>
#include <utility>

namespace Orv::FluidBench::Model {

KValuesTable::KValuesTable(std::vector<std::string> components)
    : components_(std::move(components)) {}
KValuesTable::KValuesTable(const KValuesTable&) = default;
KValuesTable::KValuesTable(KValuesTable&&) noexcept = default;
KValuesTable& KValuesTable::operator=(const KValuesTable& other) {
    return *this = KValuesTable(other);
}
KValuesTable& KValuesTable::operator=(KValuesTable&&) noexcept = default;
KValuesTable::~KValuesTable() = default;

std::uint64_t KValuesTable::GetTableSize() const noexcept {
    return records_.size();
}

std::uint64_t KValuesTable::GetRecordSize() const noexcept {
    return components_.size() + 1;
}

const std::vector<double>& KValuesTable::GetRecord(std::uint64_t record) const {
    if (record >= records_.size()) {
        throw std::out_of_range("The K-value table has no such record");
    }
    return records_[record];
}

std::vector<std::string> KValuesTable::GetComponents() const {
    return components_;
}

void KValuesTable::AddRecord(std::vector<double> record) {
    if (record.size() != GetRecordSize()) {
        throw std::invalid_argument("A record of this K-value table has a pressure and " +
                                    std::to_string(components_.size()) + " K-values, but " +
                                    std::to_string(record.size()) + " numbers were given");
    }
    records_.push_back(std::move(record));
}

} // namespace Orv::FluidBench::Model
