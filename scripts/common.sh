# Shared by the scripts: where the project is, which Debian packages it needs, how to build.
# Sourced, not run.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

# To build and run.
build_packages=(g++ cmake ninja-build libutf8proc-dev libxxhash-dev libxml2-dev zlib1g-dev libzip-dev libexpected-dev
  libcli11-dev nlohmann-json3-dev libssl-dev pkg-config python3-dev pybind11-dev)
# To test as well.
test_packages=(libgtest-dev libgmock-dev clang-format binutils dpkg-dev git python3 groff-base zsh fish libxml2-utils
  python3-distributed python3-pandas python3-numpy python3-pytest python3-mypy)
# To make packages.
package_packages=(dpkg-dev git)
# For the slow extras: second compiler, fuzzing, linting, benchmarks, memory checks.
extra_packages=(clang libclang-rt-14-dev clang-tidy cppcheck libbenchmark-dev valgrind)
# For the site that scripts/docs builds.
docs_packages=(mkdocs doxygen python3 python3-yaml)

# A compiler cache is used where there is one.
if [ -z "${CMAKE_CXX_COMPILER_LAUNCHER+set}" ] && command -v ccache >/dev/null; then
  export CMAKE_CXX_COMPILER_LAUNCHER=ccache
fi

say() { printf '%s\n' "$*" >&2; }

# require_packages NAME…: installs what is missing, as root or through sudo; silent when
# nothing is. Where that cannot be done it shows the command to run by hand.
require_packages() {
  local missing=() name
  for name in "$@"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$name" 2>/dev/null)" = installed ] || missing+=("$name")
  done
  [ ${#missing[@]} -gt 0 ] || return 0

  local as_root=() by_hand="apt-get update && apt-get install -y --no-install-recommends ${missing[*]}"
  if [ "$(id -u)" -ne 0 ]; then
    as_root=(sudo)
    # sudo asks for a password at the terminal.
    if ! command -v sudo >/dev/null || ! { sudo -n true || : </dev/tty; } 2>/dev/null; then
      say "Debian packages are missing, and to install them this script would have to be root. By hand, as root:"
      say "  $by_hand"
      exit 2
    fi
  fi
  say "Installing ${#missing[@]} Debian packages: ${missing[*]}"
  local log
  log=$(mktemp)
  if ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive sh -c "$by_hand" >"$log" 2>&1; then
    cat "$log" >&2
    say "The packages could not be installed."
    exit 2
  fi
  rm -f "$log"
}

# Passes on what ninja writes; how far it is stands on the terminal, when there is one.
with_progress() {
  [ -t 2 ] || exec cat
  local line
  while IFS= read -r line; do
    printf '%s\n' "$line"
    [[ $line != \[*/*\]* ]] || printf '\r\e[K  %s' "${line%%]*}]" >&2
  done
  printf '\r\e[K' >&2
}

# build PRESET [OPTION…] [-- TARGET…]: configures when needed, says how many files there are to compile and
# builds; shows the compiler's output only when something goes wrong.
build() {
  local preset=$1 options=() targets=()
  shift
  while [ $# -gt 0 ] && [ "$1" != -- ]; do
    options+=("$1")
    shift
  done
  [ $# -eq 0 ] || { shift; [ $# -eq 0 ] || targets=(--target "$@"); }

  local log files
  log=$(mktemp)
  if ! {
    cmake --preset "$preset" "${options[@]}" >"$log" 2>&1 &&
      files=$(cmake --build --preset "$preset" "${targets[@]}" -- -n 2>&1 | grep -c 'Building C' || true) &&
      { [ "$files" -eq 0 ] || say "Compiling $files files …"; } &&
      cmake --build --preset "$preset" "${targets[@]}" 2>&1 | with_progress >>"$log"
  }; then
    cat "$log" >&2
    say "The $preset build failed."
    rm -f "$log"
    exit 1
  fi
  rm -f "$log"
}
