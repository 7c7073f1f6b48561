// Which keywords count.
#pragma once

#include "Kes/Core/DeckManager/KeywordIterator.h"
#include "Visibility.h"

#include <string>

namespace Orv::Kes::KesModel {

/// Admits keywords or doesn't. The interpreter passes over those that aren't admitted.
class FLUIDBENCH_BOUNDARY_API IKeywordValidator {
public:
    /// Whether the keyword of that name, or under that iterator, counts.
    virtual bool isValidKeyword(const std::string& name) const = 0;
    virtual bool isValidKeyword(const Core::DeckManager::KeywordIterator& keyword) const = 0;
    virtual ~IKeywordValidator() = default;

protected:
    IKeywordValidator() = default;
    IKeywordValidator(const IKeywordValidator&) = default;
    IKeywordValidator& operator=(const IKeywordValidator&) = default;
};

/// The keywords of fluids.
class FLUIDBENCH_BOUNDARY_API IFluidsKeywordValidator : public IKeywordValidator {};

} // namespace Orv::Kes::KesModel
