"""The link graph of the folders of src/, as CMake has written it (cmake/Ziele.cmake), and its picture for the guide."""

from dataclasses import dataclass, field
from pathlib import Path


@dataclass
class Teil:
    ziel: str
    ordner: str  # below src/, "" for main.cpp
    zweck: str
    unten: list = field(default_factory=list)  # the folders that it links, by target

    @property
    def name(self):
        return self.ordner or "main.cpp"

    @property
    def cmake(self):
        return "/".join(filter(None, ["src", self.ordner, "CMakeLists.txt"]))


class Haus:
    def __init__(self, datei):
        self.teile = {}
        for zeile in Path(datei).read_text(encoding="utf-8").splitlines():
            ziel, ordner, unten, zweck = zeile.split("|", 3)
            zweck = zweck.removeprefix("main.cpp: ")
            self.teile[ziel] = Teil(ziel, "" if ziel == "tolvek7" else ordner, zweck, unten.split())

    def teil_von(self, pfad):
        """The part whose folder holds the file (a path below src/); None when no target does."""
        ordner = str(Path(pfad).parent)
        passend = [t for t in self.teile.values() if t.ordner and (ordner + "/").startswith(t.ordner + "/")]
        if passend:
            return max(passend, key=lambda teil: len(teil.ordner))
        return self.teile.get("tolvek7") if ordner == "." else None

    def alles_unter(self, ziel):
        """Every target below this one, through however many links."""
        gesehen = set()
        offen = list(self.teile[ziel].unten)
        while offen:
            naechstes = offen.pop()
            if naechstes not in gesehen:
                gesehen.add(naechstes)
                offen += self.teile[naechstes].unten
        return gesehen

    def stockwerk(self, ziel):
        """How many folders at most stand over this one in a row."""
        darueber = [teil.ziel for teil in self.teile.values() if ziel in teil.unten]
        return 1 + max(map(self.stockwerk, darueber)) if darueber else 0

    def bild(self):
        """The picture: what stands deeper is linked by what stands above it, by the names behind the arrow."""
        zeilen = []
        reihe = sorted(self.teile.values(), key=lambda teil: (self.stockwerk(teil.ziel), teil.name))
        for teil in reihe:
            einzug = "  " * self.stockwerk(teil.ziel)
            pfeil = ", ".join(self.teile[ziel].name for ziel in sorted(teil.unten))
            zeile = f"    {einzug + teil.name:<34}{teil.zweck}"
            zeilen.append(zeile + (f"  → {pfeil}" if pfeil else ""))
        return "\n".join(zeilen)
