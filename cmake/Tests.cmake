# Tests: one executable a room from tests/<room>/*.cpp, one run for every scenario and recording.

enable_testing()
find_package(GTest)
if(NOT GTest_FOUND)
  message(STATUS "No GoogleTest: playing needs none, and no unit tests are built")
endif()
find_package(Python3 REQUIRED COMPONENTS Interpreter)

# A room's tests run in one process: thousands of tests cost seconds. Each executable leaves a
# report beside itself, from which ./check counts the tests one by one.
set(QUENDLE_TEST_REPORTS ${PROJECT_BINARY_DIR}/reports)

# Tests are repeatable anywhere: no display, no sound device, no C.UTF-8 surprises.
set(QUENDLE_TEST_ENVIRONMENT
  SDL_VIDEODRIVER=dummy SDL_AUDIODRIVER=dummy ALSOFT_DRIVERS=null
  ASAN_OPTIONS=strict_string_checks=1:detect_stack_use_after_return=1
  UBSAN_OPTIONS=print_stacktrace=1)

# What is under test is optimised as it ships; the tests themselves needn't be, and compile in half
# the time.
add_library(quendle_test_flags INTERFACE)
target_compile_options(quendle_test_flags INTERFACE $<$<CONFIG:Release>:-O0>)

# gtest's header is compiled once for all test executables.
if(GTest_FOUND)
  file(WRITE ${PROJECT_BINARY_DIR}/test_headers.cpp "")
  add_library(quendle_test_headers STATIC EXCLUDE_FROM_ALL ${PROJECT_BINARY_DIR}/test_headers.cpp)
  target_link_libraries(quendle_test_headers PRIVATE quendle_flags quendle_test_flags GTest::gmock)
  target_precompile_headers(quendle_test_headers PRIVATE
    <gmock/gmock.h> <gtest/gtest.h> <functional> <map> <memory> <string> <string_view> <vector>)
endif()

# quendle_room_tests(ROOM TARGET): `test_<room>`, when tests/ROOM holds sources. It links the room,
# what the room may see, and the raster, files and headless backends as its platform.
function(quendle_room_tests room target)
  if(NOT GTest_FOUND OR room MATCHES "/[A-Z]")
    return()  # a class on a floor of its own is tested with its folder
  endif()
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${room}/*.cpp)
  if(NOT sources)
    return()
  endif()
  string(REPLACE "quendle_" "test_" test ${target})
  add_executable(${test} ${sources})
  set_target_properties(${test} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
  target_include_directories(${test} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${test} PRIVATE
    quendle_flags quendle_test_flags ${target} quendle_headless quendle_raster quendle_files GTest::gmock GTest::gtest_main)
  target_precompile_headers(${test} REUSE_FROM quendle_test_headers)
  add_test(NAME ${test} COMMAND ${test} --gtest_brief=1
           --gtest_output=json:${QUENDLE_TEST_REPORTS}/${test}.json)
  set_tests_properties(${test} PROPERTIES
    TIMEOUT 300 LABELS unit ENVIRONMENT "${QUENDLE_TEST_ENVIRONMENT}")
endfunction()

# Every tests/scenarios/NAME.drive becomes the test `scenario.NAME`.
function(quendle_scenarios)
  set(runner ${PROJECT_SOURCE_DIR}/tests/scenarios/run.py)
  file(GLOB scenarios CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/scenarios/*.drive)
  if(NOT scenarios OR NOT TARGET quendle)
    return()
  endif()
  foreach(scenario IN LISTS scenarios)
    get_filename_component(name ${scenario} NAME_WE)
    add_test(NAME scenario.${name}
             COMMAND ${Python3_EXECUTABLE} ${runner} $<TARGET_FILE:quendle>
                     ${QUENDLE_CONTENT_DIR} ${scenario})
    set_tests_properties(scenario.${name} PROPERTIES
      TIMEOUT 300 LABELS scenario ENVIRONMENT "${QUENDLE_TEST_ENVIRONMENT}")
  endforeach()
  add_test(NAME scenario.photograph_stays
           COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tests/scenarios/photograph_stays.py
                   $<TARGET_FILE:quendle> ${QUENDLE_CONTENT_DIR})
  set_tests_properties(scenario.photograph_stays PROPERTIES
    TIMEOUT 300 LABELS scenario SKIP_RETURN_CODE 77
    ENVIRONMENT "${QUENDLE_TEST_ENVIRONMENT}")
  if(TARGET wumbly)
    add_test(NAME scenario.ended_by_the_system
             COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tests/scenarios/ended_by_the_system.py
                     $<TARGET_FILE:wumbly> ${QUENDLE_CONTENT_DIR})
    set_tests_properties(scenario.ended_by_the_system PROPERTIES
      TIMEOUT 300 LABELS scenario ENVIRONMENT "${QUENDLE_TEST_ENVIRONMENT}")
  endif()
endfunction()

# Real processes that are killed: a sample, `./check faults` does more.
function(quendle_faults)
  if(TARGET quendle)
    add_test(NAME faults.kills
             COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tests/faults/kills.py
                     $<TARGET_FILE:quendle> 20)
    set_tests_properties(faults.kills PROPERTIES
      TIMEOUT 300 LABELS faults ENVIRONMENT "${QUENDLE_TEST_ENVIRONMENT}")
  endif()
endfunction()

# Every session tests/recordings/NAME.txt becomes the test `recording.NAME`.
function(quendle_recordings)
  set(runner ${PROJECT_SOURCE_DIR}/tests/recordings/run.py)
  file(GLOB sessions CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/recordings/*.txt)
  # What stands beside a session has one more word in its name.
  list(FILTER sessions EXCLUDE REGEX "\\.(sidecar|differs)\\.txt$")
  if(NOT sessions OR NOT TARGET quendle)
    return()
  endif()
  foreach(session IN LISTS sessions)
    get_filename_component(name ${session} NAME_WE)
    add_test(NAME recording.${name}
             COMMAND ${Python3_EXECUTABLE} ${runner} $<TARGET_FILE:quendle>
                     ${QUENDLE_CONTENT_DIR} ${session})
    set_tests_properties(recording.${name} PROPERTIES
      TIMEOUT 300 LABELS recording ENVIRONMENT "${QUENDLE_TEST_ENVIRONMENT}")
  endforeach()
endfunction()

# Scripts for daily work that have tests of their own.
function(quendle_scripts)
  add_test(NAME scripts.mutate
           COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/scripts/mutate_test.py)
  set_tests_properties(scripts.mutate PROPERTIES TIMEOUT 60 LABELS scripts)
endfunction()

# What the pages say: links, the tutorial from its first line to its last, the manual.
function(quendle_pages)
  set(docs ${PROJECT_SOURCE_DIR}/docs)
  add_test(NAME docs.links COMMAND ${Python3_EXECUTABLE} ${docs}/check_docs.py)
  set_tests_properties(docs.links PROPERTIES LABELS docs)
  if(TARGET quendle)
    add_test(NAME docs.tutorial
             COMMAND ${Python3_EXECUTABLE} ${docs}/authors/check_tutorial.py $<TARGET_FILE:quendle>)
    add_test(NAME docs.manual
             COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/scripts/make_man.py
                     $<TARGET_FILE:quendle> ${PROJECT_BINARY_DIR}/checked-man --check)
    set_tests_properties(docs.tutorial docs.manual PROPERTIES
      TIMEOUT 300 LABELS docs ENVIRONMENT "${QUENDLE_TEST_ENVIRONMENT}")
  endif()
endfunction()
