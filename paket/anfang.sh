# What every package begins with, for the scripts that make one; they are called with BUILD-FOLDER TARGET-FOLDER. Sets the
# folders `paket`, `quelle`, `bau` and `ziel`. The same commit gives the same bytes: every date is that of the commit, or
# SOURCE_DATE_EPOCH where that is set.
paket=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
quelle=$(dirname "$paket")
bau=$(cd "$1" && pwd)
mkdir -p "$2"
ziel=$(cd "$2" && pwd)

if [ -z "${SOURCE_DATE_EPOCH:-}" ]; then
    SOURCE_DATE_EPOCH=$(git -C "$quelle" log -1 --format=%ct 2>/dev/null) ||
        SOURCE_DATE_EPOCH=$(stat -c %Y "$quelle/CHANGELOG.md")
fi
export SOURCE_DATE_EPOCH
export LC_ALL=C.UTF-8 TZ=UTC
umask 022
