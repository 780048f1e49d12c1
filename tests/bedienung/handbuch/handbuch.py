#!/usr/bin/python3
"""Handbook, workbook window and busy cursor in the real program: real keys and mouse under Xvfb with a window manager.

handbuch.py PROGRAM MUSTERDATEN
"""

import ctypes
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "hilfen"))
from anzeige import Anzeige

PROGRAMM, MUSTERDATEN = (pathlib.Path(p).resolve() for p in sys.argv[1:3])
HANDBUCH = pathlib.Path(__file__).resolve().parents[3] / "docs" / "handbuch"


def warte(bedingung, sekunden=20, was="nothing"):
    """Polls until the condition gives something; fails after so many seconds."""
    ende = time.monotonic() + sekunden
    while time.monotonic() < ende:
        ergebnis = bedingung()
        if ergebnis:
            return ergebnis
        time.sleep(0.05)
    raise AssertionError(f"waited {sekunden} s for {was}")


class Schirm(Anzeige):
    """What the tests do on their display, one for all."""

    def fenster(self, name):
        """The visible window whose title holds the name, or None."""
        for nummer in self.frage("xdotool", "search", "--onlyvisible", "--name", name).split():
            return int(nummer)
        return None

    def aktives(self):
        return self.frage("xdotool", "getactivewindow", "getwindowname").strip()

    def lage(self, fenster):
        """x, y, width, height of the content of the window."""
        werte = dict(zeile.split("=", 1) for zeile in
                     self.frage("xdotool", "getwindowgeometry", "--shell", str(fenster)).splitlines() if "=" in zeile)
        return tuple(int(werte[w]) for w in ("X", "Y", "WIDTH", "HEIGHT"))

    def taste(self, *tasten):
        self.frage("xdotool", "key", "--delay", "60", *tasten)

    def tippe(self, text):
        self.frage("xdotool", "type", "--delay", "40", text)

    def klicke(self, fenster, x, y):
        self.frage("xdotool", "mousemove", "--window", str(fenster), str(x), str(y), "click", "1")

    def zeiger(self):
        """The serial of the pointer's picture now."""
        class Bild(ctypes.Structure):
            _fields_ = [("x", ctypes.c_short), ("y", ctypes.c_short), ("breite", ctypes.c_ushort), ("höhe", ctypes.c_ushort),
                        ("xhot", ctypes.c_ushort), ("yhot", ctypes.c_ushort), ("nummer", ctypes.c_ulong),
                        ("punkte", ctypes.POINTER(ctypes.c_ulong)), ("atom", ctypes.c_ulong), ("name", ctypes.c_char_p)]
        if not hasattr(self, "x11"):
            self.x11 = ctypes.CDLL("libX11.so.6")
            self.xfixes = ctypes.CDLL("libXfixes.so.3")
            self.x11.XOpenDisplay.restype = ctypes.c_void_p
            self.xfixes.XFixesGetCursorImage.restype = ctypes.POINTER(Bild)
            self.xfixes.XFixesGetCursorImage.argtypes = [ctypes.c_void_p]
            self.verbindung = self.x11.XOpenDisplay(self.umgebung["DISPLAY"].encode())
        bild = self.xfixes.XFixesGetCursorImage(self.verbindung).contents
        return bytes(bild.name or b"").decode() or f"{bild.breite}x{bild.höhe}:" + str(
            hash(tuple(bild.punkte[i] for i in range(bild.breite * bild.höhe))))


schirm = None


def setUpModule():
    global schirm
    schirm = Schirm(os.environ)
    unittest.addModuleCleanup(schirm.schließe)


class Bedienung(unittest.TestCase):
    klienten = 3

    def setUp(self):
        self.ordner = pathlib.Path(tempfile.mkdtemp(prefix="tolvek7-bedienung-"))
        self.addCleanup(shutil.rmtree, self.ordner, ignore_errors=True)
        subprocess.run([MUSTERDATEN, self.ordner, "--klienten", str(self.klienten), "--episoden-je", "1", "--saat", "1"],
                       check=True, stdout=subprocess.DEVNULL)
        shutil.copy2(PROGRAMM, self.ordner / "tolvek7")
        shutil.copytree(HANDBUCH, self.ordner / "Handbuch")
        self.bin = self.ordner / "bin"
        self.bin.mkdir()
        (self.ordner / "tmp").mkdir()
        self.umgebung = dict(schirm.umgebung, PATH=str(self.bin), TMPDIR=str(self.ordner / "tmp"),
                             HOME=str(self.ordner), QT_QPA_PLATFORM="xcb")

    def lege_tabellenprogramm(self, skript):
        (self.bin / "soffice").write_text(skript, encoding="utf-8")
        (self.bin / "soffice").chmod(0o755)

    def starte(self):
        self.programm = subprocess.Popen([self.ordner / "tolvek7"], env=self.umgebung, stderr=subprocess.DEVNULL)
        self.addCleanup(self.beende)
        self.rahmen = warte(lambda: schirm.fenster("Tolvek7 v7"), was="the frame")
        warte(lambda: "v7" in schirm.aktives(), was="the frame to be active")
        time.sleep(0.5)

    def beende(self):
        if self.programm.poll() is None:
            self.programm.kill()
        self.programm.wait()

    def kind(self):
        """The window over the frame."""
        return next(iter(self.fenster_davor()), None)

    def fenster_davor(self):
        """All windows with the title of the program but the frame."""
        alle = schirm.frage("xdotool", "search", "--onlyvisible", "--name", "Tolvek7 v7").split()
        return [int(nummer) for nummer in alle if int(nummer) != self.rahmen]

    def klient(self, zeile):
        text = (self.ordner / "Daten" / "kernDat.txt").read_text(encoding="cp1252").splitlines()
        return text[zeile - 1].split("·")

    def öffne_arbeitsmappe(self):
        schirm.klicke(self.rahmen, 25, 12)
        time.sleep(0.3)
        schirm.taste("Down", "Down", "Return")


