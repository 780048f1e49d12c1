#!/usr/bin/env bash
# Plays an episode's road on a made-up facility in the real windows, light and dark; the pictures go to demo/.
set -euo pipefail
cd "$(dirname "$0")/.."

rm -rf build/demo demo
build/bin/musterdaten build/demo --klienten 200 --episoden-je 3 --saat 1
for thema in hell dunkel; do
    build/bin/vorfuehrung demo "$thema" tests/vorfuehrung/*.szenario
done
echo "The pictures lie in demo/ ($(find demo -name '*.png' | wc -l) of them)."
