"""What must hold on every screen, each rule a function that gives its findings as pairs of element and fault."""

import re
import time

from gi.repository import GLib

from baum import BAUSTEIN, WERT, ZUGANG, Knoten

EINGABEN = {"push button", "check box", "radio button", "combo box", "text", "spin box", "tree", "list", "table",
            "scroll bar", "slider"}
# the one real check box: a diagnosis is the main one or is not
KREUZE = {"Hauptdiagnose"}
ANTWORTEN = ["k.A. (offen)", "ja", "nein"]
# seconds until what does not come counts as missing: other programs may keep the processors busy
GEDULD = 6.0


def heißt(knoten):
    """How a message calls the element."""
    return f"{knoten.rolle} '{knoten.name}'"


def fokussierbare(wurzel):
    """The elements that take the keyboard now. The text inside a number combo is part of it, the text of a box is not
    meant: it can only be marked with the mouse."""
    return [k for k in wurzel.alle() if k.ist("fokussierbar", "frei") and k.rolle != "label" and not istInneres(k)]


def istInneres(knoten):
    """The text of a number combo and the cells of a list: they have the focus of the whole."""
    return knoten.eltern is not None and (knoten.eltern.rolle, knoten.rolle) in {
        ("combo box", "text"), ("spin box", "text"), ("tree", "tree item"),
        ("table", "cell")}


def istDatum(knoten):
    """A date shows itself as such."""
    return re.fullmatch(r"\d\d\.\d\d\.\d{4}", knoten.text or "") is not None


def istAntwort(leser, knoten):
    """An answer field is a choice that is pressed and opens no list."""
    return knoten.rolle == "combo box" and "showmenu" not in leser.handlungen(knoten)


def frage(wurzel, knoten):
    """The question of a field: the texts of the labels that it names, in the tree."""
    nach_pfad = {k.pfad: k for k in wurzel.alle()}
    return " ".join(nach_pfad[p].name for p in knoten.etiketten if p in nach_pfad).strip()


def prüfeNamen(wurzel, _leser):
    """Every element says what it asks; a choice says it by its label, since its name is the value."""
    befunde = []
    for k in wurzel.alle():
        if k.rolle in ("tree item", "cell") or not (k.ist("fokussierbar") or k.rolle == "push button"):
            continue  # an empty cell has no words
        if k.rolle == "combo box":
            if not frage(wurzel, k):
                befunde.append((k, "keine Beschriftung mit der Frage"))
        elif not k.name.strip() and not frage(wurzel, k):
            befunde.append((k, "kein Name"))
    return befunde


def prüfeUnterscheidbar(wurzel, _leser):
    """Two choices on a screen never ask the same: some readers follow the first label and the description only."""
    nach_pfad = {k.pfad: k for k in wurzel.alle()}
    gesehen, befunde = set(), []
    for k in wurzel.alle():
        erste = nach_pfad.get(k.etiketten[0]) if k.etiketten else None
        if k.rolle == "combo box" and erste is not None:
            fragt = (erste.name, k.beschreibung)
            if fragt in gesehen:
                befunde.append((k, f"fragt dasselbe wie eine andere ({erste.name})"))
            gesehen.add(fragt)
    return befunde


def prüfeFokusDa(wurzel, _leser):
    """Who comes to the screen stands somewhere on it, inside a page or window with its name."""
    wo = next((k for k in wurzel.alle() if k.ist("fokussiert", "fokussierbar")), None)
    if wo is None:
        return [(None, "nichts hat den Fokus")] if fokussierbare(wurzel) else []
    if wurzel.rolle != "frame":
        return [] if wurzel.name.strip() else [(wurzel, "das Fenster hat keinen Namen")]
    titel = next((k.name for k in wurzel.alle() if k.rolle == "label"), "")
    um = wo.eltern
    while um is not None and um.name != titel:
        um = um.eltern
    return [(wo, f"liegt auf keiner Seite namens '{titel}'")] if um is None else []


