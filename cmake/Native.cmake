# The unit tests and the benchmark, which need no Windows.

find_path(VANTOR_DOCTEST_INCLUDE doctest/doctest.h REQUIRED)

add_library(vantor_doctest INTERFACE)
target_include_directories(vantor_doctest SYSTEM INTERFACE "${VANTOR_DOCTEST_INCLUDE}")
target_include_directories(vantor_doctest INTERFACE "${PROJECT_SOURCE_DIR}/tests")

add_executable(vantor_tests ${VANTOR_TEST_MAIN} ${VANTOR_UNIT_TEST_SOURCES} ${VANTOR_FAKE_SOURCES})
target_link_libraries(vantor_tests PRIVATE vantor_core vantor_doctest)

if(VANTOR_SANITIZE)
  set(prefix "sanitize/")
else()
  set(prefix "native/")
endif()
vantor_add_tests(native VANTOR_UNIT_TEST_SOURCES PREFIX ${prefix} TIMEOUT 120 COMMAND vantor_tests)

if(VANTOR_BENCH_SOURCES)
  add_executable(vantor_bench ${VANTOR_BENCH_SOURCES})
  target_link_libraries(vantor_bench PRIVATE vantor_core)
  target_include_directories(vantor_bench PRIVATE "${PROJECT_SOURCE_DIR}/tests")
endif()
