// Whether a fluid that was read has what a fluid needs.
#pragma once

#include "DeckIndex.h"
#include "DeckLog.h"
#include "Kes/SimFluid/ICompositionalModel.h"

namespace Orv::Kes::KesModel {

/// Tells the log of properties that no component or not every component has, and of fractions that
/// aren't those of a fluid. A fluid without components needs nothing.
void CheckFluid(const SimFluid::ICompositionalModel& model, const DeckIndex& index, DeckLog& log);

} // namespace Orv::Kes::KesModel
