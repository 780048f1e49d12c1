# Cross-compiling for Windows. The compilers with POSIX threads: with the others the standard library has none.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
# TOLVEK_WINDOWS_QT is the folder that werkzeug/windows_qt.sh has made
file(GLOB wirtsqt /usr/lib/*/cmake/Qt6HostInfo)
get_filename_component(QT_HOST_PATH_CMAKE_DIR "${wirtsqt}" DIRECTORY)
set(QT_HOST_PATH /usr)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TOLVEK_WINDOWS_QT)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${TOLVEK_WINDOWS_QT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# one file that runs on every desk: the compiler's libraries go into it
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
