"""A stage for tests with real keys and a real mouse: X server, window manager and program, each its own.

A topic is a file beside this one: functions `prüfe_…(bühne)`, and at its end `if __name__ == "__main__": laufe(globals())`.
CMake runs every file as a test, with the program and the scenario runner as arguments; a further argument picks the
functions whose names contain it. A function that returns has passed; `Scheitern` (or any exception) fails it. The variable
TOLVEK_STARTER holds the words that start both programs where the system cannot do that by itself.

Keys reach a program in the order in which they are sent, so nothing has to be waited for between two keys, unless
another window gets the keyboard meanwhile: `neues_fenster` and `fenster_geht` wait for that. What must then be so is
looked at in the files (`warte`), or in the picture of the screen (`ruhiges_bild`).
"""

import contextlib
import datetime
import os
import shlex
import shutil
import subprocess
import sys
import tempfile
import time
import traceback

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "hilfen"))
from anzeige import Anzeige

GEDULD = 20.0  # seconds until something that must happen has not happened
BREITE, HÖHE = 1366, 768
ABSEITS = 4, 400  # where the mouse, which is in the picture too, stands over nothing
TRENNER = b"\xb7"

# The keys of the scenarios under their names in X.
TASTENNAMEN = {
    "Rück": "BackSpace", "Entf": "Delete", "Links": "Left", "Rechts": "Right", "Auf": "Up", "Ab": "Down", "Pos1": "Home",
    "Ende": "End", "Tab": "Tab", "Eingabe": "Return", "Esc": "Escape", "F1": "F1", "F4": "F4", "Umschalt": "shift",
    "Strg": "ctrl", "Alt": "alt", " ": "space", ".": "period",
}

# A window manager without keys of its own, so that every key is the program's.
OPENBOX = """<?xml version="1.0"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew><followMouse>no</followMouse></focus>
  <placement><policy>Smart</policy></placement>
  <theme><name>Clearlooks</name></theme>
  <desktops><number>1</number></desktops>
  <keyboard/>
  <mouse>
    <context name="Client">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
    <context name="Titlebar">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
  </mouse>
</openbox_config>
"""


class Scheitern(Exception):
    pass


def verlange(bedingung, text):
    if not bedingung:
        raise Scheitern(text)


def warte(bedingung, text, geduld=GEDULD):
    """Polls until the condition holds; its value."""
    ende = time.monotonic() + geduld
    while True:
        wert = bedingung()
        if wert:
            return wert
        if time.monotonic() > ende:
            raise Scheitern("vergeblich gewartet: " + (text() if callable(text) else text))
        time.sleep(0.02)


