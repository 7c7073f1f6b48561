// Tables against pressure and depth, from whichever file has them.
#pragma once

#include "Commands.h"
#include "FluidBench/Experiments/ExperimentResults.h"
#include "FluidBench/Model/BlackOilTable.h"
#include "FluidBench/Model/KValuesTable.h"
#include "io/DepthTableReader.h"

#include <string>
#include <vector>

namespace FluidBenchTool {

struct BlackOilFile {
    std::vector<Orv::FluidBench::Model::BlackOilTable> regions;
};

struct DepthRun {
    std::vector<std::string> components;
    Orv::FluidBench::Experiments::ExperimentResults results;
    /// Of the stages: gas, oil, and contact for the contact stage.
    std::vector<std::string> kinds;
    /// The stages, and the contact behind them. They are those of `results`.
    std::vector<const Orv::FluidBench::Experiments::Stage*> rows;
};

/// A run, or tables.
struct DepthFile {
    DepthRun run;
    std::vector<Orv::FluidBench::IO::DepthTable> tables;
};

/// Each reads the file, tells what there is to tell, and throws `CommandFailed` where it can't be
/// read.
BlackOilFile ReadBlackOil(Input& input, Call& call);
std::vector<Orv::FluidBench::Model::KValuesTable> ReadKValues(Input& input, Call& call);
void ReadDepth(Input& input, Call& call, DepthFile& file);

} // namespace FluidBenchTool
