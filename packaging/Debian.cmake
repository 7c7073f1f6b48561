# The Debian package: `cpack --preset package`. One package has all of it, as long as nobody needs
# the program without the headers.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME fluidbench-io)
set(CPACK_PACKAGE_VENDOR "FluidBench I/O developers")
set(CPACK_PACKAGE_CONTACT "FluidBench I/O developers <fluidbench-io@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "files of reservoir fluids: library and command-line program")
set(CPACK_PACKAGE_DESCRIPTION_FILE ${CMAKE_CURRENT_SOURCE_DIR}/description.txt)
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/Compress.cmake)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# What the programs need is found from what they link; the project's own libraries are among the
# files of the package.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
# Tells packages of programs that link the libraries which package they come from, and has the system
# look for the libraries when the package comes or goes.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
if(TARGET FluidBenchPython)
    get_target_property(python_packages FluidBenchPython FLUIDBENCH_DEBIAN_PACKAGES)
    set(CPACK_DEBIAN_PACKAGE_DEPENDS ${python_packages})
    set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA
        ${CMAKE_CURRENT_SOURCE_DIR}/debian/postinst ${CMAKE_CURRENT_SOURCE_DIR}/debian/prerm)
endif()
include(CPack)
