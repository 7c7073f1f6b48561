# find_package(FluidBenchIO) and one target, FluidBenchIO::FluidBenchIO.
include(CMakePackageConfigHelpers)

set(installed_targets FluidBenchIO FluidBenchBoundary)
if(FLUIDBENCH_CLOSED_LIBRARIES STREQUAL "FluidBenchSubstitute")
    list(APPEND installed_targets FluidBenchSubstitute)
endif()
install(TARGETS ${installed_targets} EXPORT FluidBenchIOTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT library
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(DIRECTORY include/io DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/FluidBenchIO
    COMPONENT development FILES_MATCHING PATTERN "*.h")
install(DIRECTORY boundary/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/FluidBenchIO
    COMPONENT development FILES_MATCHING PATTERN "*.h")

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/FluidBenchIO)
install(EXPORT FluidBenchIOTargets NAMESPACE FluidBenchIO:: DESTINATION ${package_folder}
    COMPONENT development)
configure_package_config_file(cmake/FluidBenchIOConfig.cmake.in
    ${PROJECT_BINARY_DIR}/FluidBenchIOConfig.cmake INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/FluidBenchIOConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/FluidBenchIOConfig.cmake
    ${PROJECT_BINARY_DIR}/FluidBenchIOConfigVersion.cmake
    DESTINATION ${package_folder} COMPONENT development)
if(TARGET fluidbench-io)
    install(TARGETS fluidbench-io RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tool)
endif()
