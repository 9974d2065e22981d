# GoogleTest from its sources, so that every preset, the Windows one included, builds it with its own flags.
include(GoogleTest)
set(TESSALY_GOOGLETEST_SOURCE /usr/src/googletest CACHE PATH "GoogleTest's sources, as Debian's googletest has them")
set(INSTALL_GTEST OFF CACHE INTERNAL "")
set(BUILD_GMOCK OFF CACHE INTERNAL "")
add_subdirectory("${TESSALY_GOOGLETEST_SOURCE}" "${CMAKE_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL)

# tessaly_test(<area> SOURCES <file>... [LIBRARY <target>]): one program for the tests of an area. The area is the
# ctest label; the tests run in the project's folder. LIBRARY is Tessaly::core where nothing else is told.
function(tessaly_test area)
  cmake_parse_arguments(arg "" "LIBRARY" "SOURCES" ${ARGN})
  if(NOT arg_LIBRARY)
    set(arg_LIBRARY Tessaly::core)
  endif()
  set(target tests-${area})
  add_executable(${target} ${arg_SOURCES})
  tessaly_options(${target})
  target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}")
  target_link_libraries(${target} PRIVATE ${arg_LIBRARY} GTest::gtest_main)
  gtest_discover_tests(${target} TEST_PREFIX "${area}: " WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
                       DISCOVERY_MODE PRE_TEST PROPERTIES LABELS ${area} TIMEOUT 120)
endfunction()
