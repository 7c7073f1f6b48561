// The interpreter of a deck's fluid keywords.
#pragma once

#include "Visibility.h"

namespace Orv::Kes::SimFluid {
class IFluidModels;
}

namespace Orv::Kes::KesModel {

class Deck;
class IFluidsKeywordValidator;
class KesGridModel;
class KeywordTracker;

/// Turns keywords into calls on a store.
class FLUIDBENCH_BOUNDARY_API KesFluidModel {
public:
    /// The store has to outlive the object.
    explicit KesFluidModel(SimFluid::IFluidModels& models);
    ~KesFluidModel();
    KesFluidModel(const KesFluidModel&) = delete;
    KesFluidModel& operator=(const KesFluidModel&) = delete;

    /// Interprets the deck's fluid keywords, as far as the validator admits them; without a
    /// validator every keyword that the interpreter knows. The store then has one compositional
    /// model more. The grid may be null, and the tracker too.
    ///
    /// Throws what derives from `std::exception` for a deck that can't be interpreted, with the
    /// reason as its text, and tells it to the current logger as an error. The store may have been
    /// written to by then. Keywords that are passed over are told to the logger as `Debug`; what
    /// may mean something else than it seems to is told as `Warning`. The stand-in tells all of it
    /// to the `ThreadListener` of this thread too.
    void createFromKeywords(const Deck& deck, const KesGridModel* grid, KeywordTracker* tracker,
                            const IFluidsKeywordValidator* validator);

private:
    SimFluid::IFluidModels& models_;
};

} // namespace Orv::Kes::KesModel
