// The functions of the module, one source a family of formats.
#pragma once

#include <pybind11/pybind11.h>

namespace FluidBenchPython {

void AddBlackOil(pybind11::module_& module);
void AddCompositions(pybind11::module_& module);
void AddDecks(pybind11::module_& module);
void AddDepthTables(pybind11::module_& module);
void AddDfa(pybind11::module_& module);
void AddEnvelopes(pybind11::module_& module);
void AddKValues(pybind11::module_& module);
void AddMfl(pybind11::module_& module);
void AddThermal(pybind11::module_& module);

} // namespace FluidBenchPython
