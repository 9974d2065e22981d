# shellcheck shell=bash disable=SC2034,SC2154
# Wine for the tests: a prefix of the build's own, without a display, and a server that stays while they run.
export WINEPREFIX="$projectRoot/build/wine" WINEDEBUG=-all

# Other locales than a UTF-8 one would hide files whose names are not ASCII. A display would let a crash show a
# dialog that nobody answers.
useWineEnvironment() {
  export LC_ALL=C.UTF-8
  unset DISPLAY WAYLAND_DISPLAY
}

# A server that an interrupted run has left behind goes first, and a prefix that it left half made.
prepareWine() {
  stopWineServer
  if [[ ! -f "$WINEPREFIX/complete" ]]; then
    rm -rf "$WINEPREFIX"
    wineboot -i && wineserver -w && touch "$WINEPREFIX/complete"
  fi
  useNoGraphics
}

# Top-level windows need a display, or a driver that does without. A server that runs already would not see it.
useNoGraphics() {
  if [[ ! -f "$WINEPREFIX/no-graphics" ]]; then
    wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f && stopWineServer &&
      touch "$WINEPREFIX/no-graphics"
  fi
}

# Without the waiting server each test would pay for a start of Wine.
warmWine() { prepareWine && wineserver -p && wine cmd /c exit; }

# Wine's services end when no program runs for some seconds, and a test that begins just then waits half a minute for
# them. So one program runs all the time: a prompt that waits for words from here, and ends with this script.
keepWineBusy() { coproc wineBusy { exec wine cmd >/dev/null 2>&1; }; }

# From here on the server goes when the script ends, however it ends.
startWine() {
  trap stopWineServer EXIT
  trap 'exit 130' INT
  trap 'exit 143' TERM
  trap 'exit 129' HUP
  useWineEnvironment
  step wine "Starting Wine" warmWine && keepWineBusy
}

stopWineServer() { { wineserver -k && wineserver -w; } >/dev/null 2>&1 || true; }
