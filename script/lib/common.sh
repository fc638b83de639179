# What every script needs. Source it from the root of the checkout.

say() { printf '\n== %s\n' "$*"; }

# Lets ccache keep what was compiled with precompiled headers.
export CCACHE_SLOPPINESS=pch_defines,time_macros

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
