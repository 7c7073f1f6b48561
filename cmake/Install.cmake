# find_package(FluidBenchIO) and one target, FluidBenchIO::FluidBenchIO.
include(CMakePackageConfigHelpers)

set(installed_targets FluidBenchIO FluidBenchBoundary)
if(FLUIDBENCH_CLOSED_LIBRARIES STREQUAL "FluidBenchSubstitute")
    list(APPEND installed_targets FluidBenchSubstitute)
endif()
install(TARGETS ${installed_targets} EXPORT FluidBenchIOTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY include/io DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/FluidBenchIO
    FILES_MATCHING PATTERN "*.h")
install(DIRECTORY boundary/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/FluidBenchIO
    FILES_MATCHING PATTERN "*.h")

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/FluidBenchIO)
install(EXPORT FluidBenchIOTargets NAMESPACE FluidBenchIO:: DESTINATION ${package_folder})
configure_package_config_file(cmake/FluidBenchIOConfig.cmake.in
    ${PROJECT_BINARY_DIR}/FluidBenchIOConfig.cmake INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/FluidBenchIOConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/FluidBenchIOConfig.cmake
    ${PROJECT_BINARY_DIR}/FluidBenchIOConfigVersion.cmake
    DESTINATION ${package_folder})
if(TARGET fluidbench-io)
    install(TARGETS fluidbench-io RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
