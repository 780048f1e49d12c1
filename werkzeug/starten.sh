#!/usr/bin/env bash
# Brings the program folder up to date and starts the program in it. Without a display it plays the demonstration
# instead.
set -euo pipefail
cd "$(dirname "$0")/.."

werkzeug/einspielen.sh bau/start/bin/tolvek7 Tolvek7
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec Tolvek7/tolvek7
fi
echo "No display: playing the demonstration instead. The program itself is Tolvek7/tolvek7."
exec make demo
