#!/usr/bin/env bash
# What `make start` does to a program folder: the program is renewed, records, settings and changed instruction files
# stay. Works on a copy of the project, in which a newer version of one instruction file is shipped.
set -uo pipefail
hier=$(cd "$(dirname "$0")" && pwd)
. "$hier/gemeinsam.sh"
projekt=$hier/../..

# every file that is shipped today is on the list
(cd "$projekt/anweisungen" && for datei in *.txt; do
    grep -qx "$(sha256sum "$datei")" ausgeliefert.sha256 || scheitere "not in ausgeliefert.sha256: $datei"
done) || exit 1

mkdir -p "$werk/projekt/werkzeug" "$werk/projekt/docs"
cp -R "$projekt/anweisungen" "$werk/projekt/"
cp -R "$projekt/docs/handbuch" "$werk/projekt/docs/"
cp "$projekt/werkzeug/einspielen.sh" "$werk/projekt/werkzeug/"
spiele_ein() {
    erwarte "it can be installed" "$werk/projekt/werkzeug/einspielen.sh" "$werk/programm" "$werk/ordner"
}

echo alt > "$werk/programm"
spiele_ein
erwarte "the folder is closed to others" test "$(stat -c %a "$werk/ordner")" = 700
for datei in eKernAnweisung.txt eDiagAnweisung.txt; do
    erwarte "$datei is there" cmp "$projekt/anweisungen/$datei" "$werk/ordner/$datei"
done

mkdir "$werk/ordner/Daten"
echo Satz > "$werk/ordner/Daten/kernDat.txt"
echo "frmMemo.top = 12" > "$werk/ordner/Tolvek7.ini"
echo "von der Einrichtung" >> "$werk/ordner/eDiagAnweisung.txt"
vorher=$(cd "$werk/ordner" && sha256sum Daten/kernDat.txt Tolvek7.ini eDiagAnweisung.txt)
echo neu > "$werk/programm"
for datei in eKernAnweisung.txt eDiagAnweisung.txt; do
    echo "neue Fassung" >> "$werk/projekt/anweisungen/$datei"
done
spiele_ein
erwarte "the program is the new one" grep -qx neu "$werk/ordner/programm"
erwarte "a file as it was shipped before is renewed" \
    cmp "$werk/projekt/anweisungen/eKernAnweisung.txt" "$werk/ordner/eKernAnweisung.txt"
erwarte "records, settings and changed files stay" \
    diff <(echo "$vorher") <(cd "$werk/ordner" && sha256sum Daten/kernDat.txt Tolvek7.ini eDiagAnweisung.txt)
erwarte "nothing is left over" test -z "$(find "$werk/ordner" -name '*.neu')"
