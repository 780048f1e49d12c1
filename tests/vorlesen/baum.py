"""The accessible tree as a screen reader meets it: AT-SPI calls and events over the accessibility bus.

Calls are sent in bundles and answered later, as readers do that fetch a page ahead; nothing is kept between two
walks, so that an answer is always the program's own.
"""

import time
from dataclasses import dataclass, field
from functools import cache

from gi.repository import Gio, GLib

WURZEL = "/org/a11y/atspi/accessible/root"
NICHTS = "/org/a11y/atspi/null"
ZUGANG = "org.a11y.atspi.Accessible"
BAUSTEIN = "org.a11y.atspi.Component"
HANDLUNG = "org.a11y.atspi.Action"
TEXT = "org.a11y.atspi.Text"
SCHREIBEN = "org.a11y.atspi.EditableText"
WERT = "org.a11y.atspi.Value"
TABELLE = "org.a11y.atspi.Table"
EIGENSCHAFTEN = "org.freedesktop.DBus.Properties"

# places of the states in the bit set, and the relation "is labelled by", as the protocol numbers them
ZUSTÄNDE = {"aktiv": 1, "angekreuzt": 4, "frei": 8, "fokussierbar": 11, "fokussiert": 12, "modal": 16,
            "markiert": 23, "zu sehen": 25, "sichtbar": 30, "unbestimmt": 32}
BESCHRIFTET_VON = 2
# The events that a rule looks at, or that tell of another screen. The program sends all that there are; a page that
# comes and goes says so for each of its parts, which nobody here listens to.
GEHÖRT = (("StateChanged", "focused"), ("StateChanged", "checked"), ("StateChanged", "selected"),
          ("PropertyChange", "accessible-name"), ("PropertyChange", "accessible-value"),
          ("TextChanged", "insert"), ("TextChanged", "delete"))


@dataclass
class Ereignis:
    """An event of the program: which object, what, with which details."""
    pfad: str
    name: str
    art: str
    zahl: int
    inhalt: object


@dataclass
class Knoten:
    """An object of the tree with what it answered."""
    pfad: str
    eltern: "Knoten | None"
    rolle: str = ""
    name: str = ""
    beschreibung: str = ""
    zustand: set = field(default_factory=set)
    schnittstellen: list = field(default_factory=list)
    etiketten: list = field(default_factory=list)
    kinder: list = field(default_factory=list)
    text: str | None = None

    def alle(self):
        """This object and all below it, in reading order."""
        yield self
        for kind in self.kinder:
            yield from kind.alle()

    def ist(self, *zustände):
        """Whether it has all these states."""
        return set(zustände) <= self.zustand


class Verstummt(Exception):
    """The program no longer answers."""