def prüfeRollen(wurzel, _leser):
    """One of several answers is a radio button, and whatever takes the focus is something to a reader."""
    befunde = []
    for k in wurzel.alle():
        if k.rolle == "check box" and k.name not in KREUZE:
            befunde.append((k, "eine von mehreren Antworten, vorgelesen als Kästchen"))
        if k.rolle == "frame" and k.eltern is not None:
            befunde.append((k, "gibt sich als Fenster aus"))
        if k.ist("fokussierbar") and k.rolle not in EINGABEN | {"cell", "tree item", "list item", "menu item",
                                                               "label", "menu"}:
            befunde.append((k, "nimmt den Fokus und hat keine Rolle"))
    return befunde


def prüfeWerte(wurzel, _leser):
    """The value of an input can be asked for: as name (choice), text, number or state."""
    befunde = []
    for k in wurzel.alle():
        if k.rolle == "combo box" and not k.name.strip():
            befunde.append((k, f"kein Wert ({frage(wurzel, k)})"))
        if k.rolle == "text" and k.text is None:
            befunde.append((k, "kein Text"))
        if k.rolle in ("scroll bar", "progress bar") and WERT not in k.schnittstellen:
            befunde.append((k, "kein Wert"))
    return befunde


def prüfeEltern(wurzel, leser):
    """Upwards the tree is the same as downwards."""
    alle = [k for k in wurzel.alle() if k.eltern is not None]
    antworten = leser.frage_alle([leser.eigenschaft(k.pfad, ZUGANG, "Parent") for k in alle])
    return [(k, "nennt andere Eltern") for k, antwort in zip(alle, antworten)
            if not antwort or antwort[0][1] != k.eltern.pfad]


def prüfeVeralteteStellen(wurzel, leser):
    """Asked for a child that is no longer there, every element answers and nothing breaks."""
    alle = list(wurzel.alle())
    fragen = [leser.kind(k.pfad, len(k.kinder) + mehr) for k in alle for mehr in (0, 1, 2, 5, 1000)]
    leser.frage_alle(fragen)
    return []


def prüfeTabulator(wurzel, leser, bühne):
    """Tab leads to every element that takes the focus, and to none outside the tree."""
    leser.ereignisse.clear()
    anzahl = len(fokussierbare(wurzel))
    bühne.tasten(*["Tab"] * (anzahl + 1))
    warteAufRuhe(leser)
    bekannt = {k.pfad: k for k in wurzel.alle()}
    befunde = []
    angesprungen = set()
    for e in leser.ereignisse:
        if e.name == "StateChanged" and e.art == "focused" and e.zahl == 1:
            angesprungen.add(e.pfad)
            if e.pfad not in bekannt:
                befunde.append((None, f"Tab führt aus dem Baum ({leser.benenne(e.pfad)})"))
    for k in fokussierbare(wurzel):
        if not any(nachkomme.pfad in angesprungen for nachkomme in k.alle()) and not hatFokus(leser, k):
            befunde.append((k, "mit Tab nicht zu erreichen"))
    return befunde


def prüfeFokus(wurzel, leser, bühne):
    """The focus goes where the reader asks for it and stays there: the keyboard goes on from that place."""
    befunde = []
    alle = fokussierbare(wurzel)
    for k in alle:
        if not leser.nimm_fokus(k):
            befunde.append((k, "nimmt den Fokus nicht auf Wunsch"))
    stichprobe = {}
    for k in alle:
        stichprobe.setdefault((k.rolle, "erstes"), k)
        stichprobe[(k.rolle, "letztes")] = k
    for k in dict.fromkeys(k.pfad for k in stichprobe.values()):
        einer = next(x for x in alle if x.pfad == k)
        leser.nimm_fokus(einer)
        bühne.tasten("Tab", "shift+Tab")
        if not leser.warte_bis(lambda: hatFokus(leser, einer), GEDULD):
            befunde.append((einer, "verliert den Fokus bei der nächsten Taste"))
    return befunde


