#!/bin/sh
# Startet Tolvek7 aus diesem Ordner. Fehlt etwas vom System, sagt es, welche Pakete zu installieren sind.
ordner=$(dirname "$(readlink -f "$0")")

paket_zu() {
    case $1 in
        libQt6Core.so.*) echo libqt6core6 ;;
        libQt6Gui.so.*) echo libqt6gui6 ;;
        libQt6Widgets.so.*) echo libqt6widgets6 ;;
        libxlsxwriter.so.*) echo libxlsxwriter4 ;;
        libstdc++.so.*) echo libstdc++6 ;;
        libgcc_s.so.*) echo libgcc-s1 ;;
        libc.so.* | libm.so.*) echo libc6 ;;
        *) echo "(das Paket mit $1)" ;;
    esac
}

sage() {
    echo "$1" >&2
    [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || return 0
    if command -v zenity >/dev/null; then
        zenity --error --title Tolvek7 --text "$1"
    elif command -v kdialog >/dev/null; then
        kdialog --title Tolvek7 --error "$1"
    elif command -v xmessage >/dev/null; then
        xmessage "$1"
    fi
}

pakete=
for bibliothek in $(ldd "$ordner/tolvek7" 2>/dev/null | sed -n 's/^[[:space:]]*\([^ ]*\) => not found.*/\1/p' | sort -u); do
    pakete="$pakete $(paket_zu "$bibliothek")"
done
if [ -n "$pakete" ]; then
    sage "Tolvek7 kann noch nicht starten: Auf diesem Rechner fehlen$pakete.
Wer den Rechner betreut, installiert das unter Debian oder Ubuntu mit:
    sudo apt-get install$pakete"
    exit 1
fi
exec "$ordner/tolvek7" "$@"
