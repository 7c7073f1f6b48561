// Fluids, from whichever file has one.
#pragma once

#include "Commands.h"
#include "FluidBench/Model/CompositionalFluid.h"

#include <optional>
#include <vector>

namespace FluidBenchTool {

/// What a deck or an MFL file gives.
struct FluidFile {
    Orv::FluidBench::Model::CompositionalFluid fluid{""};
    bool isField = false;                       ///< the units of a deck
    std::optional<double> reservoirTemperature; ///< K; of a deck that tells it
    std::vector<std::vector<double>> streams;   ///< of an MFL file: an amount for each component
};

/// Each reads the file, tells what there is to tell, and throws `CommandFailed` where the fluid
/// can't be read.
FluidFile ReadDeck(Input& input, Call& call);
FluidFile ReadMfl(Input& input, Call& call);
/// Either, by the text.
FluidFile ReadFluid(Input& input, Call& call);

} // namespace FluidBenchTool
