#!/usr/bin/python3
"""Meets the program as a screen reader does, on all its screens, and counts what it does not say.

vorlesen.py PROGRAMM SZENARIO [SCHRIFT] [SEKUNDEN]

SCHRIFT is the size of the desktop's font in percent. At 100 every rule is checked on every screen; then, at any size,
pages change for SEKUNDEN while readers fetch children that may be gone by then. Exit status 1 on any finding.
"""

import os
import shutil
import sys
import time
from pathlib import Path

if "TOLVEK_VORLESEN" not in os.environ:  # a session bus of its own, with the accessibility bus on it
    os.environ["TOLVEK_VORLESEN"] = "1"
    os.execvp("dbus-run-session", ["dbus-run-session", "--", sys.executable, *sys.argv])

sys.path.insert(0, str(Path(__file__).parent))

from gi.repository import GLib

import pruefungen
from baum import ZUGANG, Leser, Verstummt
from buehne import Bühne
from weg import SEITEN, Verlaufen, Weg, prüfeStation


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


def frageÜberall(leser, wurzel):
    """The questions for all children that the objects had when they were last seen, and for some more."""
    fragen = []
    for k in wurzel.alle():
        for stelle in range(min(len(k.kinder), 30) + 2):
            fragen.append((k.pfad, ZUGANG, "GetChildAtIndex", GLib.Variant("(i)", (stelle,))))
        fragen.append((k.pfad, ZUGANG, "GetChildren", None))
        fragen.append((k.pfad, ZUGANG, "GetIndexInParent", None))
    return fragen


def bedränge(leser, weg, sekunden):
    """Pages change while readers walk on in the tree that they knew; the number of walks."""
    gänge = 0
    ende = time.monotonic() + sekunden
    weg.zurBetreuung()
    while time.monotonic() < ende:
        for knopf in SEITEN.values():
            for anfang in (knopf, "Exit"):
                alt = weg.schau()
                druck = leser.frage_nach_druck(weg.knopf(anfang))
                überall = frageÜberall(leser, alt)
                # the press falls into the middle of the first walk, the page changes during the next ones
                leser.frage_alle(überall[:200] + [druck] + überall[200:])
                gänge += 1
                neu = alt
                for _ in range(25):
                    leser.frage_alle(überall)
                    gänge += 1
                    neu = leser.baum() or neu
                    gänge += 1
                    ziel = weg.wurzel = neu
                    if not any(k.pfad == druck[0] for k in ziel.alle()) and weg.knopf("Exit") is not None:
                        break
    return gänge


def main():
    programm, szenario = sys.argv[1], sys.argv[2]
    prozent = int(sys.argv[3]) if len(sys.argv) > 3 else 100
    sekunden = float(sys.argv[4]) if len(sys.argv) > 4 else 10
    for werkzeug in ("Xvfb", "openbox", "xdotool"):
        if shutil.which(werkzeug) is None:
            sys.exit(f"{werkzeug} fehlt: werkzeug/einrichten.sh")
    zähler, leser = Zähler(), Leser()
    bühne = Bühne(programm, szenario)
    try:
        bühne.starte(prozent * 96 // 100)
        if not leser.warte_bis(leser.finde_programm, 20) or not leser.warte_bis(leser.fenster, 20):
            raise Verlaufen("das Programm meldet sich nicht")
        weg = Weg(leser, bühne, zähler.besuche)
        if prozent == 100:
            weg.ganzer()
        else:
            weg.warte_auf("Hauptmenü")
        gänge = bedränge(leser, weg, sekunden)
        print(f"{gänge} Gänge durch wechselnde Seiten, {leser.schritte} Fragen", flush=True)
    except Verlaufen as fehler:
        zähler.nimm("Weg", [(None, str(fehler))])
        bühne.bild(os.environ.get("TOLVEK_VORLESEN_BILD", "/dev/null"))
    except Verstummt:
        zähler.nimm("Programm", [(None, "antwortet nicht mehr")])
    finally:
        time.sleep(0.3)
        if bühne.absturz() is not None:
            zähler.nimm("Programm", [(None, f"abgestürzt ({bühne.absturz()})")])
        bühne.räumeAb()
    print(f"Schrift {prozent} %: {zähler.anzahl} Befunde")
    return 1 if zähler.anzahl else 0


if __name__ == "__main__":
    sys.exit(main())
