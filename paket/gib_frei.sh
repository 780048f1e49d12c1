#!/usr/bin/env bash
# Builds the packages of the commit that is checked out once more, from the bare commit in another place and without a
# compiler cache, and puts them with their checksums into freigabe/ when they are, byte for byte, those of `make paket`.
set -euo pipefail
cd "$(dirname "$0")/.."

if [ -n "$(git status --porcelain)" ]; then
    echo "There are changes that no commit holds; packages of them could not be made again." >&2
    exit 1
fi
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH CCACHE_DISABLE=1

werkstatt=$(mktemp -d)
trap 'rm -rf "$werkstatt"' EXIT
mkdir "$werkstatt/quelle"
git archive HEAD | tar -x -C "$werkstatt/quelle"
(
    cd "$werkstatt/quelle"
    cmake --preset paket
    paket/packe.sh bau/paket "$werkstatt/pakete"
    cmake --preset windows-paket -DTOLVEK_WINDOWS_QT="$(werkzeug/windows_qt.sh)"
    paket/windows/packe.sh bau/windows-paket "$werkstatt/pakete"
)
diff -r bau/pakete "$werkstatt/pakete"

rm -rf freigabe
mkdir freigabe
cp "$werkstatt"/pakete/* freigabe/
(cd freigabe && sha256sum -- * > SHA256SUMS)
echo "The packages lie in freigabe/:"
cat freigabe/SHA256SUMS
