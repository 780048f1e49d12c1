# One target a folder: the link graph is the architecture.

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

# tolvek_ordner(NAME [target ...] [QT]): a static library of all sources below this folder (subfolders with a
# CMakeLists.txt of their own excepted), linked with the targets it may see; QT says that it is
# the one that knows the toolkit.
function(tolvek_ordner name)
  cmake_parse_arguments(PARSE_ARGV 1 ordner "QT" "" "")
  set(nachbarn ${ordner_UNPARSED_ARGUMENTS})
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
  elseif(name STREQUAL "platform")
    tolvek_vorab(${name})
  else()
    tolvek_vorab(${name} WIE platform)
  endif()
  if(nachbarn)
    target_link_libraries(${name} PUBLIC ${nachbarn})
  endif()
endfunction()
