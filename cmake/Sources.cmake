# The only list of sources, used by every tool chain.

set(VANTOR_CORE_FOLDERS text state form service message list command panel bar add options start)

function(vantor_glob result)
  set(patterns ${ARGN})
  list(TRANSFORM patterns PREPEND "${PROJECT_SOURCE_DIR}/")
  file(GLOB_RECURSE found CONFIGURE_DEPENDS ${patterns})
  set(${result} ${found} PARENT_SCOPE)
endfunction()

foreach(folder IN LISTS VANTOR_CORE_FOLDERS)
  vantor_glob(found src/${folder}/*.cpp)
  list(APPEND VANTOR_CORE_SOURCES ${found})
endforeach()

# The desktop without windows is only for tests. It uses dynamic_cast, which the Windows build does not have.
if(WIN32)
  list(REMOVE_ITEM VANTOR_CORE_SOURCES "${PROJECT_SOURCE_DIR}/src/form/Headless.cpp")
endif()

vantor_glob(VANTOR_WIN32_SOURCES src/win32/*.cpp)
vantor_glob(VANTOR_WIN32_RESOURCES src/win32/Vantor.rc)
set(VANTOR_ENTRY_POINT "${PROJECT_SOURCE_DIR}/src/win32/Main.cpp")
set(VANTOR_STACK_GUARD "${PROJECT_SOURCE_DIR}/src/win32/StackGuard.cpp")
list(REMOVE_ITEM VANTOR_WIN32_SOURCES "${VANTOR_ENTRY_POINT}" "${VANTOR_STACK_GUARD}")

foreach(folder IN LISTS VANTOR_CORE_FOLDERS)
  vantor_glob(found tests/${folder}/*.cpp)
  list(APPEND VANTOR_UNIT_TEST_SOURCES ${found})
endforeach()

# Flows: users' stories, and the code that plays them, which tests in C++ and the fuzzers also use.
vantor_glob(VANTOR_FLOWS tests/flows/*.txt)
set(VANTOR_FLOW_PLAYER "${PROJECT_SOURCE_DIR}/tests/flows/Player.cpp")
set(VANTOR_FLOW_MAIN "${PROJECT_SOURCE_DIR}/tests/flows/Main.cpp")
vantor_glob(VANTOR_WIN32_TEST_SOURCES tests/win32/*.cpp)
vantor_glob(VANTOR_RECORDER_SOURCES tests/driver/recorder/*.cpp)
vantor_glob(VANTOR_DESKTOP_SOURCES tests/desktop/*.cpp)
set(VANTOR_CHECK_SOURCES ${VANTOR_DESKTOP_SOURCES} ${VANTOR_FLOW_PLAYER} "${PROJECT_SOURCE_DIR}/tests/check/Main.cpp")
set(VANTOR_FUZZER "${PROJECT_SOURCE_DIR}/tests/fuzz/Fuzzer.cpp" ${VANTOR_FLOW_PLAYER})
set(VANTOR_FIXED_FUZZ "${PROJECT_SOURCE_DIR}/tests/fuzz/FixedRun.cpp" ${VANTOR_FUZZER})
vantor_glob(VANTOR_BENCH_SOURCES bench/*.cpp)
list(FILTER VANTOR_BENCH_SOURCES EXCLUDE REGEX "/bench/win32/")
vantor_glob(VANTOR_WIN32_BENCH_SOURCES bench/win32/*.cpp)

set(VANTOR_TEST_MAIN "${PROJECT_SOURCE_DIR}/tests/Main.cpp")
