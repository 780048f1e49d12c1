"""The house rules that the compiler does not see. Each rule gives a list of messages that say where and what to do."""

import json
import re
import shlex
import subprocess
import tempfile
from collections import defaultdict
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

EIGENER_INCLUDE = re.compile(r'^\s*#\s*include "([^"]+)"')
FREMDER_INCLUDE = re.compile(r"^\s*#\s*include <([^>]+)>")


class Baum:
    """A checkout, its link graph (haus.Haus) and the folder that it is built in."""

    def __init__(self, wurzel, haus, bau):
        self.wurzel, self.haus, self.bau = Path(wurzel).resolve(), haus, Path(bau)

    def dateien(self):
        """Names of all files of the project; without version control, of what lies there."""
        befehl = ["git", "-C", str(self.wurzel), "ls-files", "-z", "--cached", "--others", "--exclude-standard"]
        lauf = subprocess.run(befehl, capture_output=True, check=False)
        if lauf.returncode == 0:
            return sorted({name.decode() for name in lauf.stdout.split(b"\0") if name})
        alle = (str(p.relative_to(self.wurzel)) for p in self.wurzel.rglob("*") if p.is_file())
        return sorted(name for name in alle if not name.startswith(("bau/", "build/")))

    def quellen(self):
        """Headers and sources below src/ that are there, by their names below src/."""
        return [d.removeprefix("src/") for d in self.dateien()
                if d.startswith("src/") and d.endswith((".h", ".cpp")) and (self.wurzel / d).is_file()]

    def zeilen(self, datei):
        return enumerate((self.wurzel / datei).read_text(encoding="utf-8").split("\n"), 1)

    def includes(self, muster):
        """(file below src/, line, what is included) of every include that has this form."""
        for datei in self.quellen():
            for nummer, zeile in self.zeilen("src/" + datei):
                if treffer := muster.match(zeile):
                    yield datei, nummer, treffer[1]


def toolkit(baum):
    funde = []
    for datei, nummer, kopf in baum.includes(FREMDER_INCLUDE):
        if re.match(r"Q[A-Za-z]", kopf) and not datei.startswith("platform/qt/") and datei != "main.cpp":
            funde.append(f"src/{datei}:{nummer} includes <{kopf}>: only src/platform/qt and main.cpp know Qt. Say it with the "
                         "elements or the Umgebung, and draw it in src/platform/qt.")
        if kopf.startswith("xlsxwriter") and not datei.startswith("platform/calc/"):
            funde.append(f"src/{datei}:{nummer} includes <{kopf}>: only src/platform/calc knows the library. Put into the model "
                         "(src/platform/mappe) what is missing there, and write it in src/platform/calc.")
    return funde


SYSTEM = re.compile(r"(sys/.*|unistd\.h|fcntl\.h|signal\.h|spawn\.h|dirent\.h|windows\.h|shl.*\.h|shell.*\.h|io\.h)$")


def system(baum):
    return [f"src/{datei}:{nummer} includes <{kopf}>: what one system alone has stands in a file …_posix.cpp, with its fellow "
            "…_windows.cpp beside it. Declare what you need in a header of its own and move the call there."
            for datei, nummer, kopf in baum.includes(FREMDER_INCLUDE)
            if SYSTEM.match(kopf) and not datei.endswith(("_posix.cpp", "_windows.cpp"))]


STROM = re.compile(r"std::w?[io]?fstream|QSaveFile|QTemporaryFile|\bfopen\(")
SCHREIBEN = re.compile(r"\b(fs|filesystem)::(rename|remove|remove_all|copy|copy_file|resize_file|create_director\w+)\(")


def dateien(baum):
    return [f"src/{datei}:{nummer} goes past the file layer: {zeile.strip()}\n  Use Dateien "
            "(src/platform/dateien/Dateien.h): it looks at every return value, so that nothing confirmed is lost."
            for datei in baum.quellen() for nummer, zeile in baum.zeilen("src/" + datei)
            if STROM.search(zeile) or SCHREIBEN.search(zeile) and not datei.startswith("platform/dateien/")]


