"""Number fields and choices: what Tab and digits, combinations, page keys and the wheel do to an answer."""

from buehne import ABSEITS, laufe, verlange, warte

BESTAND = """klient 1 Nachname=Adler Geschlecht=weiblich
betreuung 1 1 01.03.2006 31.03.2006
diagnose 1 1
"""
ZUR_BETREUUNG = 6  # presses of Tab from the list of clients
ZUR_AUSWAHL = 5  # from the name to the choice of a client's form
AUF_SEITE_B = BESTAND + "starte\nklicke cmdBetreuungBearbeiten\n"


def öffne_seite_b(bühne):
    """Page B by keyboard, to the number of children."""
    zur_seite = bühne.tabs(20, AUF_SEITE_B, "comboWieder", "cmdBetrB")
    zur_zahl = bühne.tabs(8, AUF_SEITE_B + "klicke cmdBetrB", "comboFamsta", "comboKinder1")
    rahmen = bühne.starte(BESTAND)
    bühne.taste("Tab", mal=ZUR_BETREUUNG)
    bühne.taste("space")
    bühne.taste(*zur_seite, "space", *zur_zahl)
    return rahmen


def vergleiche(bühne, handlungen):
    """The record after OK on both pages is the one that the same answers make without windows."""
    bühne.taste("alt+o")
    bühne.taste("alt+o")
    anweisungen = AUF_SEITE_B + "klicke cmdBetrB\n" + handlungen + "\nklicke cmdOK\nklicke cmdOK"
    (erwartet,) = bühne.spiele(anweisungen, "Daten/betrDat.txt")
    warte(lambda: bühne.lies("Daten/betrDat.txt") == erwartet,
          lambda: f"anderer Satz: {bühne.lies('Daten/betrDat.txt')}")


def prüfe_ziffern_nach_tab(bühne):
    öffne_seite_b(bühne)
    bühne.tippe("2")  # at "k.A."
    bühne.taste("Tab")
    bühne.tippe("12")
    bühne.taste("shift+Tab", "Tab")
    bühne.tippe("3")  # at "12"
    vergleiche(bühne, "setze comboKinder1 2\nsetze comboKinder2 3")


def prüfe_kombinationen_und_bildtasten(bühne):
    öffne_seite_b(bühne)
    bühne.tippe("26")
    bühne.taste("ctrl+Delete", "ctrl+BackSpace", "alt+5", "super+7", "ctrl+Down", "Page_Down", "Page_Up", "ctrl+z")
    bühne.taste("Tab")
    bühne.tippe("1")
    vergleiche(bühne, 'tippe comboKinder1 "{Pos1}26"\nsetze comboKinder2 1')


def prüfe_auswahl_und_rad(bühne):
    rahmen = bühne.starte(BESTAND)
    bühne.taste("Tab", "Tab", "space", *["Tab"] * ZUR_AUSWAHL)
    x, y = bühne.fokusort()
    vorher = bühne.ruhiges_bild()
    bühne.taste("Page_Down", "Page_Up", "ctrl+Up", "ctrl+End", "alt+5")
    bühne.rad(x, y, 3)
    bühne.rad(x, y, -5)
    bühne.zeige(*ABSEITS)
    verlange(not bühne.ruhiges_bild().verschieden(vorher), "die Auswahl hat sich geändert")
    bühne.taste("Up", "alt+o")  # and a plain arrow still picks
    bühne.warte_auf_feld("Daten/kernDat.txt", 1, 9, "männlich".encode("cp1252"))
    verlange(bühne.fokusfenster() == rahmen, "ein anderes Fenster")


def prüfe_rad_über_dem_datum(bühne):
    bühne.starte(BESTAND.replace("weiblich", "weiblich Geburtsdatum=15.03.1980"))
    bühne.taste("Tab", "Tab", "space", "End", "x", *["Tab"] * (ZUR_AUSWAHL + 1))
    x, y = bühne.fokusort()
    bühne.rad(x, y, 2)
    bühne.rad(x, y, -3)
    bühne.taste("alt+o")
    bühne.warte_auf_feld("Daten/kernDat.txt", 1, 4, b"Adlerx")
    verlange(bühne.feld("Daten/kernDat.txt", 1, 10) == b"15.03.1980", "das Rad hat das Datum geändert")


if __name__ == "__main__":
    laufe(globals())
