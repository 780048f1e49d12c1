"""The way through all screens, as somebody goes it who hears them only: by names, roles and presses."""

from gi.repository import GLib

import pruefungen
from baum import SCHREIBEN, ZUGANG, Knoten

# screen: words of its header band, number of its answer fields, parts of its band that must be read with their values
STATIONEN = {
    "Hauptmenü": ("Hauptmenü", 0, ()),
    "Stammdaten": ("Klientendaten bearbeiten", 0, ()),
    "Memo": ("memo:", 0, ()),
    "Zeitraum": ("Bitte Zeitraum für Betreuung eingeben", 0, ()),
    "Betreuung": ("Betreuung Hauptseite", 9, ("Beginn 01.02.2005", "Ende 02.03.2006")),
    "Seite A": ("Maßnahmen und Interventionen", 60, ("von: 01.02.2005", "bis: 02.03.2006")),
    "Seite B": ("Soziodemografische Daten 1", 0, ("von: 01.02.2005", "bis: 02.03.2006")),
    "Seite C": ("Soziodemografische Daten 2", 24, ("von: 01.02.2005", "bis: 02.03.2006")),
    "Seite E": ("Daten zu Bereuungsende", 23, ("von: 01.02.2005", "bis: 02.03.2006")),
    "Diagnoseseite": ("Diagnose und Konsum", 0, ("von: 01.02.2005", "bis: 02.03.2006")),
    "Diagnosewahl": ("Problembereiche", 0, ()),
    "Diagnosedialog": (None, 0, ()),
    "Export": ("Export", 0, ()),
    "Arbeitsmappe": ("Datenmenge > Excel", 0, ()),
    "Übernahme": ("Datenübernahme", 0, ()),
    "Info": ("Über dieses Programm", 0, ()),
    "Meldung": (None, 0, ()),
}
# the pages of an episode and the beginning of the button that leads there
SEITEN = {"Seite A": "Maßnahmen", "Seite B": "Soziodemografische Daten 1", "Seite C": "Soziodemografische Daten 2",
          "Seite E": "Daten zu", "Diagnoseseite": "Diagnose und"}


class Verlaufen(Exception):
    """The way does not go on: a screen or an element that belongs there is not to be found."""


def geglättet(text):
    """A caption without the breaks and hyphens that only the drawing needs."""
    return text.replace("-\n", "").replace("- ", "").replace("\n", " ").strip()


