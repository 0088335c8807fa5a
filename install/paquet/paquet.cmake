# What `make package` makes: a .deb for the whole machine and a .tar.gz of the portable folder.

set(TALOR_REVISION 1 CACHE STRING "Revision of the package; raise it for each one that is given out")

set(CPACK_PACKAGE_NAME talor)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "TALOR <talor@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "comptes d'un mandataire en poissons")
set(CPACK_PACKAGE_DESCRIPTION
"TALOR tient les comptes d'un mandataire à la criée : ventes par bordereau,
factures des acheteurs, casiers consignés, fiches des bateaux, des armateurs,
des poissons et des clients.")
set(CPACK_OUTPUT_FILE_PREFIX ${CMAKE_SOURCE_DIR}/paquets)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB TGZ)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${TALOR_REVISION})
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What no library names: the French texts of the standard dialogs, and the letters of the documents.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "qt6-translations-l10n, fonts-liberation | fonts-liberation2, fonts-dejavu-core")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "evince | pdf-viewer, cups")

# Each kind of package takes its own component.
set(CPACK_CMAKE_BUILD ${CMAKE_BINARY_DIR})
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_LIST_DIR}/composants.cmake)
include(CPack)
