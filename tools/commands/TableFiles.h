// Tables against pressure and depth, from whichever file has them.
#pragma once

#include "Commands.h"
#include "FluidBench/Experiments/ExperimentResults.h"
#include "FluidBench/Model/BlackOilTable.h"
#include "FluidBench/Model/KValuesTable.h"

#include <string>
#include <vector>

namespace FluidBenchTool {

struct BlackOilFile {
    std::vector<Orv::FluidBench::Model::BlackOilTable> regions;
    bool hasKeywords = false;
};

struct DepthRun {
    std::vector<std::string> components;
    Orv::FluidBench::Experiments::ExperimentResults results;
    /// Of the stages: gas, oil, and contact for the contact stage.
    std::vector<std::string> kinds;
    /// The stages and the contact, in the order of the file. They are those of `results`.
    std::vector<const Orv::FluidBench::Experiments::Stage*> rows;
};

/// Each reads the file, tells what there is to tell, and throws `CommandFailed` where it can't be
/// read.
BlackOilFile ReadBlackOil(Input& input, Call& call);
Orv::FluidBench::Model::KValuesTable ReadKValues(Input& input, Call& call);
void ReadDepthRun(Input& input, Call& call, DepthRun& run);

} // namespace FluidBenchTool