def hatFokus(leser, knoten):
    """Whether it, or the cell of a list in it, has the focus."""
    return "fokussiert" in leser.zustand(knoten) or any("fokussiert" in leser.zustand(k) for k in knoten.kinder
                                                        if k.rolle in ("cell", "tree item", "list item"))


def warteAufRuhe(leser):
    """Waits until no event has come for a moment and the program has answered in it: a busy one is not at rest."""
    ende, bisher = time.monotonic() + GEDULD, -1
    while bisher != len(leser.ereignisse) and time.monotonic() < ende:
        bisher = len(leser.ereignisse)
        leser.lasse_geschehen(0.15)
        leser.fenster()


def hatGemeldet(leser, pfade):
    """Whether one of the objects has told of a change of its value, text or state."""
    arten = {("PropertyChange", "accessible-name"), ("PropertyChange", "accessible-value"),
             ("StateChanged", "checked"), ("TextChanged", "insert"), ("TextChanged", "delete")}
    return any(e.pfad in pfade and (e.name, e.art) in arten for e in leser.ereignisse)


def prüfeAntworten(wurzel, leser, erwartet):
    """Each answer field goes open, yes, no, open at a press, says each of them and tells of each change."""
    felder = [k for k in fokussierbare(wurzel) if istAntwort(leser, k)]
    befunde = []
    if len(felder) != erwartet:
        befunde.append((None, f"{len(felder)} Antwortfelder sprechen, {erwartet} sind da"))
    for _ in ANTWORTEN if felder else ():
        leser.ereignisse.clear()
        vorher = leser.namen(felder)
        leser.frage_alle([leser.frage_nach_druck(k) for k in felder])
        warteAufRuhe(leser)
        for k, alt, neu in zip(felder, vorher, leser.namen(felder)):
            stelle = ANTWORTEN.index(alt) if alt in ANTWORTEN else -1
            if stelle < 0 or neu != ANTWORTEN[(stelle + 1) % 3]:
                befunde.append((k, f"nach '{alt}' kommt '{neu}' ({frage(wurzel, k)})"))
            if not hatGemeldet(leser, {k.pfad}):
                befunde.append((k, f"meldet '{neu}' nicht ({frage(wurzel, k)})"))
    return befunde


def prüfeAntworttasten(wurzel, leser, bühne):
    """Right and left change the answer, and it is told each time."""
    felder = [k for k in fokussierbare(wurzel) if istAntwort(leser, k)][:2]
    befunde = []
    for k in felder:
        leser.nimm_fokus(k)
        for taste, antwort in (("Right", "ja"), ("Left", "k.A. (offen)")):
            leser.ereignisse.clear()
            bühne.tasten(taste)
            if not leser.warte_bis(lambda: leser.name(k) == antwort and hatGemeldet(leser, {k.pfad}), GEDULD):
                befunde.append((k, f"meldet '{antwort}' nicht nach der Taste {taste}"))
    return befunde


def prüfeOffeneListen(wurzel, leser, bühne):
    """The list of a choice opens at a press, is named, and says the entry that is come to."""
    befunde = []
    for k in [k for k in fokussierbare(wurzel) if k.rolle == "combo box" and not istAntwort(leser, k)][:2]:
        leser.drücke(k)
        listen = []

        def ist_offen():
            listen[:] = [x for x in leser.baum(Knoten(k.pfad, None)).kinder if x.rolle == "list"]
            return bool(listen)
        if not leser.warte_bis(ist_offen, GEDULD):
            befunde.append((k, "die Liste geht nicht auf"))
            continue
        if not listen[0].name.strip():
            befunde.append((k, "die offene Liste hat keinen Namen"))
        leser.ereignisse.clear()
        einträge = {x.pfad for x in listen[0].kinder}
        bühne.tasten("Down", "Up")
        if not leser.warte_bis(lambda: any(e.pfad in einträge and e.art == "focused" for e in leser.ereignisse), GEDULD):
            befunde.append((k, "die offene Liste sagt nicht, wo man steht"))
        prüfeVeralteteStellen(listen[0], leser)
        bühne.tasten("Escape")
        leser.warte_bis(lambda: not ist_offen(), GEDULD)
    return befunde


