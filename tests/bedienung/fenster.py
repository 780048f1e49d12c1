"""Which window has the keyboard: a window over a page, the page below it, and the first focus of a page."""

import time

from buehne import ABSEITS, laufe, verlange, warte

KLIENT = "klient 1 Nachname=Adler"
BESTAND = KLIENT + "\nbetreuung 1 1 01.03.2006 31.03.2006\ndiagnose 1 1\n"
ZUR_BETREUUNG = 6  # presses of Tab from the list of clients


def prüfe_klick_auf_die_blasse_seite(bühne):
    rahmen = bühne.starte(KLIENT)
    bühne.taste("Tab", "Tab", "space")
    with bühne.neues_fenster():
        bühne.taste("alt+m")
    memo = bühne.fokusfenster()
    links, oben, breite, _ = bühne.lage(memo)
    x = links + breite + 40 if links + breite + 60 < 1366 else links - 40
    bühne.klicke(max(x, 4), oben + 60)
    bühne.warte_auf_fenster(memo)
    bühne.tippe("eins")
    bühne.aktiviere(rahmen)  # as from the task bar
    bühne.warte_auf_fenster(memo)
    bühne.tippe(" zwei")
    with bühne.zurück_zum(rahmen):
        bühne.taste("alt+o")
    bühne.taste("alt+o")
    bühne.warte_auf_feld("Daten/kernDat.txt", 1, 11, b"eins zwei")


def prüfe_hauptmenü_unter_dem_infofenster(bühne):
    rahmen = bühne.starte("klient 1 Nachname=Adler\nklient 2 Nachname=Bach")
    with bühne.neues_fenster():
        bühne.taste("Alt_L", "Right", "Right", "Down", "Return")
    info = bühne.fokusfenster()
    bühne.ruhiges_bild()  # the window still asks for the keyboard when it has it already
    bühne.aktiviere(rahmen)
    bühne.warte_auf_fenster(rahmen)
    bühne.taste("Tab", "Tab", "space", "End", "X", "alt+o")  # edits the client
    bühne.warte_auf_feld("Daten/kernDat.txt", 1, 4, b"AdlerX")
    bühne.aktiviere(info)
    bühne.warte_auf_fenster(info)
    with bühne.zurück_zum(rahmen):
        bühne.taste("Escape")


def prüfe_diagnoseseite_beginnt_bei_der_ersten_frage(bühne):
    auf_der_hauptseite = BESTAND + "starte\nklicke cmdBetreuungBearbeiten"
    zur_seite = bühne.tabs(22, auf_der_hauptseite, "comboWieder", "cmdBetrDiagnose")
    bühne.starte(BESTAND)
    bühne.taste("Tab", mal=ZUR_BETREUUNG)
    bühne.taste("space")
    bühne.taste(*zur_seite, "space", "Down", "space", "alt+o", "alt+o")  # the second reason, without a step to it before
    anweisungen = auf_der_hauptseite + "\nklicke cmdBetrDiagnose\nklicke optHDohne(1)\nklicke cmdOK\nklicke cmdOK"
    erwartet = bühne.spiele(anweisungen, "Daten/betrDat.txt")[0]
    warte(lambda: bühne.lies("Daten/betrDat.txt") == erwartet, "der zweite Grund ist nicht gespeichert")


def prüfe_knopf_im_kopf_kommt_vor_der_leiste(bühne):
    bühne.starte(BESTAND)
    bühne.taste("Tab", mal=ZUR_BETREUUNG)
    bühne.taste("space")
    bühne.ruhiges_bild()
    bühne.taste("shift+Tab", "shift+Tab", "shift+Tab")  # Exit, OK, Memo
    with bühne.neues_fenster():
        bühne.taste("shift+Tab", "space")
    dialog = bühne.fokusfenster()
    with bühne.neues_fenster():
        bühne.taste("Escape")
    verlange(bühne.fokusfenster() != dialog, "Esc ist nicht Exit des Zeitraums")


def prüfe_wer_nichts_tut_braucht_keine_rechenzeit(bühne):
    bühne.starte(BESTAND)

    def ruht():
        vorher = bühne.rechenzeit()
        time.sleep(0.8)
        return bühne.rechenzeit() - vorher < 0.08
    warte(ruht, "das Hauptmenü kommt nicht zur Ruhe")
    bühne.taste("Tab", mal=ZUR_BETREUUNG)
    bühne.taste("space")
    bühne.ruhiges_bild()
    warte(ruht, "die Hauptseite der Betreuung kommt nicht zur Ruhe")


def prüfe_doppelklick_auf_leere_liste(bühne):
    rahmen = bühne.starte("")
    vorher = bühne.ruhiges_bild()
    links, oben, breite, höhe = bühne.lage(rahmen)
    bühne.klicke(links + breite // 4, oben + höhe // 3, 2)
    bühne.zeige(*ABSEITS)
    verlange(len(bühne.ruhiges_bild().verschieden(vorher)) < 200, "der Doppelklick hat etwas geöffnet")
    verlange(bühne.fokusfenster() == rahmen, "der Doppelklick hat ein Fenster geöffnet")


if __name__ == "__main__":
    laufe(globals())
