# Runs the built program on hives in a folder of its own: cmake -DTOOL=… -DFOLDER=… -P program.cmake
file(REMOVE_RECURSE "${FOLDER}")
file(MAKE_DIRECTORY "${FOLDER}")
set(ENV{XDG_CONFIG_HOME} "${FOLDER}/user")
set(ENV{XDG_CONFIG_DIRS} "${FOLDER}/machine")

# run(<exit code> <regular expression for what is written> <word>...)
function(run code expected)
  execute_process(COMMAND "${TOOL}" ${ARGN} INPUT_FILE /dev/null OUTPUT_VARIABLE output ERROR_VARIABLE errors
                  RESULT_VARIABLE result)
  if(NOT result STREQUAL code OR NOT "${output}${errors}" MATCHES "${expected}")
    message(FATAL_ERROR "tessaly-reg ${ARGN}\nends with ${result}, expected ${code}, and writes\n${output}${errors}\n"
                        "expected: ${expected}")
  endif()
endfunction()

run(2 "a command is missing")
run(0 "tessaly-reg shows and changes" --help)
run(0 "tessaly-reg [0-9]" --version)
run(0 "HKEY_CURRENT_USER" query HKCU)
if(EXISTS "${FOLDER}/user" OR EXISTS "${FOLDER}/machine")
  message(FATAL_ERROR "Reading has made something in ${FOLDER}")
endif()

run(0 "completed" add "HKCU\\Software\\Tool" /v Colour /d red)
run(0 "completed" add "HKLM\\Software\\Tool" /v Folder /d /opt)
run(1 "exists already" add "HKCU\\Software\\Tool" /v Colour /d blue)
run(0 "HKEY_CURRENT_USER.Software.Tool\n    Colour    REG_SZ    red\n" query "hkcu\\software\\tool")
run(0 "    Folder    REG_SZ    /opt\n" query "HKLM\\Software\\Tool" /v folder)
run(1 "there is no such key" query "HKCU\\None")
foreach(hive IN ITEMS user/tessaly/user.hive machine/tessaly/machine.hive)
  if(NOT EXISTS "${FOLDER}/${hive}")
    message(FATAL_ERROR "${FOLDER}/${hive} is missing")
  endif()
endforeach()

run(0 "Exported 1 key and 1 value" export "HKCU\\Software\\Tool" "${FOLDER}/tool.reg")
run(1 "the file exists" export "HKCU\\Software\\Tool" "${FOLDER}/tool.reg")
run(0 "completed" delete "HKCU\\Software\\Tool" /f)
run(0 "Nothing was changed" import "${FOLDER}/tool.reg" /n)
run(1 "there is no such key" query "HKCU\\Software\\Tool")
run(0 "Imported" import "${FOLDER}/tool.reg")
run(0 "    Colour    REG_SZ    red\n" query "HKCU\\Software\\Tool")
run(0 "Imported" --user "${FOLDER}/other.hive" import "${FOLDER}/tool.reg")
run(0 "    Colour    REG_SZ    red\n" --user "${FOLDER}/other.hive" query "HKCU\\Software\\Tool")

file(WRITE "${FOLDER}/bad.reg" "REGEDIT4\n\n[HKEY_CURRENT_USER\\Bad]\n\"a\"=nonsense\n")
run(1 "bad.reg:4: expected" import "${FOLDER}/bad.reg")
run(1 "there is no such key" query "HKCU\\Bad")

run(0 "machine.hive: nothing is wrong\n.*user.hive: nothing is wrong" repair)
run(2 "the user's file and the machine's are one" --machine "${FOLDER}/x.hive" --user "${FOLDER}/./x.hive" query HKCU)
run(0 "completed" --machine "${FOLDER}/other-machine.hive" add "HKLM\\Software\\Tool" /v Folder /d /else)
run(0 "    Folder    REG_SZ    /else\n" --machine "${FOLDER}/other-machine.hive" query "HKLM\\Software\\Tool")
run(0 "    Folder    REG_SZ    /opt\n" query "HKLM\\Software\\Tool")
run(1 "can't be read or written\nThe file is /proc/none/x.hive" --user /proc/none/x.hive add "HKCU\\A")

# Damaged hives: the user's is none at all, of the machine's a part is overwritten.
set(userHive "${FOLDER}/user/tessaly/user.hive")
set(machineHive "${FOLDER}/machine/tessaly/machine.hive")
file(WRITE "${userHive}" "no hive at all")
execute_process(COMMAND sh -c "printf '%64s' x | dd of=\"$0\" bs=1 seek=4096 conv=notrunc" "${machineHive}"
                ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(SHA256 "${machineHive}" machineBefore)
run(1 "not one that holds settings.*${userHive}.*tessaly-reg repair" query HKCU /s)
run(1 "not one that holds settings" add "HKCU\\A" /v x /d y)
run(1 "not one that holds settings" import "${FOLDER}/tool.reg")
run(1 "would give.*not one that holds settings" import "${FOLDER}/tool.reg" /n)
run(1 "damaged.*${machineHive}.*tessaly-reg repair" query HKLM /s)
run(1 "damaged" add "HKLM\\A" /v x /d y)
run(1 "machine.hive: .*user.hive: " repair /n)
file(READ "${userHive}" user)
file(SHA256 "${machineHive}" machineAfter)
if(NOT user STREQUAL "no hive at all" OR NOT machineAfter STREQUAL machineBefore)
  message(FATAL_ERROR "A damaged hive was changed")
endif()
run(1 "Repaired: .*machine.hive.damaged.*can't repair .*user.hive" repair)
run(0 "HKEY_LOCAL_MACHINE" query HKLM /s)
file(REMOVE "${userHive}")
run(0 "machine.hive: nothing is wrong\n.*user.hive: nothing is kept there yet" repair)

# ends(<what is tried> <exit code> <regular expression for what is written> <shell command>)
function(ends what code expected command)
  execute_process(COMMAND sh -c "${command}" "${TOOL}" "${FOLDER}" OUTPUT_VARIABLE output ERROR_VARIABLE errors
                  RESULT_VARIABLE result)
  if(NOT result STREQUAL code OR NOT "${output}${errors}" MATCHES "${expected}")
    message(FATAL_ERROR "${what}: ends with ${result}, expected ${code}, and writes\n${output}${errors}")
  endif()
endfunction()

ends("A full disk" 1 "can't write the output\n$" "\"$0\" --help >/dev/full")
ends("A closed output" 1 "can't write the output\n$" "\"$0\" add 'HKCU\\\\A' /v x /d y >&-")
ends("Closed errors" 1 "^$" "\"$0\" query 'HKCU\\\\None' 2>&-")
run(0 "    x    REG_SZ    y\n" query "HKCU\\A")
run(0 "nothing is wrong" repair "${userHive}")

# The reader goes before the first word is written; the fifo tells when.
ends("A reader that has gone" 0 "^1\n$" "
  mkfifo \"$1/gone\"
  { read -r word <\"$1/gone\"; \"$0\" --help 2>\"$1/errors\"; echo $? >\"$1/code\"; } |
    { exec <&-; echo gone >\"$1/gone\"; }
  cat \"$1/code\" \"$1/errors\"")
