#!/usr/bin/python3
"""Meets the program as a screen reader does, on all its screens, and counts what it does not say.

vorlesen.py PROGRAMM SZENARIO [SCHRIFT] [WECHSEL]

SCHRIFT is the size of the desktop's font in percent. At 100 every rule is checked on every screen; then, at any size,
pages change WECHSEL times while readers fetch children that may be gone by then. Exit status 1 on any finding.
TOLVEK_VORLESEN_BILD names a picture that is taken where the way does not go on.
"""

import itertools
import os
import random
import shutil
import sys
import tempfile
import time
from pathlib import Path

if "TOLVEK_VORLESEN" not in os.environ:  # a session bus of its own, with the accessibility bus on it
    # the accessibility bus lies in the run-time folder: two runs in one would take it from each other
    os.environ["TOLVEK_VORLESEN"] = os.environ["XDG_RUNTIME_DIR"] = tempfile.mkdtemp(prefix="tolvek-vorlesen-")
    os.execvp("dbus-run-session", ["dbus-run-session", "--", sys.executable, *sys.argv])

sys.path.insert(0, str(Path(__file__).parent))

import pruefungen
from baum import NICHTS, Leser, Verstummt
from buehne import Bühne
from weg import SEITEN, Verlaufen, Weg, prüfeStation

LÄUFER = 100  # readers at the same time
SCHRITTE = 12  # of each, for one change of the page
WECHSEL = 15  # of the page, there and back: every one comes and goes
STELLEN = (0, 0, 0, 1, 1, 2, 3, 4, 6, 9)  # children that they ask for, there or no longer there


class Zähler:
    """The findings, printed as they come."""

    def __init__(self):
        self.anzahl = 0

    def nimm(self, schirm, befunde):
        """Takes the findings of a screen."""
        for knoten, was in befunde:
            self.anzahl += 1
            print(f"  {schirm}: {pruefungen.heißt(knoten) + ': ' if knoten is not None else ''}{was}", flush=True)

    def besuche(self, schirm, weg):
        """Checks a screen."""
        vorher, beginn = self.anzahl, time.monotonic()
        self.nimm(schirm, prüfeStation(schirm, weg))
        print(f"{schirm}: {self.anzahl - vorher} Befunde ({time.monotonic() - beginn:.1f} s)", flush=True)


def bedränge(leser, weg, wechsel):
    """Pages change while readers go down the tree from place to place, as it was a moment ago. The number of their
    walks from a window to a leaf (or to an object that is gone)."""
    zufall = random.Random(7)
    weg.zurBetreuung()
    oben = weg.wurzel.pfad
    läufer = [oben] * LÄUFER
    gänge = 0
    knöpfe = itertools.cycle(anfang for knopf in SEITEN.values() for anfang in (knopf, "Exit"))
    for anfang in itertools.islice(knöpfe, wechsel):
        if not leser.warte_bis(lambda: weg.schau() is not None and weg.knopf(anfang) is not None, 10):
            raise Verlaufen(f"bei den wechselnden Seiten fehlt der Knopf '{anfang}'")
        druck = leser.frage_nach_druck(weg.knopf(anfang))
        for schritt in range(SCHRITTE):
            fragen = [leser.kind(pfad, zufall.choice(STELLEN)) for pfad in läufer]
            if schritt == 1:  # the page changes in the middle of what the readers ask
                fragen.insert(len(fragen) // 2, druck)
            antworten = leser.frage_alle(fragen)
            if schritt == 1:
                del antworten[len(fragen) // 2]
            for i, antwort in enumerate(antworten):
                unten = antwort is None or antwort[0][1] == NICHTS
                läufer[i] = oben if unten else antwort[0][1]
                gänge += unten
    return gänge


def beginne(leser, bühne, prozent, leer=False):
    """Starts the program and waits until it is there."""
    bühne.starte(prozent * 96 // 100, leer)
    if not leser.warte_bis(lambda: leser.finde_programm(bühne.lauf.pid), 20):
        raise Verlaufen("das Programm meldet sich nicht")
    if not leser.warte_bis(lambda: any(fenster.ist("aktiv") for fenster in leser.fenster()), 20):
        raise Verlaufen("kein Fenster hat die Tastatur")


def main():
    programm, szenario = sys.argv[1], sys.argv[2]
    prozent = int(sys.argv[3]) if len(sys.argv) > 3 else 100
    wechsel = int(sys.argv[4]) if len(sys.argv) > 4 else WECHSEL
    for werkzeug in ("Xvfb", "openbox", "xdotool"):
        if shutil.which(werkzeug) is None:
            sys.exit(f"{werkzeug} fehlt: werkzeug/einrichten.sh")
    zähler, leser = Zähler(), Leser()
    bühne = Bühne(programm, szenario)
    try:
        weg = Weg(leser, bühne, zähler.besuche)
        if prozent == 100:
            beginne(leser, bühne, prozent, leer=True)
            weg.leerer()
            bühne.beende()
        beginne(leser, bühne, prozent)
        if prozent == 100:
            weg.ganzer()
        else:
            weg.warte_auf("Hauptmenü")
        gänge = bedränge(leser, weg, wechsel)
        print(f"{gänge} Gänge im Baum, während {wechsel} Seiten wechselten", flush=True)
    except Verlaufen as fehler:
        zähler.nimm("Weg", [(None, str(fehler))])
        if "TOLVEK_VORLESEN_BILD" in os.environ:
            bühne.bild(os.environ["TOLVEK_VORLESEN_BILD"])
    except Verstummt:
        zähler.nimm("Programm", [(None, "antwortet nicht mehr")])
    finally:
        time.sleep(0.3)
        if bühne.absturz() is not None:
            zähler.nimm("Programm", [(None, f"abgestürzt ({bühne.absturz()})")])
        bühne.räumeAb()
        shutil.rmtree(os.environ["TOLVEK_VORLESEN"], ignore_errors=True)
    print(f"Schrift {prozent} %: {zähler.anzahl} Befunde")
    return 1 if zähler.anzahl else 0


if __name__ == "__main__":
    sys.exit(main())