class Bild:
    """The pixels of the screen."""

    def __init__(self, daten):
        kopf = int.from_bytes(daten[0:4], "big")
        farben = int.from_bytes(daten[76:80], "big")
        self.zeilenlänge = int.from_bytes(daten[48:52], "big")
        anfang = kopf + 12 * farben
        self.punkte = daten[anfang:anfang + self.zeilenlänge * HÖHE]

    def __eq__(self, anderes):
        return self.punkte == anderes.punkte

    def zeile(self, y):
        return self.punkte[y * self.zeilenlänge:(y + 1) * self.zeilenlänge]

    def punkt(self, x, y):
        ort = y * self.zeilenlänge + 4 * x
        blau, grün, rot = self.punkte[ort:ort + 3]
        return rot, grün, blau

    def verschieden(self, anderes, rand=0):
        """The places (as a set of blocks of 4 x 4 pixels) where the two differ."""
        blöcke = set()
        for y in range(rand, HÖHE):
            eine, andere = self.zeile(y), anderes.zeile(y)
            if eine != andere:
                for x in range(0, BREITE, 4):
                    if eine[4 * x:4 * x + 16] != andere[4 * x:4 * x + 16]:
                        blöcke.add((x // 4, y // 4))
        return blöcke


class Bühne:
    def __init__(self, tolvek7, szenario):
        self.tolvek7 = os.path.abspath(tolvek7)
        self.szenario = os.path.abspath(szenario)
        self.starter = shlex.split(os.environ.get("TOLVEK_STARTER", ""))
        self.ordner = tempfile.mkdtemp(prefix="bedienung-")
        self.anzeige = None
        self.programm = None
        self.nummer = 0
        self.umwelt = dict(os.environ, HOME=self.ordner, XDG_RUNTIME_DIR=self.ordner, QT_QPA_PLATFORM="xcb",
                           DBUS_SESSION_BUS_ADDRESS="disabled:", LC_ALL="C.UTF-8", QT_SCALE_FACTOR="1")
        for fremd in ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "QT_STYLE_OVERRIDE"):
            self.umwelt.pop(fremd, None)

    def __enter__(self):
        try:
            self._öffne()
        except BaseException:
            self.__exit__(None, None, None)
            raise
        return self

    def _öffne(self):
        with open(self.pfad("rc.xml"), "w", encoding="utf-8") as datei:
            datei.write(OPENBOX)
        with open(self.pfad("anzeige.log"), "ab") as mitschrift:
            self.anzeige = Anzeige(self.umwelt, BREITE, HÖHE, xvfb=["-fbdir", self.ordner],
                                   openbox=["--sm-disable", "--config-file", self.pfad("rc.xml")], ausgabe=mitschrift)
        self.umwelt = self.anzeige.umgebung

    def __exit__(self, *_):
        self.beende_programm()
        if self.anzeige is not None:
            self.anzeige.schließe()
        shutil.rmtree(self.ordner, ignore_errors=True)

    def pfad(self, *teile):
        return os.path.join(self.ordner, *teile)

    def _starte(self, *befehl):
        with open(self.pfad(os.path.basename(befehl[0]) + ".log"), "ab") as mitschrift:
            return subprocess.Popen(befehl, env=self.umwelt, stdin=subprocess.DEVNULL, stdout=mitschrift,
                                    stderr=mitschrift)

    @staticmethod
    def _töte(prozess):
        if prozess.poll() is None:
            prozess.terminate()
            try:
                prozess.wait(5)
            except subprocess.TimeoutExpired:
                prozess.kill()
                prozess.wait()

    def _xdotool(self, *befehl, darf_scheitern=False):
        lauf = subprocess.run(["xdotool", *befehl], env=self.umwelt, capture_output=True, text=True, timeout=30)
        if lauf.returncode != 0 and not darf_scheitern:
            raise Scheitern(f"xdotool {' '.join(befehl)}: {lauf.stderr.strip()}")
        return lauf.stdout.strip() if lauf.returncode == 0 else ""

    # the program and its folder

    def spiele(self, anweisungen, *dateien):
        """Runs a scenario without windows; the contents of the files of its program folder afterwards."""
        self.nummer += 1
        ziel = self.pfad(f"gespielt{self.nummer}")
        os.mkdir(ziel)
        heute = datetime.date.today().strftime("%d.%m.%Y")
        text = f"heute {heute}\n" + anweisungen.strip() + "\n"
        for i, name in enumerate(dateien):
            text += f'sichere "{name}" "{ziel}/{i}"\n'
        quelle = self.pfad(f"gespielt{self.nummer}.szenario")
        with open(quelle, "w", encoding="utf-8") as datei:
            datei.write(text)
        lauf = subprocess.run([*self.starter, self.szenario, "--oberfläche=ohne", quelle], env=self.umwelt,
                              capture_output=True, text=True, timeout=60)
        verlange(lauf.returncode == 0, "Szenario: " + lauf.stdout + lauf.stderr)
        inhalte = []
        for i in range(len(dateien)):
            with open(f"{ziel}/{i}", "rb") as datei:
                inhalte.append(datei.read())
        return inhalte

    def tabs(self, anzahl, anweisungen, von, bis):
        """So many presses of Tab lead from one element of a screen to another; the logic is asked whether they do."""
        self.spiele(f'{anweisungen.strip()}\ntippe {von} "{"{Tab}" * anzahl}"\nerwarte fokus {bis}')
        return ["Tab"] * anzahl

    def lege_an(self, anweisungen=""):
        """A fresh program folder, with the records that the set-up statements of a scenario make."""
        self.beende_programm()
        self.nummer += 1
        self.programmordner = self.pfad(f"programm{self.nummer}")
        os.mkdir(self.programmordner, 0o700)
        shutil.copy2(self.tolvek7, self.programmordner)
        if anweisungen.strip():
            os.mkdir(os.path.join(self.programmordner, "Daten"), 0o700)
            namen = [f"Daten/{tabelle}Dat.{art}" for tabelle in ("kern", "betr", "diag") for art in ("txt", "bak")]
            for name, inhalt in zip(namen, self.spiele(anweisungen, *namen)):
                self.schreibe(name, inhalt)

    def starte(self, anweisungen=None):
        """Starts the program; in a fresh folder where set-up statements are given. Waits for its window."""
        if anweisungen is not None:
            self.lege_an(anweisungen)
        self.beende_programm()
        self.programm = self._starte(*self.starter, os.path.join(self.programmordner, os.path.basename(self.tolvek7)))
        self.zeige(*ABSEITS)
        self.rahmen = warte(self.fokusfenster_des_programms, "kein Fenster des Programms")
        self.ruhiges_bild()
        return self.rahmen

    def beende_programm(self):
        if self.programm is not None:
            self._töte(self.programm)
            self.programm = None

    def warte_auf_ende(self):
        warte(lambda: self.programm.poll() is not None, "das Programm endet nicht")
        return self.programm.returncode

    def rechenzeit(self):
        """The seconds of a processor that the program has taken until now."""
        with open(f"/proc/{self.programm.pid}/stat", encoding="utf-8") as datei:
            werte = datei.read().rpartition(")")[2].split()
        return (int(werte[11]) + int(werte[12])) / os.sysconf("SC_CLK_TCK")

    def datei(self, name):
        return os.path.join(self.programmordner, name)

    def lies(self, name):
        try:
            with open(self.datei(name), "rb") as datei:
                return datei.read()
        except FileNotFoundError:
            return b""

    def schreibe(self, name, inhalt):
        with open(self.datei(name), "wb") as datei:
            datei.write(inhalt)

    def zeilen(self, name):
        return [zeile for zeile in self.lies(name).split(b"\r\n") if zeile]

    def feld(self, name, zeile, nummer):
        """As a scenario counts: line and field from 1."""
        zeilen = self.zeilen(name)
        return zeilen[zeile - 1].split(TRENNER)[nummer - 1] if zeile <= len(zeilen) else None

    def warte_auf_feld(self, name, zeile, nummer, wert):
        warte(lambda: self.feld(name, zeile, nummer) == wert,
              lambda: f"{name} Zeile {zeile} Feld {nummer}: {wert}, steht {self.feld(name, zeile, nummer)}")

    # windows

    def fokusfenster(self):
        return self._xdotool("getwindowfocus", darf_scheitern=True)

    def fokusfenster_des_programms(self):
        """The window with the keyboard, if it is one of the program's."""
        verlange(self.programm.poll() is None, f"das Programm ist mit {self.programm.poll()} zu Ende")
        fenster = self._xdotool("getactivewindow", darf_scheitern=True)
        if not fenster or fenster != self.fokusfenster():
            return ""
        return fenster if self._xdotool("getwindowpid", fenster, darf_scheitern=True) == str(self.programm.pid) else ""

    @contextlib.contextmanager
    def neues_fenster(self):
        """What happens inside brings up another window, which then has the keyboard (the frame may have it between)."""
        vorher = self.fokusfenster()
        yield
        warte(lambda: self.fokusfenster_des_programms() not in ("", vorher, self.rahmen), "kein neues Fenster")

    def warte_auf_fenster(self, fenster):
        warte(lambda: self.fokusfenster_des_programms() == fenster, "das Fenster bekommt die Tastatur nicht")

    @contextlib.contextmanager
    def zurück_zum(self, fenster):
        """What happens inside leads back to the window."""
        yield
        self.warte_auf_fenster(fenster)

    def lage(self, fenster):
        zeilen = self._xdotool("getwindowgeometry", "--shell", fenster).splitlines()
        werte = dict(zeile.split("=") for zeile in zeilen if "=" in zeile)
        return tuple(int(werte[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))

    def aktiviere(self, fenster):
        """As a click in the task bar does."""
        self._xdotool("windowactivate", fenster)

    # hands

    def taste(self, *tasten, mal=1):
        """Presses the keys one after another: names of X, with ctrl+, alt+, shift+ in front."""
        self._xdotool("key", "--delay", "8", "--clearmodifiers", *(list(tasten) * mal))

    def tippe(self, text):
        self._xdotool("type", "--delay", "8", text)

    def tippe_folge(self, folge):
        """Keys as a scenario writes them: characters, and {Tab}, {Umschalt+Tab}, {Alt+O}."""
        tasten = []
        while folge:
            name = folge[0]
            if name == "{":
                name = folge[1:folge.index("}")]
            folge = folge[len(name) + 2:] if folge[0] == "{" else folge[1:]
            *zusätze, taste = name.split("+") if len(name) > 1 else (name,)
            taste = TASTENNAMEN.get(taste, taste.lower() if zusätze else taste)
            tasten.append("+".join([TASTENNAMEN[z] for z in zusätze] + [taste]))
        if tasten:
            self.taste(*tasten)

    def zeige(self, x, y):
        self._xdotool("mousemove", str(x), str(y))

    def klicke(self, x, y, mal=1):
        self._xdotool("mousemove", str(x), str(y), "click", "--repeat", str(mal), "--delay", "60", "1")

    def rad(self, x, y, schritte):
        """Turns the wheel there, downwards for a positive number."""
        self._xdotool("mousemove", str(x), str(y), "click", "--repeat", str(abs(schritte)), "--delay", "20",
                      "5" if schritte > 0 else "4")

    # eyes

    def bild(self):
        with open(self.pfad("Xvfb_screen0"), "rb") as datei:
            return Bild(datei.read())

    def ruhiges_bild(self, ruhe=0.25):
        """The screen, once nothing has moved on it for a while (a blinking cursor is slower)."""
        letztes, seit = self.bild(), time.monotonic()
        ende = seit + GEDULD
        while time.monotonic() - seit < ruhe:
            time.sleep(0.04)
            jetzt = self.bild()
            if jetzt != letztes:
                letztes, seit = jetzt, time.monotonic()
            verlange(time.monotonic() < ende, "der Bildschirm kommt nicht zur Ruhe")
        return letztes

    def anderes_bild(self, vorher, mehr_als=0, text="auf dem Bildschirm ändert sich nichts"):
        """The screen, once it differs from what it was by more than so many blocks, and has come to rest."""
        warte(lambda: len(self.bild().verschieden(vorher)) > mehr_als, text)
        return self.ruhiges_bild()

    def fokusort(self):
        """The middle of the element that has the focus: what changes when the focus comes and when it goes."""
        mit = self.ruhiges_bild()
        self.taste("Tab")
        danach = self.anderes_bild(mit)
        self.taste("shift+Tab", mal=2)
        davor = self.anderes_bild(danach)
        self.taste("Tab")
        self.anderes_bild(davor)
        blöcke = mit.verschieden(danach) & mit.verschieden(davor)
        verlange(blöcke, "kein sichtbarer Fokus")
        spalten, reihen = [x for x, _ in blöcke], [y for _, y in blöcke]
        return 2 * (min(spalten) + max(spalten)) + 2, 2 * (min(reihen) + max(reihen)) + 2

    def sichere_bild(self, name):
        """Keeps the screen for somebody who looks for the reason of a failure."""
        ordner = os.environ.get("BEDIENUNG_BILDER")
        if ordner:
            os.makedirs(ordner, exist_ok=True)
            shutil.copy(self.pfad("Xvfb_screen0"), os.path.join(ordner, name + ".xwd"))


def laufe(namen):
    """Runs the tests of a topic; the exit status tells whether all passed."""
    tolvek7, szenario = sys.argv[1:3]
    nur = sys.argv[3] if len(sys.argv) > 3 else ""
    prüfungen = [(name, f) for name, f in namen.items() if name.startswith("prüfe_") and nur in name]
    gescheitert = 0
    with Bühne(tolvek7, szenario) as bühne:
        for name, prüfung in prüfungen:
            anfang = time.monotonic()
            try:
                prüfung(bühne)
                print(f"ok {name} ({time.monotonic() - anfang:.1f} s)", flush=True)
            except Exception as fehler:
                gescheitert += 1
                bühne.sichere_bild(name)
                wo = traceback.extract_tb(fehler.__traceback__)[1]
                print(f"FEHLER {name} Zeile {wo.lineno}: {fehler}", flush=True)
            finally:
                bühne.beende_programm()
    print(f"{len(prüfungen) - gescheitert} passed, {gescheitert} failed")
    sys.exit(1 if gescheitert or not prüfungen else 0)
