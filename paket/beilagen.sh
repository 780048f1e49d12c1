#!/usr/bin/env bash
# Writes what goes with the program into a package: TARGET/usr/share/… for the system and TARGET/handbuch for the
# portable archive. Usage: beilagen.sh VERSION TARGET-FOLDER, with SOURCE_DATE_EPOCH set.
set -euo pipefail
paket=$(cd "$(dirname "$0")" && pwd)
. "$paket/herkunft.sh"
quelle=$(dirname "$paket")
version=$1
ziel=$2
tag=$(date -u -d "@$SOURCE_DATE_EPOCH" +%Y-%m-%d)

rm -rf "$ziel"
teilen=$ziel/usr/share
unterlagen=$teilen/doc/tolvek7
mkdir -p "$unterlagen" "$teilen/applications" "$teilen/metainfo" "$teilen/man/de/man1" "$teilen/man/man1"

# Fills in what is known only here.
fuelle() {
    sed -e "s/@VERSION@/$version/g" -e "s/@DATUM@/$tag/g" -e "s|@HEIMSEITE@|$heimseite|g" "$1"
}

# Icons: one drawing, in the sizes that desktops ask for.
zeichnung=$quelle/src/platform/qt/bilder/tolvek7.svg
install -D -m 0644 "$zeichnung" "$teilen/icons/hicolor/scalable/apps/tolvek7.svg"
for groesse in 16 22 24 32 48 64 128 256 512; do
    mkdir -p "$teilen/icons/hicolor/${groesse}x$groesse/apps"
    rsvg-convert -w "$groesse" -h "$groesse" "$zeichnung" -o "$teilen/icons/hicolor/${groesse}x$groesse/apps/tolvek7.png"
done

cp "$paket/tolvek7.desktop" "$teilen/applications/"
fuelle "$paket/de.tolvek7.Tolvek7.metainfo.xml" > "$teilen/metainfo/de.tolvek7.Tolvek7.metainfo.xml"
fuelle "$paket/tolvek7.1" | gzip -9n > "$teilen/man/de/man1/tolvek7.1.gz"
ln -s ../de/man1/tolvek7.1.gz "$teilen/man/man1/tolvek7.1.gz" # better German than none
# bytes of the code page are what the instruction files are made of
mkdir -p "$teilen/lintian/overrides"
echo "tolvek7: national-encoding [usr/share/tolvek7/*Anweisung.txt]" > "$teilen/lintian/overrides/tolvek7"
cp "$paket/copyright" "$unterlagen/copyright"
gzip -9n < "$quelle/CHANGELOG.md" > "$unterlagen/changelog.gz"
{
    echo "tolvek7 ($version) stable; urgency=medium"
    echo
    echo "  * See changelog.gz."
    echo
    echo " -- $kontakt  $(date -u -R -d "@$SOURCE_DATE_EPOCH")"
} | gzip -9n > "$unterlagen/changelog.Debian.gz"

# The handbook as a page that every browser shows, beside its pictures.
handbuch=$quelle/docs/handbuch
mkdir -p "$unterlagen/handbuch"
{
    cat "$paket/handbuch-anfang.html"
    cmark-gfm --extension table --to html "$handbuch/handbuch.md" | "$paket/kapitelmarken.pl"
    echo '</body></html>'
} > "$unterlagen/handbuch/handbuch.html"
cp -R "$handbuch/bilder" "$unterlagen/handbuch/"
cp -R "$unterlagen/handbuch" "$ziel/handbuch"
find "$ziel" -type d -exec chmod 0755 {} +
find "$ziel" -type f -exec chmod 0644 {} +
