// Small services of the toolbox about text.
#pragma once

#include "Visibility.h"

#include <string>

namespace Orv::FluidBench::Utilities {

/// Static operations only.
class FLUIDBENCH_BOUNDARY_API Strings {
public:
    /// Removes every blank from `text`, in place. Other white space stays.
    static void RemoveAllSpaces(std::string& text);
};

} // namespace Orv::FluidBench::Utilities
