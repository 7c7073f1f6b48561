// Compositional fluids as a person or a program sees them.
#pragma once

#include "Comparison.h"
#include "FluidBench/Model/CompositionalFluid.h"
#include "Json.h"
#include "Table.h"

#include <ostream>

namespace FluidBenchTool {

/// Prints the fluid's name, its models, a table of its components and the interaction coefficients
/// that aren't zero: unless all are asked for, the largest of them. A property without a value is
/// shown as "-", and one that no component has is left out. Metric is K, bar and m3/kg-mole; field
/// is R, psia and ft3/lb-mole.
void PrintFluid(std::ostream& out, const Orv::FluidBench::Model::CompositionalFluid& fluid,
                bool field, Extent extent);
/// Prints the table of the components.
void PrintFluidCsv(std::ostream& out, const Orv::FluidBench::Model::CompositionalFluid& fluid,
                   bool field);
/// Adds the members of the fluid.
void WriteFluid(JsonWriter& json, const Orv::FluidBench::Model::CompositionalFluid& fluid);

/// Compares models, components and coefficients; the order of the components doesn't matter.
void CompareFluids(Comparison& comparison, const Orv::FluidBench::Model::CompositionalFluid& first,
                   const Orv::FluidBench::Model::CompositionalFluid& second, bool field);

} // namespace FluidBenchTool
