// Compositional fluids as dictionaries of arrays.
#pragma once

#include "FluidBench/Model/CompositionalFluid.h"

#include <pybind11/pybind11.h>

namespace FluidBenchPython {

/// The properties of a component that Python has as columns: (name, unit) each, in the order of
/// the block "properties".
pybind11::list ComponentProperties();

/// With n components and k properties:
///
///     name, eos, viscosity, fraction_basis     str
///     temperature_dependent_shift              bool
///     names                                    n str
///     fractions                                n numbers
///     properties                               n x k numbers in model units, NaN for no value
///     non_hydrocarbon                          n bool
///     reference_conditions                     n str
///     interactions                             n x n numbers, NaN for no coefficient
pybind11::dict FluidToPython(const Orv::FluidBench::Model::CompositionalFluid& fluid);

/// The way back. What the toolbox refuses throws `std::invalid_argument` with the component's and
/// the property's name.
Orv::FluidBench::Model::CompositionalFluid FluidFromPython(const pybind11::dict& fluid);

} // namespace FluidBenchPython
