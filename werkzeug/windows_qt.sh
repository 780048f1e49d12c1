#!/usr/bin/env bash
# Builds what the Windows program is linked with: Qt (Core, Gui, Widgets, for the tests Test) and libxlsxwriter, both static,
# from Debian's source packages of the versions that the Linux program uses (Qt's tools of the host must fit).
# It takes about an hour and happens once: the result lies in a cache outside the tree, named after the versions, the compiler
# and the options below. A build that was cut off is taken up again; an unfinished one is never used.
# Prints the folder; everything else goes to the standard error.
set -euo pipefail

ausgabe=3
exec 3>&1 1>&2

# Not built: what the program does not use. Without wintab.h (not in the package of mingw-w64) there are no tablet events.
# DirectWrite is compiled with Direct2D alone. The host's rcc packs with zstd, which this Qt could not unpack.
aus=(
    sql network dbus concurrent printsupport xml
    opengl opengl_dynamic opengl_desktop opengles2 egl vulkan direct2d direct2d1_1 directwrite directwrite3
    icu glib zstd pkg_config fontconfig cpp_winrt tuiotouch tabletevent jpeg gif
    graphicsview wizard mdiarea lcdnumber dial splashscreen colordialog fontdialog undoview columnview keysequenceedit
    sharedmemory systemsemaphore textodfwriter pdf
    system_zlib system_pcre2 system_harfbuzz system_freetype system_png system_doubleconversion system_libb2
)
an=(testlib accessibility freetype harfbuzz)

qt=(
    -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_BENCHMARKS=OFF
    -DQT_QMAKE_TARGET_MKSPEC=win32-g++ -DQT_HOST_PATH=/usr -DINPUT_opengl=no
    "-DQT_HOST_PATH_CMAKE_DIR=/usr/lib/$(dpkg-architecture -qDEB_BUILD_MULTIARCH)/cmake"
    "${aus[@]/%/=OFF}" "${an[@]/%/=ON}"
)
for ((i = 0; i < ${#qt[@]}; ++i)); do
    [[ ${qt[i]} == -D* ]] || qt[i]=-DFEATURE_${qt[i]}
done
xlsx=(-DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF)

kette=x86_64-w64-mingw32
read -r -d '' werkzeugkette <<ENDE || true
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER $kette-gcc-posix)
set(CMAKE_CXX_COMPILER $kette-g++-posix)
set(CMAKE_RC_COMPILER $kette-windres)
set(CMAKE_FIND_ROOT_PATH /usr/$kette)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
ENDE

fassung() { dpkg-query -W -f='${source:Version}' "$1"; }
qt_fassung=$(fassung qt6-base-dev)
xlsx_fassung=$(fassung libxlsxwriter-dev)
kennung=$(printf '%s\n' "${qt[@]}" "${xlsx[@]}" "$werkzeugkette" "$xlsx_fassung" "$(fassung libz-mingw-w64-dev)" \
    "$($kette-g++-posix -dumpfullversion)" | sha256sum | cut -c1-12)

lager=${XDG_CACHE_HOME:-$HOME/.cache}/tolvek7
ziel=$lager/windows-qt-${qt_fassung//[^0-9A-Za-z.]/-}-$kennung
arbeit=$ziel.arbeit

fertig() {
    echo "$ziel" >&$ausgabe
    exit 0
}

[ -d "$ziel" ] && fertig
mkdir -p "$arbeit"
exec 9> "$arbeit/.sperre"
flock 9 # another build of the same thing: wait for it
[ -d "$ziel" ] && fertig

# The lists of packages that the system has, with their sources; for this one call.
hole_quellen() {
    local q=$arbeit/quellen.neu
    rm -rf "$q"
    mkdir -p "$q/teile" "$q/listen/partial" "$q/lager/archives/partial"
    local datei
    for datei in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [ -f "$datei" ] && sed -n 's/^deb\(-src\)\?\([[:space:]]\)/deb-src\2/p' "$datei" > "$q/teile/$(basename "$datei" .list).list"
    done
    for datei in /etc/apt/sources.list.d/*.sources; do
        [ -f "$datei" ] && sed 's/^Types:.*/Types: deb-src/' "$datei" > "$q/teile/$(basename "$datei")"
    done
    local eigene=(-qq -o Dir::Etc::SourceList=/dev/null -o "Dir::Etc::SourceParts=$q/teile" -o "Dir::State::Lists=$q/listen"
        -o "Dir::Cache=$q/lager" -o APT::Sandbox::User=root)
    apt-get "${eigene[@]}" update
    (cd "$q" && apt-get "${eigene[@]}" source "qt6-base=$qt_fassung" "libxlsxwriter=$xlsx_fassung")
    mv "$q"/qt6-base-*/ "$q/qt"
    mv "$q"/libxlsxwriter-*/ "$q/xlsx"
    mv "$q" "$arbeit/quellen"
}

# Every machine has to build the same bytes. Qt writes where it is installed into the program: a place of no machine's. Its
# own way of packing the list of file types keeps the time of the packing, the other one does not. And it is configured
# anew when a build is taken up again: over what it has found before, it names some of its folders otherwise.
baue() { # NAME, options
    local name=$1
    shift
    cmake --fresh -G Ninja -S "$arbeit/quellen/$name" -B "$arbeit/bau-$name" -DCMAKE_TOOLCHAIN_FILE="$arbeit/werkzeugkette.cmake" \
        -DCMAKE_INSTALL_PREFIX=/ziel -DQT_AVOID_CMAKE_ARCHIVING_API=ON \
        -DCMAKE_C_FLAGS="-ffile-prefix-map=$arbeit=." -DCMAKE_CXX_FLAGS="-ffile-prefix-map=$arbeit=." "$@"
    cmake --build "$arbeit/bau-$name" --parallel "${TOLVEK_JOBS:-$(nproc)}"
    DESTDIR=$arbeit cmake --install "$arbeit/bau-$name" > /dev/null
}

# The licence texts of everything that gets into the program.
sammle_lizenzen() {
    local ziel=$arbeit/ziel/lizenzen fremdes=$arbeit/quellen/qt/src/3rdparty teil
    mkdir -p "$ziel"
    cp "$arbeit/quellen/qt/debian/copyright" "$ziel/qt.txt"
    cp "$arbeit/quellen/xlsx/License.txt" "$ziel/libxlsxwriter.txt"
    for teil in blake2 double-conversion easing freetype harfbuzz-ng icc libpng md4c pcre2 pixman rfc6234 sha3 tinycbor zlib; do
        find "$fremdes/$teil" -maxdepth 1 \( -iname '*licen[cs]e*' -o -name COPYING \) -print0 | sort -z | xargs -0 cat > "$ziel/qt-$teil.txt"
        [ -s "$ziel/qt-$teil.txt" ] || { echo "no licence text of $teil"; return 1; }
    done
}

[ -d "$arbeit/quellen" ] || hole_quellen
echo "$werkzeugkette" > "$arbeit/werkzeugkette.cmake"
rm -rf "$arbeit/ziel"
baue xlsx "${xlsx[@]}"
baue qt "${qt[@]}"
sammle_lizenzen
sync -f "$arbeit/ziel"
mv -T "$arbeit/ziel" "$ziel"
rm -rf "$arbeit"
fertig
