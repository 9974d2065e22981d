# shellcheck shell=bash disable=SC2154
# Fuzzes everything that reads outside input, each target for its share of the time.

buildFuzzers() {
  configure build/fuzz -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DTESSALY_FUZZERS=ON -DTESSALY_TESTS=OFF &&
    cmake --build build/fuzz -j "$jobs" --target fuzzers
}

listFuzzers() { find build/fuzz/fuzz -maxdepth 1 -type f -executable -name 'fuzz-*' -printf '%f\n' | sort; }

# Two workers share the corpus that grows; each leaves a report of its own. (libFuzzer's own -jobs can't do it where a
# path holds a blank.) addr2line stands in for llvm-symbolizer, which would bring all of llvm with it.
runFuzzer() (
  name="${1#fuzz-}" options=(-max_total_time="$2" -rss_limit_mb=2048 -timeout=10 -print_final_stats=1)
  folders=("build/fuzz-corpus/$name") workers=() status=0
  if [[ -f "fuzz/$name.dict" ]]; then options+=(-dict="fuzz/$name.dict"); fi
  if [[ -d "fuzz/corpus/$name" ]]; then folders+=("fuzz/corpus/$name"); fi
  mkdir -p "${folders[0]}" "build/fuzz-artifacts/$name"
  export ASAN_OPTIONS=allow_addr2line=1:print_legend=0 UBSAN_OPTIONS=print_stacktrace=1:allow_addr2line=1
  trap 'kill "${workers[@]}" 2>/dev/null || true' EXIT
  for report in "$logFolder/$1"-{1,2}.log; do
    "build/fuzz/fuzz/$1" "${options[@]}" -artifact_prefix="build/fuzz-artifacts/$name/" "${folders[@]}" \
      >"$report" 2>&1 &
    workers+=($!)
  done
  for worker in 0 1; do
    wait "${workers[worker]}" || { status=1 && tail -n 60 "$logFolder/$1-$((worker + 1)).log"; }
  done
  return "$status"
)

fuzz() {
  local target="$1" seconds="$2" runs status=0
  if ! step "$target" "Running $target for $seconds s" runFuzzer "$target" "$seconds"; then
    find "build/fuzz-artifacts/${target#fuzz-}" -type f -newer "$startMark" -printf '  found: %p\n'
    status=1
  fi
  runs="$(awk '/^stat::number_of_executed_units:/ { n += $2 } END { print n + 0 }' "$logFolder/$target"-{1,2}.log)"
  printf '%s: %s runs\n' "$target" "$runs"
  return "$status"
}

# fuzzAll <minutes>: false where something was found.
fuzzAll() {
  local targets target isWell=true startMark="$logFolder/soak-started"
  step build-fuzz "Building the fuzz targets" buildFuzzers || return 1
  mapfile -t targets < <(listFuzzers)
  if ((${#targets[@]} == 0)); then
    complain "There are no fuzz targets in build/fuzz/fuzz."
    return 1
  fi
  touch "$startMark"
  for target in "${targets[@]}"; do
    fuzz "$target" $(($1 * 60 / ${#targets[@]})) || isWell=false
  done
  $isWell || complain "Something was found. To see it again: build/fuzz/fuzz/<target> <the file found>"
  $isWell
}
