# Builds a host by what pkg-config tells of an installation, as a makefile would.
#   cmake -DCOMPILER=<c++> -DMODULES=<folder of .pc files> -DSOURCE=<file> -DPROGRAM=<file> -P build.cmake
set(ENV{PKG_CONFIG_LIBDIR} "${MODULES}")
execute_process(COMMAND pkg-config --cflags --libs tessaly-desktop OUTPUT_VARIABLE flags
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
execute_process(COMMAND pkg-config --variable=libdir tessaly-desktop OUTPUT_VARIABLE libraries
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(libraries UNIX_COMMAND "${libraries}")
execute_process(COMMAND "${COMPILER}" -std=c++20 "${SOURCE}" -o "${PROGRAM}" ${flags} ${LINK_FLAGS}
                        "-Wl,-rpath,${libraries}"
                COMMAND_ERROR_IS_FATAL ANY)
