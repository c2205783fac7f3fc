# shellcheck shell=bash
# Shared by ./run and ./test: packages, configuring, building, and the throw-away PostgreSQL of the tests.
# Sourced, not run. Expects `set -euo pipefail`; works from any current directory.

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"

# use_preset NAME: what is configured and built from here on. release, or ci where warnings are errors, both in
# build/release; no-view without the windows; sanitize for the core under the address and undefined behaviour sanitizers;
# tidy for scripts/tidy.sh.
use_preset() {
    preset="$1"
    case "$preset" in
    release | ci) build="$root/build/release" ;;
    *) build="$root/build/$preset" ;;
    esac
}
use_preset "${JXC_PRESET:-release}"

packages=(g++ cmake ninja-build ccache pkg-config
    libsqlite3-dev libpq-dev libmuparser-dev nlohmann-json3-dev libutf8proc-dev libsodium-dev libzint-dev libcli11-dev
    qt6-base-dev qt6-tools-dev libqt6opengl6-dev qt6-translations-l10n fonts-wqy-zenhei libxlsxwriter-dev unzip locales
    postgresql libgtest-dev libgmock-dev libbenchmark-dev poppler-utils)

say() { printf '== %s\n' "$*"; }
fail() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}

# Installs the Debian packages that are missing; asks nobody when all are there.
install_packages() {
    if ! command -v dpkg-query >/dev/null; then
        say "no Debian package manager here; taking for granted: ${packages[*]}"
        return
    fi
    local missing=() package
    for package in "${packages[@]}"; do
        if [[ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)" != installed ]]; then
            missing+=("$package")
        fi
    done
    if ((${#missing[@]} == 0)); then
        return
    fi
    local as_root=()
    if ((EUID != 0)); then
        command -v sudo >/dev/null || fail "missing packages; as root: apt-get install ${missing[*]}"
        as_root=(sudo)
    fi
    say "installing ${missing[*]}"
    "${as_root[@]}" apt-get update
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
}

# Configures the build of the preset.
configure() {
    local warnings=(-DJXC_WERROR=OFF)
    case "$preset" in
    ci) warnings=() ;; # the preset turns them on
    no-view) warnings=(-DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON) ;; # them too; and as on a machine without it
    esac
    say "configuring (preset $preset)"
    mkdir -p "$root/build"
    (cd "$root" && cmake --preset "$preset" "${warnings[@]}" >"$root/build/configure.log" 2>&1) || {
        cat "$root/build/configure.log" >&2
        fail "configuring failed"
    }
}

# build_targets [TARGET...]: configures and builds; without targets, everything.
build_targets() {
    configure
    say "building ${*:-everything} in ${build#"$root"/}"
    cmake --build "$build" ${1:+--target "$@"}
}

# The newest PostgreSQL server installed.
postgres_bin() {
    local initdb
    initdb="$(find /usr/lib/postgresql -maxdepth 3 -name initdb 2>/dev/null | sort -V | tail -n 1)"
    [[ -n "$initdb" ]] || initdb="$(command -v initdb || true)"
    [[ -n "$initdb" ]] || fail "no PostgreSQL server found (package postgresql)"
    dirname "$initdb"
}

# Runs a server command: the server refuses root, so root hands it to the user postgres.
as_postgres() {
    if ((EUID == 0)); then
        (cd / && runuser -u postgres -- "$@")
    else
        "$@"
    fi
}

# Starts an empty PostgreSQL that is reached through a socket in a folder of its own only, and sets JXC_TEST_PG to it.
# The caller traps EXIT with stop_postgres.
start_postgres() {
    postgres_folder="$(mktemp -d /tmp/jxc-postgres.XXXXXX)"
    postgres_programs="$(postgres_bin)"
    if ((EUID == 0)); then
        chown postgres: "$postgres_folder"
    fi
    say "starting a throw-away PostgreSQL"
    # Its data lives minutes: no waiting for the disk. Texts sort by code point, as on the other engine.
    as_postgres "$postgres_programs/initdb" -D "$postgres_folder/data" -U postgres --auth=trust --locale=C \
        --encoding=UTF8 --no-sync >"$postgres_folder.log" 2>&1 || {
        cat "$postgres_folder.log" >&2
        fail "initdb failed"
    }
    as_postgres "$postgres_programs/pg_ctl" -D "$postgres_folder/data" -l "$postgres_folder/server.log" -w -s \
        -o "-c listen_addresses='' -c unix_socket_directories='$postgres_folder' -c fsync=off \
            -c synchronous_commit=off -c full_page_writes=off" start || {
        cat "$postgres_folder/server.log" >&2
        fail "PostgreSQL did not start"
    }
    export JXC_TEST_PG="postgresql://postgres@/postgres?host=$postgres_folder"
}

stop_postgres() {
    [[ -n "${postgres_folder:-}" ]] || return 0
    if [[ -f "$postgres_folder/data/postmaster.pid" ]]; then
        as_postgres "$postgres_programs/pg_ctl" -D "$postgres_folder/data" -m immediate -w -s stop || true
    fi
    rm -rf "$postgres_folder" "$postgres_folder.log"
    postgres_folder=
}
