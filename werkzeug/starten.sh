#!/usr/bin/env bash
# Installs the program into its own folder and starts it there; the folder holds the records, so nothing in it is
# ever wiped. Without a display it plays the demonstration instead.
set -euo pipefail
cd "$(dirname "$0")/.."

mkdir -p -m 0700 Tolvek7
install -m 0755 build/bin/tolvek7 Tolvek7/
install -m 0644 anweisungen/*.txt Tolvek7/
mkdir -p Tolvek7/Handbuch/bilder
install -m 0644 docs/handbuch/handbuch.md Tolvek7/Handbuch/
install -m 0644 docs/handbuch/bilder/*.png Tolvek7/Handbuch/bilder/
for sprache in /usr/share/qt6/translations/qtbase_de.qm; do
    if [ -f "$sprache" ]; then
        install -m 0644 "$sprache" Tolvek7/
    fi
done

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec Tolvek7/tolvek7
fi
echo "No display: playing the demonstration instead. The program itself is Tolvek7/tolvek7."
exec make demo
