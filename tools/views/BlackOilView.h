// Black-oil tables as a person or a program sees them.
#pragma once

#include "FluidBench/Model/BlackOilTable.h"
#include "Json.h"
#include "ShownUnit.h"
#include "Table.h"

#include <memory>
#include <ostream>
#include <span>
#include <vector>

namespace FluidBenchTool {

/// The rows of a black-oil table by one number, counted through all records.
class BlackOilRows {
public:
    /// The records outlive the object and don't change.
    explicit BlackOilRows(const Orv::FluidBench::Model::BlackOilDataRecords& records);

    struct Place {
        std::uint64_t record;
        std::uint64_t entry;
    };
    std::uint64_t Count() const { return ends_->empty() ? 0 : ends_->back(); }
    Place Find(std::uint64_t row) const;

private:
    // One past the last row of each record; copies of the object share them.
    std::shared_ptr<const std::vector<std::uint64_t>> ends_;
};

/// The units in which oil or gas is shown.
struct BlackOilUnits {
    ShownUnit ratio;
    ShownUnit pressure;
    ShownUnit volumeFactor;
    ShownUnit viscosity;
};
const BlackOilUnits& OilUnits(bool field);
const BlackOilUnits& GasUnits(bool field);

/// The tables outlive what these operations give to print. Regions count from 1.
using Regions = std::span<const Orv::FluidBench::Model::BlackOilTable>;
void PrintBlackOil(std::ostream& out, Regions regions, bool field, Extent extent);
void PrintBlackOilCsv(std::ostream& out, Regions regions, bool field);
/// Adds the member "regions".
void WriteBlackOil(JsonWriter& json, Regions regions);

} // namespace FluidBenchTool
