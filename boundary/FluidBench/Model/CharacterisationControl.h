// What a characterisation should do.
#pragma once

#include "Visibility.h"

namespace Orv::FluidBench::Model {

/// Its defaults are all that the I/O library uses.
class FLUIDBENCH_BOUNDARY_API CharacterisationControl {
public:
    CharacterisationControl();
    ~CharacterisationControl();
};

} // namespace Orv::FluidBench::Model
