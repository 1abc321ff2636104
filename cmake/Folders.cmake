# A folder is a unit: every source in it belongs to it, so a new file needs no line here.

# flumewise_library(engine DEPENDS ...): the static library of src/<name>, the rooms inside it included.
function(flumewise_library name)
  cmake_parse_arguments(arg "" "" "DEPENDS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  add_library(flumewise_${name} STATIC ${sources})
  target_link_libraries(flumewise_${name} PUBLIC flumewise_flags ${arg_DEPENDS})
endfunction()

# flumewise_tests(engine DEPENDS ...): the GoogleTest program of tests/<name>, the rooms inside it included, each test
# known to ctest.
function(flumewise_tests name)
  cmake_parse_arguments(arg "" "" "DEPENDS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  add_executable(${name}_tests ${sources})
  target_link_libraries(${name}_tests PRIVATE flumewise_flags ${arg_DEPENDS} GTest::gmock GTest::gtest_main)
  target_include_directories(${name}_tests PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  # The headers of the test framework take longer to read than most tests.
  if(NOT name STREQUAL desktop)
    target_precompile_headers(${name}_tests REUSE_FROM test_headers)
  endif()
  flumewise_discover(${name}_tests)
endfunction()

# flumewise_discover(engine_tests): each test of a GoogleTest program known to ctest; of one that is built for another
# system none. Under the sanitizers the whole program is one test: a process for each would take twice as long. There it
# leaves out what mostly runs other processes.
function(flumewise_discover program)
  if(FLUMEWISE_SANITIZE)
    add_test(NAME ${program} COMMAND ${program} --gtest_filter=-*ThousandKills --gtest_brief=1)
  elseif(NOT CMAKE_CROSSCOMPILING)
    gtest_discover_tests(${program} DISCOVERY_TIMEOUT 60)
  endif()
endfunction()
