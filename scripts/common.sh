# shellcheck shell=bash
# What the scripts share: source it first. It goes to the project's folder, wherever it was called from.
set -euo pipefail

projectRoot="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)"
cd "$projectRoot"
logFolder=build/logs
jobs="$(nproc)"
shownLogLines="${shownLogLines:-30}" # how much of its log a failing step shows

buildPackages=(g++ cmake ninja-build libexpat1-dev libicu-dev libsqlite3-dev libgdk-pixbuf-2.0-dev
  pkg-config qt6-base-dev libmspack-dev)
demoPackages=("${buildPackages[@]}" fp-utils)
testPackages=("${buildPackages[@]}" googletest python3 dpkg-dev file xdotool xvfb)
windowsPackages=(g++-mingw-w64-x86-64-posix wine wine64)
fuzzPackages=("${buildPackages[@]}" clang libclang-rt-dev)
export buildPackages demoPackages testPackages windowsPackages fuzzPackages jobs

complain() { printf '%s\n' "$*" >&2; }

# step <log name> <what it does> <command> [argument...]: one line for people, the rest into a log.
step() {
  local log="$logFolder/$1.log" what="$2" started="$SECONDS" status=0
  shift 2
  mkdir -p "$logFolder"
  printf '%s\n' "$what"
  "$@" </dev/null >"$log" 2>&1 || status=$?
  if ((status != 0)); then
    showFailedStep "$what" "$log"
    return "$status"
  fi
  local took=$((SECONDS - started))
  if ((took >= 5)); then printf '  took %s s\n' "$took"; fi
}

# The end of the log, and the first errors where they stand before it.
showFailedStep() {
  complain "FAILED: $1. The end of $2:"
  {
    head -n "-$shownLogLines" "$2" | grep -E '(^|[: ])error: |^CMake Error' | head -n 5 || true
    tail -n "$shownLogLines" "$2"
  } | sed 's/^/  /' >&2
}

isInstalled() { dpkg-query -W -f='${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed; }

# needPackages <package>...: installs what is missing; where nothing is, it touches neither apt nor the network.
needPackages() {
  local package missing=()
  for package in "$@"; do
    isInstalled "$package" || missing+=("$package")
  done
  ((${#missing[@]} == 0)) || installPackages "${missing[@]}"
}

installPackages() {
  local asRoot=()
  if ! command -v apt-get >/dev/null; then
    complain "These packages are needed, and there is no apt-get to install them: $*"
    return 1
  fi
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      complain "These packages are needed; install them as root, there is no sudo here: apt-get install $*"
      return 1
    fi
    asRoot=(sudo)
  fi
  step packages "Installing packages: $*" aptInstall "$@"
}

# Package lists that can't be renewed are no reason to stop: the install decides. `asRoot` is the caller's.
aptInstall() {
  "${asRoot[@]}" apt-get update || echo "Going on with the package lists that are there."
  "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get -o DPkg::Lock::Timeout=300 install -y --no-install-recommends "$@"
}

# configure <build folder> <cmake argument>...: a folder that was configured elsewhere and moved here starts anew.
configure() {
  local folder="$1"
  shift
  if [[ -f "$folder/CMakeCache.txt" ]] &&
    ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$projectRoot" "$folder/CMakeCache.txt"; then
    rm -rf "$folder"
  fi
  cmake -S . -B "$folder" "$@"
}

# buildPreset <preset>: all of it, in the preset's own folder.
buildPreset() { configure "build/$1" --preset "$1" && cmake --build "build/$1" -j "$jobs"; }
