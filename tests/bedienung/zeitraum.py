"""Dates are typed: the period of an episode, the day of birth, and what happens to a date that is none."""

from buehne import laufe, verlange, warte

KLIENT = "klient 1 Nachname=Adler"
MIT_BETREUUNG = KLIENT + "\nbetreuung 1 1 01.03.2006 31.03.2006\ndiagnose 1 1"
ZU_NEUER_BETREUUNG, ZUR_BETREUUNG = 5, 6  # presses of Tab from the list of clients


def öffne_zeitraum(bühne):
    rahmen = bühne.starte(KLIENT)
    bühne.taste("Tab", mal=ZU_NEUER_BETREUUNG)
    with bühne.neues_fenster():
        bühne.taste("space")
    return rahmen


def speichere(bühne, rahmen):
    """From the main page of the episode."""
    with bühne.zurück_zum(rahmen):
        pass
    bühne.taste("alt+o")
    warte(lambda: bühne.zeilen("Daten/betrDat.txt"), "keine Betreuung gespeichert")


def prüfe_zeitraum_wird_getippt(bühne):
    rahmen = öffne_zeitraum(bühne)
    bühne.tippe("1.1.2025")
    bühne.taste("Return", "shift+Tab", "Return")  # the end is open; "offen" stands before OK and asks for a date
    bühne.tippe("31.12.2025")
    bühne.taste("Return")
    speichere(bühne, rahmen)
    bühne.warte_auf_feld("Daten/betrDat.txt", 1, 3, b"01.01.2025")
    bühne.warte_auf_feld("Daten/betrDat.txt", 1, 4, b"31.12.2025")


def prüfe_nach_der_warnung_wird_neu_getippt(bühne):
    rahmen = bühne.starte(MIT_BETREUUNG)
    bühne.taste("Tab", mal=ZU_NEUER_BETREUUNG)
    with bühne.neues_fenster():
        bühne.taste("space")
    dialog = bühne.fokusfenster()
    bühne.tippe("15.3.2006")
    with bühne.neues_fenster():
        bühne.taste("Return")
    with bühne.zurück_zum(dialog):
        bühne.taste("Return")
    bühne.tippe("5.1.2006")
    bühne.taste("Return")
    with bühne.neues_fenster():  # an open end overlaps
        bühne.taste("Return")
    with bühne.zurück_zum(dialog):
        bühne.taste("Return")
    bühne.taste("shift+Tab", "space")
    bühne.tippe("7.1.06")
    bühne.taste("Return")
    with bühne.zurück_zum(rahmen):
        pass
    bühne.taste("alt+o")
    warte(lambda: len(bühne.zeilen("Daten/betrDat.txt")) == 2, "keine zweite Betreuung")
    bühne.warte_auf_feld("Daten/betrDat.txt", 2, 3, b"05.01.2006")
    bühne.warte_auf_feld("Daten/betrDat.txt", 2, 4, b"07.01.2006")


def prüfe_bestehende_betreuung_und_mausklick(bühne):
    rahmen = bühne.starte(MIT_BETREUUNG)
    bühne.taste("Tab", mal=ZUR_BETREUUNG)
    bühne.taste("space")
    bühne.ruhiges_bild()
    bühne.taste("shift+Tab", mal=4)  # Exit, OK, Memo, the button of the period
    with bühne.neues_fenster():
        bühne.taste("space")
    dialog = bühne.fokusfenster()
    x, y = bühne.fokusort()
    # a click puts the cursor, here behind the text; what is typed there is read as one text, and refused aloud
    bühne.klicke(x, y)
    bühne.taste("End")
    bühne.tippe("7")
    bühne.taste("Return")
    verlange(bühne.fokusfenster() == dialog, "01.03.20067 darf nicht angenommen werden")
    bühne.taste("ctrl+a")
    bühne.tippe("3.3.2006")
    bühne.taste("Return", "Return")
    with bühne.zurück_zum(rahmen):
        pass
    bühne.taste("alt+o")
    bühne.warte_auf_feld("Daten/betrDat.txt", 1, 3, b"03.03.2006")


def prüfe_unmögliches_datum_bleibt_und_wird_gesagt(bühne):
    rahmen = öffne_zeitraum(bühne)
    dialog = bühne.fokusfenster()
    bühne.tippe("31.2.2025")
    vorher = bühne.ruhiges_bild()
    bühne.taste("Return")
    mit_hinweis = bühne.anderes_bild(vorher, 300, "neben dem Feld steht kein Hinweis")
    verlange(bühne.fokusfenster() == dialog, "der Dialog ist weg")
    # after four seconds the hint is gone, text and focus are still there
    bühne.anderes_bild(mit_hinweis, 300, "der Hinweis geht nicht")
    bühne.taste("End", "BackSpace")
    bühne.tippe("4")
    bühne.taste("alt+o")
    verlange(bühne.fokusfenster() == dialog, "31.2.2024 darf nicht angenommen werden")
    bühne.taste("Escape")
    bühne.tippe("28.2.2025")
    bühne.taste("Return", "Return")
    speichere(bühne, rahmen)
    bühne.warte_auf_feld("Daten/betrDat.txt", 1, 3, b"28.02.2025")


def prüfe_kurze_schreibweisen_pfeile_und_kalender(bühne):
    bühne.starte(KLIENT + " Geburtsdatum=15.03.1980")
    bühne.taste("Tab", "Tab")  # to the button that opens the form; the focus comes back to it

    def bearbeite(*tasten, text=""):
        """Types into the day of birth, which comes after the six other fields; then OK."""
        bühne.taste("space", *["Tab"] * 6)
        bühne.tippe_folge(text)
        bühne.taste(*tasten, "alt+o")

    bearbeite("Tab", text="311225")
    bühne.warte_auf_feld("Daten/kernDat.txt", 1, 10, b"31.12.2025")
    bearbeite("Tab", text="24121974")
    bühne.warte_auf_feld("Daten/kernDat.txt", 1, 10, b"24.12.1974")
    bearbeite("End", "Up")
    bühne.warte_auf_feld("Daten/kernDat.txt", 1, 10, b"24.12.1975")
    bearbeite("Home", "Right", "Right", "Right", "Down")
    bühne.warte_auf_feld("Daten/kernDat.txt", 1, 10, b"24.11.1975")
    bearbeite("Down")
    bühne.warte_auf_feld("Daten/kernDat.txt", 1, 10, b"23.11.1975")
    for taste in ("F4", "alt+Down"):
        bühne.taste("space", *["Tab"] * 6)
        ohne = bühne.ruhiges_bild()
        bühne.taste(taste)
        bühne.anderes_bild(ohne, 2000, taste + " öffnet keinen Kalender")
        bühne.taste("Down", "Return", "alt+o")
        bühne.ruhiges_bild()
    bühne.warte_auf_feld("Daten/kernDat.txt", 1, 10, b"07.12.1975")


if __name__ == "__main__":
    laufe(globals())
