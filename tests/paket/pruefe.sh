#!/usr/bin/env bash
# Checks of the packages. Usage: pruefe.sh CHECK PACKAGE-FOLDER BUILD-FOLDER
set -uo pipefail
hier=$(cd "$(dirname "$0")" && pwd)
. "$hier/gemeinsam.sh"
pruefung=$1
pakete=$2
bau=$3
version=$(sed -nE 's/^set\(CPACK_PACKAGE_VERSION "(.*)"\)$/\1/p' "$bau/CPackConfig.cmake")
deb=$pakete/tolvek7_${version}_amd64.deb
archiv=$pakete/Tolvek7-$version-linux.tar.gz
titel="Tolvek7 v$version"

packe_deb_aus() {
    erwarte "the package can be unpacked" dpkg-deb -x "$deb" "$werk/wurzel"
    chmod 0755 "$werk/wurzel"
}

# The same bytes again, at another time, under another umask and in another time zone.
zweimal() {
    (umask 077 && TZ=Asia/Tokyo "$hier/../../paket/packe.sh" "$bau" "$werk/nochmal" > "$werk/packen.log" 2>&1) ||
        scheitere "packing again fails: $(cat "$werk/packen.log")"
    erwarte "both packages are the same" diff -r "$pakete" "$werk/nochmal"
}

lintian_() {
    erwarte "lintian has no error" lintian --fail-on error --tag-display-limit 0 "$deb"
}

