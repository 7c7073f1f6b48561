// A place among the keywords of a deck.
#pragma once

#include "Kes/Core/DeckManager/IKeyword.h"
#include "Visibility.h"

namespace Orv::Kes::Core::DeckManager {

/// Points to a keyword that somebody else owns.
class FLUIDBENCH_BOUNDARY_API KeywordIterator {
public:
    /// The keyword under the iterator.
    const IKeyword* operator*() const;

    // The stand-in's own operation.

    /// An iterator to one keyword, which has to outlive it.
    explicit KeywordIterator(const IKeyword& keyword);

private:
    const IKeyword* keyword_;
};

} // namespace Orv::Kes::Core::DeckManager
