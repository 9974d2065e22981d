# What an installation is made of: libraries with their headers, each with its pkg-config file, and the CMake package.
# The parts are runtime (core and desktop), qt, dev and tools, which are also the packages that cpack makes.
include(CMakePackageConfigHelpers)
set(TESSALY_CMAKE_FOLDER "${CMAKE_INSTALL_LIBDIR}/cmake/Tessaly")

# tessaly_install_headers(<folder below tessaly> <file>...): headers, each under the folder that it stands in.
function(tessaly_install_headers room)
  foreach(header ${ARGN})
    get_filename_component(folder "${room}/${header}" DIRECTORY)
    install(FILES "${header}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/tessaly/${folder}" COMPONENT dev)
  endforeach()
endfunction()

# tessaly_pkgconfig(<name> DESCRIPTION <text> [REQUIRES <module>...]): so that hosts without CMake find the library,
# wherever the installation is moved to. A static library also names what it calls.
function(tessaly_pkgconfig name)
  cmake_parse_arguments(arg "" "DESCRIPTION" "REQUIRES" ${ARGN})
  set(folder "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
  file(RELATIVE_PATH pc_up "/${folder}" "/")
  string(REGEX REPLACE "/$" "" pc_up "${pc_up}")
  list(JOIN arg_REQUIRES ", " pc_requires)
  set(pc_flags "")
  set(pc_libraries "")
  get_target_property(macro tessaly-${name} TESSALY_EXPORT_MACRO)
  if(WIN32)
    set(pc_flags " -D${macro}_STATIC_DEFINE")
    get_target_property(backend tessaly-${name} TESSALY_BACKEND)
    list(TRANSFORM backend PREPEND " -l")
    list(JOIN backend "" pc_libraries)
  endif()
  configure_file("${PROJECT_SOURCE_DIR}/cmake/tessaly.pc.in" "${CMAKE_CURRENT_BINARY_DIR}/tessaly-${name}.pc" @ONLY)
  install(FILES "${CMAKE_CURRENT_BINARY_DIR}/tessaly-${name}.pc" DESTINATION "${folder}" COMPONENT dev)
endfunction()

# tessaly_install_library(<name> EXPORT <export set> PART <runtime part> EXPORT_HEADER <file> DESCRIPTION <text>
#                         [REQUIRES <pkg-config module>...]): a library made by tessaly_library.
function(tessaly_install_library name)
  cmake_parse_arguments(arg "" "EXPORT;PART;EXPORT_HEADER;DESCRIPTION" "REQUIRES" ${ARGN})
  install(TARGETS tessaly-${name} EXPORT ${arg_EXPORT}
          RUNTIME COMPONENT ${arg_PART}
          LIBRARY COMPONENT ${arg_PART} NAMELINK_COMPONENT dev
          ARCHIVE COMPONENT dev)
  get_filename_component(folder "${arg_EXPORT_HEADER}" DIRECTORY)
  install(FILES "${PROJECT_BINARY_DIR}/include/tessaly/${arg_EXPORT_HEADER}"
          DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/tessaly/${folder}" COMPONENT dev)
  tessaly_pkgconfig(${name} DESCRIPTION "${arg_DESCRIPTION}" REQUIRES ${arg_REQUIRES})
endfunction()

# tessaly_install_package(): what find_package(Tessaly) reads.
function(tessaly_install_package)
  install(EXPORT TessalyTargets NAMESPACE Tessaly:: DESTINATION "${TESSALY_CMAKE_FOLDER}" COMPONENT dev)
  configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/TessalyConfig.cmake.in" TessalyConfig.cmake
                                INSTALL_DESTINATION "${TESSALY_CMAKE_FOLDER}")
  write_basic_package_version_file(TessalyConfigVersion.cmake COMPATIBILITY SameMinorVersion)
  install(FILES "${CMAKE_CURRENT_BINARY_DIR}/TessalyConfig.cmake"
                "${CMAKE_CURRENT_BINARY_DIR}/TessalyConfigVersion.cmake"
          DESTINATION "${TESSALY_CMAKE_FOLDER}" COMPONENT dev)
endfunction()

# tessaly_install_tool(<name>): a command-line tool with its manual page, which Windows has no use for.
function(tessaly_install_tool name)
  # It finds the library beside it, wherever the installation is.
  file(RELATIVE_PATH way "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
  set_target_properties(${name} PROPERTIES INSTALL_RPATH "$ORIGIN/${way}")
  install(TARGETS ${name} RUNTIME COMPONENT tools)
  if(NOT WIN32)
    install(FILES ${name}.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT tools)
  endif()
endfunction()
