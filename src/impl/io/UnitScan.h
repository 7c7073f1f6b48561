// The search of a deck's text for its unit system.
#pragma once

#include "TextInput.h"

#include <cstddef>
#include <istream>
#include <optional>
#include <string_view>

namespace Orv::FluidBench::Impl::IO {

/// Two things tell the system, and the first of them in the text decides:
///
///     FILEUNIT          with METRIC or FIELD on the line behind it
///
///     --Units: K        on the line ahead of TCRIT: K or R
///     TCRIT
///
/// The words count wherever they stand in a line of any length, also in a comment. Of two words on
/// one line it is R ahead of K, and METRIC ahead of FIELD.
///
/// Holds a few blocks of the text, whatever the lengths of its lines. The stream belongs to the
/// caller and outlives the object. For one search.
class UnitScan {
public:
    explicit UnitScan(std::istream& stream) : input_(stream) {}

    /// Whether the units are metric; nothing where the text doesn't tell, or can't be read on.
    std::optional<bool> FindMetric();

private:
    // What a line has in it.
    struct Words {
        bool tcrit = false, fileUnit = false;
        bool unitsR = false, unitsK = false;
        bool metric = false, field = false;
    };

    static void Look(std::string_view text, Words& words);
    bool ReadLine(Words& words);
    void PassPlainLines();
    bool ReadMore(std::size_t size);

    Text::TextInput input_;
};

} // namespace Orv::FluidBench::Impl::IO
