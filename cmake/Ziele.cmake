# One target a folder: the link graph is the architecture.

# Most presets (CMAKE_UNITY_BUILD) compile all files of a target as one, which takes half of the time; names that only one
# file should see must differ within a target for that. `entwicklung` and the packages compile file by file; that no file
# includes too little for that, a house rule sees (tests/architektur/einbindung.py).
set(CMAKE_UNITY_BUILD_BATCH_SIZE 0)

set(TOLVEK_WARNUNGEN -Wall -Wextra -Wpedantic -Wconversion)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees overlapping copies inside std::string that are none
  list(APPEND TOLVEK_WARNUNGEN -Wno-restrict)
endif()
if(TOLVEK_WARNUNG_IST_FEHLER)
  list(APPEND TOLVEK_WARNUNGEN -Werror)
endif()

if(WIN32)
  # Windows 10 and later, wide characters
  add_compile_definitions(NOMINMAX WIN32_LEAN_AND_MEAN UNICODE _UNICODE _WIN32_WINNT=0x0A00)
endif()

# tolvek_ordner(NAME ZWECK "what it is for" [UEBER target ...] [QT]): a static library of all sources below this folder
# (subfolders with a CMakeLists.txt of their own excepted), linked with the targets that it stands over and may include;
# what those may include, it may too. QT says that it is the one that knows the toolkit. The purpose is one line of the
# picture in docs/guide.md.
function(tolvek_ordner name)
  cmake_parse_arguments(PARSE_ARGV 1 ordner "QT" "ZWECK" "UEBER")
  file(GLOB_RECURSE quellen CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  file(GLOB_RECURSE unterziele ${CMAKE_CURRENT_SOURCE_DIR}/*/CMakeLists.txt)
  foreach(unterziel ${unterziele})
    get_filename_component(ordner ${unterziel} DIRECTORY)
    list(FILTER quellen EXCLUDE REGEX "^${ordner}/")
  endforeach()
  if(WIN32)
    list(FILTER quellen EXCLUDE REGEX "_posix\\.cpp$")
  else()
    list(FILTER quellen EXCLUDE REGEX "_windows\\.cpp$")
  endif()
  add_library(${name} STATIC ${quellen})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_compile_options(${name} PRIVATE ${TOLVEK_WARNUNGEN})
  if(ordner_QT)
    tolvek_vorab(${name} QT)
  elseif(name STREQUAL "platform_text")
    tolvek_vorab(${name})
  else()
    tolvek_vorab(${name} WIE platform_text)
  endif()
  target_link_libraries(${name} PUBLIC ${ordner_UEBER})
  tolvek_hausteil(${name} "${ordner_ZWECK}")
endfunction()

# tolvek_hausteil(TARGET PURPOSE): the target belongs to the house, so its includes are held to its links.
function(tolvek_hausteil name zweck)
  set_property(GLOBAL APPEND PROPERTY TOLVEK_HAUS ${name})
  set_target_properties(${name} PROPERTIES TOLVEK_ZWECK "${zweck}")
endfunction()

# Writes the link graph for tests/architektur: a line a target, "target|folder below src|links|purpose", as CMake has it
# when all folders have been read. Links to what is not of the house (libraries of others) are left out.
function(tolvek_schreibe_haus datei)
  get_property(haus GLOBAL PROPERTY TOLVEK_HAUS)
  set(zeilen "")
  foreach(ziel ${haus})
    get_target_property(ordner ${ziel} SOURCE_DIR)
    file(RELATIVE_PATH ordner ${PROJECT_SOURCE_DIR}/src ${ordner})
    get_target_property(zweck ${ziel} TOLVEK_ZWECK)
    get_target_property(nachbarn ${ziel} LINK_LIBRARIES)
    set(unten "")
    foreach(nachbar ${nachbarn})
      if(nachbar IN_LIST haus)
        string(APPEND unten " ${nachbar}")
      endif()
    endforeach()
    string(STRIP "${unten}" unten)
    string(APPEND zeilen "${ziel}|${ordner}|${unten}|${zweck}\n")
  endforeach()
  file(WRITE ${datei} "${zeilen}")
endfunction()
