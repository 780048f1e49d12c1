# What makes a program of Windows: icon, version, manifest, and the parts of a static Qt that are found by name at run time.

if(TOLVEK_QT)
  # the German texts that Debian has for this Qt, inside the program
  set(TOLVEK_UEBERSETZUNG_QRC ${CMAKE_BINARY_DIR}/uebersetzung.qrc)
  configure_file(/usr/share/qt6/translations/qtbase_de.qm ${CMAKE_BINARY_DIR}/qtbase_de.qm COPYONLY)
  file(WRITE ${TOLVEK_UEBERSETZUNG_QRC}.neu
       "<RCC><qresource prefix=\"/uebersetzung\"><file>qtbase_de.qm</file></qresource></RCC>\n")
  configure_file(${TOLVEK_UEBERSETZUNG_QRC}.neu ${TOLVEK_UEBERSETZUNG_QRC} COPYONLY)
endif()

option(TOLVEK_RASCH_GEBUNDEN "Link by lld" OFF)
if(TOLVEK_RASCH_GEBUNDEN)
  # GNU's linker looks for the section of each symbol from the first one on, half a minute for the unit tests alone; lld
  # does not. The packages are linked by the one that belongs to the compiler.
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-libgcc-file-name OUTPUT_VARIABLE libgcc OUTPUT_STRIP_TRAILING_WHITESPACE)
  get_filename_component(ordner ${libgcc} DIRECTORY)
  set(CMAKE_CXX_LINK_EXECUTABLE "clang++ --target=x86_64-w64-mingw32 -fuse-ld=lld -L${ordner} <CMAKE_CXX_LINK_FLAGS> <LINK_FLAGS> \
<OBJECTS> -o <TARGET> <LINK_LIBRARIES> -lstdc++ -lwinpthread")
endif()

# tolvek_windowsprogramm(TARGET): the program that people start.
function(tolvek_windowsprogramm ziel)
  set(TOLVEK_ICO ${CMAKE_CURRENT_BINARY_DIR}/tolvek7.ico)
  set(TOLVEK_MANIFEST ${PROJECT_SOURCE_DIR}/paket/windows/tolvek7.manifest)
  set(bilder ${PROJECT_SOURCE_DIR}/src/platform/qt/bilder/zeichen)
  file(GLOB zeichen CONFIGURE_DEPENDS ${bilder}/tolvek7-*.png)
  add_custom_command(OUTPUT ${TOLVEK_ICO} COMMAND python3 -B ${PROJECT_SOURCE_DIR}/paket/windows/ico.py ${TOLVEK_ICO} ${zeichen}
                     DEPENDS ${zeichen} ${PROJECT_SOURCE_DIR}/paket/windows/ico.py)
  configure_file(${PROJECT_SOURCE_DIR}/paket/windows/tolvek7.rc.in ${CMAKE_CURRENT_BINARY_DIR}/tolvek7.rc @ONLY)
  set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/tolvek7.rc PROPERTIES OBJECT_DEPENDS "${TOLVEK_ICO};${TOLVEK_MANIFEST}")
  target_sources(${ziel} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/tolvek7.rc)
  # the linker writes no time into the program, so that two builds give the same bytes
  target_link_options(${ziel} PRIVATE -Wl,--no-insert-timestamp)
  tolvek_qt_teile(${ziel} QWindowsIntegrationPlugin)
endfunction()

# tolvek_qt_teile(TARGET PLATFORM): the parts of a static Qt that are found by name: its windows, on the system's screen
# (QWindowsIntegrationPlugin) or on none (QOffscreenIntegrationPlugin).
function(tolvek_qt_teile ziel fenster)
  qt_import_plugins(${ziel} INCLUDE Qt6::${fenster} INCLUDE_BY_TYPE platforms Qt6::${fenster}
                    EXCLUDE_BY_TYPE imageformats styles)
endfunction()
