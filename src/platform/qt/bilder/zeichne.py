#!/usr/bin/env python3
"""Draws the arrows, the tick and the dot of both themes, 96 px each (colours: see Farbtafel in Stil.cpp)."""
import math
import pathlib
import struct
import zlib

SEITE = 96


def abstand(x, y, a, b):
    """Distance of the point from the segment a-b."""
    dx, dy = b[0] - a[0], b[1] - a[1]
    t = max(0.0, min(1.0, ((x - a[0]) * dx + (y - a[1]) * dy) / (dx * dx + dy * dy or 1)))
    return math.hypot(x - a[0] - t * dx, y - a[1] - t * dy)


def png(deckung, farbe):
    zeilen = b"".join(
        b"\0" + b"".join(bytes(farbe) + bytes([round(255 * deckung(x + 0.5, y + 0.5))]) for x in range(SEITE))
        for y in range(SEITE))

    def block(art, inhalt):
        return struct.pack(">I", len(inhalt)) + art + inhalt + struct.pack(">I", zlib.crc32(art + inhalt))

    kopf = struct.pack(">IIBBBBB", SEITE, SEITE, 8, 6, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + block(b"IHDR", kopf) + block(b"IDAT", zlib.compress(zeilen, 9)) + block(b"IEND", b"")


def linie(punkte, breite):
    strecken = list(zip(punkte, punkte[1:]))
    return lambda x, y: max(0.0, min(1.0, breite / 2 + 0.5 - min(abstand(x, y, a, b) for a, b in strecken)))


def scheibe(radius):
    return lambda x, y: max(0.0, min(1.0, radius + 0.5 - math.hypot(x - SEITE / 2, y - SEITE / 2)))


AB = linie([(18, 34), (48, 64), (78, 34)], 13)
BILDER = {
    "pfeil": (AB, "pfeil"),
    "pfeil-gesperrt": (AB, "gesperrt"),
    "pfeil-auf": (linie([(18, 62), (48, 32), (78, 62)], 13), "pfeil"),
    "pfeil-links": (linie([(62, 18), (32, 48), (62, 78)], 13), "pfeil"),
    "pfeil-rechts": (linie([(34, 18), (64, 48), (34, 78)], 13), "pfeil"),
    "haken": (linie([(18, 50), (39, 71), (78, 26)], 15), "haken"),
    "punkt": (scheibe(28), "punkt"),
}
FARBEN = {
    "hell": {"pfeil": (70, 86, 100), "gesperrt": (94, 107, 119), "haken": (255, 255, 255), "punkt": (10, 100, 127)},
    "dunkel": {"pfeil": (174, 187, 198), "gesperrt": (136, 152, 165), "haken": (6, 34, 43), "punkt": (92, 182, 210)},
}

for thema, farben in FARBEN.items():
    ordner = pathlib.Path(__file__).parent / thema
    ordner.mkdir(exist_ok=True)
    for name, (deckung, farbe) in BILDER.items():
        (ordner / f"{name}.png").write_bytes(png(deckung, farben[farbe]))
