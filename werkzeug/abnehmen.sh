#!/usr/bin/env bash
# Renews everything that is drawn or written from the program's own tables, and shows the difference to what was approved
# last. Usage: abnehmen.sh BUILD-FOLDER
set -euo pipefail
cd "$(dirname "$0")/.."
bau=$1

TOLVEK_ABNAHME=neu "$bau/bin/einheiten" --gtest_brief=1 > "$bau/abnahme.txt" || true # other tests may fail meanwhile
python3 -B tests/architektur/pruefe.py male . "$bau"
git --no-pager diff --stat -- docs 'tests/*.txt'
git --no-pager diff --word-diff=color --unified=0 -- docs 'tests/*.txt'
echo "Read the difference, then commit it. Tests that still fail after it:"
"$bau/bin/einheiten" --gtest_brief=1 | grep '^\[  FAILED  \]' || echo none
