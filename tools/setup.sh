# What ./run and ./test share; sourced, not run. Everything said here goes to stderr, so that the program's own
# output can be piped on.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=$(nproc)

say() { printf '\n== %s\n' "$*" >&2; }
die() { printf '%s: %s\n' "${0##*/}" "$*" >&2; exit 1; }

is_installed() { dpkg-query -W -f='${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed; }

# Installs those of the named packages that are missing; asks nothing of a machine that has them all.
need() {
    if ! command -v dpkg-query >/dev/null; then
        say "No Debian here: going on with what is installed (needed: $*)"
        return
    fi
    local package missing=()
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    if [ ${#missing[@]} -eq 0 ]; then
        return
    fi
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || die "as root, run: apt-get install --no-install-recommends ${missing[*]}"
        as_root=(sudo)
    fi
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q)
    say "Installing ${missing[*]}"
    "${apt[@]}" update >/dev/null || die "the package lists cannot be fetched: is there a network?"
    # Of apt's many lines those that show how far it is.
    "${apt[@]}" install -y --no-install-recommends "${missing[@]}" | sed -un '/^Need to get\|^Fetched\|^Setting up/p' >&2 \
        || die "the packages could not be installed"
}

# Configures build/PRESET with the given options; a folder that has them already is left alone.
configure() {
    local preset=$1 option cache="$root/build/$1/CMakeCache.txt" is_ready=yes
    shift
    [ -f "$cache" ] || is_ready=no
    for option in "$@"; do
        # "-DNAME=VALUE" stands in the cache as "NAME:TYPE=VALUE".
        grep -q "^$(sed -E 's/^-D([^=]*)=(.*)$/\1:[A-Z]*=\2$/' <<<"$option")" "$cache" 2>/dev/null || is_ready=no
    done
    if [ $is_ready = yes ]; then
        return
    fi
    say "Configuring build/$preset"
    local how=()
    if [ ! -f "$cache" ]; then
        if command -v ninja >/dev/null; then how+=(-G Ninja); fi
        if command -v ccache >/dev/null; then how+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
    fi
    (cd "$root" && cmake --preset "$preset" "${how[@]}" "$@") >&2 || die "build/$preset could not be configured"
}

# Builds what is out of date: build PRESET [TARGET...]
build() {
    local preset=$1
    shift
    say "Building build/$preset${*:+ ($*)}"
    cmake --build "$root/build/$preset" --parallel "$jobs" ${*:+--target "$@"} >&2 || die "the build failed"
}

tools_packages=(g++ cmake ninja-build pkg-config)
library_packages=(qtbase5-dev libzip-dev libpugixml-dev tzdata)
test_packages=(libgtest-dev libgmock-dev librapidcheck-dev libbenchmark-dev python3)
