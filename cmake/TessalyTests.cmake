# GoogleTest from its sources, so that every preset, the Windows one included, builds it with its own flags.
include(GoogleTest)
set(TESSALY_GOOGLETEST_SOURCE /usr/src/googletest CACHE PATH "GoogleTest's sources, as Debian's googletest has them")
if(NOT EXISTS "${TESSALY_GOOGLETEST_SOURCE}/CMakeLists.txt")
  message(FATAL_ERROR "The tests need GoogleTest's sources in ${TESSALY_GOOGLETEST_SOURCE}: install the package "
                      "googletest, or configure with -DTESSALY_TESTS=OFF")
endif()
set(INSTALL_GTEST OFF CACHE INTERNAL "")
set(BUILD_GMOCK OFF CACHE INTERNAL "")
add_subdirectory("${TESSALY_GOOGLETEST_SOURCE}" "${CMAKE_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL)

# What is built quickly is the tests' own code: under sanitizers it took most of the time. What is tested is built as
# the preset has it.
set(TESSALY_QUICK_OPTIONS $<$<CXX_COMPILER_ID:GNU,Clang>:-O0>)
if(CMAKE_CXX_FLAGS MATCHES "fsanitize=[a-z,]*undefined")
  # They look at each access to an object, which took a third of the time; that of addresses sees most of it too.
  list(APPEND TESSALY_QUICK_OPTIONS -fno-sanitize=null,alignment,vptr,object-size)
endif()

function(tessaly_quick_build target)
  target_compile_options(${target} PRIVATE ${TESSALY_QUICK_OPTIONS})
  if(NOT TARGET tests-headers)
    file(WRITE "${CMAKE_BINARY_DIR}/tests-headers.cpp" "")
    add_library(tests-headers OBJECT "${CMAKE_BINARY_DIR}/tests-headers.cpp")
    tessaly_options(tests-headers)
    target_compile_options(tests-headers PRIVATE ${TESSALY_QUICK_OPTIONS})
    target_link_libraries(tests-headers PRIVATE GTest::gtest)
    target_precompile_headers(tests-headers PRIVATE <gtest/gtest.h> <functional> <map> <memory> <optional> <string>
                              <string_view> <variant> <vector>)
  endif()
  target_precompile_headers(${target} REUSE_FROM tests-headers)
endfunction()

# tessaly_test(<name> SOURCES <file>... [LIBRARY <target>] [LABEL <area>] [TIMEOUT <seconds>] [LOCK <name>]
# [INSTEAD_OF_WINES <library>]): one
# program for tests, which run in the project's folder and in the C locale. Where nothing else is told, LIBRARY is
# Tessaly::core, the name is the ctest label, and a test may take two minutes. On Windows, where tests can't have all of
# the system to themselves, those with the same LOCK run one at a time.
# Under Wine they may load a library of their own by the name of the one that INSTEAD_OF_WINES names.
function(tessaly_test name)
  cmake_parse_arguments(arg "" "LIBRARY;LABEL;TIMEOUT;LOCK;INSTEAD_OF_WINES" "SOURCES" ${ARGN})
  if(NOT arg_LIBRARY)
    set(arg_LIBRARY Tessaly::core)
  endif()
  if(NOT arg_LABEL)
    set(arg_LABEL ${name})
  endif()
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 120)
  endif()
  set(lock "")
  if(arg_LOCK AND WIN32)
    set(lock RESOURCE_LOCK ${arg_LOCK})
  endif()
  set(wine "")
  if(arg_INSTEAD_OF_WINES AND WIN32)
    set(wine ENVIRONMENT_MODIFICATION WINEDLLOVERRIDES=set:${arg_INSTEAD_OF_WINES}=n,b)
  endif()
  set(target tests-${name})
  add_executable(${target} ${arg_SOURCES})
  tessaly_options(${target})
  target_link_libraries(${target} PRIVATE tests-support ${arg_LIBRARY} GTest::gtest_main)
  tessaly_quick_build(${target})
  gtest_discover_tests(${target} TEST_PREFIX "${arg_LABEL}: " WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
                       DISCOVERY_MODE PRE_TEST PROPERTIES LABELS ${arg_LABEL} TIMEOUT ${arg_TIMEOUT}
                       ENVIRONMENT LC_ALL=C.UTF-8 ${lock} ${wine})
endfunction()
