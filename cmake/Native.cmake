# The unit tests and the benchmark, which need no Windows.

find_path(VANTOR_DOCTEST_INCLUDE doctest/doctest.h REQUIRED)

add_library(vantor_doctest INTERFACE)
target_include_directories(vantor_doctest SYSTEM INTERFACE "${VANTOR_DOCTEST_INCLUDE}")
target_include_directories(vantor_doctest INTERFACE "${PROJECT_SOURCE_DIR}/tests")

if(VANTOR_FUZZ)
  add_executable(vantor_fuzz ${VANTOR_FUZZER})
  target_link_libraries(vantor_fuzz PRIVATE vantor_core vantor_doctest)
  target_link_options(vantor_fuzz PRIVATE -fsanitize=fuzzer)
  return()
endif()

add_executable(vantor_tests ${VANTOR_TEST_MAIN} ${VANTOR_UNIT_TEST_SOURCES} ${VANTOR_FLOW_PLAYER})
target_link_libraries(vantor_tests PRIVATE vantor_core vantor_doctest)

if(VANTOR_SANITIZE)
  set(prefix "sanitize/")
else()
  set(prefix "native/")
endif()
vantor_add_tests(native VANTOR_UNIT_TEST_SOURCES PREFIX ${prefix} TIMEOUT 120 COMMAND vantor_tests)

# All flows in one run; the program also plays single ones.
add_executable(flows ${VANTOR_FLOW_MAIN} ${VANTOR_FLOW_PLAYER})
target_link_libraries(flows PRIVATE vantor_core)
target_include_directories(flows PRIVATE "${PROJECT_SOURCE_DIR}/tests")
add_test(NAME ${prefix}flows COMMAND flows ${VANTOR_FLOWS})
set_tests_properties(${prefix}flows PROPERTIES LABELS native TIMEOUT 120)

# A fixed part of what the fuzzer does.
if(VANTOR_SANITIZE)
  add_executable(fixed_fuzz ${VANTOR_FIXED_FUZZ})
  target_link_libraries(fixed_fuzz PRIVATE vantor_core vantor_doctest)
  add_test(NAME fuzz COMMAND fixed_fuzz ${PROJECT_SOURCE_DIR}/tests/fuzz/seeds 500)
  set_tests_properties(fuzz PROPERTIES LABELS native TIMEOUT 300)
endif()

add_executable(vantor_bench ${VANTOR_BENCH_SOURCES})
target_link_libraries(vantor_bench PRIVATE vantor_core)
target_include_directories(vantor_bench PRIVATE "${PROJECT_SOURCE_DIR}/tests")
