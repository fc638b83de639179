# shellcheck shell=bash
# The fuzz targets, each a program of the preset "fuzz". Source it from the root of the checkout.

fuzz_targets() { find tests/fuzz -maxdepth 1 -name '*.cpp' -printf '%f\n' | sed 's/\.cpp$//' | sort; }

# fuzzer TARGET: its program.
fuzzer() { echo "build/fuzz/tests/fuzz/fuzz_$1"; }

# run_fuzzer TARGET FOLDER [options...]: FOLDER takes the inputs that reach something new, the log
# is build/fuzz/TARGET.log, and an input with a finding becomes build/fuzz/finding-TARGET-*. In a
# program of this size, entropic weights would take longer than all that they choose from.
run_fuzzer() {
  local target=$1 folder=$2
  shift 2
  local dictionary=()
  if [ -f "tests/fuzz/corpus/$target.dict" ]; then
    dictionary=("-dict=tests/fuzz/corpus/$target.dict")
  fi
  rm -f "build/fuzz/finding-$target-"*
  mkdir -p "$folder"
  "$(fuzzer "$target")" -entropic=0 -max_len=1000 -timeout=60 -rss_limit_mb=3000 \
    "${dictionary[@]}" "$@" "-artifact_prefix=build/fuzz/finding-$target-" \
    "$folder" "tests/fuzz/corpus/$target" >"build/fuzz/$target.log" 2>&1
}

# fuzz_finding TARGET: what it printed of its finding, and how to see it again.
fuzz_finding() {
  echo "FAIL  fuzz target $1"
  grep -vE '^#[0-9]+|^INFO|^$' "build/fuzz/$1.log" | head -60
  local finding
  for finding in "build/fuzz/finding-$1-"*; do
    if [ -f "$finding" ]; then echo "Again: script/fuzz $1 $finding"; fi
  done
}

# brief_key TARGET: what decides how a brief run ends: the program, its inputs and how it is run.
brief_key() {
  {
    find "tests/fuzz/corpus/$1" "tests/fuzz/corpus/$1.dict" -type f -print0 2>/dev/null | sort -z |
      xargs -0 -r sha256sum
    sha256sum "$(fuzzer "$1")" script/lib/fuzz.sh
  } | sha256sum
}

# fuzz_briefly TARGET: all inputs of its corpus, and always the same few more. What passed once is
# not run again before anything of it changes.
fuzz_briefly() {
  local passed=build/fuzz/brief/$1.passed key
  key=$(brief_key "$1")
  if [ "$(cat "$passed" 2>/dev/null)" = "$key" ]; then
    echo "$1: unchanged since it passed"
    return
  fi
  rm -f "$passed"
  local runs=20000
  case $1 in
    flag_string) runs=5000 ;;
    titles) runs=1000 ;;
    messages | settings | start) runs=200 ;;
    captions) runs=100 ;;
  esac
  rm -rf "build/fuzz/brief/$1"
  if run_fuzzer "$1" "build/fuzz/brief/$1" -seed=1 "-runs=$runs"; then echo "$key" >"$passed"; fi
}

# fuzz_all_briefly: as many targets at a time as there are cores; sets good and bad.
fuzz_all_briefly() {
  local target
  good=0
  bad=0
  fuzz_targets | xargs -P "$(nproc)" -I{} bash -c '. script/lib/fuzz.sh; fuzz_briefly {}'
  for target in $(fuzz_targets); do
    if [ -f "build/fuzz/brief/$target.passed" ]; then
      good=$((good + 1))
    else
      bad=$((bad + 1))
      fuzz_finding "$target"
    fi
  done
}
