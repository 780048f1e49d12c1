#!/usr/bin/env bash
# The archive for Windows as a person gets it: packed twice, unpacked, started by wine on a screen of its own.
# Usage: paket.sh BUILD-FOLDER WINE-HOME
set -uo pipefail
quelle=$(cd "$(dirname "$0")/../.." && pwd)
. "$quelle/tests/paket/gemeinsam.sh"
bau=$1
nutzer=(env) # the home of wine belongs to whoever runs the tests
wine=("$quelle/tests/windows/wine.sh" "$2")
version=$(sed -nE 's/^CMAKE_PROJECT_VERSION:STATIC=(.*)$/\1/p' "$bau/CMakeCache.txt")
qt=$(sed -nE 's/^TOLVEK_WINDOWS_QT:[A-Z]*=(.*)$/\1/p' "$bau/CMakeCache.txt")
titel="Tolvek7 v$version"

packe() {
    erwarte "packing into $1" "$quelle/paket/windows/packe.sh" "$bau" "$werk/$1" > "$werk/$1.log"
}
packe erstes
(umask 077 && export TZ=Asia/Tokyo && packe zweites) || exit 1
erwarte "both archives are the same" diff -r "$werk/erstes" "$werk/zweites"

ordner="$werk/Ordner mit Blank und Ä"
erwarte "the archive can be unpacked" unzip -q "$werk/erstes/Tolvek7-$version-windows.zip" -d "$ordner"
ordner=$ordner/Tolvek7
for pfad in "$quelle" "$bau" "$qt" "$HOME/"; do
    erwarte "the program does not know $pfad" test "$(grep -aoF -- "$pfad" "$ordner/tolvek7.exe" | wc -l)" -eq 0
done
for text in LIESMICH.txt lizenzen/tolvek7.txt; do
    erwarte "$text is read by every editor" test "$(head -c 3 "$ordner/$text" | od -An -tx1 | tr -d ' ')" = efbbbf
    erwarte "$text has the line ends of Windows" test "$(grep -c $'\r$' "$ordner/$text")" = "$(wc -l < "$ordner/$text")"
done
fremde=$(x86_64-w64-mingw32-objdump -p "$ordner/tolvek7.exe" | sed -n 's/.*DLL Name: //p' | grep -iE '^(lib|qt|zlib)')
erwarte "the program brings along all that Windows lacks: $fremde" test -z "$fremde"
erwarte "--version" test "$("${wine[@]}" "$ordner/tolvek7.exe" --version)" = "Tolvek7 $version"

"${wine[@]}" --beenden # a home that has been in use without a screen stays without one
oeffne_anzeige
starte "${wine[@]}" "$ordner/tolvek7.exe"
erwarte_fenster "$titel"
erwarte "it ends by key" warte_auf 60 druecke_bis_ende "$titel" alt+e
for datei in kernDat betrDat diagDat; do
    erwarte "$datei.txt lies beside the program" test -f "$ordner/Daten/$datei.txt"
done
erwarte "nothing is found in new tables" "${wine[@]}" "$ordner/tolvek7.exe" --pruefe > "$werk/pruefung"

# the command that starts the made-up facility has ended before the window comes
muster_da() {
    programm=$(pgrep -f 'tolvek7\.exe"? --muster' | head -1)
    [ -n "$programm" ] && fenster_da "MUSTER – $titel"
}
vorher=$(find "$2/drive_c/users" | sort)
"${wine[@]}" cmd /c "$ordner/ueben.cmd" > "$werk/ueben.log" 2>&1
erwarte "practising opens a made-up facility; there are: $(xwininfo -root -tree)" warte_auf 60 muster_da
erwarte "it ends by key" warte_auf 60 druecke_bis_ende "MUSTER – $titel" alt+e
erwarte "the made-up facility is gone" test "$(find "$2/drive_c/users" | sort)" = "$vorher"
