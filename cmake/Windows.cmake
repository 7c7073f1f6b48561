# One folder with everything: on Windows a program finds its libraries beside itself, those of the
# compiler among them.
set(runtime_libraries)
foreach(name libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
        OUTPUT_VARIABLE library OUTPUT_STRIP_TRAILING_WHITESPACE)
    list(APPEND runtime_libraries ${library})
endforeach()
file(COPY ${runtime_libraries} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY} FOLLOW_SYMLINK_CHAIN)
install(FILES ${runtime_libraries} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT library)
