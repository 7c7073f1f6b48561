# A room is a folder of sources with the include directories that it may use, and no others: an
# include that the architecture forbids doesn't compile. What lies in the folder belongs to the room.

add_library(FluidBenchBuildOptions INTERFACE)
# Without it some processors round a product and a sum at once, and files differ in the last digit.
target_compile_options(FluidBenchBuildOptions INTERFACE -ffp-contract=off)
target_compile_options(FluidBenchBuildOptions INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wnon-virtual-dtor -Wold-style-cast
    -Woverloaded-virtual -Wcast-qual -Wformat=2
    $<$<BOOL:${FLUIDBENCH_WARNINGS_AS_ERRORS}>:-Werror>)
if(NOT CMAKE_UNITY_BUILD) # there the names of one file are seen by the next
    target_compile_options(FluidBenchBuildOptions INTERFACE -Wshadow)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # It takes assignments of short literals to strings for overlapping copies when it optimises.
    target_compile_options(FluidBenchBuildOptions INTERFACE -Wno-restrict)
endif()
if(FLUIDBENCH_HARDENING AND NOT FLUIDBENCH_SANITIZE AND NOT WIN32)
    # What is built to be fast is what people run. Bounds that containers check take some 3 % more
    # instructions to read and write black oil, so they are for development, where they end the
    # program.
    set(optimised $<CONFIG:Release,RelWithDebInfo>)
    target_compile_options(FluidBenchBuildOptions INTERFACE
        $<${optimised}:-fstack-protector-strong>
        $<${optimised}:-U_FORTIFY_SOURCE> $<${optimised}:-D_FORTIFY_SOURCE=2>
        $<$<CONFIG:RelWithDebInfo>:-D_GLIBCXX_ASSERTIONS>)
    target_link_options(FluidBenchBuildOptions INTERFACE -Wl,-z,relro,-z,now)
endif()
if(FLUIDBENCH_SANITIZE)
    target_compile_options(FluidBenchBuildOptions INTERFACE
        -fsanitize=${FLUIDBENCH_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(FluidBenchBuildOptions INTERFACE -fsanitize=${FLUIDBENCH_SANITIZE})
endif()
if(FLUIDBENCH_LIBFUZZER)
    target_compile_options(FluidBenchBuildOptions INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(FluidBenchBuildOptions INTERFACE -fsanitize=fuzzer-no-link)
endif()

# fluidbench_room(NAME FOLDER [MAY_INCLUDE room_or_directory...])
#
# Makes the object library NAME from every source in FOLDER. MAY_INCLUDE names other targets, whose
# interface include directories become visible.
function(fluidbench_room name folder)
    cmake_parse_arguments(ROOM "" "" "MAY_INCLUDE" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp)
    add_library(${name} OBJECT ${sources})
    target_include_directories(${name} PUBLIC ${folder})
    target_link_libraries(${name} PRIVATE FluidBenchBuildOptions)
    target_link_libraries(${name} PUBLIC ${ROOM_MAY_INCLUDE})
endfunction()
