# Tests of a Windows build, run by wine on the machine that builds.

# GoogleTest comes as source with Debian's package; compiled by the cross compiler in the build tree.
set(INSTALL_GTEST OFF)
set(BUILD_GMOCK OFF)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)

# tolvek_wine_heim(HOME): a home of wine's, made before the tests that need it and ended after them.
function(tolvek_wine_heim heim)
  add_test(NAME ${heim}-einrichten COMMAND ${TOLVEK_WINE} ${CMAKE_BINARY_DIR}/${heim} --einrichten)
  add_test(NAME ${heim}-beenden COMMAND ${TOLVEK_WINE} ${CMAKE_BINARY_DIR}/${heim} --beenden)
  set_tests_properties(${heim}-einrichten PROPERTIES FIXTURES_SETUP ${heim} LABELS wine TIMEOUT 120)
  set_tests_properties(${heim}-beenden PROPERTIES FIXTURES_CLEANUP ${heim} LABELS wine)
endfunction()

set(TOLVEK_WINE ${PROJECT_SOURCE_DIR}/tests/windows/wine.sh)
tolvek_wine_heim(wine)
if(TOLVEK_QT)
  tolvek_wine_heim(wine-fenster)
endif()

# tolvek_wine(NAME PROGRAM [argument ...]): a test that runs the program by wine, without a screen.
function(tolvek_wine name programm)
  add_test(NAME wine-${name} COMMAND ${TOLVEK_WINE} ${CMAKE_BINARY_DIR}/wine $<TARGET_FILE:${programm}> ${ARGN})
  set_tests_properties(wine-${name} PROPERTIES FIXTURES_REQUIRED wine LABELS wine TIMEOUT 1200)
endfunction()

# tolvek_wine_fenster(NAME SCRIPT): a test that works in real windows of the program, as tests/bedienung does. These have
# a home of their own: wine decides once whether there is a screen.
function(tolvek_wine_fenster name skript)
  add_test(NAME wine-${name} COMMAND ${TOLVEK_PYTHON} -B ${skript} $<TARGET_FILE:tolvek7> $<TARGET_FILE:szenario>)
  set_tests_properties(wine-${name} PROPERTIES FIXTURES_REQUIRED wine-fenster LABELS wine TIMEOUT 600 RESOURCE_LOCK wine-fenster
                       ENVIRONMENT "TOLVEK_STARTER=${TOLVEK_WINE} ${CMAKE_BINARY_DIR}/wine-fenster")
endfunction()
