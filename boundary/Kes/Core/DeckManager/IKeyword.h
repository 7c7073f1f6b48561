// One keyword of a deck.
#pragma once

#include "Visibility.h"

#include <string>

namespace Orv::Kes::Core::DeckManager {

/// A keyword by its name. The I/O library asks for nothing else of it.
class FLUIDBENCH_BOUNDARY_API IKeyword {
public:
    /// Valid as long as the keyword.
    virtual const std::string& getName() const = 0;
    virtual ~IKeyword() = default;

protected:
    IKeyword() = default;
    IKeyword(const IKeyword&) = default;
    IKeyword& operator=(const IKeyword&) = default;
};

} // namespace Orv::Kes::Core::DeckManager
