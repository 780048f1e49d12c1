"""A display of its own with a window manager, for every test that shows real windows."""

import os
import subprocess
import time

GEDULD = 60  # seconds for both to come up on a busy machine


class Anzeige:
    """X server and window manager; `umgebung` is what a program on it needs, `schließe` ends both.

    `xvfb` and `openbox` are further arguments of the two, `ausgabe` takes what they say.
    """

    def __init__(self, umgebung, breite=1366, höhe=768, xvfb=(), openbox=(), ausgabe=subprocess.DEVNULL):
        self.prozesse = []
        self.ausgabe = ausgabe
        self.umgebung = {name: wert for name, wert in umgebung.items() if name != "WAYLAND_DISPLAY"}
        try:
            self.umgebung["DISPLAY"] = self._starte_server("-screen", "0", f"{breite}x{höhe}x24", *xvfb)
            self._starte(["openbox", *openbox])
            self._warte_auf_verwalter()
        except BaseException:
            self.schließe()
            raise

    def _starte(self, befehl, **mehr):
        self.prozesse.append(subprocess.Popen(befehl, env=self.umgebung, stdin=subprocess.DEVNULL,
                                              stdout=self.ausgabe, stderr=self.ausgabe, **mehr))

    def _starte_server(self, *argumente):
        lesen, schreiben = os.pipe()
        try:
            # without -noreset the server starts anew whenever its last client goes, and takes a window manager that is
            # just coming up with it
            self._starte(["Xvfb", "-displayfd", str(schreiben), "-nolisten", "tcp", "-noreset", *argumente],
                         pass_fds=[schreiben])
        finally:
            os.close(schreiben)
        with os.fdopen(lesen) as antwort:  # the number may come in pieces
            nummer = antwort.readline().strip()
        if not nummer:
            raise RuntimeError("no X server")
        return ":" + nummer

    def _warte_auf_verwalter(self):
        """A window that opens before the window manager is there would never get the keyboard."""
        ende = time.monotonic() + GEDULD
        while "window id" not in self.frage("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"):
            if time.monotonic() > ende:
                raise RuntimeError("no window manager")
            time.sleep(0.05)

    def frage(self, *befehl):
        """What the command says; nothing when it fails."""
        return subprocess.run(befehl, env=self.umgebung, capture_output=True, text=True, check=False).stdout

    def schließe(self):
        for prozess in reversed(self.prozesse):
            prozess.terminate()
        for prozess in self.prozesse:
            try:
                prozess.wait(5)
            except subprocess.TimeoutExpired:
                prozess.kill()
                prozess.wait()
