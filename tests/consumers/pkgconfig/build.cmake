# Builds a host by what pkg-config tells of one part of an installation, as a makefile would.
#   cmake -DCOMPILER=<c++> -DSEARCHED=<variable that tells pkg-config where> -DMODULES=<folder of .pc files>
#         -DMODULE=<name> -DLINK_FLAGS=<flags> -DSOURCE=<file> -DPROGRAM=<file> -P build.cmake
set(ENV{${SEARCHED}} "${MODULES}")
execute_process(COMMAND pkg-config --cflags --libs "${MODULE}" OUTPUT_VARIABLE flags
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
execute_process(COMMAND pkg-config --variable=libdir "${MODULE}" OUTPUT_VARIABLE libraries
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(libraries UNIX_COMMAND "${libraries}")
separate_arguments(LINK_FLAGS UNIX_COMMAND "${LINK_FLAGS}")
execute_process(COMMAND "${COMPILER}" -std=c++20 "${SOURCE}" -o "${PROGRAM}" ${flags} ${LINK_FLAGS}
                        "-Wl,-rpath,${libraries}"
                COMMAND_ERROR_IS_FATAL ANY)
