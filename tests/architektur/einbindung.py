"""Whoever uses a name of ours includes its header, or one of our headers that includes it. A compiler finds that where it reads
each file alone; where it reads a folder as one file, another file brings what is missing. So it is found here, in the words of
the files, which do not tell everything: overloads in two headers are one name, and a class is known by the names of variables."""

import re
from collections import defaultdict

from regeln import EIGENER_INCLUDE, FREMDER_INCLUDE
from standard import fehlender_standard

UNGELESEN = re.compile(r'R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|(?<!\w)\'(?:\\.|[^\'\\\n])+\'|//[^\n]*|/\*.*?\*/|^[ \t]*#[^\n]*',
                       re.DOTALL | re.MULTILINE)
AUFZAEHLUNG = re.compile(r"(?<=\benum )([^;{\n]*{)[^}]*")
VORWEG = re.compile(r"\b(?:class|struct) (\w+);")
RAUM = re.compile(r"namespace ([\w:]+) {$")
ERKLAERUNG = re.compile(r"(?:template\s*)*(?:using (\w+) =|(?:class|struct|enum(?: class)?) (\w+).*{$|"
                        r"(?!namespace|using|class|struct|enum|static_assert).*?(\w+)\s*[\[(={;])", re.DOTALL)
# A name; whether something is cast to it; whether a sign follows that a forward declaration is enough for.
NAME = re.compile(r"(?<![\w.:])(?<!->)(\w+_cast<(?:const )?)?((?:\w+::)*\w+)([&*>])?")
VARIABLE = re.compile(r"\b(\w+)[&*>]+ (\w+)")
ZUGRIFF = re.compile(r"\b(\w+)(?:\([^()]*\))?(?:\.|->)")
# A name of the file's own: a class with its body; one of [several, names] or of a capture; an alias, function, member, parameter
# or local, which stands behind a word that may be a type.
KEIN_TYP = ("return|throw|case|new|delete|else|namespace|const|constexpr|consteval|static|inline|virtual|explicit|mutable|extern|"
            "friend|public|private|protected|typename|operator|class|struct|co_return")
EIGEN = re.compile(rf"\b(?:class|struct) (\w+)\b(?!::)(?=[^;(){{]*{{)|[\[,]\s*&?(\w+)(?=[\w\s,&]*\] ?[=:]| = )|"
                   rf"(?:\b(?!(?:{KEIN_TYP})\b)[^\W\d]\w*|(?<=[\w>)*])[>&*]|\.\.\.)\s+(?=(\w+)\b(?!::))")


def lies(text):
    """The text without comments, literals, enumerators and lines of the preprocessor; what is left stands in its line."""
    text = UNGELESEN.sub(lambda t: ('""' if t[0][0] in "\"R" else " ") + "\n" * t[0].count("\n"), text)
    return AUFZAEHLUNG.sub(lambda t: t[1] + "\n" * t[0].count("\n"), text)


def erklaert(text):
    """What the text declares outside of classes and functions, as "feld::betr::ende"; the namespaces are names too."""
    offen, anfang = [], 0  # the braces around: the name of a namespace, or None
    for zeichen in re.finditer(r"[{};]", text):
        kopf = "" if None in offen else text[anfang:zeichen.end()]
        while kopf != (kopf := re.sub(r"<[^<>]*>", "", kopf).strip()):
            pass
        raum = RAUM.match(kopf)
        if treffer := raum or ERKLAERUNG.match(kopf):
            yield "::".join([*offen, treffer[treffer.lastindex]])
        if zeichen[0] == "{":
            offen.append(raum and raum[1])
        elif zeichen[0] == "}":
            offen.pop()
        if None not in offen:
            anfang = zeichen.end()


class Quellen:
    def __init__(self, texte, includes):
        self.includes = includes
        self.vorweg = {datei: set(VORWEG.findall(text)) for datei, text in texte.items()}
        self.texte = {datei: VORWEG.sub("", text) for datei, text in texte.items()}
        self.variablen = {datei: set(VARIABLE.findall(text)) for datei, text in self.texte.items()}
        self.eigen = {datei: {"".join(namen) for namen in EIGEN.findall(text)} for datei, text in self.texte.items()}
        self.koepfe = defaultdict(set)  # the headers that declare a name
        for kopf in filter(lambda datei: datei.endswith(".h"), texte):
            for name in erklaert(self.texte[kopf]):
                self.koepfe[name].add(kopf)

    def erreicht(self, datei, gesehen):
        gesehen.add(datei)
        for kopf in self.includes[datei]:
            if kopf not in gesehen:
                self.erreicht(kopf, gesehen)
        return gesehen

    def genannt(self, datei, eigen, vorweg):
        """(name of ours, place) of what the text says and means no name of its own by."""
        for treffer in NAME.finditer(self.texte[datei]):
            glieder = treffer[2].split("::")
            for name in ("::".join(glieder[:n]) for n in range(1, len(glieder) + 1)):
                if name not in eigen and not (name in vorweg and treffer[3] and not treffer[1]):
                    yield name, treffer.start(2)

    def angefasst(self, datei, da, vorweg):
        """(name of ours, place) of the classes, declared forward, of which the text uses a member."""
        zugriffe = {treffer[1]: treffer.start() for treffer in ZUGRIFF.finditer(self.texte[datei])}
        for ort in da:
            for typ, variable in self.variablen[ort]:
                if typ in vorweg and variable in zugriffe and (ort == datei or variable not in self.eigen[datei]):
                    yield typ, zugriffe[variable]

    def fehlend(self, datei):
        klasse = re.sub(r"(_\w+)?\.cpp$", ".h", datei)
        da = self.erreicht(datei, set())
        if klasse in self.texte and klasse not in da:
            yield f'src/{datei}:1 does not know its own header: include "{klasse}" first.'
        vorweg = set().union(*(self.vorweg[ort] for ort in da))
        stellen = {}
        for name, stelle in [*self.genannt(datei, self.eigen[datei] | self.eigen.get(klasse, set()), vorweg),
                             *self.angefasst(datei, da, vorweg)]:
            if not da & self.koepfe.get(name, da):
                stellen.setdefault(name, stelle)
        for name, stelle in stellen.items():
            koepfe = " or ".join(f'"{kopf}"' for kopf in sorted(self.koepfe[name]))
            nummer = self.texte[datei].count("\n", 0, stelle) + 1
            yield f"src/{datei}:{nummer} uses {name} without reaching its header: include {koepfe}."


def einbindung(baum):
    roh = {datei: (baum.wurzel / "src" / datei).read_text(encoding="utf-8") for datei in baum.quellen()}
    eigene, fremde = defaultdict(list), defaultdict(list)
    for includes, muster in ((eigene, EIGENER_INCLUDE), (fremde, FREMDER_INCLUDE)):
        for datei, _, kopf in baum.includes(muster):
            includes[datei].append(kopf)
    quellen = Quellen({datei: lies(text) for datei, text in roh.items()}, eigene)
    funde = [fund for datei in roh for fund in quellen.fehlend(datei)]
    for datei, text in roh.items():
        funde += fehlender_standard(datei, text, {kopf for ort in quellen.erreicht(datei, set()) for kopf in fremde[ort]})
    return funde
