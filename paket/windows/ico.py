#!/usr/bin/env python3
"""Puts pictures of one sign into an icon file of Windows. Usage: ico.py TARGET.ico PICTURE.png ..."""
import struct
import sys


def seite(bild):
    """Width of a square PNG, from its header."""
    breite, hoehe = struct.unpack(">II", bild[16:24])
    if bild[:8] != b"\x89PNG\r\n\x1a\n" or breite != hoehe or breite > 256:
        sys.exit("not a square PNG of at most 256 pixels")
    return breite


def main(ziel, *quellen):
    bilder = []
    for quelle in quellen:
        with open(quelle, "rb") as datei:
            bilder.append(datei.read())
    bilder.sort(key=seite)
    kopf = struct.pack("<HHH", 0, 1, len(bilder))
    ort = len(kopf) + 16 * len(bilder)
    verzeichnis = b""
    for bild in bilder:
        kante = seite(bild) % 256  # 0 means 256
        verzeichnis += struct.pack("<BBBBHHII", kante, kante, 0, 0, 1, 32, len(bild), ort)
        ort += len(bild)
    with open(ziel, "wb") as datei:
        datei.write(kopf + verzeichnis + b"".join(bilder))


main(*sys.argv[1:])
