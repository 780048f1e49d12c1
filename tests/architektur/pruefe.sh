#!/usr/bin/env bash
# The house rules that the compiler does not see. Usage: pruefe.sh RULE SOURCE-FOLDER [COMPILER]
set -uo pipefail
regel=$1
cd "$2"
compiler=${3:-g++}

fehler=0
melde() {
    echo "$1"
    fehler=1
}

# Prints FOLDER of a path below src/: "platform", "platform/qt", "store", …
ordner_von() {
    case $1 in
        platform/qt/* | platform/calc/*) echo "$1" | cut -d/ -f1-2 ;;
        */*) echo "$1" | cut -d/ -f1 ;;
        *) echo main ;;
    esac
}

toolkit() {
    while IFS= read -r fund; do
        melde "a Qt header outside platform/qt: $fund"
    done < <(cd src && grep -rnE '#include <Q[A-Za-z]' --include='*.h' --include='*.cpp' . | grep -vE '^\./(platform/qt/|main\.cpp)')
    while IFS= read -r fund; do
        melde "a libxlsxwriter header outside platform/calc: $fund"
    done < <(cd src && grep -rn '#include <xlsxwriter' --include='*.h' --include='*.cpp' . | grep -v '^\./platform/calc/')
}

dateien() {
    while IFS= read -r fund; do
        melde "a file written past the file layer: $fund"
    done < <(grep -rnE 'std::ofstream|std::fstream|QSaveFile|std::fopen|\bfopen\(' --include='*.h' --include='*.cpp' src)
}

# What each folder may include, as the link graph has it (its own folder always).
erlaubt() {
    local unten="platform satz zustand store diagnosis"
    case $1 in
        main) echo "$unten care export import spreadsheet clients app platform/qt platform/calc" ;;
        app) echo "$unten care export import spreadsheet clients" ;;
        clients) echo "$unten care export import spreadsheet" ;;
        import) echo "$unten export" ;;
        care | export | spreadsheet) echo "$unten" ;;
        diagnosis) echo "platform satz store zustand" ;;
        zustand) echo "platform satz store" ;;
        store) echo "platform satz" ;;
        satz | platform/qt | platform/calc) echo "platform" ;;
        platform) echo "" ;;
        *) echo "?" ;;
    esac
}

pfeile() {
    while IFS=: read -r datei zeile; do
        von=$(ordner_von "${datei#./}")
        nach=$(ordner_von "$(echo "$zeile" | sed -E 's/.*#include "([^"]+)".*/\1/')")
        [ "$von" = "$nach" ] && continue
        # main.cpp and the Qt folder build the program together
        case " $(erlaubt "$von") " in
            *" $nach "*) ;;
            *) melde "$datei includes upward or sideways: $zeile" ;;
        esac
    done < <(cd src && grep -rn '#include "' --include='*.h' --include='*.cpp' . | sed -E 's/^([^:]+):[0-9]+:/\1:/')
}

# Every header compiles alone.
allein() {
    liste=$(mktemp)
    trap 'rm -f "$liste"' EXIT
    (cd src && find . -name '*.h' ! -path './platform/qt/*' ! -path './platform/calc/*') | sed 's|^\./||' > "$liste"
    if ! xargs -P 2 -I{} sh -c 'echo "#include \"{}\"" | '"$compiler"' -std=c++20 -fsyntax-only -Isrc -x c++ - || { echo "does not compile alone: {}"; exit 1; }' < "$liste"; then
        fehler=1
    fi
}

# Data and prose that people read: no tab, no blank at the end of a line, a line end at the end.
sauber() {
    while IFS= read -r fund; do
        melde "blank at the end of a line or tab: $fund"
    done < <(grep -rnE '[[:blank:]]$|	' --include='*.h' --include='*.cpp' --include='*.md' --include='CMakeLists.txt' src tests bench docs cmake 2>/dev/null)
}

# Checkouts on other systems, archives and half of all tools stumble over file names beyond ASCII, and over two that
# differ by case alone.
namen() {
    while IFS= read -r -d '' name; do
        case $name in
            *[!\ -~]*) melde "rename it, file names are ASCII (ae, oe, ue, ss): $name" ;;
        esac
    done < <(dateiliste)
    while IFS= read -r name; do
        melde "rename one of them, they differ by case alone: $name"
    done < <(dateiliste | tr '\0' '\n' | tr '[:upper:]' '[:lower:]' | sort | uniq -d)
}

# A field of a record is called by its name. A number is right on the day it is written and wrong on the day a field comes
# in before it; found are the ones handed to a function that takes a position, and constants that give one a private name.
# The tables themselves count from 1 in `satz` and, for the older system's files, in import/Altfelder.h.
positionen() {
    local text='(?:[^(),]|(\((?:[^()]|(?-1))*\)))*'
    local zweite='getFeld|ersetzeFeld|leseSchlüssel|prüfeDatum|prüfeSchlüssel|nummerIn|jahrVon|feldAus'
    local muster funde
    for muster in "\b(?:$zweite)\($text,\s*\d+\s*[,)]" \
        "\b(?:felder|feldbereich)\($text,\s*(?:\d+\s*,|$text,\s*\d+\s*\))" \
        "(?:\.|->)(?:feld|istLeer|feldOhneLeerzeichen)\(\s*\d+\s*\)" \
        "\b(?:antwort|blockfeld|blockposition)\($text,(?:$text,)?\s*[1-8]\s*\)" \
        "\bconstexpr\s+(?:int|std::size_t|auto)\s+(?:feld|platz|statusfeld|memofeld)(?!er|zahl)\w*\s*=\s*\d+\s*;"; do
        funde=$(cd src && LC_ALL=C.UTF-8 grep -rnP --include='*.h' --include='*.cpp' "$muster" \
            app care clients diagnosis export import spreadsheet store zustand satz)
        [ $? -le 1 ] || melde "the search for positions failed"
        while IFS= read -r fund; do
            [ -z "$fund" ] || melde "name the position (feld::kern, feld::betr, feld::diag; older files: altfeld, altspalte): $fund"
        done <<< "$funde"
    done
}

# Files of the project, each ended by a zero byte; without version control, what lies there.
dateiliste() {
    git ls-files -z 2>/dev/null || find . -type f ! -path './build/*' ! -path './bau/*' -print0
}

case $regel in
    toolkit | dateien | pfeile | allein | sauber | namen | positionen) $regel ;;
    *) echo "unknown rule $regel"; exit 2 ;;
esac
exit $fehler
