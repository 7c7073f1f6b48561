// The simulators whose decks the deck model knows.
#pragma once

#include <cstdint>

namespace Orv::Kes::Core::Keywords {

/// Holds the enumeration.
struct SimulatorType {
    /// The I/O library knows one simulator, and that one by its number.
    enum Enum : std::int32_t { COMPOSITIONAL_FLUID_DECKS = 11 };
};

} // namespace Orv::Kes::Core::Keywords