class Weg:
    """Goes from screen to screen and calls `besuche` on each."""

    def __init__(self, leser, bühne, besuche):
        self.leser = leser
        self.bühne = bühne
        self.besuche = besuche
        self.wurzel = None

    # --- finding and pressing ----------------------------------------------------------------------------------

    def schau(self, ganz=False):
        """Reads the window that is in use; `ganz`: with all that the rules ask for."""
        self.wurzel = self.leser.baum(ganz=ganz)
        return self.wurzel

    def knopf(self, anfang):
        """The button with this caption, or None."""
        treffer = [k for k in self.wurzel.alle() if k.rolle == "push button" and
                   geglättet(k.name).startswith(anfang)]
        return treffer[0] if treffer else None

    def warte_auf(self, schirm, wort=None):
        """Waits until the screen stands in the window that is in use."""
        titel = wort or STATIONEN[schirm][0]

        def ist_da():
            baum = self.schau()
            return baum is not None and any(k.rolle == "label" and k.name.startswith(titel) for k in baum.alle())
        if not self.leser.warte_bis(ist_da, 12):
            raise Verlaufen(f"{schirm} erscheint nicht")

    def warte_auf_knopf(self, anfang):
        """Waits until the window in use has this button."""
        if not self.leser.warte_bis(lambda: self.schau() is not None and self.knopf(anfang) is not None, 12):
            raise Verlaufen(f"Knopf '{anfang}' fehlt")

    def drücke(self, anfang):
        """Presses the button."""
        knopf = self.knopf(anfang)
        if knopf is None:
            raise Verlaufen(f"Knopf '{anfang}' fehlt")
        self.leser.drücke(knopf)
        self.leser.warte_auf_neues()

    def gehe(self, anfang, schirm, wort=None):
        """Presses the button that leads to the screen and visits it."""
        self.drücke(anfang)
        self.warte_auf(schirm, wort)
        self.besuche(schirm, self)

    def zurück(self, anfang, schirm):
        """Leaves by the button of the screen that was looked at last, back to one that has been visited; boxes on the
        way are confirmed."""
        self.drücke(anfang)

        def ist_da():
            baum = self.schau()
            if baum is None:
                return False
            ja = self.knopf("Ja") or (self.knopf("OK") if self.knopf("Exit") is None else None)
            titel = STATIONEN[schirm][0]
            if any(k.rolle == "label" and k.name.startswith(titel) for k in baum.alle()):
                return True
            if ja is not None:
                self.leser.drücke(ja)
                self.leser.lasse_geschehen(0.2)
            return False
        if not self.leser.warte_bis(ist_da, 12):
            raise Verlaufen(f"zurück zu {schirm} geht es nicht")

    def menüeintrag(self, name):
        """An entry of the menus, opened or not."""
        reihe = [k for k in self.wurzel.alle() if k.rolle == "menu bar"]
        for _ in range(4):
            nächste = []
            for k in reihe:
                kinder = self.leser.frage(k.pfad, ZUGANG, "GetChildren")
                neue = [Knoten(pfad, k) for _, pfad in (kinder[0] if kinder else [])]
                self.leser.lies(neue)
                nächste += neue
            treffer = [k for k in nächste if k.name == name and k.eltern.rolle != "menu bar"]
            if treffer:
                return treffer[0]
            reihe = nächste
        raise Verlaufen(f"Menüeintrag '{name}' fehlt")

    # --- the way -----------------------------------------------------------------------------------------------

    def ganzer(self):
        """All screens, from the main menu and back to it."""
        self.warte_auf("Hauptmenü")
        self.besuche("Hauptmenü", self)
        self.wähleKlienten("0001")
        self.klient()
        self.zurBetreuung()
        self.besuche("Betreuung", self)
        self.gehe("bearbeite Zeitraum", "Zeitraum")
        self.zurück("Exit", "Betreuung")
        for seite, knopf in SEITEN.items():
            self.gehe(knopf, seite)
            if seite == "Diagnoseseite":
                self.diagnosen()
            self.zurück("Exit", "Betreuung")
        self.zurück("Exit", "Hauptmenü")
        self.drumherum()

    def klient(self):
        """The form of a client and its memo, and the box that asks before something is deleted."""
        self.gehe("Klienten bearbeiten", "Stammdaten")
        self.gehe("Memo", "Memo")
        self.zurück("Exit", "Stammdaten")
        self.zurück("Exit", "Hauptmenü")
        self.diktiere("Ort:", "Neustadt")
        self.wähleKlienten("0003")
        dahinter = self.knopf("Klienten bearbeiten")
        self.drücke("Klienten löschen")
        self.warte_auf_knopf("Abbrechen")
        if not any("0003" in k.name for k in self.wurzel.alle()):
            raise Verlaufen("gelöscht würde ein anderer als der ausgewählte Klient")
        self.leser.drücke(dahinter)  # behind the box nothing can be pressed
        self.besuche("Meldung", self)
        self.zurück("Abbrechen", "Hauptmenü")

    def diktiere(self, frage, text):
        """A text that the reader puts into a field, and that must be there after OK."""
        for erwartet in (None, text):
            self.drücke("Klienten bearbeiten")
            self.warte_auf("Stammdaten")
            self.schau(ganz=True)
            feld = next(k for k in self.wurzel.alle() if k.rolle == "text" and k.name == frage)
            if erwartet is not None and feld.text != erwartet:
                raise Verlaufen(f"in '{frage}' steht '{feld.text}' statt des diktierten '{erwartet}'")
            self.leser.frage(feld.pfad, SCHREIBEN, "SetTextContents", GLib.Variant("(s)", (text,)))
            self.leser.lasse_geschehen(0.2)
            self.zurück("OK" if erwartet is None else "Exit", "Hauptmenü")

    def wähleKlienten(self, nummer):
        """Selects the client's row as a reader does."""
        zelle = next(k for k in self.wurzel.alle() if k.rolle == "cell" and k.name == nummer)
        self.leser.drücke(zelle)
        if not self.leser.warte_bis(lambda: "markiert" in self.leser.zustand(zelle), 3):
            raise Verlaufen(f"die Zeile {nummer} wird nicht ausgewählt")

    def zurBetreuung(self):
        """From the main menu to the main page of the first episode."""
        self.schau()
        self.wähleKlienten("0001")
        self.schau()
        self.drücke("Betreuung bearbeiten")
        self.warte_auf("Betreuung")

    def diagnosen(self):
        """The listing, the chooser and the dialogue of a diagnosis."""
        leiste = next(k for k in self.wurzel.alle() if k.rolle == "scroll bar" and k.ist("fokussierbar"))
        self.leser.nimm_fokus(leiste)
        self.bühne.tasten("space")
        if not self.leser.warte_bis(lambda: "Alkohol" in self.leser.name(leiste), 3):
            raise Verlaufen(f"welche Diagnose markiert ist, sagt niemand ('{self.leser.name(leiste)}')")
        self.gehe("neuer Problembereich", "Diagnosewahl")
        self.leser.nimm_fokus(next(k for k in self.wurzel.alle() if k.rolle in ("tree", "table")))
        self.bühne.tasten("Home")
        self.drücke("OK")
        self.leser.warte_bis(lambda: self.schau() is not None and any(
            k.rolle == "check box" and k.name == "Hauptdiagnose" for k in self.wurzel.alle()), 12)
        self.besuche("Diagnosedialog", self)
        self.zurück("Exit", "Diagnoseseite")

    def drumherum(self):
        """What the menus and the bar of the main menu open."""
        for name, schirm, ende in (("Export", "Export", "Exit"), ("Info", "Info", "OK")):
            self.leser.drücke(self.menüeintrag(name))
            self.warte_auf(schirm)
            self.besuche(schirm, self)
            self.zurück(ende, "Hauptmenü")
        self.leser.drücke(self.menüeintrag("Daten > Excel"))
        self.warte_auf_knopf("Fertig")
        self.besuche("Arbeitsmappe", self)
        self.zurück("Fertig", "Hauptmenü")


    def leerer(self):
        """What is there only before the first client: the way from the older system."""
        self.warte_auf("Hauptmenü")
        self.besuche("Hauptmenü", self)
        self.gehe("Import der Daten", "Übernahme")
        self.zurück("Exit", "Hauptmenü")


