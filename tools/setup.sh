# What ./run and ./test share; sourced, not run. Everything said here goes to stderr, so that the program's own
# output can be piped on.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=$(nproc)

say() { printf '\n== %s\n' "$*" >&2; }
die() { printf '%s: %s\n' "${0##*/}" "$*" >&2; exit 1; }

is_installed() { dpkg-query -W -f='${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed; }

# Of apt's many lines those that show how far it is: every tenth package, through what would be a silent minute.
apt_progress() {
    local line count=0
    while IFS= read -r line; do
        case $line in
            'Need to get'* | Fetched*) printf '%s\n' "$line" ;;
            Unpacking* | 'Setting up'*)
                count=$((count + 1))
                if [ $((count % 10)) -eq 0 ]; then printf '%s ...\n' "${line%% (*}"; fi ;;
        esac
    done
}

# Installs those of the named packages that are missing; asks nothing of a machine that has them all. Ends with the
# reason that apt gave and the command to type by hand when it cannot.
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
    local by_hand="apt-get install --no-install-recommends ${missing[*]}"
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || die "needs ${#missing[@]} packages; as root, run: apt-get update && $by_hand"
        sudo -v || die "needs ${#missing[@]} packages and sudo does not let you; as root, run: apt-get update && $by_hand"
        as_root=(sudo)
    fi
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q) log reason
    log=$(mktemp)
    say "Installing ${missing[*]}"
    # One source that does not answer need not be the one that has the packages, so the install is tried all the same.
    # What could not be fetched is a warning to apt, and the update a success.
    "${apt[@]}" update >"$log" 2>&1 || true
    reason=$(sed -n 's/^[EW]: //p' "$log" | head -1)
    [ -z "$reason" ] || printf 'apt: %s\n' "$reason" >&2
    if "${apt[@]}" install -y --no-install-recommends "${missing[@]}" 2>&1 | tee "$log" | apt_progress >&2; then
        rm -f "$log"
        return
    fi
    # A package that is unknown now may stand in the list that could not be fetched, so both are told.
    reason+=${reason:+$'\n'}$(sed -n 's/^E: //p' "$log" | head -3)
    rm -f "$log"
    die "the packages could not be installed: ${reason:-apt gave no reason}
as root, run: apt-get update && $by_hand"
}

# Whether a build folder is whole and was made for this checkout where it stands: a folder whose first configuring failed
# has a cache too, a moved checkout's folder builds nowhere, and a copied one's builds the checkout it was copied from.
is_configured() {
    local folder=$1
    [ -f "$folder/build.ninja" ] && [ -f "$folder/CMakeCache.txt" ] \
        && grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt" \
        && grep -qxF "CMAKE_CACHEFILE_DIR:INTERNAL=$folder" "$folder/CMakeCache.txt"
}

# Configures build/PRESET with the given options; a folder that has them already is left alone, one that is not whole or
# belongs to another checkout is made anew.
configure() {
    local preset=$1 option folder="$root/build/$1" is_ready=yes
    shift
    if ! is_configured "$folder"; then
        is_ready=no
        rm -rf "$folder"
    fi
    for option in "$@"; do
        # "-DNAME=VALUE" stands in the cache as "NAME:TYPE=VALUE".
        grep -q "^$(sed -E 's/^-D([^=]*)=(.*)$/\1:[A-Z]*=\2$/' <<<"$option")" "$folder/CMakeCache.txt" 2>/dev/null || is_ready=no
    done
    if [ $is_ready = yes ]; then
        return
    fi
    say "Configuring build/$preset"
    local how=()
    if command -v ccache >/dev/null; then how+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
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
# The fonts are for pictures: without any there is nothing to draw texts with.
library_packages=(qtbase5-dev libzip-dev libdeflate-dev libpugixml-dev libcairo2-dev libpango1.0-dev fonts-dejavu-core tzdata)
test_packages=(libgtest-dev libgmock-dev librapidcheck-dev libbenchmark-dev castxml python3)
window_packages=(qttranslations5-l10n) # ./run desktop: what stands in Qt's own dialogs
desktop_packages=(xvfb xauth) # ./test --long opens the window on a screen of its own
browser_packages=(chromium fonts-dejavu-core) # ./test --long uses the pages that are rendered
drawing_packages=(poppler-utils qpdf mupdf-tools librsvg2-bin libxml2-utils) # and reads the pictures
