// Marks what the closed libraries export. Their types cross the border of shared libraries in both
// directions (values, virtual calls, exceptions), so every class with a vtable or type information
// of its own has to be the same one on both sides.
#pragma once

#if defined(__GNUC__)
#define FLUIDBENCH_BOUNDARY_API __attribute__((visibility("default")))
#else
#define FLUIDBENCH_BOUNDARY_API
#endif
