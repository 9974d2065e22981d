# shellcheck shell=bash disable=SC2154
# Which files a check looks at. Git tells them, whoever owns the clone.
needPackages git
gitHere() { git -c safe.directory="$projectRoot" "$@"; }
if ! gitHere rev-parse --verify -q HEAD >/dev/null; then
  complain "$projectRoot is no git clone; the checks ask git which files there are."
  exit 1
fi

# cppFiles <path>...: C++ files of the project, new ones too that git does not know yet, not those of a build.
cppFiles() {
  local file
  gitHere ls-files -co --exclude-standard -- "$@" | grep -E '\.(h|cpp)$' | sort -u |
    while IFS= read -r file; do
      if [[ -f "$file" ]]; then printf '%s\n' "$file"; fi
    done
}

# changedFiles: what differs from the main branch, or on that branch from the commit before.
changedFiles() {
  local base
  base="$(gitHere merge-base HEAD origin/main 2>/dev/null || true)"
  if [[ -z "$base" || "$base" == "$(gitHere rev-parse HEAD)" ]]; then
    base="$(gitHere rev-parse --verify -q HEAD^ || true)"
  fi
  if [[ -n "$base" ]]; then gitHere diff --name-only "$base"; fi
  gitHere ls-files -o --exclude-standard
}

# includes [-i] <extended regular expression> <file>...: file, line and text of each include of what the expression
# tells, with -i in any case.
includes() {
  local options=-HnE expression
  if [[ "$1" == -i ]]; then options+=i && shift; fi
  expression="$1"
  shift
  (($# == 0)) || grep "$options" "^[[:space:]]*#[[:space:]]*include[[:space:]]*[<\"]($expression)[>\"]" "$@" || true
}
