// Units of what is shown.
#pragma once

namespace FluidBenchTool {

/// The unit of a number by its name, and the way there from the model's unit.
struct ShownUnit {
    const char* name = "";
    double (*convert)(double) = [](double value) { return value; };
};

} // namespace FluidBenchTool