def prüfeBand(wurzel, teile):
    """The header band says each value with its label."""
    namen = [k.name for k in wurzel.alle() if k.rolle == "label"]
    return [(None, f"im Kopf fehlt '{teil}'") for teil in teile if not any(teil in name for name in namen)]


def prüfeStation(schirm, weg):
    """All rules on one screen."""
    leser, bühne = weg.leser, weg.bühne
    _, antworten, band = STATIONEN[schirm]
    befunde = []
    weg.schau(ganz=True)
    for prüfe in (pruefungen.prüfeNamen, pruefungen.prüfeUnterscheidbar, pruefungen.prüfeFokusDa,
                  pruefungen.prüfeRollen, pruefungen.prüfeWerte, pruefungen.prüfeEltern,
                  pruefungen.prüfeVeralteteStellen):
        befunde += prüfe(weg.wurzel, leser)
    befunde += prüfeBand(weg.wurzel, band)
    befunde += pruefungen.prüfeTabulator(weg.wurzel, leser, bühne)
    befunde += pruefungen.prüfeFokus(weg.wurzel, leser, bühne)
    befunde += pruefungen.prüfeAntworten(weg.wurzel, leser, antworten)
    befunde += pruefungen.prüfeAntworttasten(weg.wurzel, leser, bühne)
    befunde += pruefungen.prüfeOffeneListen(weg.wurzel, leser, bühne)
    befunde += pruefungen.prüfeKalender(weg.wurzel, leser, bühne)
    befunde += pruefungen.prüfeÄnderungen(weg.wurzel, leser, bühne)
    weg.schau()
    return befunde
