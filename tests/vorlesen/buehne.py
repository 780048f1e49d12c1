"""The stage: a display, a window manager, the accessibility bus and the real program on a made-up facility."""

import os
import shutil
import signal
import subprocess
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "hilfen"))
from anzeige import Anzeige

EINRICHTUNG = """
heute 02.08.2007
klient 1 Nachname=Adler Vorname=Anna Strasse="Amselweg 1" PLZ=99999 Ort=Musterstadt
klient 2 Nachname=Berger Vorname=Bernd
klient 3 Nachname=Celik Vorname=Cem
betreuung 1 1 01.02.2005 02.03.2006
betreuung 2 1 05.05.2006 offen
diagnose 1 1 4=Injektion
diagnose 2 1
starte
klicke cmdExit
erwarte ende
"""
TABELLEN = ("kernDat", "betrDat", "diagDat")


def richteEinrichtungEin(szenario, ordner):
    """Lets the scenario runner make the records of the facility; the folder is the program's."""
    daten = Path(ordner) / "Daten"
    daten.mkdir()
    sichern = "".join(f"sichere Daten/{name}.{endung} {daten}/{name}.{endung}\n"
                      for name in TABELLEN for endung in ("txt", "bak"))
    skript = Path(ordner) / "einrichtung.szenario"
    skript.write_text(EINRICHTUNG + sichern, encoding="utf-8")
    subprocess.run([szenario, "--oberfläche=ohne", str(skript)], check=True, stdout=subprocess.DEVNULL)
    skript.unlink()


class Bühne:
    """Display, window manager and, on demand, the program; everything ends with it."""

    def __init__(self, programm, szenario):
        self.ordner = Path(tempfile.mkdtemp(prefix="tolvek-vorlesen-"))
        self.vorlage = Path(programm)
        self.szenario = szenario
        self.lauf = None
        self.anzeige = Anzeige(os.environ)

    def _umgebung(self, **mehr):
        return {**self.anzeige.umgebung, **mehr}

    def starte(self, dpi, leer=False):
        """Starts the program with the desktop's font at this resolution (96 is 100 %), in a folder of its own."""
        platz = self.ordner / ("leer" if leer else "einrichtung")
        platz.mkdir()
        shutil.copy2(self.vorlage, platz / "tolvek7")
        if not leer:
            richteEinrichtungEin(self.szenario, platz)
        # stands for the spreadsheet program, so that the workbook is handed over and nothing else opens
        rechnet = platz / "rechnet"
        rechnet.mkdir()
        (rechnet / "soffice").write_text("#!/bin/sh\nexit 0\n")
        (rechnet / "soffice").chmod(0o755)
        umgebung = self._umgebung(QT_FONT_DPI=str(dpi), QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_ACCESSIBILITY="1",
                                  QT_QPA_PLATFORM="xcb", PATH=f"{rechnet}:{os.environ['PATH']}")
        self.ausgabe = open(platz / "ausgabe.txt", "w+", encoding="utf-8")
        self.lauf = subprocess.Popen([str(platz / "tolvek7")], env=umgebung, stdout=self.ausgabe,
                                     stderr=self.ausgabe, cwd=platz)

    def absturz(self):
        """How the program ended, if it did not by itself; None otherwise."""
        ende = self.lauf.poll()
        return signal.Signals(-ende).name if ende is not None and ende < 0 else None

    def beende(self):
        """Ends the program if it still runs."""
        if self.lauf is not None and self.lauf.poll() is None:
            self.lauf.terminate()
            try:
                self.lauf.wait(3)
            except subprocess.TimeoutExpired:
                self.lauf.kill()
                self.lauf.wait()

    def tasten(self, *namen):
        """Presses keys as the keyboard does."""
        subprocess.run(["xdotool", "key", "--clearmodifiers", "--delay", "8", *namen], env=self._umgebung(),
                       check=True)

    def klicke(self, x, y):
        """Clicks the mouse there."""
        subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", "1"], env=self._umgebung(), check=True)

    def bild(self, datei):
        """Takes a picture of the display."""
        subprocess.run(["import", "-window", "root", datei], env=self._umgebung(), check=False)

    def räumeAb(self):
        """Ends everything and removes the facility."""
        self.beende()
        self.anzeige.schließe()
        shutil.rmtree(self.ordner, ignore_errors=True)

