// A keyword deck in a file.
#pragma once

#include "Visibility.h"

#include <cstdint>
#include <string>

namespace Orv::Kes::KesModel {

/// A deck: a text file of keywords and their data, and the files that it includes.
///
/// The stand-in's deck remembers its file and no more. What the deck holds is found out when the
/// interpreter asks for keywords, because only then it is known which ones matter; so a bad deck
/// fails in `KesFluidModel::createFromKeywords`. docs/formats/deck.md tells the deck's syntax.
class FLUIDBENCH_BOUNDARY_API Deck {
public:
    /// Units of the deck's numbers. The stand-in leaves numbers as they are.
    enum UnitSystem : std::int32_t { AS_IN_FILE = 0 };

    /// The last argument matters to the closed library alone.
    Deck(const std::string& fileName, UnitSystem unitSystem, bool flag);
    ~Deck();
    Deck(const Deck&) = delete;
    Deck& operator=(const Deck&) = delete;

    // The stand-in's own operation.

    /// As given when the deck was made; valid as long as the deck.
    const std::string& getFileName() const;

private:
    std::string fileName_;
};

} // namespace Orv::Kes::KesModel
