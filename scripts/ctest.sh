# shellcheck shell=bash disable=SC2154
# Runs a preset's tests: what passes goes only to the log, what does not is shown.

# runTests <preset> <what it does> [ctest argument...]
runTests() {
  local preset="$1" log="$logFolder/ctest-$1.log" status=0
  printf '%s\n' "$2"
  shift 2
  ctest --preset "$preset" --no-label-summary -j "$jobs" "$@" </dev/null >"$log" 2>&1 || status=$?
  if ((status != 0)); then showFailures "$log"; fi
  return "$status"
}

# Of a crash under Wine the registers and the stack are enough, without the modules and threads.
showFailures() {
  sed -E '/^[0-9]+% tests passed/,$d; /^Modules:$/,/^ +Host version:/d; s/ \.{4,}/ /' "$1" |
    grep -vE '^ +Start +[0-9]+: |( Passed|\*\*\*Skipped) +[0-9.]+ sec$' || true
}

# printSummary <platform> <preset>: the names of the tests that failed, and ctest's own lines of how many did.
printSummary() {
  local log="$logFolder/ctest-$2.log" skipped
  printf '\n%s: ' "$1"
  if ! grep -qE '^[0-9]+% tests passed' "$log" 2>/dev/null; then
    printf 'no tests were run\n'
    return
  fi
  printf '%s\n' "$log"
  skipped="$(grep -c '\*\*\*Skipped' "$log" || true)"
  sed -n '/^The following tests FAILED:/,/^Errors while/{/^Errors while/!p}' "$log"
  if ((skipped > 0)); then printf '%s tests were skipped, as they tell in the log\n' "$skipped"; fi
  grep -E '^([0-9]+% tests passed|Total Test time)' "$log"
}
