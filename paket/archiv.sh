#!/usr/bin/env bash
# Makes the portable archive: unpack it anywhere, start it there, the records lie beside the program. The instruction
# files are in a folder of their own, so that unpacking a newer version over it never meets the facility's own ones.
# Usage: archiv.sh VERSION BUILD-FOLDER TARGET-FOLDER, with SOURCE_DATE_EPOCH set.
set -euo pipefail
paket=$(cd "$(dirname "$0")" && pwd)
quelle=$(dirname "$paket")
version=$1
bau=$2
ziel=$3

stufe=$(mktemp -d)
trap 'rm -rf "$stufe"' EXIT
ordner=$stufe/Tolvek7
mkdir -p "$ordner"
install -m 0755 "$bau/bin/tolvek7" "$ordner/tolvek7"
strip "$ordner/tolvek7"
install -m 0755 "$paket/starten.sh" "$ordner/starten.sh"
install -m 0644 -D -t "$ordner/anweisungen" "$quelle"/anweisungen/*.txt
install -m 0644 /usr/share/qt6/translations/qtbase_de.qm "$ordner/"
mkdir "$ordner/lizenzen"
install -m 0644 "$paket/copyright" "$ordner/lizenzen/tolvek7.txt"
install -m 0644 /usr/share/doc/qt6-translations-l10n/copyright "$ordner/lizenzen/qtbase_de.txt"
install -m 0644 /usr/share/common-licenses/GPL-3 "$ordner/lizenzen/GPL-3.txt"
sed "s/@VERSION@/$version/g" "$paket/LIESMICH.txt" > "$ordner/LIESMICH.txt"
cp -R "$bau/paket/beilagen/handbuch" "$ordner/Handbuch"
install -m 0644 "$quelle/docs/handbuch/handbuch.md" "$ordner/Handbuch/" # what F1 shows
cp "$bau/paket/beilagen/usr/share/icons/hicolor/scalable/apps/tolvek7.svg" "$ordner/"
chmod 0644 "$ordner/LIESMICH.txt"
# the folder will hold health data
chmod 0700 "$ordner"

tar --create --directory "$stufe" --sort=name --format=gnu --owner=0 --group=0 --numeric-owner \
    --mtime="@$SOURCE_DATE_EPOCH" Tolvek7 | gzip -9n > "$ziel/Tolvek7-$version-linux.tar.gz"
