# Compresses what Debian packages have compressed, before a package is made of its folder.
set(shared ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share)
file(RENAME ${shared}/doc/fluidbench-io/CHANGELOG.md ${shared}/doc/fluidbench-io/changelog)
file(GLOB texts ${shared}/man/man*/* ${shared}/doc/*/changelog)
execute_process(COMMAND gzip --best --no-name ${texts} COMMAND_ERROR_IS_FATAL ANY)
