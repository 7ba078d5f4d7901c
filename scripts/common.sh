# Shared by the scripts: where the project is, which Debian packages it needs, how to build.
# Sourced, not run.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

# To build and run.
build_packages=(g++ cmake ninja-build libutf8proc-dev libxxhash-dev libxml2-dev libexpected-dev libcli11-dev
  nlohmann-json3-dev libssl-dev pkg-config)
# To test as well.
test_packages=(libgtest-dev libgmock-dev clang-format binutils git)
# For the slow extras: second compiler, fuzzing, linting, benchmarks, memory checks.
extra_packages=(clang libclang-rt-14-dev clang-tidy libbenchmark-dev valgrind)

say() { printf '%s\n' "$*" >&2; }

# require_packages NAME…: installs what is missing, as root or through sudo; silent when
# nothing is.
require_packages() {
  local missing=() name
  for name in "$@"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$name" 2>/dev/null)" = installed ] || missing+=("$name")
  done
  [ ${#missing[@]} -gt 0 ] || return 0

  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || {
      say "These packages are missing and need root to install: ${missing[*]}"
      exit 2
    }
    as_root=(sudo)
  fi
  say "Installing Debian packages: ${missing[*]}"
  local log
  log=$(mktemp)
  if ! { "${as_root[@]}" apt-get update &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
    cat "$log" >&2
    say "The packages could not be installed."
    exit 2
  fi
  rm -f "$log"
}

# build PRESET [OPTION…] [-- TARGET…]: configures when needed and builds; shows the compiler's
# output only when something goes wrong.
build() {
  local preset=$1 options=() targets=()
  shift
  while [ $# -gt 0 ] && [ "$1" != -- ]; do
    options+=("$1")
    shift
  done
  [ $# -eq 0 ] || { shift; [ $# -eq 0 ] || targets=(--target "$@"); }

  local log
  log=$(mktemp)
  if ! { cmake --preset "$preset" "${options[@]}" && cmake --build --preset "$preset" "${targets[@]}"; } >"$log" 2>&1; then
    cat "$log" >&2
    say "The $preset build failed."
    rm -f "$log"
    exit 1
  fi
  rm -f "$log"
}
