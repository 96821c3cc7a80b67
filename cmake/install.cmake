# What `cmake --install` puts where, and the Debian package that `cpack` makes of it.
include(GNUInstallDirs)

install(TARGETS kurvo kurvo-arac RUNTIME)

if(UNIX AND NOT APPLE)
  set(id org.kurvo.Kurvo)
  set(packaging ${PROJECT_SOURCE_DIR}/packaging)
  set(guides ${CMAKE_INSTALL_DATADIR}/doc/kurvo)
  install(PROGRAMS ${packaging}/linux/kurvo-baslat TYPE BIN)
  install(FILES ${packaging}/linux/${id}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${packaging}/linux/${id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES ${packaging}/icons/kurvo.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps RENAME ${id}.svg)
  foreach(size 16 24 32 48 64 128 256)
    install(FILES ${packaging}/icons/kurvo-${size}.png
      DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps RENAME ${id}.png)
  endforeach()
  install(DIRECTORY ${packaging}/man/ DESTINATION ${CMAKE_INSTALL_MANDIR})
  set(KURVO_CONTACT "Kurvo <destek@kurvo.example>" CACHE STRING "Name and address of who answers for the package")
  configure_file(${packaging}/copyright.in ${PROJECT_BINARY_DIR}/copyright @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/copyright DESTINATION ${guides})
  # The guides for those who use it and set it up; not what developers measure.
  install(DIRECTORY docs/ DESTINATION ${guides} PATTERN benchmarks.md EXCLUDE)

  include(${packaging}/debian/package.cmake)
endif()
