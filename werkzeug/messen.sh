#!/usr/bin/env bash
# Runs every benchmark; "Verhaeltnis" is the ratio to the limit on the same data in the same run, "erlaubt" what it
# may be.
set -euo pipefail
cd "$(dirname "$0")/.."
export QT_QPA_PLATFORM=offscreen
for messung in build/bin/messe_*; do
    echo "== $(basename "$messung")"
    "$messung" --benchmark_min_time=1 2>&1 | grep -v "plugin does not support"
done
