// A fluid as text for a person at a terminal.
#pragma once

#include "FluidBench/Model/CompositionalFluid.h"

#include <ostream>

namespace FluidBenchTool {

/// Metric is K, bar and m3/kg-mole; field is R, psia and ft3/lb-mole.
enum class FluidUnits { Metric, Field };

/// Prints the fluid's name, its models, a table of its components and the interaction coefficients
/// that aren't zero. A property without a value is shown as "-", and one that no component has is
/// left out.
void PrintFluid(std::ostream& out, const Orv::FluidBench::Model::CompositionalFluid& fluid,
                FluidUnits units);

} // namespace FluidBenchTool
