# Run by CPack on the tree that becomes the package: what Debian asks for beyond what an installation needs.
set(share ${CPACK_TEMPORARY_DIRECTORY}/usr/share)
set(KURVO_CONTACT ${CPACK_PACKAGE_CONTACT})
configure_file(${CMAKE_CURRENT_LIST_DIR}/changelog ${share}/doc/kurvo/changelog @ONLY)
file(CHMOD ${share}/doc/kurvo/changelog PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
file(GLOB_RECURSE pages ${share}/man/*.1)
execute_process(COMMAND gzip -9nf ${pages} ${share}/doc/kurvo/changelog COMMAND_ERROR_IS_FATAL ANY)
