#!/usr/bin/env bash
# Installs what building and testing Tarvex needs on a Debian machine, and only
# what is missing: Debian packages, then GoogleTest, zlib and minizip built for
# both mingw-w64 targets. Safe to run again; a second run does nothing.
set -euo pipefail

DEPS_ROOT=${TARVEX_DEPS_ROOT:-/opt/tarvex2-deps}
TOOLS_DIR=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
SOURCE_DIR=$(dirname "$TOOLS_DIR")
TRIPLES=(x86_64-w64-mingw32 i686-w64-mingw32)
PACKAGES=(
    g++ cmake ninja-build python3 googletest libgtest-dev dpkg-dev
    g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools
    wine wine64 xvfb xauth imagemagick fonts-wqy-microhei fonts-dejavu-core
    # The fuzz preset: clang 16 with libFuzzer and the sanitizers' runtimes. Debian 12's
    # default clang (14) cannot compile libstdc++ 12's ranges, which the core uses.
    clang-16 libclang-rt-16-dev
)

say() { echo "bootstrap: $*" >&2; }

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

apt_updated=0
apt_update_once() {
    if [ "$apt_updated" -eq 0 ]; then
        as_root apt-get update -qq
        apt_updated=1
    fi
}

install_packages() {
    local missing=()
    for p in "${PACKAGES[@]}"; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
    done
    if [ "${#missing[@]}" -gt 0 ]; then
        say "installing ${missing[*]}"
        apt_update_once
        as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
    fi
}

# apt-get source needs deb-src entries; make them from the machine's own deb
# entries so the same mirror serves them.
ensure_deb_src() {
    if grep -rqsE '^(deb-src |Types:.*deb-src)' /etc/apt/sources.list /etc/apt/sources.list.d/; then
        return
    fi
    say "adding deb-src entries derived from the existing sources"
    local tmp
    tmp=$(mktemp)
    for f in /etc/apt/sources.list.d/*.sources; do
        [ -f "$f" ] || continue
        sed -E 's/^Types:.*/Types: deb-src/' "$f" >>"$tmp"
        echo >>"$tmp"
    done
    if [ -s "$tmp" ]; then
        as_root install -m 644 "$tmp" /etc/apt/sources.list.d/tarvex2-deb-src.sources
    fi
    : >"$tmp"
    for f in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [ -f "$f" ] || continue
        grep -E '^deb ' "$f" | sed -E 's/^deb /deb-src /' >>"$tmp" || true
    done
    if [ -s "$tmp" ]; then
        as_root install -m 644 "$tmp" /etc/apt/sources.list.d/tarvex2-deb-src.list
    fi
    rm -f "$tmp"
    apt_updated=0
    apt_update_once
}

zlib_source_dir() {
    local src="$DEPS_ROOT/src"
    local dir
    dir=$(find "$src" -maxdepth 1 -type d -name 'zlib-*' 2>/dev/null | head -n 1)
    if [ -z "$dir" ]; then
        ensure_deb_src
        as_root mkdir -p "$src"
        say "fetching Debian's zlib source package"
        (cd "$src" && as_root apt-get source -qq zlib >/dev/null 2>&1)
        dir=$(find "$src" -maxdepth 1 -type d -name 'zlib-*' | head -n 1)
    fi
    echo "$dir"
}

toolchain_file() {
    case "$1" in
        x86_64-*) echo "$SOURCE_DIR/cmake/mingw-x86_64.cmake" ;;
        i686-*) echo "$SOURCE_DIR/cmake/mingw-i686.cmake" ;;
    esac
}

build_googletest() {
    local triple=$1 prefix=$DEPS_ROOT/$1
    [ -f "$prefix/lib/libgtest.a" ] && [ -f "$prefix/lib/libgtest_main.a" ] && return
    say "building GoogleTest for $triple"
    local build
    build=$(mktemp -d)
    cmake -S /usr/src/googletest -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_TOOLCHAIN_FILE="$(toolchain_file "$triple")" -DCMAKE_INSTALL_PREFIX="$prefix" \
        -DBUILD_GMOCK=ON -DINSTALL_GTEST=ON >/dev/null
    cmake --build "$build" >/dev/null
    as_root cmake --install "$build" >/dev/null
    rm -rf "$build"
}

build_zlib_and_minizip() {
    local triple=$1 prefix=$DEPS_ROOT/$1
    [ -f "$prefix/lib/libz.a" ] && [ -f "$prefix/lib/libminizip.a" ] && return
    local src build
    src=$(zlib_source_dir)
    build=$(mktemp -d)
    cp -r "$src/." "$build/"
    say "building zlib and minizip for $triple"
    local zobjs=()
    for c in adler32 compress crc32 deflate gzclose gzlib gzread gzwrite infback inffast inflate inftrees trees \
        uncompr zutil; do
        "$triple-gcc" -O2 -I"$build" -c "$build/$c.c" -o "$build/$c.o"
        zobjs+=("$build/$c.o")
    done
    "$triple-ar" rcs "$build/libz.a" "${zobjs[@]}"
    local mz="$build/contrib/minizip"
    local objs=()
    for c in ioapi zip unzip iowin32 mztools; do
        "$triple-gcc" -O2 -I"$build" -c "$mz/$c.c" -o "$mz/$c.o"
        objs+=("$mz/$c.o")
    done
    "$triple-ar" rcs "$mz/libminizip.a" "${objs[@]}"
    as_root mkdir -p "$prefix/lib" "$prefix/include/minizip"
    as_root install -m 644 "$build/libz.a" "$mz/libminizip.a" "$prefix/lib/"
    as_root install -m 644 "$build/zlib.h" "$build/zconf.h" "$prefix/include/"
    as_root install -m 644 "$mz"/{ioapi,zip,unzip,iowin32,mztools,crypt}.h "$prefix/include/minizip/"
    rm -rf "$build"
}

install_packages
for triple in "${TRIPLES[@]}"; do
    build_googletest "$triple"
    build_zlib_and_minizip "$triple"
done
say "ready"
