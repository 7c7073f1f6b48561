// What the keywords of a compositional fluid mean.
#pragma once

#include "DeckIndex.h"
#include "DeckLog.h"
#include "Kes/SimFluid/IFluidModels.h"

#include <cstddef>

namespace Orv::Kes::KesModel {

class IFluidsKeywordValidator;

/// n components have n (n - 1) / 2 coefficients, and a repeat count makes them out of a few
/// characters: without a bound a short deck could ask for any amount of memory.
inline constexpr std::size_t mostComponents = 2048;

/// Numbers in a table of compositions against depth, for the same reason.
inline constexpr std::size_t mostTableNumbers = std::size_t{1} << 22;

/// The keywords that the interpreter knows, as far as the validator admits those of fluids; all of
/// them without a validator, which otherwise outlives the result.
DeckVocabulary VocabularyOf(const IFluidsKeywordValidator* validator);

/// Reads the data of the deck's keywords into a new compositional model of the store.
///
/// The number of components is the number of names under CNAMES. Every keyword with a number for
/// each component gives them in that order; a defaulted number (2*) leaves the property unset. Of a
/// keyword with several records, one for each region, the first counts. The log is told of what a
/// fluid should have and this one lacks.
///
/// Throws `KeywordError` for data that don't fit, and lets pass what the store throws.
void InterpretFluid(const DeckIndex& index, SimFluid::IFluidModels& models, DeckLog& log);

} // namespace Orv::Kes::KesModel
