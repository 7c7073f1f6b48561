// Marks what the closed libraries export. Their types cross the border of shared libraries in both
// directions (values, virtual calls, exceptions), so every class with a vtable or type information
// of its own has to be the same one on both sides. A member template that one side instantiates for
// itself alone is marked local.
#pragma once

#if defined(__GNUC__)
#define FLUIDBENCH_BOUNDARY_API __attribute__((visibility("default")))
#define FLUIDBENCH_BOUNDARY_LOCAL __attribute__((visibility("hidden")))
#else
#define FLUIDBENCH_BOUNDARY_API
#define FLUIDBENCH_BOUNDARY_LOCAL
#endif
