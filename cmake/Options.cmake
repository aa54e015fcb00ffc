# Flags for every target, and the function that defines tests.

option(VANTOR_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(VANTOR_FUZZ "Build only the fuzzer, which needs Clang" OFF)

add_library(vantor_flags INTERFACE)
target_include_directories(vantor_flags INTERFACE "${PROJECT_SOURCE_DIR}/src" "${PROJECT_BINARY_DIR}/generated")
target_compile_options(
  vantor_flags
  INTERFACE
    -Wall
    -Wextra
    -Wpedantic
    -Werror
    -Wshadow
    -Wconversion
    -Wnon-virtual-dtor
    -Woverloaded-virtual
    -Wextra-semi
    -Wcast-qual
    # Designated initialisers are used in order to leave members at their defaults.
    -Wno-missing-field-initializers)

if(VANTOR_SANITIZE)
  # Without recovery, a finding ends the program, so that no test can ignore it.
  target_compile_options(
    vantor_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -g1)
  target_link_options(vantor_flags INTERFACE -fsanitize=address,undefined)
  target_compile_definitions(vantor_flags INTERFACE _GLIBCXX_ASSERTIONS)
endif()
if(VANTOR_FUZZ)
  target_compile_options(vantor_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# One CTest test for each source file: a failure names its file, and files can run side by side.
# A filter that matches nothing is a failure too. A line "// desktop: OPTIONS" in a file sets options of the command that
# runs it, for the desktop that its tests need, such as a 64-bit Windows ("--root win64"). A file with several such lines
# is run on each of these desktops.
function(vantor_add_tests label sources)
  cmake_parse_arguments(arg "" "TIMEOUT;PREFIX" "RUNNER;COMMAND" ${ARGN})
  foreach(source IN LISTS ${sources})
    file(STRINGS "${source}" cases REGEX "^ *(TEST_CASE|SCENARIO|TEST_CASE_FIXTURE|TEST_CASE_TEMPLATE)[_A-Z]*\\(" LIMIT_COUNT 1)
    if(NOT cases)
      continue()
    endif()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${source}")
    file(RELATIVE_PATH relative "${PROJECT_SOURCE_DIR}/tests" "${source}")
    string(REGEX REPLACE "\\.cpp$" "" name "${arg_PREFIX}${relative}")
    set(desktops)
    if(arg_RUNNER)
      file(STRINGS "${source}" desktops REGEX "^// desktop: ")
    endif()
    if(NOT desktops)
      set(desktops "// desktop: ")
    endif()
    set(number 0)
    list(LENGTH desktops count)
    foreach(desktop IN LISTS desktops)
      string(REGEX REPLACE "^// desktop: " "" options "${desktop}")
      separate_arguments(options UNIX_COMMAND "${options}")
      math(EXPR number "${number} + 1")
      set(test "${name}")
      if(count GREATER 1)
        string(APPEND test "-${number}")
      endif()
      add_test(NAME ${test} COMMAND ${arg_RUNNER} ${options} ${arg_COMMAND} "--source-file=*tests/${relative}"
                                    --no-colors=true)
      set_tests_properties(
        ${test}
        PROPERTIES LABELS "${label}"
                   TIMEOUT ${arg_TIMEOUT}
                   FAIL_REGULAR_EXPRESSION "test cases: +0 ")
    endforeach()
  endforeach()
endfunction()
