#!/usr/bin/env bash
# Takes the pictures of the handbook anew: one of each screen, from the demonstration. `handbuchbilder.sh PROGRAMME`
# uses the programs of another build than the optimised one.
set -euo pipefail
cd "$(dirname "$0")/.."
programme=${1:-build/bin}

aufnahmen=$(mktemp -d)
trap 'rm -rf "$aufnahmen"' EXIT
rm -rf build/demo
mkdir -p build
"$programme/musterdaten" build/demo --klienten 200 --episoden-je 3 --saat 1
"$programme/vorfuehrung" "$aufnahmen" hell tests/vorfuehrung/*.szenario

# file names are ASCII
for schirm in Hauptmenü Stammdaten Memo BetreuungZeitraum BetreuungA BetrA BetrB BetrC BetrDiagnose \
    BetrDiagnoseCodeAuswahl BetrDiagnoseErstellen BetrE Export ZuExcel DatenÜbernahme Info; do
    name=${schirm//ü/ue}
    cp "$aufnahmen/frm$schirm-hell.png" "docs/handbuch/bilder/frm${name//Ü/Ue}.png"
done
du -ch docs/handbuch/bilder/*.png | tail -1
