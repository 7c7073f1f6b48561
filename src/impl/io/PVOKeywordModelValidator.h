// The keywords of a deck that count for the import of a fluid.
#pragma once

#include "Kes/KesModel/IModelKeywordValidator.h"

#include <memory>

namespace Orv::FluidBench::Impl::IO {

/// Holds four validators, of which only the one for fluids exists; it owns what it gives. The
/// fluids validator admits a name that stands in its table to the letter, and nothing else.
class PVOKeywordModelValidator : public Kes::KesModel::IModelKeywordValidator {
public:
    PVOKeywordModelValidator();
    ~PVOKeywordModelValidator() override;
    PVOKeywordModelValidator(const PVOKeywordModelValidator&) = delete;
    PVOKeywordModelValidator& operator=(const PVOKeywordModelValidator&) = delete;

    const Kes::KesModel::IKeywordValidator* getKeywordValidator1() const override;
    const Kes::KesModel::IKeywordValidator* getKeywordValidator2() const override;
    const Kes::KesModel::IFluidsKeywordValidator* getFluidsKeywordValidator() const override;
    const Kes::KesModel::IKeywordValidator* getKeywordValidator4() const override;

private:
    const Kes::KesModel::IKeywordValidator* validator1 = nullptr;
    const Kes::KesModel::IKeywordValidator* validator2 = nullptr;
    std::unique_ptr<Kes::KesModel::IFluidsKeywordValidator> fluidsValidator;
    const Kes::KesModel::IKeywordValidator* validator4 = nullptr;
};

} // namespace Orv::FluidBench::Impl::IO
