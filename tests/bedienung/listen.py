"""The highlighted row of a list is the selected one, whatever key or click moved it."""

from buehne import ABSEITS, laufe, verlange, warte

DREI = "klient 1 Nachname=Adler\nklient 2 Nachname=Bach\nklient 3 Nachname=Clausen"
ZUM_LÖSCHEN = 3  # presses of Tab from the list of clients


def prüfe_strg_und_alt_bewegen_keine_zeile(bühne):
    bühne.starte(DREI)
    vorher = bühne.ruhiges_bild()
    bühne.taste("ctrl+Down", "ctrl+Down", "ctrl+End", "alt+Down", "ctrl+Home", "ctrl+Page_Down", "super+Down")
    verlange(bühne.ruhiges_bild() == vorher, "eine Hervorhebung hat sich bewegt")
    bühne.taste("Down")
    bühne.anderes_bild(vorher)
    bühne.taste("Tab", mal=ZUM_LÖSCHEN)
    with bühne.neues_fenster():
        bühne.taste("space")
    bühne.taste("Return")
    warte(lambda: len(bühne.zeilen("Daten/kernDat.txt")) == 2, "nichts gelöscht")
    verlange([bühne.feld("Daten/kernDat.txt", i, 2) for i in (1, 2)] == [b"1", b"3"], "die falsche Zeile ist weg")


def prüfe_klick_nach_strg_pfeil(bühne):
    bühne.starte(DREI)
    erste = bühne.ruhiges_bild()
    x, y = hervorgehobene_zeile(bühne, erste)
    bühne.taste("Down", "ctrl+Down", "ctrl+Up")
    bühne.anderes_bild(erste)
    bühne.klicke(x, y)
    bühne.zeige(*ABSEITS)
    warte(lambda: not bühne.bild().verschieden(erste), "ein Klick auf die alte Zeile wählt sie nicht")


def hervorgehobene_zeile(bühne, davor):
    """The place of the first row: the upper one of the two that change when the highlight goes down."""
    bühne.taste("Down")
    danach = bühne.anderes_bild(davor)
    blöcke = danach.verschieden(davor)
    bühne.taste("Up")
    bühne.anderes_bild(danach)
    oben = min(y for _, y in blöcke)
    spalten = [x for x, y in blöcke if y == oben]
    return 2 * (min(spalten) + max(spalten)), 4 * oben + 8


if __name__ == "__main__":
    laufe(globals())
