# shellcheck shell=bash
# What every script needs. Source it from the root of the checkout.

# usage: the comment at the head of the script that runs.
usage() { sed -n '2,/^[^#]/s/^# \{0,1\}//p' "script/${0##*/}"; }

misuse() {
  usage >&2
  exit 2
}

# explain MOST "$@": answers -h and --help. Options that the usage does not name are a misuse, and so
# are more arguments than MOST.
explain() {
  local most=$1 argument
  shift
  for argument in "$@"; do
    case $argument in
      -h | --help)
        usage
        exit 0
        ;;
      -*) grep -qwF -e "${argument%%=*}" <<<"$(usage)" || misuse ;;
    esac
  done
  [ $# -le "$most" ] || misuse
}

say() { printf '\n== %s\n' "$*"; }

# Lets ccache keep what was compiled with precompiled headers, as CMakePresets.json does for builds by
# hand.
export CCACHE_SLOPPINESS=pch_defines,time_macros

# The time that builds write into what they make, so that the same commit gives the same bytes: the
# commit's or, without git, the first that a zip can hold.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || echo 315532800)}
export SOURCE_DATE_EPOCH

# configure PRESET [options...]: with ccache in front of the compiler when it is installed.
configure() {
  local preset=$1
  shift
  local launcher=()
  if command -v ccache >/dev/null; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
  cmake --preset "$preset" "${launcher[@]}" "$@" >"build/$preset.log" 2>&1 ||
    { cat "build/$preset.log"; return 1; }
}

# build PRESET [targets...]: prints the log only when it fails.
build() {
  local preset=$1
  shift
  local targets=()
  if [ $# -gt 0 ]; then targets=(--target "$@"); fi
  cmake --build --preset "$preset" "${targets[@]}" >"build/$preset.log" 2>&1 ||
    { grep -vE '^\[[0-9]+/' "build/$preset.log" | tail -60; return 1; }
}

# count_tests WHAT...: sets good, bad, names and skipped to what count_tests.py prints for WHAT.
count_tests() {
  local said
  said=$(python3 script/lib/count_tests.py "$@") || said='0 1'
  # shellcheck disable=SC2034 # for the caller
  read -r good bad names <<<"$said"
  # shellcheck disable=SC2034 # for the caller
  skipped=$(tail -n +2 <<<"$said")
}

# native_tests PRESET: all tests of this build, on all cores; sets good, bad, names and skipped. What
# ctest itself says of them is in the results.
native_tests() {
  local build=build/$1
  rm -rf "$build/reports" "$build/results.xml"
  ctest --test-dir "$build" -j"$(nproc)" --output-on-failure --output-junit results.xml \
    >"$build-tests.log" 2>&1 || true
  count_tests ctest "$build/results.xml" "$build/reports"
}

# show_skipped LINES: how many tests skipped themselves, which and why.
show_skipped() {
  [ -z "$1" ] || echo "$(wc -l <<<"$1") skipped: ${1//$'\n'/, }"
}

# show_failures LOG: the tests that did not pass, and what GoogleTest printed of them.
show_failures() {
  if [ -n "${names:-}" ]; then echo "failed: $names"; fi
  grep -vE '^\[( +OK |-+|=+| RUN +|==+)' "$1" | tail -60
}
