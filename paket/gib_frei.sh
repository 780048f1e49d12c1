#!/usr/bin/env bash
# Builds the packages of the commit that is checked out, twice, in two places and without a compiler cache, and puts
# them with their checksums into freigabe/ when both builds gave the same bytes.
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
for ort in eins der-zweite-ort; do
    mkdir "$werkstatt/$ort"
    git archive HEAD | tar -x -C "$werkstatt/$ort"
    (cd "$werkstatt/$ort" && cmake --preset paket && paket/packe.sh bau/paket "$werkstatt/pakete-$ort")
done
diff -r "$werkstatt/pakete-eins" "$werkstatt/pakete-der-zweite-ort"

rm -rf freigabe
mkdir freigabe
cp "$werkstatt"/pakete-eins/* freigabe/
(cd freigabe && sha256sum -- * > SHA256SUMS)
echo "The packages lie in freigabe/:"
cat freigabe/SHA256SUMS
