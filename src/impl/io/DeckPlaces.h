// Which keyword of a deck a step of an import is at, and where that stands.
#pragma once

#include "Diagnostics.h"

#include <string>
#include <string_view>

namespace Orv::Kes::KesModel {
class KeywordTracker;
}

namespace Orv::FluidBench::Impl::IO {

/// Tells diagnostics about values that a deck's keywords gave, with the keyword and its place. The
/// tracker and the diagnostics outlive the object.
class DeckPlaces {
public:
    DeckPlaces(const Kes::KesModel::KeywordTracker& tracker, Diagnostics& diagnostics,
               std::string fileName);

    /// What follows is about a value of that keyword; the name lives as long as the program.
    void GoTo(std::string_view keyword) noexcept { keyword_ = keyword; }

    /// The same for the fractions: of the keywords that give them, the one that was read last.
    void GoToFractions();

    /// Tells a sentence about the keyword, which it then begins with; a full stop may lack.
    void Tell(const DiagnosticKind& kind, std::string sentence) const;

private:
    const Kes::KesModel::KeywordTracker& tracker_;
    Diagnostics& diagnostics_;
    std::string fileName_;
    std::string_view keyword_;
};

} // namespace Orv::FluidBench::Impl::IO
