"""A whole episode by keyboard alone: from an empty folder to the year's export.

The same keys go to the program and, as a scenario, to the logic without windows; every file that comes out of it has to
be the same. Some answers are looked at by themselves, so that both cannot be wrong in the same way.
"""

from buehne import laufe, verlange, warte

# Screen by screen: the element that has the focus then, and the keys as a scenario writes them.
SCHRITTE = [
    ("lvwKlienten", "{Tab} "),  # the warning about the older data comes up: two boxes are answered in between
    ("tbNachname", "Muster{Tab}Erika{Tab}Weg 1{Tab}99999{Tab}Musterstadt{Tab}w{Tab} 8.3.1974{Tab}{Alt+O}"),
    ("cmdKlientenHinzufügen", "{Tab}{Tab}{Tab}{Tab} "),
    ("DTPickerVon", "1.2.2019{Eingabe}{Umschalt+Tab} 300619{Eingabe}"),
    ("comboWieder", "n{Tab}e{Tab}d{Tab}j{Tab}n{Tab}n{Tab}{Ab}{Ab}{Tab}{Ab}{Tab}{Ab}{Tab} {Tab}{Rechts}{Ab}{Rechts}{Ab}{Ab}{Links}"),
    ("triJaNeinKosten(4)", "{Tab}{Tab}{Tab}{Tab}{Tab}{Tab} "),
    ("comboSubstitut", "{Ab}{Tab}{Ab}{Tab} {Tab} {Tab}{Tab}{Rechts}{Tab}{Rechts}{Tab}5{Tab}{Links}{Tab}{Rechts}{Tab}12{Tab}{Alt+O}"),
    ("cmdBetrA", "{Tab} "),
    ("comboFamsta", "{Ab}{Tab}{Ab}{Tab}n{Tab}j{Tab}n{Tab}n{Tab}n{Tab}n{Tab}1{Tab}2{Tab}{Ab}{Tab}{Ab}{Tab}{Ab}{Tab}{Alt+O}"),
    ("cmdBetrB", "{Tab} "),
    ("triJaNeinLebuntv(1)", "{Rechts}{Tab} {Tab}{Rechts}{Rechts}{Tab}{Ab}{Ab} {Alt+O}"),
    ("cmdBetrC", "{Tab} "),
    ("optHDohne(0)", "{Umschalt+Tab}{Umschalt+Tab}{Umschalt+Tab} "),
    ("lvwDiagCodes", "{Eingabe}"),
    ("comboAntwort(1)", "{Ab}{Tab}24{Tab}{Tab}{Ab}{Ab}{Tab}19{Tab}{Ab}{Tab}14{Tab} {Alt+O}"),
    ("cmdNeueDiagnose", "{Tab}{Tab}{Tab}{Ab}{Ab} {Tab}{Tab}{Ab} {Alt+O}"),
    ("cmdBetrDiagnose", "{Tab} "),
    ("comboKontakte", "7{Tab}{Ab}{Tab}{Ab}{Tab}{Ab}{Tab}{Ab}{Tab} {Tab}{Rechts}{Alt+O}"),
    ("cmdBetrE", "{Tab}{Tab} "),
    ("frmMemo.tbMemoK", "kommt nachmittags{Eingabe}vorher anrufen{Tab}zweites Memo{Alt+O}"),
    ("cmdMemo", "{Alt+O}"),
]
EXPORT = ("comboJahr", "2019{Tab} ")
NEUES_FENSTER_NACH = {"cmdKlientenHinzufügen", "optHDohne(0)", "lvwDiagCodes", "cmdBetrE"}
RAHMEN_NACH = {"DTPickerVon", "comboAntwort(1)", "frmMemo.tbMemoK"}
DATEIEN = ["Daten/kernDat.txt", "Daten/betrDat.txt", "Daten/diagDat.txt", "Exporte/DBDD2019/Kern.txt",
           "Exporte/DBDD2019/Diagnose.txt"]


def als_szenario():
    zeilen = ["starte", "antworte Ja"]
    for element, tasten in SCHRITTE:
        zeilen.append(f'tippe {element} "{tasten}"')
        if element == "lvwKlienten":
            zeilen.append('erwarte meldung-mit "Wollen Sie fortfahren"')
    zeilen += ["klicke mnExport", "antworte OK", f'tippe {EXPORT[0]} "{EXPORT[1]}"', "erwarte meldung-mit 2019",
               'erwarte meldung "Exportierte Datensätze: 1"']
    return "\n".join(zeilen)


def prüfe_von_der_leeren_liste_bis_zum_export(bühne):
    rahmen = bühne.starte("")
    for element, tasten in SCHRITTE:
        if element == "lvwKlienten":
            with bühne.neues_fenster():
                bühne.tippe_folge(tasten)
            with bühne.zurück_zum(rahmen):
                bühne.taste("Tab", "space")  # "Nein" is the default, "Ja" the other one
        elif element in NEUES_FENSTER_NACH:
            with bühne.neues_fenster():
                bühne.tippe_folge(tasten)
        else:
            bühne.tippe_folge(tasten)
        if element in RAHMEN_NACH:
            bühne.warte_auf_fenster(rahmen)
    warte(lambda: bühne.zeilen("Daten/diagDat.txt"), "die Betreuung ist nicht gespeichert")
    exportiere(bühne, rahmen)
    for name, erwartet in zip(DATEIEN, bühne.spiele(als_szenario(), *DATEIEN)):
        verlange(bühne.lies(name) == erwartet, f"{name}: erwartet {erwartet}, gefunden {bühne.lies(name)}")
    verlange(bühne.feld("Daten/kernDat.txt", 1, 10) == b"08.03.1974", "Geburtsdatum")
    verlange(bühne.feld("Daten/betrDat.txt", 1, 4) == b"30.06.2019", "Ende")
    verlange(bühne.feld("Daten/betrDat.txt", 1, 9) == b"Deutschland", "Nation")
    verlange(b"kommt nachmittags\xb6vorher anrufen" in bühne.lies("Daten/kernDat.txt"), "Memo")


def exportiere(bühne, rahmen):
    with bühne.neues_fenster():
        bühne.taste("Alt_L", "Right", "Down", "Return")
    export = bühne.fokusfenster()
    with bühne.neues_fenster():
        bühne.tippe_folge(EXPORT[1])
    frage = bühne.fokusfenster()
    bühne.taste("Return")
    warte(lambda: bühne.fokusfenster_des_programms() not in ("", frage, export), "kein Bericht des Exports")
    with bühne.zurück_zum(export):
        bühne.taste("Return")
    with bühne.zurück_zum(rahmen):
        bühne.taste("Escape")


if __name__ == "__main__":
    laufe(globals())
