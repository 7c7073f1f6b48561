#include "Kes/SimFluid/StdDepthTable.h"

#include <stdexcept>
#include <string>

namespace Orv::Kes::SimFluid {

StdDepthTable::StdDepthTable() = default;
StdDepthTable::StdDepthTable(const StdDepthTable&) = default;
StdDepthTable& StdDepthTable::operator=(const StdDepthTable& other) {
    StdDepthTable copy(other);
    columns_ = copy.columns_;
    depths_.swap(copy.depths_);
    values_.swap(copy.values_);
    return *this;
}
StdDepthTable::~StdDepthTable() = default;

std::size_t StdDepthTable::Row(int row) const {
    if (row < 0 || row >= getNumRows()) {
        throw std::out_of_range("A depth table has no row " + std::to_string(row));
    }
    return static_cast<std::size_t>(row);
}

std::size_t StdDepthTable::Place(int row, int column) const {
    if (column < 0 || column >= columns_) {
        throw std::out_of_range("A depth table has no column " + std::to_string(column));
    }
    return Row(row) * static_cast<std::size_t>(columns_) + static_cast<std::size_t>(column);
}

double StdDepthTable::getValue(int row, int column) const {
    return values_[Place(row, column)];
}
double StdDepthTable::getDepth(int row) const {
    return depths_[Row(row)];
}
int StdDepthTable::getNumRows() const {
    return static_cast<int>(depths_.size());
}
int StdDepthTable::getNumColumns() const {
    return columns_;
}

void StdDepthTable::clear(int columns) {
    if (columns < 0) {
        throw std::out_of_range("A depth table can't have " + std::to_string(columns) + " columns");
    }
    columns_ = columns;
    depths_.clear();
    values_.clear();
}

void StdDepthTable::addRow(double depth) {
    // The zeros first: without the depth, nobody sees them.
    values_.resize((depths_.size() + 1) * static_cast<std::size_t>(columns_), 0.0);
    depths_.push_back(depth);
}

void StdDepthTable::setValue(int row, int column, double value) {
    values_[Place(row, column)] = value;
}

} // namespace Orv::Kes::SimFluid
