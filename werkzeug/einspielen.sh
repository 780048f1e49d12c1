#!/usr/bin/env bash
# Puts the program and what goes with it into a program folder, new or in use. Records and settings are not touched.
# An instruction file is put there only when it is missing or still is one that was shipped before (their checksums
# are in anweisungen/ausgeliefert.sha256): one that the facility has changed stays.
# Usage: einspielen.sh PROGRAM PROGRAM-FOLDER
set -euo pipefail
quelle=$(cd "$(dirname "$0")/.." && pwd)
programm=$1
ordner=$2

# All or nothing: a program that is cut off in the middle starts no more.
lege_ab() {
    install -m "$1" "$2" "$ordner/.$(basename "$2").neu"
    mv -f "$ordner/.$(basename "$2").neu" "$ordner/$(basename "$2")"
}

wurde_ausgeliefert() {
    local summe
    summe=$(sha256sum < "$1" | cut -d' ' -f1)
    grep -qx "$summe  $(basename "$1")" "$quelle/anweisungen/ausgeliefert.sha256"
}

mkdir -p -m 0700 "$ordner"
lege_ab 0755 "$programm"
for datei in "$quelle"/anweisungen/*.txt; do
    vorhanden=$ordner/$(basename "$datei")
    if [ -e "$vorhanden" ] && ! wurde_ausgeliefert "$vorhanden"; then
        echo "Geändert und deshalb nicht ersetzt: $vorhanden"
    elif [ ! -L "$vorhanden" ]; then
        lege_ab 0600 "$datei"
    fi
done
mkdir -p "$ordner/Handbuch/bilder"
install -m 0644 "$quelle"/docs/handbuch/handbuch.md "$ordner/Handbuch/"
install -m 0644 "$quelle"/docs/handbuch/bilder/*.png "$ordner/Handbuch/bilder/"
sprache=/usr/share/qt6/translations/qtbase_de.qm
if [ -f "$sprache" ]; then
    lege_ab 0644 "$sprache"
fi
