# What the scripts of this folder share: where the project is, and the packages that a command
# needs. Sourced, not run.

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$top" || exit 1
jobs=$(nproc 2>/dev/null || echo 2)

# need PACKAGE...: installs those of the packages that are missing, and says so. Asks nothing, and
# needs no network where all are there.
need() {
  local missing=()
  local package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
      missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing ${missing[*]}" >&2
  local root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "To install them, run this as root." >&2; exit 1; }
    root=(sudo)
  fi
  export DEBIAN_FRONTEND=noninteractive
  "${root[@]}" apt-get update -qq >&2 &&
    "${root[@]}" apt-get install -y -qq --no-install-recommends -o DPkg::Lock::Timeout=300 \
      "${missing[@]}" >&2 || { echo "Could not install ${missing[*]}." >&2; exit 1; }
}

# build PRESET [TARGET...]: configures once, then builds what has changed.
build() {
  local preset=$1
  shift
  if [ ! -f "build/$preset/build.ninja" ]; then
    cmake --preset "$preset" >&2 || exit 1
  fi
  local targets=()
  [ $# -gt 0 ] && targets=(--target "$@")
  cmake --build "build/$preset" -j "$jobs" "${targets[@]}" >&2 || exit 1
}

tobuild=(g++ cmake ninja-build)
totest=("${tobuild[@]}" libgtest-dev libgmock-dev libbenchmark-dev libvterm-dev)
towindows=("${totest[@]}" g++-mingw-w64-x86-64-posix googletest wine wine64)
