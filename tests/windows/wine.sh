#!/usr/bin/env bash
# Runs a Windows program by wine, in a home of its own and without a window of wine's.
# Usage: wine.sh HOME PROGRAM [ARGUMENT …] | wine.sh HOME --einrichten | wine.sh HOME --beenden
set -euo pipefail

export WINEPREFIX=$1 WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all}
# neither .NET nor a browser is asked for, and the desktop's menus stay as they are
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
# the fonts of windows without a screen, which Qt looks for in one folder; wine passes no variable that begins with QT_
export TOLVEK_SCHRIFTEN=$WINEPREFIX/schriften
shift
wine=/usr/lib/wine/wine64 # Debian's wrapper asks for the 32-bit half, which nothing here needs
server=/usr/lib/wine/wineserver64

case $1 in
    --einrichten)
        unset DISPLAY
        mkdir -p "$(dirname "$WINEPREFIX")"
        [ -e "$WINEPREFIX/fertig" ] && exit 0
        rm -rf "$WINEPREFIX"
        "$wine" wineboot --init
        "$server" -w
        # nothing of the real home may be reached under the names of Windows' folders
        find "$WINEPREFIX/drive_c/users" -type l -print0 | while IFS= read -r -d '' verweis; do
            rm "$verweis"
            mkdir "$verweis"
        done
        mkdir "$TOLVEK_SCHRIFTEN"
        cp /usr/share/fonts/truetype/noto/NotoSans-{Regular,Bold,Italic}.ttf "$TOLVEK_SCHRIFTEN/"
        touch "$WINEPREFIX/fertig"
        ;;
    --beenden) "$server" -k || true ;;
    *) exec "$wine" "$@" ;;
esac
