# What the checks of the packages share: a folder of their own, an ordinary user, windows on a screen of their own.

werk=$(mktemp -d)
chmod 0755 "$werk"
kinder=()
raeume_auf() {
    for kind in "${kinder[@]}"; do
        kill "$kind" 2>/dev/null
    done
    rm -rf "$werk"
}
trap raeume_auf EXIT

scheitere() {
    echo "$*" >&2
    exit 1
}
# erwarte TEXT COMMAND …: the command must succeed.
erwarte() {
    local was=$1
    shift
    "$@" || scheitere "not so: $was"
}

# warte_auf SECONDS COMMAND …: until the command succeeds.
warte_auf() {
    local ende=$((SECONDS + $1))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$ende" ] || return 1
        sleep 0.2
    done
}

# An ordinary user with a home and a temporary folder of his own; `als_nutzer` runs a command as that user.
heim=$werk/heim
mkdir "$heim" "$werk/tmp"
# No session bus: where one is started by itself, the first window waits for its services.
nutzer=(env -i "PATH=$PATH" "HOME=$heim" "TMPDIR=$werk/tmp" LANG=de_DE.UTF-8 DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent)
if [ "$(id -u)" -eq 0 ]; then
    chown 65534:65534 "$heim" "$werk/tmp"
    nutzer=(setpriv --reuid=65534 --regid=65534 --clear-groups --inh-caps=-all --bounding-set=-all "${nutzer[@]}")
fi
als_nutzer() {
    "${nutzer[@]}" "$@"
}

# A screen with a window manager.
oeffne_anzeige() {
    Xvfb -displayfd 5 -screen 0 1366x768x24 -nolisten tcp -noreset -ac 5> "$werk/anzeige" 2> "$werk/xvfb.log" &
    kinder+=($!)
    erwarte "Xvfb starts" warte_auf 60 test -s "$werk/anzeige"
    DISPLAY=:$(cat "$werk/anzeige")
    export DISPLAY
    nutzer+=("DISPLAY=$DISPLAY")
    openbox > "$werk/openbox.log" 2>&1 &
    kinder+=($!)
}

# starte COMMAND …: the program as the ordinary user, in the background; its process is $programm.
starte() {
    "${nutzer[@]}" "$@" 2> "$werk/programm.log" &
    programm=$!
    kinder+=("$programm")
}
fenster_da() {
    kill -0 "$programm" 2>/dev/null || scheitere "the program has ended: $(cat "$werk/programm.log")"
    # grep reads to the end: under pipefail a list that is cut short would count as "not there"
    xwininfo -root -tree | grep -F "\"$1\"" > /dev/null
}
erwarte_fenster() {
    erwarte "the window \"$1\" appears; there are: $(xwininfo -root -tree)" warte_auf 60 fenster_da "$1"
}
# Presses the key in the window until the program has ended: a key that comes before the window has the focus is lost.
druecke_bis_ende() {
    local fenster
    for fenster in $(xdotool search --name "$1" 2>/dev/null); do
        timeout 2 xdotool windowfocus "$fenster" key "$2" 2>/dev/null
        [ -e "/proc/$programm/exe" ] || return 0
    done
    sleep 0.3
    [ ! -e "/proc/$programm/exe" ]
}
beende_hart() {
    kill -9 "$programm"
    wait "$programm" 2>/dev/null
    return 0
}

# Records lie in the folder, readable by their owner alone.
erwarte_daten_in() {
    for datei in kernDat betrDat diagDat; do
        erwarte "$1/Daten/$datei.txt is there" test -f "$1/Daten/$datei.txt"
    done
    erwarte "$1/Tolvek7.ini is there" test -f "$1/Tolvek7.ini"
    local offene
    offene=$(find "$1/Daten" "$1/Tolvek7.ini" \( -type d ! -perm 0700 -o -type f ! -perm 0600 \))
    erwarte "only the owner can read: $offene" test -z "$offene"
    erwarte "the folder is closed to others" test "$(stat -c %a "$1")" = 700
}
