#!/usr/bin/env bash
# Renews everything that is drawn or written from the program's own tables, and shows the difference to what was approved
# last. Usage: abnehmen.sh BUILD-FOLDER
set -euo pipefail
cd "$(dirname "$0")/.."
bau=$1

# every test but the long ones, which approve nothing; what else fails meanwhile is for `make test` to say
TOLVEK_ABNAHME=neu "$bau/bin/einheiten" --gtest_brief=1 --gtest_filter=-*Ausfall* > "$bau/abnahme.txt" 2>&1 || true
python3 -B tests/architektur/pruefe.py male . "$bau"
# what is shipped from now on; the lines of older versions stay, so that an installed file can be told from a changed one
(cd anweisungen && for datei in *.txt; do
    grep -qx "$(sha256sum "$datei")" ausgeliefert.sha256 || sha256sum "$datei" >> ausgeliefert.sha256
done)
git --no-pager diff --stat -- docs anweisungen 'tests/*.txt'
git --no-pager diff --word-diff=color --word-diff-regex='[^·;]+' --unified=0 -- docs anweisungen 'tests/*.txt'
echo "Read the difference, then run the tests and commit it. Nothing above this line: all was as approved."
