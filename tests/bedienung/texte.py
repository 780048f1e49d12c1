"""Texts: what nobody has touched stays to the byte, and what cannot be stored is told beside the field."""

from buehne import laufe, verlange, warte

MEMO = r'"11=a\xA0b\x09c\x81\x8D\x8F\x90\x9Dd\xB6zweite\xA0Zeile"'
LANG = "abcdefghij" * 26


def prüfe_memo_behält_jedes_zeichen(bühne):
    rahmen = bühne.starte(f"klient 1 Nachname=Adler {MEMO}")
    alt = bühne.feld("Daten/kernDat.txt", 1, 11)
    verlange(b"\xa0" in alt and b"\t" in alt and b"\x81" in alt, "der Satz hat die Zeichen nicht")
    bühne.taste("Tab", "Tab", "space")
    with bühne.neues_fenster():
        bühne.taste("alt+m")
    bühne.taste("ctrl+End")
    bühne.tippe("!")
    bühne.taste("ctrl+Home", "Right", "x")
    with bühne.zurück_zum(rahmen):
        bühne.taste("alt+o")
    bühne.taste("alt+o")
    bühne.warte_auf_feld("Daten/kernDat.txt", 1, 11, alt[:1] + b"x" + alt[1:] + b"!")


def prüfe_langer_name_wird_nicht_gekürzt(bühne):
    bühne.starte(f"klient 1 Nachname={LANG}")
    bühne.taste("Tab", "Tab", "space", "End", "BackSpace")
    ohne = bühne.ruhiges_bild()
    bühne.tippe("x")
    bühne.anderes_bild(ohne, 100, "neben dem Feld steht kein Hinweis")
    bühne.taste("alt+o")
    bühne.warte_auf_feld("Daten/kernDat.txt", 1, 4, LANG[:-1].encode())


def prüfe_alt_und_ein_zeichen_tippt_nichts(bühne):
    bühne.starte("klient 1 Nachname=Adler")
    bühne.taste("Tab", "Tab", "space", "End", "alt+5", "super+x", "alt+ctrl+7", "s", "alt+o")
    bühne.warte_auf_feld("Daten/kernDat.txt", 1, 4, b"Adlers")


if __name__ == "__main__":
    laufe(globals())
