# Shared by run, test and .ci/run: installs what is missing and builds. Sourced from the project's root.
set -euo pipefail

# Nothing may depend on the machine's locale; Qt asks for one that is UTF-8.
case "${LC_ALL:-${LC_CTYPE:-${LANG:-}}}" in
    *[Uu][Tt][Ff]-8 | *[Uu][Tt][Ff]8) ;;
    *) export LC_ALL=C.UTF-8 ;;
esac

# The program's own output stays clean: progress goes to the error stream, tools write to a log.
say() { echo "$*" >&2; }

# Runs a command with its output in a log, which is shown only when the command fails.
quietly() {
    local log=build/prepare.log
    mkdir -p build
    if ! "$@" >"$log" 2>&1 </dev/null; then
        cat "$log" >&2
        say "Failed: $*"
        exit 1
    fi
}

packages_file=scripts/packages.txt
wanted_packages() { sed -e 's/#.*//' -e 's/[[:space:]]*$//' -e '/^$/d' "$packages_file"; }

missing_packages() {
    local installed
    installed=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' | sed -n 's/ installed$//p')
    wanted_packages | grep -vxF -e "$installed" || true
}

as_root() {
    if [ "$(id -u)" = 0 ]; then
        env DEBIAN_FRONTEND=noninteractive "$@"
    else
        sudo env DEBIAN_FRONTEND=noninteractive "$@"
    fi
}

install_packages() {
    if ! command -v dpkg-query >/dev/null; then
        say "This is not a Debian system. Install what $packages_file lists, then call cmake yourself."
        exit 1
    fi
    local missing
    mapfile -t missing < <(missing_packages)
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" != 0 ] && ! command -v sudo >/dev/null; then
        say "These packages are missing: ${missing[*]}"
        say "Start this as root once, or install sudo, so that they can be installed."
        exit 1
    fi
    say "Installing packages: ${missing[*]}"
    quietly as_root apt-get -o DPkg::Lock::Timeout=300 update
    quietly as_root apt-get -o DPkg::Lock::Timeout=300 install -y --no-install-recommends "${missing[@]}"
}

configure() {
    say "Configuring build/$1"
    quietly cmake --preset "$1"
}

# build PRESET TARGET...: configures when there is no configuration yet, and builds.
build() {
    local preset=$1 folder=build/$1
    shift
    if [ ! -f "$folder/build.ninja" ] || [ CMakePresets.json -nt "$folder/build.ninja" ]; then
        configure "$preset"
    fi
    if ! ninja -C "$folder" -n "$@" 2>/dev/null | grep -q "no work to do"; then
        say "Building $folder: $* (this takes a few minutes the first time)"
        quietly cmake --build "$folder" --target "$@"
    fi
}

# A home that can't be written to must not stop the compiler's cache.
[ -w "${HOME:-/nonexistent}" ] || export CCACHE_DIR=$PWD/build/ccache

# One preparation at a time in one tree; what is started afterwards must not hold the lock.
mkdir -p build
exec 9>build/prepare.lock
flock 9
prepared() { exec 9>&-; }

install_packages
