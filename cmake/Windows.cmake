# The program itself, and the test programs that need Windows.

target_compile_definitions(
  vantor_flags
  INTERFACE UNICODE
            _UNICODE
            NOMINMAX
            WIN32_LEAN_AND_MEAN
            STRICT
            # Windows 7 and newer.
            WINVER=0x0601
            _WIN32_WINNT=0x0601
            _WIN32_IE=0x0800)
# Run-time type information is not used, and would add 11 KB to the program.
target_compile_options(vantor_flags INTERFACE -ffunction-sections -fdata-sections -fno-rtti)
target_link_options(
  vantor_flags
  INTERFACE
    # The run time is linked statically: the program needs only what every Windows has.
    -static
    -Wl,--gc-sections
    # Loaded at an unpredictable address, without executable stack or heap, and without exception handlers on the
    # stack.
    -Wl,--dynamicbase
    -Wl,--nxcompat
    -Wl,--no-seh
    -Wl,--tsaware
    # Windows 7 and newer.
    -Wl,--major-os-version=6,--minor-os-version=1,--major-subsystem-version=6,--minor-subsystem-version=1
    # The same sources produce the same file.
    -Wl,--no-insert-timestamp)

# The program is optimised as a whole, which reduces its size by a seventh; in one partition, because this compiler
# (GCC 12) fails with several. The objects also contain ordinary code, so that the test programs link quickly.
set(VANTOR_WHOLE_COMPILE -flto -ffat-lto-objects)
set(VANTOR_WHOLE_LINK -flto -flto-partition=none)
set(VANTOR_PLAIN_LINK -fno-lto)

# Functions with arrays check their return address before they return. The guard that they need is not in a library,
# because whole-program optimisation refers to it only after libraries have been searched.
set(VANTOR_STACK_GUARD_COMPILE -fstack-protector-strong)
add_library(vantor_stack_guard OBJECT ${VANTOR_STACK_GUARD})
target_link_libraries(vantor_stack_guard PRIVATE vantor_flags)

set(VANTOR_WINDOWS_LIBRARIES
    gdi32
    ole32
    oleaut32
    shell32
    user32
    uuid)

add_library(vantor_win32 STATIC ${VANTOR_WIN32_SOURCES})
target_link_libraries(vantor_win32 PUBLIC vantor_core ${VANTOR_WINDOWS_LIBRARIES})
foreach(library IN ITEMS vantor_core vantor_win32)
  target_compile_options(${library} PRIVATE ${VANTOR_WHOLE_COMPILE} ${VANTOR_STACK_GUARD_COMPILE})
endforeach()

