# What an installation holds, and how CPack makes the Debian package of it. `packe.sh` writes the accompanying files
# (icons, manual, handbook, change log) before it calls CPack.
install(TARGETS tolvek7 RUNTIME DESTINATION bin)
install(FILES anweisungen/eKernAnweisung.txt anweisungen/eDiagAnweisung.txt DESTINATION share/tolvek7)
install(DIRECTORY docs/handbuch/ DESTINATION share/tolvek7/Handbuch) # what F1 shows
install(DIRECTORY ${PROJECT_BINARY_DIR}/paket/beilagen/usr/share/ DESTINATION share)

# the packages are made of what is built, without building tests first
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                                WORLD_READ WORLD_EXECUTE)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tolvek7)
set(CPACK_PACKAGE_VENDOR "Tolvek7")
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/herkunft.sh kontakt REGEX "^kontakt=")
string(REGEX REPLACE "^kontakt=\"(.*)\"$" "\\1" CPACK_PACKAGE_CONTACT "${kontakt}")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "documentation for counselling facilities of addiction help")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# the German texts of the toolkit's own buttons
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-translations-l10n")
# the workbook, screens without X, the handbook from the menu
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libreoffice-calc, qt6-qpa-plugins, xdg-utils")
# CPack indents the lines by itself
string(CONCAT CPACK_DEBIAN_PACKAGE_DESCRIPTION
              "Tolvek7 keeps the clients of one counselling facility, their care episodes, and\n"
              "per episode measures, social situation, diagnoses, consumption and outcome. It\n"
              "writes the yearly German core data set (KDS) and a workbook for the facility's\n"
              "own statistics.\n"
              ".\n"
              "One person, one desktop, no network: the records stay in three text tables in\n"
              "the person's own folder, readable by their owner alone. It speaks German.")
include(CPack)
