# The flags that every target of the house is built with, and the two functions that make them.

option(TARN_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)

set(CMAKE_CXX_FLAGS_RELEASE "-O2")  # checks stay in: there is no NDEBUG here
set(THREADS_PREFER_PTHREAD_FLAG ON)
find_package(Threads REQUIRED)

add_library(tarn_flags INTERFACE)
target_compile_features(tarn_flags INTERFACE cxx_std_20)
target_include_directories(tarn_flags INTERFACE ${CMAKE_SOURCE_DIR})
target_link_libraries(tarn_flags INTERFACE Threads::Threads)
file(RELATIVE_PATH uphill ${CMAKE_BINARY_DIR} ${CMAKE_SOURCE_DIR})
target_compile_options(tarn_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror
  -fno-exceptions
  -fmacro-prefix-map=${CMAKE_SOURCE_DIR}/=  # a failed check prints a path within the project,
  -fmacro-prefix-map=${uphill}=)            # behind a compiler cache too
if(TARN_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined)
  target_compile_options(tarn_flags INTERFACE -O1 -g -fno-omit-frame-pointer ${sanitizers})
  target_link_options(tarn_flags INTERFACE ${sanitizers})
endif()
option(TARN_CHECKING "Find uses of dead cells and texts, and change nothing in place" OFF)
if(TARN_CHECKING)
  target_compile_definitions(tarn_flags INTERFACE TARN_CHECKING)
endif()
option(TARN_FUZZ "Build the targets for libFuzzer, with clang" OFF)
if(TARN_FUZZ)
  target_compile_options(tarn_flags INTERFACE
    -O2 -fsanitize=fuzzer-no-link -fno-sanitize-coverage=trace-cmp)  # comparing costs a third
endif()
option(TARN_COVERAGE "Count the lines and branches that run" OFF)
if(TARN_COVERAGE)
  add_library(tarn_lastcounts STATIC ${CMAKE_SOURCE_DIR}/tools/lastcounts.cpp)
  target_compile_definitions(tarn_flags INTERFACE TARN_COVERAGE)
  target_compile_options(tarn_flags INTERFACE --coverage -O0)
  target_link_options(tarn_flags INTERFACE --coverage
    -Wl,--wrap=raise,--wrap=abort,--undefined=__wrap_abort)
  target_link_libraries(tarn_flags INTERFACE tarn_lastcounts)
endif()
if(WIN32)
  set(TARN_PLATFORM windows)
  set(TARN_OTHER posix)
  # C's printf and strtod as the standard has them, whatever the system's runtime does.
  target_compile_definitions(tarn_flags INTERFACE
    __USE_MINGW_ANSI_STDIO=1 _WIN32_WINNT=0x0A00 UNICODE _UNICODE)
  target_link_libraries(tarn_flags INTERFACE ws2_32)
else()
  set(TARN_PLATFORM posix)
  set(TARN_OTHER windows)
endif()

# tarn_library(NAME USES... SOURCES...): the static library of one folder. USES names the folders
# that it may include, all of them before it in the order of the house.
function(tarn_library name)
  cmake_parse_arguments(arg "" "" "USES;SOURCES" ${ARGN})
  if(NOT arg_SOURCES)
    add_library(tarn_${name} INTERFACE)
    return()
  endif()
  add_library(tarn_${name} STATIC ${arg_SOURCES})
  target_link_libraries(tarn_${name} PUBLIC tarn_flags)
  foreach(use ${arg_USES})
    target_link_libraries(tarn_${name} PUBLIC tarn_${use})
  endforeach()
endfunction()

# tarn_unittests(NAME USES... SOURCES...): one GoogleTest program for a folder of tests/. Every
# test case is a ctest of its own, so that one death does not hide the next. Sources named
# *_posix_test.cpp and *_windows_test.cpp are built on their platform only.
function(tarn_unittests name)
  cmake_parse_arguments(arg "" "" "USES;SOURCES" ${ARGN})
  list(FILTER arg_SOURCES EXCLUDE REGEX "_${TARN_OTHER}_test")
  add_executable(${name}_tests ${CMAKE_SOURCE_DIR}/tests/main.cpp ${arg_SOURCES})
  target_link_libraries(${name}_tests PRIVATE tarn_flags ${arg_USES} GTest::gtest GTest::gmock)
  target_compile_options(${name}_tests PRIVATE -fexceptions)
  if(CMAKE_CROSSCOMPILING)  # each start of a program costs too much there
    add_test(NAME ${name} COMMAND ${name}_tests)
    set_tests_properties(${name} PROPERTIES TIMEOUT 180)  # wine may hang at the end of one
    return()
  endif()
  gtest_discover_tests(${name}_tests TEST_PREFIX ${name}/ DISCOVERY_TIMEOUT 120
    PROPERTIES TIMEOUT 600)
endfunction()
