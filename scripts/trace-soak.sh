# shellcheck shell=bash disable=SC2154
# Clients send numbered lines to the logger as fast as they can, and their log files are compared with what was sent.
soakFolder=build/trace-soak # on a disk, not in memory: logs grow by gigabytes

buildTraceSoak() {
  configure build/soak --preset release -DTESSALY_EXAMPLES=OFF &&
    cmake --build build/soak -j "$jobs" --target zplogger trace-soak
}

# A logger of the soak's own: nobody else finds it, and it finds nobody else.
startLogger() {
  local line
  rm -rf "$soakFolder"
  mkdir -p "$soakFolder/run"
  chmod 700 "$soakFolder/run"
  export XDG_RUNTIME_DIR="$PWD/$soakFolder/run"
  # shellcheck disable=SC2069 # the lines go nowhere, and what the logger has to say comes here
  coproc soakLogger { exec build/soak/tools/zplogger/zplogger --level 255 --max-size 1000G 2>&1 >/dev/null; }
  exec {loggerOutput}<&"${soakLogger[0]}"
  while read -r line <&"$loggerOutput"; do
    if [[ "$line" == *"waiting for clients"* ]]; then return; fi
    complain "$line"
  done
  return 1
}

# What the logger has said meanwhile; false where it has not ended as it should.
endLogger() {
  local status=0
  kill "$soakLogger_PID" && wait "$soakLogger_PID" || status=$?
  cat <&"$loggerOutput"
  exec {loggerOutput}<&-
  return "$status"
}

removeSoakFolder() { rm -rf "$soakFolder"; }

# sendAndCompare <clients> <amount> <lines | seconds> [average pause after a line, in microseconds]
sendAndCompare() (
  trap removeSoakFolder EXIT
  startLogger || exit 1
  status=0
  build/soak/tests/soak/trace-soak "$PWD/$soakFolder" "$@" || status=$?
  endLogger || status=1
  exit "$status"
)

# soakTrace <minutes>: false where a line is missing that nothing explains.
soakTrace() {
  local isWell=true
  step build-soak "Building the logger and its clients" buildTraceSoak || return 1
  soakStep trace-soak-1 "One client sends 100,000 lines" sendAndCompare 1 100000 lines || isWell=false
  soakStep trace-soak-3 "Three clients send as fast as they can, for $1 min" sendAndCompare 3 $(($1 * 60)) seconds || isWell=false
  soakStep trace-soak-slow "Three clients send some hundred lines a second" sendAndCompare 3 30 seconds 2000 || isWell=false
  $isWell
}

soakStep() { step "$@" && cat "$logFolder/$1.log"; }