class Leser:
    """A client of the accessibility bus that watches one program."""

    def __init__(self):
        sitzung = Gio.bus_get_sync(Gio.BusType.SESSION)
        adresse = sitzung.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                                    Gio.DBusCallFlags.NONE, 10000, None).unpack()[0]
        arten = Gio.DBusConnectionFlags
        self.bus = Gio.DBusConnection.new_for_address_sync(
            adresse, arten.AUTHENTICATION_CLIENT | arten.MESSAGE_BUS_CONNECTION, None, None)
        self.programm = None
        self.ereignisse = []
        self.gehört = 0
        for was in ("object:", "window:", "focus:"):
            self._registriere(was)
        for name, art in GEHÖRT:
            self.bus.signal_subscribe(None, "org.a11y.atspi.Event.Object", name, None, art, Gio.DBusSignalFlags.NONE,
                                      self._höre)

    def _registriere(self, was):
        self.bus.call_sync("org.a11y.atspi.Registry", "/org/a11y/atspi/registry", "org.a11y.atspi.Registry",
                           "RegisterEvent", GLib.Variant("(s)", (was,)), None, Gio.DBusCallFlags.NONE, 10000, None)

    def _höre(self, _bus, absender, pfad, _schnittstelle, name, inhalt):
        if absender == self.programm:
            teile = inhalt.unpack()
            self.gehört += 1
            self.ereignisse.append(Ereignis(pfad, name, teile[0], teile[1], teile[3]))

    # --- calls -------------------------------------------------------------------------------------------------

    def frage_alle(self, fragen, frist=20.0):
        """Sends all questions (path, interface, method, arguments) at once; the answers, None for a refusal."""
        antworten = [None] * len(fragen)
        offen = len(fragen)
        tot = False

        def nimm(bus, ergebnis, stelle):
            nonlocal offen, tot
            offen -= 1
            try:
                antworten[stelle] = bus.call_finish(ergebnis).unpack()
            except GLib.Error as fehler:
                name = Gio.DBusError.get_remote_error(fehler) or ""
                tot = tot or name.endswith(("NoReply", "ServiceUnknown", "Disconnected", "NameHasNoOwner"))

        for stelle, (pfad, schnittstelle, ruf, argumente) in enumerate(fragen):
            self.bus.call(self.programm, pfad, schnittstelle, ruf, argumente, None, Gio.DBusCallFlags.NO_AUTO_START,
                          int(frist * 1000), None, nimm, stelle)
        umlauf = GLib.MainContext.default()
        while offen > 0:
            umlauf.iteration(True)
        if tot:
            raise Verstummt()
        return antworten

    def frage(self, pfad, schnittstelle, ruf, argumente=None, frist=20.0):
        """One question."""
        return self.frage_alle([(pfad, schnittstelle, ruf, argumente)], frist)[0]

    @staticmethod
    def eigenschaft(pfad, schnittstelle, name):
        """The question for a property."""
        return (pfad, EIGENSCHAFTEN, "Get", alsArgumente("(ss)", schnittstelle, name))

    @staticmethod
    def kind(pfad, stelle):
        """The question for a child."""
        return (pfad, ZUGANG, "GetChildAtIndex", alsArgumente("(i)", stelle))

    def lasse_geschehen(self, sekunden, bis=lambda: False):
        """Takes in events for that long, or until the condition holds after one of them."""
        vorbei = []
        wecker = GLib.timeout_add(int(sekunden * 1000), lambda: vorbei.append(True) or GLib.SOURCE_CONTINUE)
        umlauf = GLib.MainContext.default()
        while not vorbei and not bis():
            umlauf.iteration(True)
        GLib.source_remove(wecker)

    def warte_auf_neues(self):
        """Waits until the program tells of something, though not for long: not every change is told."""
        bisher = self.gehört
        self.lasse_geschehen(0.1, lambda: self.gehört > bisher)
        self.lasse_geschehen(0.02)  # what belongs to it comes at once

    def warte_bis(self, bedingung, frist=10.0):
        """Waits until the condition holds; whether it did in time."""
        ende = time.monotonic() + frist
        while not (erfüllt := bedingung()) and time.monotonic() < ende:
            self.warte_auf_neues()
        return erfüllt

    # --- the program -------------------------------------------------------------------------------------------

    def finde_programm(self, nummer):
        """Finds the program on the bus by the number of its process; whether it is there."""
        kinder = self.bus.call_sync("org.a11y.atspi.Registry", WURZEL, ZUGANG, "GetChildren", None, None,
                                    Gio.DBusCallFlags.NONE, 10000, None).unpack()[0]
        self.programm = next((name for name, _ in kinder if self._prozess(name) == nummer), None)
        return self.programm is not None

    def _prozess(self, name):
        try:
            return self.bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                      "GetConnectionUnixProcessID", GLib.Variant("(s)", (name,)), None,
                                      Gio.DBusCallFlags.NONE, 10000, None).unpack()[0]
        except GLib.Error:
            return None  # it has just gone

    def fenster(self):
        """The windows of the program that are to be seen, the active one last."""
        kinder = self.frage(WURZEL, ZUGANG, "GetChildren")
        alle = [Knoten(pfad, None) for _, pfad in kinder[0]]
        self.lies(alle)
        offene = [einer for einer in alle if einer.ist("zu sehen") and einer.rolle != "invalid"]
        # the frame stays active under the windows that stand over it
        return sorted(offene, key=lambda einer: (einer.ist("aktiv"), einer.rolle != "frame"))

    def baum(self, wurzel=None, ganz=False):
        """The window that is in use (or `wurzel`) with everything in it that is to be seen; `ganz`: with all that the
        rules ask for, which takes twice the time."""
        if wurzel is None:
            fenster = self.fenster()
            if not fenster:
                return None
            wurzel = fenster[-1]
        reihe = [wurzel]
        while reihe:
            listen = self.frage_alle([(einer.pfad, ZUGANG, "GetChildren", None) for einer in reihe])
            nächste = []
            for einer, antwort in zip(reihe, listen):
                for _, pfad in (antwort[0] if antwort else []):
                    if pfad != NICHTS:
                        nächste.append(Knoten(pfad, einer))
            self.lies(nächste)
            reihe = [einer for einer in nächste if einer.ist("zu sehen")]
            for einer in reihe:
                einer.eltern.kinder.append(einer)
        if ganz:
            self.lies_rest(list(wurzel.alle()))
        return wurzel

    def lies(self, knoten):
        """Fills the objects with role, name and states."""
        fragen = []
        for einer in knoten:
            p = einer.pfad
            fragen += [(p, ZUGANG, "GetRoleName", None), self.eigenschaft(p, ZUGANG, "Name"),
                       (p, ZUGANG, "GetState", None)]
        antworten = iter(self.frage_alle(fragen))
        for einer in knoten:
            rolle, name, zustand = (next(antworten) for _ in range(3))
            einer.rolle = rolle[0] if rolle else "invalid"
            einer.name = name[0] if name else ""
            einer.zustand = alsZustände(zustand[0] if zustand else [0, 0])

    def lies_rest(self, knoten):
        """Fills the objects with what else they say of themselves."""
        fragen = []
        for einer in knoten:
            p = einer.pfad
            fragen += [self.eigenschaft(p, ZUGANG, "Description"), (p, ZUGANG, "GetInterfaces", None),
                       (p, ZUGANG, "GetRelationSet", None)]
        antworten = iter(self.frage_alle(fragen))
        for einer in knoten:
            beschreibung, schnittstellen, beziehungen = (next(antworten) for _ in range(3))
            einer.beschreibung = beschreibung[0] if beschreibung else ""
            einer.schnittstellen = schnittstellen[0] if schnittstellen else []
            einer.etiketten = [ziel[1] for art, ziele in (beziehungen[0] if beziehungen else [])
                               if art == BESCHRIFTET_VON for ziel in ziele if ziel[1] != NICHTS]
        mit_text = [einer for einer in knoten if TEXT in einer.schnittstellen]
        texte = self.frage_alle([(einer.pfad, TEXT, "GetText", GLib.Variant("(ii)", (0, -1))) for einer in mit_text])
        for einer, antwort in zip(mit_text, texte):
            einer.text = antwort[0] if antwort else None

    def zustand(self, knoten):
        """The states that it has now."""
        antwort = self.frage(knoten.pfad, ZUGANG, "GetState")
        return alsZustände(antwort[0] if antwort else [0, 0])

    def namen(self, knoten):
        """The names that they have now."""
        antworten = self.frage_alle([self.eigenschaft(einer.pfad, ZUGANG, "Name") for einer in knoten])
        return [antwort[0] if antwort else "" for antwort in antworten]

    def name(self, knoten):
        """The name that it has now."""
        return self.namen([knoten])[0]

    def benenne(self, pfad):
        """How a message calls an object that was met outside the tree."""
        einer = Knoten(pfad, None)
        self.lies([einer])
        return f"{einer.rolle} '{einer.name}'"

    def handlungen(self, knoten):
        """The names of its actions."""
        antwort = self.frage(knoten.pfad, HANDLUNG, "GetActions") if HANDLUNG in knoten.schnittstellen else None
        return [eine[0].lower() for eine in antwort[0]] if antwort else []

    def frage_nach_druck(self, knoten, stelle=0):
        """The question that presses it."""
        return (knoten.pfad, HANDLUNG, "DoAction", GLib.Variant("(i)", (stelle,)))

    def drücke(self, knoten):
        """Presses it."""
        return self.frage_alle([self.frage_nach_druck(knoten)])[0]

    def nimm_fokus(self, knoten):
        """Asks the program to put the focus there; its answer."""
        antwort = self.frage(knoten.pfad, BAUSTEIN, "GrabFocus")
        return bool(antwort and antwort[0])


@cache
def alsArgumente(form, *werte):
    """Arguments of a call: few, and asked with again and again."""
    return GLib.Variant(form, werte)


def alsZustände(wörter):
    """The state set as words."""
    bits = wörter[0] | (wörter[1] << 32)
    return {name for name, stelle in ZUSTÄNDE.items() if bits >> stelle & 1}