def _falscher_pfeil(haus, ort, von, nach):
    if von.ziel in haus.alles_unter(nach.ziel):
        return (f"{ort}: {von.name} stands below {nach.name} and does not know it. Move what both need down into "
                f"{von.name} or lower, or let {nach.name} hand it in (an argument, a handler).")
    return (f"{ort}: {von.name} does not link {nach.name}. If it shall stand over it, add {nach.ziel} to UEBER in "
            f"{von.cmake} and run `make abnahme` for the guide's picture; else move what both need into a folder below both.")


def pfeile(baum):
    """Includes are held to the link graph, and the links to the includes."""
    haus, funde, benutzt = baum.haus, [], defaultdict(set)
    for datei in baum.quellen():
        if haus.teil_von(datei) is None:
            funde.append(f"src/{datei} belongs to no target: give its folder a CMakeLists.txt with tolvek_ordner(…), or move "
                         "the file into a folder that has one.")
    for datei, nummer, kopf in baum.includes(EIGENER_INCLUDE):
        von, nach = haus.teil_von(datei), haus.teil_von(kopf)
        ort = f'src/{datei}:{nummer} includes "{kopf}"'
        if not (baum.wurzel / "src" / kopf).is_file():
            funde.append(f"{ort}: there is no src/{kopf}. Our own headers are named from src/ on.")
        elif von and nach and von is not nach:
            benutzt[von.ziel].add(nach.ziel)
            if nach.ziel not in haus.alles_unter(von.ziel):
                funde.append(_falscher_pfeil(haus, ort, von, nach))
    for teil in haus.teile.values():
        funde += [f"{teil.cmake} links {unten}, of which src/{teil.name} includes nothing: take it out (what was reached "
                  f"through it takes its place), then run `make abnahme` for the guide's picture."
                  for unten in teil.unten if unten not in benutzt[teil.ziel]]
    return funde


def _schalter(baum, ziel):
    """What the sources of a target are compiled with, the precompiled header included, as CMake has written it."""
    for eintrag in json.loads((baum.bau / "compile_commands.json").read_text(encoding="utf-8")):
        if re.search(rf" -o \S*CMakeFiles/{ziel}\.dir/", eintrag["command"]) and "c++-header" not in eintrag["command"]:
            worte = shlex.split(eintrag["command"])
            anfang = max(n for n, wort in enumerate(worte) if re.search(r"(^|/)(c|g|clang)\+\+[-\d]*$", wort))
            return worte[anfang + 1:min(n for n, wort in enumerate(worte) if wort in ("-MD", "-o"))]
    raise LookupError(f"{ziel} is not compiled in {baum.bau}")


BIBLIOTHEKEN = ("platform/qt/", "platform/calc/")


def allein(baum, compiler="g++"):
    """Every header that may know a library of others compiles alone; of all other names `einbindung` knows the headers. The
    precompiled header of the folder makes that quick."""

    def uebersetze(kopf):
        schalter = _schalter(baum, baum.haus.teil_von(kopf).ziel)
        with tempfile.NamedTemporaryFile("w", suffix=".cpp") as probe:
            probe.write(f'#include "{kopf}"\n')
            probe.flush()
            lauf = subprocess.run([compiler, *schalter, "-fsyntax-only", probe.name], capture_output=True, text=True, check=False)
        return lauf.returncode and (f"src/{kopf} does not compile alone: include in it what it uses.\n"
                                    + "\n".join(lauf.stderr.splitlines()[:6]))

    with ThreadPoolExecutor(2) as hand:
        koepfe = [datei for datei in baum.quellen() if datei.startswith(BIBLIOTHEKEN) and datei.endswith(".h")]
        return [fund for fund in hand.map(uebersetze, koepfe) if fund]


