// Names of components that a deck can't hold.
#pragma once

#include "FluidBench/Model/CompositionalFluid.h"
#include "io/Diagnostics.h"
#include "io/Export.h"

#include <vector>

namespace Orv::FluidBench::IO {

/// A warning (`deck.name-changed`, without file and line) for each component whose name doesn't
/// come back as it is from a deck that `PVOFileWriter::ExportToPVO` writes of the fluid: blanks are
/// lost, a quote with a slash or dashes behind it ends the name, and two names may become one. For
/// whoever writes a deck and wants to tell.
FLUIDBENCH_IO_API std::vector<Diagnostic>
NamesThatADeckChanges(const Model::CompositionalFluid& fluid);

} // namespace Orv::FluidBench::IO