# What the resource compiler reads besides its own file.
file(GLOB resource_parts CONFIGURE_DEPENDS src/win32/*.manifest src/win32/*.ico)
list(APPEND resource_parts "${PROJECT_BINARY_DIR}/generated/product/Product.rc.h"
     "${PROJECT_BINARY_DIR}/generated/product/Vantor.manifest")
set_source_files_properties(${VANTOR_WIN32_RESOURCES} PROPERTIES OBJECT_DEPENDS "${resource_parts}")

add_executable(Vantor WIN32 ${VANTOR_ENTRY_POINT} ${VANTOR_WIN32_RESOURCES})
target_link_libraries(Vantor PRIVATE vantor_win32 vantor_stack_guard)
target_compile_options(Vantor PRIVATE "$<$<COMPILE_LANGUAGE:CXX>:${VANTOR_WHOLE_COMPILE}>")
target_link_options(Vantor PRIVATE -municode -s ${VANTOR_WHOLE_LINK})

# doctest is one header. A copy of its own keeps the host's include folder off the cross compiler's path.
find_file(VANTOR_DOCTEST_HEADER doctest/doctest.h PATHS /usr/include /usr/local/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
configure_file("${VANTOR_DOCTEST_HEADER}" third_party/doctest/doctest.h COPYONLY)

add_library(vantor_doctest INTERFACE)
target_include_directories(vantor_doctest SYSTEM INTERFACE "${PROJECT_BINARY_DIR}/third_party")
target_include_directories(vantor_doctest INTERFACE "${PROJECT_SOURCE_DIR}/tests")

# Without the test desktop (on a real Windows, for example), the programs run by themselves.
set(on_desktop)
if(CMAKE_HOST_UNIX)
  set(on_desktop "${PROJECT_SOURCE_DIR}/tools/wine" --test)
endif()

# The Windows side's own tests. With the program's resources, because its manifests decide which version of the common controls is used.
add_executable(win32_tests ${VANTOR_TEST_MAIN} ${VANTOR_WIN32_TEST_SOURCES} ${VANTOR_WIN32_RESOURCES})
target_link_libraries(win32_tests PRIVATE vantor_win32 vantor_stack_guard vantor_doctest version)
# The shipped file is checked as well.
add_dependencies(win32_tests Vantor)
target_link_options(win32_tests PRIVATE ${VANTOR_PLAIN_LINK})
vantor_add_tests(
  desktop VANTOR_WIN32_TEST_SOURCES PREFIX "" TIMEOUT 300
  RUNNER ${on_desktop} COMMAND $<TARGET_FILE:win32_tests>)

add_executable(recorder WIN32 ${VANTOR_RECORDER_SOURCES})
target_link_libraries(recorder PRIVATE vantor_flags ${VANTOR_WINDOWS_LIBRARIES})
target_include_directories(recorder PRIVATE "${PROJECT_SOURCE_DIR}/tests")
target_link_options(recorder PRIVATE -municode -s)
# Also as a 64-bit program, which this build's compiler can't produce. Only the test desktop needs it.
if(on_desktop)
  set(recorder64 "${PROJECT_BINARY_DIR}/recorder64.exe")
  add_custom_command(
    OUTPUT "${recorder64}"
    COMMAND "${VANTOR_MINGW64_CXX}" -std=c++20 -Os -s -static -municode -mwindows -DUNICODE -DWIN32_LEAN_AND_MEAN
            -DNOMINMAX "-I${PROJECT_SOURCE_DIR}/tests" ${VANTOR_RECORDER_SOURCES} -o "${recorder64}"
    DEPENDS ${VANTOR_RECORDER_SOURCES} tests/driver/Desktop.h
    VERBATIM)
  add_custom_target(recorder64 DEPENDS "${recorder64}")
endif()

# Flows and desktop tests in one program, which can also be used on a real Windows: tools/package makes a zip of it.
add_executable(VantorCheck ${VANTOR_CHECK_SOURCES})
target_link_libraries(VantorCheck PRIVATE vantor_core vantor_stack_guard vantor_doctest ${VANTOR_WINDOWS_LIBRARIES} oleacc)
target_link_options(VantorCheck PRIVATE -s ${VANTOR_PLAIN_LINK})
add_dependencies(VantorCheck Vantor recorder)
foreach(program IN ITEMS recorder64 installer)  # which are made on some machines only
  if(TARGET ${program})
    add_dependencies(VantorCheck ${program})
  endif()
endforeach()
vantor_add_tests(
  desktop VANTOR_DESKTOP_SOURCES PREFIX "" TIMEOUT 600
  RUNNER ${on_desktop} COMMAND $<TARGET_FILE:VantorCheck> --tests)

# All flows in one session, on a desktop with every kind of drive.
function(vantor_add_flows name options)
  set(desktop)
  if(on_desktop)
    separate_arguments(options UNIX_COMMAND "${options}")
    set(desktop ${on_desktop} ${options})
    list(TRANSFORM ARGN PREPEND "Z:")
  endif()
  add_test(NAME flows/${name} COMMAND ${desktop} $<TARGET_FILE:VantorCheck> --flows ${ARGN})
  set_tests_properties(flows/${name} PROPERTIES LABELS desktop TIMEOUT 600)
endfunction()
set(drives "--drive d:=hd --drive e:=floppy --drive f:=cdrom --drive n:=network --drive r:=cdrom:empty")
vantor_add_flows(win32 "${drives}" ${VANTOR_FLOWS})
vantor_add_flows(win64 "--root win64 ${drives}" ${VANTOR_FLOWS})
# On systems whose code page has two bytes per letter (932), or is UTF-8 (65001).
set(letters "${PROJECT_SOURCE_DIR}/tests/flows/letters.txt" "${PROJECT_SOURCE_DIR}/tests/flows/code-page.txt")
vantor_add_flows(932 "--env LC_ALL=ja_JP.UTF-8" ${letters})
vantor_add_flows(65001 "--env LC_ALL=hi_IN.UTF-8 --env LOCPATH=/locale" ${letters})

# The floor program, built like Vantor.exe, a host of the system's Run dialog, and the programs that measure them all.
# Soak uses the program as the desktop tests do.
foreach(source IN LISTS VANTOR_WIN32_BENCH_SOURCES)
  get_filename_component(name "${source}" NAME_WE)
  add_executable(${name} ${source})
  target_link_libraries(${name} PRIVATE vantor_flags ${VANTOR_WINDOWS_LIBRARIES} oleacc)
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_compile_options(${name} PRIVATE ${VANTOR_WHOLE_COMPILE})
  target_link_options(${name} PRIVATE -municode -s ${VANTOR_WHOLE_LINK})
endforeach()
set_target_properties(Floor RunDialog PROPERTIES WIN32_EXECUTABLE ON)