_KLAMMER = r"\((?:[^()]|\((?:[^()]|\([^()]*\))*\))*\)"
_TEXT = rf"(?:[^(),]|{_KLAMMER})*"
_ZWEITE = "getFeld|ersetzeFeld|leseSchlüssel|prüfeDatum|prüfeSchlüssel|nummerIn|jahrVon|feldAus"
BLANKE_POSITION = [re.compile(muster) for muster in (
    rf"\b(?:{_ZWEITE})\({_TEXT},\s*\d+\s*[,)]",
    rf"\b(?:felder|feldbereich)\({_TEXT},\s*(?:\d+\s*,|{_TEXT},\s*\d+\s*\))",
    r"(?:\.|->)(?:feld|istLeer|feldOhneLeerzeichen)\(\s*\d+\s*\)",
    rf"\b(?:antwort|blockfeld|blockposition)\({_TEXT},(?:{_TEXT},)?\s*[1-8]\s*\)",
    r"\bconstexpr\s+(?:int|std::size_t|auto)\s+(?:feld|platz|statusfeld|memofeld)(?!er|zahl)\w*\s*=\s*\d+\s*;")]


def positionen(baum):
    """A field of a record is called by its name. A number is right on the day it is written and wrong on the day a field
    comes in before it; found are the ones handed to a function that takes a position, and constants that give one a private
    name. The tables themselves count from 1 in `satz` and, for the older system's files, in import/Altfelder.h."""
    return [f"src/{datei}:{nummer}: name the position (feld::kern, feld::betr, feld::diag; older files: altfeld, altspalte): "
            f"{zeile.strip()}"
            for datei in baum.quellen() if not datei.startswith("platform/")
            for nummer, zeile in baum.zeilen("src/" + datei) if any(muster.search(zeile) for muster in BLANKE_POSITION)]


ELEMENT = re.compile(r'\b(\w+)[{(]\s*\*this,\s*"([^"]*)"_t')


def elemente(baum):
    """An element is found by its name, in scenarios and by the surfaces: the name is the one of the member."""
    funde = []
    for datei in baum.quellen():
        text = (baum.wurzel / "src" / datei).read_text(encoding="utf-8")
        for treffer in ELEMENT.finditer(text):
            if treffer[1] != treffer[2]:
                nummer = text.count("\n", 0, treffer.start()) + 1
                funde.append(f'src/{datei}:{nummer}: the element {treffer[1]} calls itself "{treffer[2]}": write '
                             f'{treffer[1]}{{*this, "{treffer[1]}"_t, …}}, or give the member the other name.')
    return funde


def sauber(baum):
    """What people read: no tab, no blank at the end of a line, a line end at the end."""
    funde = []
    for datei in baum.dateien():
        if not datei.endswith((".h", ".cpp", ".md", ".py", ".sh", ".cmake", "CMakeLists.txt")) or not (baum.wurzel / datei).is_file():
            continue
        funde += [f"{datei}:{nummer}: a tab, or a blank at the end of the line; take it out (`make format` does for C++)."
                  for nummer, zeile in baum.zeilen(datei) if "\t" in zeile or zeile != zeile.rstrip(" ")]
        if not (baum.wurzel / datei).read_bytes().endswith(b"\n"):
            funde.append(f"{datei}: the last line lacks its line end; add it.")
    return funde


def namen(baum):
    """Checkouts on other systems, archives and half of all tools stumble over names beyond ASCII and over two that differ by
    case alone."""
    funde, klein = [], defaultdict(list)
    for name in baum.dateien():
        klein[name.lower()].append(name)
        if not name.isascii():
            funde.append(f"{name}: rename it, file names are ASCII (ae, oe, ue, ss).")
    funde += [f"{' and '.join(paar)}: rename one of them, they differ by case alone." for paar in klein.values() if len(paar) > 1]
    return funde
