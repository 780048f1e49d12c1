#!/usr/bin/env bash
# Makes both packages from a configured build tree. Usage: packe.sh BUILD-FOLDER TARGET-FOLDER
set -euo pipefail
. "$(dirname "$0")/anfang.sh"

version=$(sed -nE 's/^set\(CPACK_PACKAGE_VERSION "(.*)"\)$/\1/p' "$bau/CPackConfig.cmake")
cmake --build "$bau" --target tolvek7
"$paket/beilagen.sh" "$version" "$bau/paket/beilagen"
# CPack stages below its own folder; nothing of an earlier package may be left in it
rm -rf "$ziel/_CPack_Packages"
cpack --config "$bau/CPackConfig.cmake" -G DEB -B "$ziel"
rm -rf "$ziel/_CPack_Packages"
"$paket/archiv.sh" "$version" "$bau" "$ziel"