def prüfeKalender(wurzel, leser, bühne):
    """The calendar of a date opens and says each day that the keys come to."""
    felder = [k for k in fokussierbare(wurzel) if istDatum(k)]
    if not felder:
        return []
    x, y, breite, höhe = leser.frage(felder[0].pfad, BAUSTEIN, "GetExtents", GLib.Variant("(u)", (0,)))[0]
    bühne.klicke(x + breite - 10, y + höhe // 2)
    leser.lasse_geschehen(0.3)
    leser.ereignisse.clear()

    def sagt_den_tag():
        ziele = [e.pfad for e in leser.ereignisse if (e.name, e.art, e.zahl) == ("StateChanged", "focused", 1)]
        return any(re.search(r"\d{1,2}\. \w+ \d{4}", leser.name(Knoten(pfad, None))) for pfad in ziele)
    bühne.tasten("Right")
    gesagt = leser.warte_bis(sagt_den_tag, GEDULD)
    bühne.tasten("Escape")
    leser.lasse_geschehen(0.3)
    return [] if gesagt else [(felder[0], "der Kalender sagt den Tag nicht")]


def prüfeÄnderungen(wurzel, leser, bühne):
    """A change by key or press is told by the element that was changed."""
    befunde = []
    for k in fokussierbare(wurzel):
        tasten = {"combo box": [("Down",), ("Up",)], "text": [("x", "BackSpace")], "spin box": [("Up",), ("Down",)],
                  "table": [("Down",), ("Up",)]}.get(k.rolle)
        if istDatum(k):
            tasten = [("Up",), ("Down",)]
        if tasten is None or (k.rolle == "combo box" and istAntwort(leser, k)):
            continue
        if k.rolle == "table" and sum(x.rolle == "cell" for x in k.kinder) < 5:
            continue
        leser.nimm_fokus(k)
        leser.ereignisse.clear()
        pfade = {x.pfad for x in k.alle()}
        # at one end of a list one of the keys changes nothing: not much patience before the other has been tried
        for folge, frist in [*((folge, 0.7) for folge in tasten), *((folge, GEDULD) for folge in tasten)]:
            bühne.tasten(*folge)
            if leser.warte_bis(lambda: hatGemeldet(leser, pfade) or istGewandert(leser, pfade, k), frist):
                break
        else:
            befunde.append((k, f"meldet keine Änderung ({frage(wurzel, k) or k.name})"))
    return befunde + prüfeMarken(wurzel, leser)


def istGewandert(leser, pfade, knoten):
    """In a list the row that is reached tells of the focus."""
    return knoten.rolle == "table" and any(e.pfad in pfade and e.name == "StateChanged" and e.zahl == 1 and
                                          e.art in ("focused", "selected") for e in leser.ereignisse)


def prüfeMarken(wurzel, leser):
    """An option that is pressed says so."""
    befunde = []
    for k in fokussierbare(wurzel):
        if k.rolle not in ("radio button", "check box"):
            continue
        for _ in range(2):  # an option that is marked already stays as it is: its neighbour is tried then
            leser.ereignisse.clear()
            vorher = "angekreuzt" in leser.zustand(k)
            leser.drücke(k)
            if vorher and k.rolle == "radio button":
                break
            if not leser.warte_bis(lambda: ("angekreuzt" in leser.zustand(k)) != vorher and
                                   hatGemeldet(leser, {k.pfad}), GEDULD):
                befunde.append((k, "meldet nicht, dass sie markiert ist"))
            if k.rolle == "radio button":
                break
    return befunde
