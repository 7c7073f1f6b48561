// The sections of a deck that hold one value, or one row of values, per component.
//
//     --Units: bar        only where the quantity has a unit
//     PCRIT
//     --
//     45.99               one line per component
//     48.72
//     /
//     --
#pragma once

#include "FluidBench/Model/CompositionalFluid.h"
#include "FluidBench/Model/FluidComponent.h"

#include <cstddef>
#include <ostream>
#include <vector>

namespace Orv::FluidBench::IO {

using Components = std::vector<Model::FluidComponent>;

// Each writes its whole sections. `n` is the number of components, which `components`, and the
// names of `fluid`, have in the same order. Where `metric` is an argument, it selects the unit.

/// NCOMPS and CNAMES. Names lose their blanks, which a deck's names can't have.
void WriteComponentNames(std::ostream& deck, const Model::CompositionalFluid& fluid, std::size_t n);
/// MW.
void WriteMolecularWeights(std::ostream& deck, const Components& components, std::size_t n);
/// OMEGAA and OMEGAB.
void WriteOmegas(std::ostream& deck, const Components& components, std::size_t n);
/// TCRIT.
void WriteCriticalTemperatures(std::ostream& deck, const Components& components, std::size_t n,
                               bool metric);
/// PCRIT.
void WriteCriticalPressures(std::ostream& deck, const Components& components, std::size_t n,
                            bool metric);
/// VCRIT.
void WriteCriticalVolumes(std::ostream& deck, const Components& components, std::size_t n,
                          bool metric);
/// ZCRIT.
void WriteCriticalZFactors(std::ostream& deck, const Components& components, std::size_t n);
/// SSHIFT at `reservoirTemperature` in K, for an equation of state with a volume shift; nothing for
/// the others.
void WriteVolumeShifts(std::ostream& deck, const Model::CompositionalFluid& fluid,
                       double reservoirTemperature, const Components& components, std::size_t n);
/// ACF.
void WriteAcentricFactors(std::ostream& deck, const Components& components, std::size_t n);
/// BIC: the lower triangle of the interaction matrix without its diagonal, row by row. A row starts
/// on a line of its own and takes as many lines as it needs.
void WriteBinaryInteractions(std::ostream& deck, const Model::CompositionalFluid& fluid,
                             std::size_t n);
/// PARACHOR.
void WriteParachors(std::ostream& deck, const Components& components, std::size_t n);
/// VCRITVIS, LBCCOEF and ZI, the end of the deck. The coefficients of LBCCOEF are there only for
/// the Lohrenz-Bray-Clark correlation.
void WriteViscosityAndComposition(std::ostream& deck, const Model::CompositionalFluid& fluid,
                                  const Components& components, std::size_t n, bool metric);

} // namespace Orv::FluidBench::IO
