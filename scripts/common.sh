# Installing packages, building and cleaning up, for ./run, ./test and ./fuzz. Source it in the root of the clone.

BUILD_PACKAGES=(git cmake ninja-build g++ libgtest-dev googletest libbenchmark-dev
    g++-mingw-w64-i686-win32 g++-mingw-w64-i686-posix g++-mingw-w64-x86-64-posix)
CHECK_PACKAGES=(clang-tidy clang-format binutils python3)
FUZZ_PACKAGES=(clang libclang-rt-14-dev)
WINE_PACKAGES=(wine wine64 fonts-wine fonts-liberation xvfb xserver-xephyr x11-utils
    imagemagick)
X86_PACKAGES=(debootstrap)

LOGS=$PWD/build/log
mkdir -p "$LOGS"
# Leave nothing outside the clone: the caches of the compiler and of Wine go here too.
export CCACHE_DIR=${CCACHE_DIR:-$PWD/build/cache/ccache} XDG_CACHE_HOME=$PWD/build/cache

die() { printf '%s\n' "$*" >&2; exit 1; }

AS_ROOT=()
[ "$(id -u)" = 0 ] || AS_ROOT=(sudo -E)
as_root() { "${AS_ROOT[@]}" "$@"; }

# Commands to run when the script ends for whatever reason, last in, first out.
AT_EXIT=()
at_exit() { AT_EXIT=("$*" "${AT_EXIT[@]}"); }
run_at_exit() { local step; for step in "${AT_EXIT[@]}"; do eval "$step" || true; done; }
trap run_at_exit EXIT
trap 'exit 130' INT TERM HUP

# logged NAME COMMAND...: runs a command with its output in a log; if it fails, shows the end of the log.
logged() {
    local log=$LOGS/$1.log start=$SECONDS; shift
    "$@" >"$log" 2>&1 </dev/null || { tail -n 60 "$log" >&2; die "failed: $* (full log: $log)"; }
    LOGGED_SECONDS=$((SECONDS - start))
}

install_packages() {
    local package missing=()
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    command -v apt-get >/dev/null ||
        die "Missing packages: ${missing[*]}. This system has no apt-get; install the equivalents by hand."
    [ "$(id -u)" = 0 ] || command -v sudo >/dev/null ||
        die "Missing packages: ${missing[*]}. Run this as root, install sudo, or install the packages by hand."
    echo "Installing packages with apt: ${missing[*]}"
    logged apt-update as_root apt-get update
    logged apt-install as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends "${missing[@]}"
}

build() {
    local preset
    for preset in "$@"; do
        logged "configure-$preset" cmake --preset "$preset"
        logged "build-$preset" cmake --build --preset "$preset"
        echo "Built $preset in $LOGGED_SECONDS s"
    done
}
