#!/usr/bin/env python3
"""The house rules that the compiler does not see: pruefe.py RULE CHECKOUT BUILD-FOLDER [COMPILER]; `male` draws the guide's
picture anew."""

import sys

import leitfaden
import regeln
from einbindung import einbindung
from haus import Haus

REGELN = {regel.__name__: regel for regel in (regeln.toolkit, regeln.system, regeln.dateien, regeln.pfeile,
                                              regeln.positionen, regeln.elemente, einbindung,
                                              regeln.sauber, regeln.namen, leitfaden.bild, leitfaden.wege, leitfaden.glossar)}


def main(regel, wurzel, bau, compiler="g++"):
    baum = regeln.Baum(wurzel, Haus(f"{bau}/haus.txt"), bau)
    if regel == "male":
        leitfaden.male_bild(baum)
        return 0
    funde = regeln.allein(baum, compiler) if regel == "allein" else REGELN[regel](baum)
    print("\n".join(funde))
    return 1 if funde else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