class Handbuch(Bedienung):
    def test_F1_opens_it_and_escape_gives_the_keyboard_back(self):
        self.starte()
        schirm.taste("F1")
        warte(lambda: "Handbuch" in schirm.aktives(), was="the handbook")
        schirm.taste("Next", "Next", "Prior", "Tab")
        schirm.taste("Escape")
        warte(lambda: schirm.fenster("Handbuch") is None, was="the handbook to close")
        warte(lambda: "v7" in schirm.aktives(), was="the frame to be active again")
        self.assertIsNone(self.programm.poll())

    def test_it_stays_open_beside_the_work_and_alt_f4_closes_it_alone(self):
        self.starte()
        schirm.taste("Tab", "Tab", "space")  # from the list over "hinzufügen" to "bearbeiten"
        time.sleep(0.5)
        schirm.taste("F1")
        buch = warte(lambda: schirm.fenster("Handbuch"), was="the handbook")
        warte(lambda: "Handbuch" in schirm.aktives(), was="the handbook to be active")
        schirm.frage("xdotool", "windowactivate", "--sync", str(self.rahmen))
        time.sleep(0.3)
        schirm.tippe("Q")
        schirm.taste("Return")
        self.assertEqual(schirm.fenster("Handbuch"), buch)
        schirm.taste("alt+o")
        warte(lambda: self.klient(1)[3].endswith("Q"), was="the name on the disk")
        schirm.frage("xdotool", "windowactivate", "--sync", str(buch))
        schirm.taste("alt+F4")
        warte(lambda: schirm.fenster("Handbuch") is None, was="the handbook to close")
        time.sleep(0.3)
        self.assertIsNone(self.programm.poll())


class Arbeitsmappe(Bedienung):
    def test_its_window_is_in_the_middle_also_the_second_time(self):
        self.lege_tabellenprogramm("#!/bin/sh\nexit 0\n")
        self.starte()
        for _ in range(3):
            self.öffne_arbeitsmappe()
            fenster = warte(lambda: self.kind(), was="the window of the workbook")
            time.sleep(0.8)
            rx, ry, rb, rh = schirm.lage(self.rahmen)
            x, y, b, h = schirm.lage(fenster)
            self.assertLess(abs((x + b / 2) - (rx + rb / 2)), 12)
            self.assertLess(abs((y + h / 2) - (ry + rh / 2)), 30)
            schirm.taste("space")
            warte(lambda: self.kind() is None, was="the main menu")
            time.sleep(0.5)

    def test_a_program_that_does_not_start_is_told_and_the_work_goes_on(self):
        self.lege_tabellenprogramm("#!/gibt/es/nicht\n")
        self.starte()
        self.öffne_arbeitsmappe()
        warte(lambda: len(self.fenster_davor()) == 2, was="the box over the window of the workbook")
        schirm.taste("Return")
        warte(lambda: not self.fenster_davor(), was="the main menu")
        self.assertIsNone(self.programm.poll())
        schirm.taste("F1")
        warte(lambda: "Handbuch" in schirm.aktives(), was="the program to listen")


class Sanduhr(Bedienung):
    klienten = 1500

    def test_it_is_seen_while_the_workbook_is_made(self):
        self.lege_tabellenprogramm("#!/bin/sh\nexit 0\n")
        self.starte()
        schirm.frage("xdotool", "mousemove", "--window", str(self.rahmen), "600", "300")
        time.sleep(0.5)
        gewöhnlich = schirm.zeiger()
        self.öffne_arbeitsmappe()
        schirm.frage("xdotool", "mousemove", "--window", str(self.rahmen), "600", "700")
        gesehen = set()
        ende = time.monotonic() + 4
        while time.monotonic() < ende:
            gesehen.add(schirm.zeiger())
            time.sleep(0.02)
        self.assertTrue(gesehen - {gewöhnlich}, gesehen)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[3:], verbosity=2)
