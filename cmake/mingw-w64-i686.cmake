# mingw-w64 for 32-bit Windows, on any host.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)

# Debian names the tool chain by its thread model as well; elsewhere there is only the plain name.
find_program(VANTOR_MINGW_CXX NAMES i686-w64-mingw32-g++-posix i686-w64-mingw32-g++ REQUIRED)
find_program(VANTOR_MINGW_RC NAMES i686-w64-mingw32-windres windres REQUIRED)
# Only for tests: a program for 64-bit Windows.
find_program(VANTOR_MINGW64_CXX NAMES x86_64-w64-mingw32-g++-posix x86_64-w64-mingw32-g++)
set(CMAKE_CXX_COMPILER "${VANTOR_MINGW_CXX}")
set(CMAKE_RC_COMPILER "${VANTOR_MINGW_RC}")

set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
