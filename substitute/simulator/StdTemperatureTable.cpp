#include "Kes/SimFluid/StdTemperatureTable.h"

#include <utility>

namespace Orv::Kes::SimFluid {

namespace {

// A negative number becomes one that no table has.
std::size_t Index(int number) noexcept {
    return static_cast<std::size_t>(number);
}

} // namespace

StdTemperatureTable::StdTemperatureTable() = default;
StdTemperatureTable::StdTemperatureTable(const StdTemperatureTable&) = default;
StdTemperatureTable& StdTemperatureTable::operator=(const StdTemperatureTable& other) {
    StdTemperatureTable copy(other);
    components_ = copy.components_;
    temperatures_.swap(copy.temperatures_);
    properties_.swap(copy.properties_);
    return *this;
}
StdTemperatureTable::~StdTemperatureTable() = default;

int StdTemperatureTable::getNumTemperatures() const {
    return static_cast<int>(temperatures_.size());
}
void StdTemperatureTable::setNumTemperatures(int count) {
    temperatures_.reserve(Index(count));
    properties_.resize(Index(count), std::vector<double>(components_));
    temperatures_.resize(Index(count));
}
int StdTemperatureTable::getNumComponents() const {
    return static_cast<int>(components_);
}
void StdTemperatureTable::setNumComponents(int count) {
    std::vector<std::vector<double>> properties = properties_;
    for (std::vector<double>& row : properties) {
        row.resize(Index(count));
    }
    properties_ = std::move(properties);
    components_ = Index(count);
}
double StdTemperatureTable::getTemperature(int row) const {
    return temperatures_.at(Index(row));
}
void StdTemperatureTable::setTemperature(int row, double value) {
    temperatures_.at(Index(row)) = value;
}
double StdTemperatureTable::getProperty(int row, int component) const {
    return properties_.at(Index(row)).at(Index(component));
}
void StdTemperatureTable::setProperty(int row, int component, double value) {
    properties_.at(Index(row)).at(Index(component)) = value;
}

} // namespace Orv::Kes::SimFluid
