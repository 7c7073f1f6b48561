// Marks the classes that the shared library exports; everything else in it is hidden.
#pragma once

#if defined(_WIN32)
#if defined(FLUIDBENCH_IO_BUILDING)
#define FLUIDBENCH_IO_API __declspec(dllexport)
#else
#define FLUIDBENCH_IO_API __declspec(dllimport)
#endif
#elif defined(__GNUC__)
#define FLUIDBENCH_IO_API __attribute__((visibility("default")))
#else
#define FLUIDBENCH_IO_API
#endif
