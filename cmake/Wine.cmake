# Tests of a Windows build, run by wine on the machine that builds.

# GoogleTest comes as source with Debian's package; compiled by the cross compiler in the build tree.
set(INSTALL_GTEST OFF)
set(BUILD_GMOCK OFF)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)

set(TOLVEK_WINE ${PROJECT_SOURCE_DIR}/tests/windows/wine.sh ${CMAKE_BINARY_DIR}/wine)
add_test(NAME wine-einrichten COMMAND ${TOLVEK_WINE} --einrichten)
add_test(NAME wine-beenden COMMAND ${TOLVEK_WINE} --beenden)
set_tests_properties(wine-einrichten PROPERTIES FIXTURES_SETUP wine LABELS wine TIMEOUT 120)
set_tests_properties(wine-beenden PROPERTIES FIXTURES_CLEANUP wine LABELS wine)

# tolvek_wine(NAME PROGRAM [argument ...]): a test that runs the program by wine.
function(tolvek_wine name programm)
  add_test(NAME wine-${name} COMMAND ${TOLVEK_WINE} $<TARGET_FILE:${programm}> ${ARGN})
  set_tests_properties(wine-${name} PROPERTIES FIXTURES_REQUIRED wine LABELS wine TIMEOUT 600)
endfunction()
