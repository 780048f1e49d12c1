"""What docs/guide.md says of the code is held to the code: its picture, the files that it names, the words it explains."""

import re

LEITFADEN = "docs/guide.md"
BILD = re.compile(r"(<!-- bild[^>]*-->\n\n)(.*?)(\n\n<!-- /bild -->)", re.S)
IM_BAU = ("bau/", "build/", "demo/", "freigabe/", "Daten/", "Tolvek7/", "Handbuch", "share/")
WEG = re.compile(r"[A-Za-z0-9_.-]+(/[A-Za-z0-9_.*-]+)*/?$")


def _text(baum, datei=LEITFADEN):
    return (baum.wurzel / datei).read_text(encoding="utf-8")


def bild(baum):
    treffer = BILD.search(_text(baum))
    if not treffer:
        return [f"{LEITFADEN} has no place for the picture: put <!-- bild --> and <!-- /bild --> back."]
    if treffer[2] != baum.haus.bild():
        return [f"{LEITFADEN} shows another house than src/ is. If the links shall be as they are, run `make abnahme`."]
    return []


def male_bild(baum):
    neu = BILD.sub(lambda treffer: treffer[1] + baum.haus.bild() + treffer[3], _text(baum))
    (baum.wurzel / LEITFADEN).write_text(neu, encoding="utf-8")


def _ist_da(baum, name):
    """Below the checkout or below src/, as a file, a folder, a pattern, or without the ending."""
    for ort in (name, "src/" + name):
        ort = ort.rstrip("/")
        if any(baum.wurzel.glob(ort)) or any(baum.wurzel.glob(ort + ".*")):
            return True
    return False


def wege(baum):
    """Files and folders that the documents for maintainers name, between backticks and with a slash or an ending."""
    funde = []
    for datei in (LEITFADEN, "README.md", "CONTRIBUTING.md", "docs/szenarien.md"):
        for nummer, zeile in enumerate(_text(baum, datei).split("\n"), 1):
            if zeile.startswith("    "):
                continue
            for ziel in re.findall(r"\]\(([^)#:]+)\)", zeile):
                if not (baum.wurzel / datei).parent.joinpath(ziel).exists():
                    funde.append(f"{datei}:{nummer} links {ziel}, which is not there: link where it lies now.")
            for wort in re.findall(r"`([^`]+)`", zeile):
                ist_weg = "/" in wort or re.search(r"\.(h|cpp|md|txt|py|sh|szenario|cmake)$", wort)
                if ist_weg and WEG.match(wort) and not wort.startswith(IM_BAU) and not _ist_da(baum, wort):
                    funde.append(f"{datei}:{nummer} names `{wort}`, which is not there: write where it lies now.")
    return funde


def glossar(baum):
    """Every word that the glossary explains is one of the code (comments aside); none is explained twice."""
    teil = re.search(r"^## Glossary\n(.*?)(?=^## |\Z)", _text(baum), re.S | re.M)
    worte = re.findall(r"^\| ([^|]+?) \|", teil[1], re.M) if teil else []
    worte = [w for eintrag in worte for w in eintrag.split(", ") if w != "Word" and not w.startswith("--")]
    if not worte:
        return [f"{LEITFADEN} has no section \"## Glossary\" with a table of words."]
    code = "\n".join(re.sub(r"//.*", "", zeile) for datei in baum.quellen()
                     for _, zeile in baum.zeilen("src/" + datei)).lower()
    funde = [f"{LEITFADEN} explains »{wort}«, a word that src/ does not use: take it out, or write the word that is used."
             for wort in worte if wort.lower() not in code]
    return funde + [f"{LEITFADEN} explains »{wort}« twice." for wort in sorted(set(worte)) if worte.count(wort) > 1]
