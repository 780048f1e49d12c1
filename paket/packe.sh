#!/usr/bin/env bash
# Makes both packages from a configured build tree. Usage: packe.sh BUILD-FOLDER TARGET-FOLDER
# The same commit gives the same bytes: every date is that of the commit, or SOURCE_DATE_EPOCH where that is set.
set -euo pipefail
paket=$(cd "$(dirname "$0")" && pwd)
quelle=$(dirname "$paket")
bau=$(cd "$1" && pwd)
mkdir -p "$2"
ziel=$(cd "$2" && pwd)

if [ -z "${SOURCE_DATE_EPOCH:-}" ]; then
    SOURCE_DATE_EPOCH=$(git -C "$quelle" log -1 --format=%ct 2>/dev/null) ||
        SOURCE_DATE_EPOCH=$(stat -c %Y "$quelle/CHANGELOG.md")
fi
export SOURCE_DATE_EPOCH
export LC_ALL=C.UTF-8 TZ=UTC
umask 022

version=$(sed -nE 's/^set\(CPACK_PACKAGE_VERSION "(.*)"\)$/\1/p' "$bau/CPackConfig.cmake")
cmake --build "$bau" --target tolvek7
"$paket/beilagen.sh" "$version" "$bau/paket/beilagen"
# CPack stages below its own folder; nothing of an earlier package may be left in it
rm -rf "$ziel/_CPack_Packages"
cpack --config "$bau/CPackConfig.cmake" -G DEB -B "$ziel"
rm -rf "$ziel/_CPack_Packages"
"$paket/archiv.sh" "$version" "$bau" "$ziel"
