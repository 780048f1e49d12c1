#!/usr/bin/env bash
# Makes the archive for Windows from a configured build tree: unpack it anywhere, start tolvek7.exe, the records lie beside
# it. Usage: packe.sh BUILD-FOLDER TARGET-FOLDER
set -euo pipefail
hier=$(cd "$(dirname "$0")" && pwd)
. "$hier/../anfang.sh"

version=$(sed -nE 's/^CMAKE_PROJECT_VERSION:STATIC=(.*)$/\1/p' "$bau/CMakeCache.txt")
qt=$(sed -nE 's/^TOLVEK_WINDOWS_QT:[A-Z]*=(.*)$/\1/p' "$bau/CMakeCache.txt")
cmake --build "$bau" --target tolvek7
"$paket/beilagen.sh" "$version" "$bau/paket/beilagen"

stufe=$(mktemp -d)
trap 'rm -rf "$stufe"' EXIT
ordner=$stufe/Tolvek7
mkdir -p "$ordner/lizenzen"
cp "$bau/bin/tolvek7.exe" "$ordner/"
x86_64-w64-mingw32-strip "$ordner/tolvek7.exe"
install -m 0644 -D -t "$ordner/anweisungen" "$quelle"/anweisungen/*.txt
cp -R "$bau/paket/beilagen/handbuch" "$ordner/Handbuch"
cp "$quelle/docs/handbuch/handbuch.md" "$ordner/Handbuch/" # what F1 shows

# Texts that people open in an editor of Windows: its line ends, and the mark by which every editor knows UTF-8.
fuer_windows() {
    printf '\xef\xbb\xbf'
    sed 's/$/\r/'
}
sed "s/@VERSION@/$version/g" "$hier/LIESMICH.txt" | fuer_windows > "$ordner/LIESMICH.txt"
sed 's/$/\r/' "$hier/ueben.cmd" > "$ordner/ueben.cmd" # without the mark: the command line stumbles over it
lizenz() { # NAME SOURCE
    fuer_windows < "$2" > "$ordner/lizenzen/$1.txt"
}
lizenz tolvek7 "$paket/copyright"
lizenz LGPL-3 /usr/share/common-licenses/LGPL-3
lizenz GPL-3 /usr/share/common-licenses/GPL-3
lizenz qtbase_de /usr/share/doc/qt6-translations-l10n/copyright
lizenz zlib /usr/share/doc/libz-mingw-w64-dev/copyright
lizenz gcc-laufzeit /usr/share/doc/gcc-mingw-w64-base/copyright
lizenz mingw-laufzeit /usr/share/doc/mingw-w64-x86-64-dev/copyright
for text in "$qt"/lizenzen/*.txt; do
    lizenz "$(basename "$text" .txt)" "$text"
done

find "$stufe" -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +
archiv=$ziel/Tolvek7-$version-windows.zip
rm -f "$archiv"
(cd "$stufe" && find Tolvek7 | LC_ALL=C sort | zip -q -X -9 "$archiv" -@)
