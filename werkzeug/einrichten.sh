#!/usr/bin/env bash
# Installs what building, testing and the demonstration need, from Debian's packages. Does nothing when all is there.
# Usage: einrichten.sh [start]; with "start" only what building and using the program needs.
set -euo pipefail

umfang=${1:-alles}

pakete=(g++ cmake ninja-build make pkg-config qt6-base-dev qt6-translations-l10n libxlsxwriter-dev)
if [ "$umfang" = alles ]; then
    pakete+=(
        # building more than once, and linking many programs
        ccache clang lld
        # tests and benchmarks
        libgtest-dev libgmock-dev libbenchmark-dev libclang-rt-14-dev locales
        # Windows: the cross compiler, and what runs the result
        g++-mingw-w64-x86-64-posix libz-mingw-w64-dev wine wine64
        # opening workbooks, windows without a display, pictures
        libreoffice-calc xvfb xauth x11-utils xdotool openbox python3 fonts-noto-core fontconfig unzip
        # the windows as a screen reader meets them
        at-spi2-core dbus python3-gi
        # counting a process's calls to the system
        strace
        # packages and their checks
        librsvg2-bin cmark-gfm dpkg-dev lintian desktop-file-utils appstream man-db file git zip
    )
fi

fehlend=()
for paket in "${pakete[@]}"; do
    dpkg-query -W -f='${Status}' "$paket" 2>/dev/null | grep -q 'install ok installed' || fehlend+=("$paket")
done

als_root=()
if [ "$(id -u)" -ne 0 ]; then
    als_root=(sudo)
fi

if [ "${#fehlend[@]}" -gt 0 ]; then
    "${als_root[@]}" apt-get update
    "${als_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${fehlend[@]}"
fi

# the locales that the tests run under
[ "$umfang" = alles ] || exit 0
for gebiet in de_DE tr_TR; do
    if ! locale -a | grep -i "^${gebiet}.utf-\?8$" > /dev/null; then
        "${als_root[@]}" localedef -i "$gebiet" -f UTF-8 "$gebiet.UTF-8"
    fi
done