metadaten() {
    packe_deb_aus
    local teilen=$werk/wurzel/usr/share
    erwarte "the desktop entry is valid" desktop-file-validate "$teilen/applications/tolvek7.desktop"
    erwarte "the AppStream data are valid" appstreamcli validate --no-net "$teilen"/metainfo/*.xml
    local bilder
    bilder=$(sed -nE 's|.*<image type="source">https://[^<]*/bilder/([^<]*)</image>.*|\1|p' "$teilen"/metainfo/*.xml)
    erwarte "the AppStream data show pictures" test -n "$bilder"
    for bild in $bilder; do
        erwarte "the picture $bild is one of the handbook's" test -f "$teilen/tolvek7/Handbuch/bilder/$bild"
    done
    for groesse in 16 22 24 32 48 64 128 256 512; do
        erwarte "the icon has $groesse pixels" \
            grep -q "PNG image data, $groesse x $groesse," <(file "$teilen/icons/hicolor/${groesse}x$groesse/apps/tolvek7.png")
    done
    local klagen
    klagen=$(MANWIDTH=100 man --warnings=all --encoding=UTF-8 --local-file "$teilen/man/de/man1/tolvek7.1.gz" 2>&1 > "$werk/seite")
    erwarte "the manual is well-formed: $klagen" test -z "$klagen"
    erwarte "the manual knows the version" grep -q "Tolvek7 $version" "$werk/seite"
    for schalter in $("$werk/wurzel/usr/bin/tolvek7" --hilfe | grep -oE -- '--[a-z]+' | sort -u); do
        erwarte "the manual explains $schalter" grep -q -- "$schalter" "$werk/seite"
    done
    for bild in $(grep -oE 'src="[^"]+"' "$teilen/doc/tolvek7/handbuch/handbuch.html" | cut -d'"' -f2); do
        erwarte "the handbook's picture $bild is there" test -f "$teilen/doc/tolvek7/handbuch/$bild"
    done
    for marke in $(grep -oE 'href="#[^"]+"' "$teilen/doc/tolvek7/handbuch/handbuch.html" | cut -d'#' -f2 | tr -d '"' | sort -u); do
        erwarte "the handbook's link $marke leads to a heading" \
            grep -qF "id=\"$(printf '%b' "${marke//%/\\x}")\"" "$teilen/doc/tolvek7/handbuch/handbuch.html"
    done
    erwarte "the handbook has chapters" grep -q '<h2 id=' "$teilen/doc/tolvek7/handbuch/handbuch.html"
}

abhaengigkeiten() {
    packe_deb_aus
    local fehlende
    fehlende=$(ldd "$werk/wurzel/usr/bin/tolvek7" | grep 'not found')
    erwarte "every library is found: $fehlende" test -z "$fehlende"
    local depends
    depends=$(dpkg-deb -f "$deb" Depends | tr ',' '\n' | awk '{print $1}')
    for paket in libc6 libqt6core6 libqt6gui6 libqt6widgets6 libstdc++6 libxlsxwriter4 qt6-translations-l10n; do
        erwarte "depends on $paket: $depends" grep -qxF "$paket" <<< "$depends"
    done
    erwarte "there are no maintainer scripts" \
        test "$(dpkg-deb --ctrl-tarfile "$deb" | tar -t | sort | tr '\n' ' ')" = "./control ./md5sums "
}

# Without a display: what needs no window answers all the same.
befehlszeile() {
    packe_deb_aus
    local programm=$werk/wurzel/usr/bin/tolvek7
    erwarte "--version" test "$(als_nutzer "$programm" --version)" = "Tolvek7 $version"
    erwarte "--hilfe" grep -q 'Aufruf: tolvek7' <(als_nutzer "$programm" --hilfe)
    als_nutzer "$programm" --hilfe > "$werk/hilfe" || scheitere "--hilfe fails"
    als_nutzer "$programm" --unsinn > "$werk/aus" 2> "$werk/fehler"
    erwarte "an unknown argument ends with 2" test $? -eq 2
    erwarte "nothing on standard output" test ! -s "$werk/aus"
    erwarte "the argument is named" grep -q 'unbekanntes Argument: --unsinn' "$werk/fehler"
    erwarte "the usage follows" diff "$werk/hilfe" <(tail -n +2 "$werk/fehler")
    als_nutzer "$programm" --pruefe > "$werk/aus" 2>&1
    local status=$?
    erwarte "--pruefe without records ends with 2, not $status: $(cat "$werk/aus")" test "$status" -eq 2
    erwarte "--pruefe makes no folder" test ! -e "$heim/Tolvek7"
}

start_system() {
    packe_deb_aus
    oeffne_anzeige
    starte "$werk/wurzel/usr/bin/tolvek7"
    erwarte_fenster "$titel"
    erwarte_daten_in "$heim/Tolvek7"
    erwarte "nothing is written elsewhere" test -z "$(find "$werk/wurzel" -newer "$werk/anzeige")"
}

# The portable archive, below a folder whose name is not UTF-8; and a folder that is named.
start_ordner() {
    local ordner=$heim/$'B\xfcro'
    oeffne_anzeige
    als_nutzer mkdir "$ordner"
    als_nutzer tar -x -C "$ordner" -f "$archiv" || scheitere "the archive cannot be unpacked"
    starte "$ordner/Tolvek7/starten.sh"
    erwarte_fenster "$titel"
    erwarte_daten_in "$ordner/Tolvek7"
    beende_hart
    als_nutzer mkdir -m 0700 "$heim/andere"
    starte "$ordner/Tolvek7/tolvek7" "$heim/andere"
    erwarte_fenster "$titel"
    erwarte_daten_in "$heim/andere"
    beende_hart
    # one that is not there may be a slip: asked first, and No is the answer of a hasty Return
    starte "$ordner/Tolvek7/tolvek7" "$heim/vertippt"
    erwarte_fenster "Tolvek7"
    erwarte "the program ends" warte_auf 60 druecke_bis_ende '^Tolvek7$' Return
    erwarte "the folder is not made" test ! -e "$heim/vertippt"
    erwarte "the user's Tolvek7 is not made" test ! -e "$heim/Tolvek7"

    # a newer version over it: records and the facility's own files stay
    als_nutzer sh -c "echo eigene > '$ordner/Tolvek7/eKernAnweisung.txt'"
    local vorher
    vorher=$(cd "$ordner/Tolvek7" && sha256sum Daten/* Tolvek7.ini eKernAnweisung.txt)
    als_nutzer tar -x -C "$ordner" -f "$archiv" || scheitere "the archive cannot be unpacked again"
    erwarte "records, settings and own files stay" diff <(echo "$vorher") \
        <(cd "$ordner/Tolvek7" && sha256sum Daten/* Tolvek7.ini eKernAnweisung.txt)
    erwarte "the folder stays closed" test "$(stat -c %a "$ordner/Tolvek7")" = 700
}

musterordner() {
    find "$werk/tmp" -maxdepth 1 -name 'tolvek7-muster-*'
}

start_muster() {
    packe_deb_aus
    oeffne_anzeige
    starte "$werk/wurzel/usr/bin/tolvek7" --muster
    erwarte_fenster "MUSTER – $titel"
    local erster
    erster=$(musterordner)
    erwarte_daten_in "$erster/Tolvek7"
    beende_hart
    erwarte "a crash leaves the folder" test -d "$erster"
    starte "$werk/wurzel/usr/bin/tolvek7" --muster
    erwarte_fenster "MUSTER – $titel"
    erwarte "the next start removes it" test ! -e "$erster"
    erwarte "there is a new one" test -d "$(musterordner)"
    erwarte "Exit ends the program" warte_auf 60 druecke_bis_ende "^MUSTER" alt+e
    erwarte "the folder goes at the end" test -z "$(musterordner)"
    erwarte "real records are not made" test ! -e "$heim/Tolvek7"
}

# Without the system's Qt the start script says which packages are missing.
start_fehlt() {
    als_nutzer tar -x -C "$heim" -f "$archiv"
    mkdir "$werk/ersatz"
    printf '#!/bin/sh\n%s\n%s\n' "printf '\tlibQt6Widgets.so.6 => not found\n'" \
        "printf '\tlibm.so.6 => /lib/libm.so.6 (0x0)\n\tlibxlsxwriter.so.4 => not found\n'" > "$werk/ersatz/ldd"
    chmod -R 0755 "$werk/ersatz"
    als_nutzer env "PATH=$werk/ersatz:$PATH" "$heim/Tolvek7/starten.sh" > "$werk/aus" 2>&1
    erwarte "it ends with 1" test $? -eq 1
    erwarte "it names the packages: $(cat "$werk/aus")" grep -qF 'apt-get install libqt6widgets6 libxlsxwriter4' "$werk/aus"
    erwarte "no records are made" test ! -e "$heim/Tolvek7/Daten"
}

# Installing, removing and purging in an empty root: the records of a user stay as they are.
entfernen() {
    local wurzel=$werk/wurzel
    mkdir -p "$wurzel/var/lib/dpkg/updates" "$wurzel/var/lib/dpkg/info" "$wurzel/home/anna/Tolvek7/Daten"
    touch "$wurzel/var/lib/dpkg/status"
    echo Satz > "$wurzel/home/anna/Tolvek7/Daten/kernDat.txt"
    echo Lage > "$wurzel/home/anna/Tolvek7/Tolvek7.ini"
    local vorher
    vorher=$(cd "$wurzel/home" && find . -type f -exec sha256sum {} + -exec stat -c '%n %a %Y' {} +)
    local verwalter=(dpkg "--root=$wurzel" "--log=$werk/dpkg.log" --force-depends)
    [ "$(id -u)" -eq 0 ] || verwalter=(unshare --map-root-user "${verwalter[@]}")
    erwarte "it can be installed" "${verwalter[@]}" --install "$deb"
    erwarte "the program is there" test -x "$wurzel/usr/bin/tolvek7"
    erwarte "it can be purged" "${verwalter[@]}" --purge tolvek7
    erwarte "the program is gone" test ! -e "$wurzel/usr/bin/tolvek7"
    erwarte "its files are gone" test -z "$(find "$wurzel" -path "*tolvek7*" ! -path "*/home/*" -type f)"
    erwarte "the records stay" test "$vorher" = \
        "$(cd "$wurzel/home" && find . -type f -exec sha256sum {} + -exec stat -c '%n %a %Y' {} +)"
}

case $pruefung in
    lintian) lintian_ ;;
    zweimal | metadaten | abhaengigkeiten | befehlszeile | start_system | start_ordner | start_muster | start_fehlt | \
        entfernen) $pruefung ;;
    *) scheitere "unknown check $pruefung" ;;
esac
