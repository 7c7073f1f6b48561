# For 64-bit Windows with Debian's MinGW-w64. What it builds runs under Wine as well.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix) # of GoogleTest alone
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The package wine64 by itself puts no command in the search path. A UTF-8 locale has the program
# get its words whole.
find_program(WINE NAMES wine64 wine PATHS /usr/lib/wine)
if(WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR env LC_ALL=C.UTF-8 WINEDEBUG=-all ${WINE})
endif()
