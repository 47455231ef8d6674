# Shared by ./run and ./test: installs what packages.txt names and this machine lacks, and builds
# one CMake preset. Sourced from the top folder; says what it does.

say() { printf '\n== %s\n' "$*"; }

packages() { sed 's/#.*//' packages.txt | tr -s ' \t\n' '\n' | sed '/^$/d'; }

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

missing_packages() {
    local name
    for name in $(packages); do
        dpkg-query -W -f '${db:Status-Status}\n' "$name" 2>/dev/null | grep -qx installed || echo "$name"
    done
}

install_packages() {
    local missing
    missing=$(missing_packages | tr '\n' ' ')
    if [ -z "$missing" ]; then
        say "All Debian packages are installed"
        return
    fi
    if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
        echo "These Debian packages are missing, and there is neither root nor sudo to install them:" >&2
        echo "$missing" >&2
        exit 1
    fi
    say "Installing Debian packages: $missing"
    as_root apt-get update -q
    # shellcheck disable=SC2086
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends $missing
}

# build PRESET TARGET [CMAKE-ARGUMENT...]
build() {
    local preset=$1 target=$2
    shift 2
    say "Building $target (preset $preset)"
    # -U: a folder that was configured before keeps the library folder of those days.
    cmake --preset "$preset" -UCMAKE_INSTALL_LIBDIR "$@"
    cmake --build --preset "$preset" --target "$target"
}
