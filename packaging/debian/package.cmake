# The Debian package: `cpack` in a build folder.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kurvo)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${KURVO_CONTACT})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/house_rules.cmake)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "student affairs of a tutoring school
Kurvo finds a student by number, list or name, shows card and debt, plans
instalments, takes payments and prints receipts, invoices, contracts and
promissory notes. It keeps absences, study sessions, notes and photographs.
Several workstations work on one shared folder without a server.

Everything on its screens and papers is Turkish. kurvo-arac sets a school up,
checks it, backs it up and starts the program.")

# The libraries are found by dpkg-shlibdeps. Papers are laid out with the widths of the Liberation fonts.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-liberation)
# Turkish words of Qt's own dialogs, Wayland windows, pictures of a camera, a printer, and a window for refusals.
string(JOIN ", " CPACK_DEBIAN_PACKAGE_RECOMMENDS
  qt6-translations-l10n qt6-wayland gstreamer1.0-plugins-good cups "zenity | kdialog | libnotify-bin")

include(CPack)
