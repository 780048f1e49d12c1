#!/usr/bin/env python3
"""Every house rule is met with a small house that keeps it and with one that breaks it: a rule that finds nothing would
look like a house in order."""

import json
import tempfile
import unittest
from pathlib import Path

import leitfaden
import regeln
from einbindung import einbindung
from haus import Haus

LINKS = "unten|unten||the ground\noben|oben|unten|the roof\ntolvek7|.|oben|main.cpp: starts\n"
LEITFADEN = """# Guide

<!-- bild -->

    main.cpp                          starts  → oben
      oben                            the roof  → unten
        unten                         the ground

<!-- /bild -->

See `oben/Dach.h` and `src/unten/`.

## Glossary

| Word | Meaning |
|---|---|
| Dach | roof |
"""
ORDNUNG = {
    "src/main.cpp": '#include "oben/Dach.h"\n#include <QApplication>\n',
    "src/oben/Dach.h": '#pragma once\n\n#include "unten/Boden.h"\n\nstruct Dach { Boden boden; };\n',
    "src/unten/Boden.h": "#pragma once\n\nstruct Boden {};\n",
    "docs/guide.md": LEITFADEN,
    "README.md": "# Readme\n",
    "CONTRIBUTING.md": "# Contributing: [guide](docs/guide.md)\n",
    "docs/szenarien.md": "# Words\n",
}


class Gegenprobe(unittest.TestCase):
    def pruefe(self, regel, links=LINKS, **aenderungen):
        """The messages of the rule about the house, with these files changed ("__" stands for "/", "_PUNKT_" for ".")."""
        dateien = ORDNUNG | {n.replace("__", "/").replace("_PUNKT_", "."): t for n, t in aenderungen.items()}
        with tempfile.TemporaryDirectory() as ordner:
            for name, text in dateien.items():
                pfad = Path(ordner, name)
                pfad.parent.mkdir(parents=True, exist_ok=True)
                pfad.write_text(text, encoding="utf-8")
            bau = Path(ordner, "bau")
            bau.mkdir()
            (bau / "haus.txt").write_text(links, encoding="utf-8")
            befehle = [{"command": f"g++ -std=c++20 -Dim_ordner_{ziel}=1 -I{ordner}/src -o CMakeFiles/{ziel}.dir/a.o -c a.cpp"}
                       for ziel in ("platform_qt", "platform_calc")]
            (bau / "compile_commands.json").write_text(json.dumps(befehle), encoding="utf-8")
            return "\n".join(regel(regeln.Baum(ordner, Haus(bau / "haus.txt"), bau)))

    def erwarte(self, regel, *teile, **aenderungen):
        self.assertEqual(self.pruefe(regel), "")
        meldung = self.pruefe(regel, **aenderungen)
        for teil in teile:
            self.assertIn(teil, meldung)

    def test_toolkit(self):
        self.erwarte(regeln.toolkit, "src/oben/Dach.h:1 includes <QString>", "only src/platform/qt",
                     src__oben__Dach_PUNKT_h="#include <QString>\n")
        self.erwarte(regeln.toolkit, "includes <xlsxwriter.h>", "src/platform/mappe",
                     src__oben__Dach_PUNKT_h="#include <xlsxwriter.h>\n")

    def test_system(self):
        self.erwarte(regeln.system, "includes <fcntl.h>", "_posix.cpp", src__oben__Dach_PUNKT_h="#include <fcntl.h>\n")

    def test_dateien(self):
        for zeile in ("std::ofstream strom(pfad);", "fs::rename(a, b);"):
            self.erwarte(regeln.dateien, f"src/oben/a.cpp:1 goes past the file layer: {zeile}", "Use Dateien",
                         src__oben__a_PUNKT_cpp=zeile + "\n")

    def test_include_nach_oben(self):
        self.erwarte(regeln.pfeile, 'src/unten/a.cpp:1 includes "oben/Dach.h"', "unten stands below oben", "hand it in",
                     src__unten__a_PUNKT_cpp='#include "oben/Dach.h"\n')

    def test_include_zur_seite(self):
        self.erwarte(regeln.pfeile, "daneben does not link oben", "add oben to UEBER in src/daneben/CMakeLists.txt",
                     links=LINKS + "daneben|daneben||a shed\n", src__daneben__a_PUNKT_cpp='#include "oben/Dach.h"\n')

    def test_include_im_gleichen_ordner_der_platform(self):
        links = "platform_a|platform/a||a\nplatform_b|platform/b|platform_a|b\n" + LINKS
        self.assertIn("platform/a stands below platform/b",
                      self.pruefe(regeln.pfeile, links, src__platform__a__a_PUNKT_h='#include "platform/b/b.h"\n',
                                  src__platform__b__b_PUNKT_h='#include "platform/a/a.h"\n'))

    def test_unbenutzter_link(self):
        self.erwarte(regeln.pfeile, "src/CMakeLists.txt links unten, of which src/main.cpp includes nothing", "take it out",
                     links=LINKS.replace("|oben|main", "|oben unten|main"))

    def test_ordner_ohne_ziel(self):
        self.erwarte(regeln.pfeile, "src/neu/a.h belongs to no target", "tolvek_ordner", src__neu__a_PUNKT_h="\n")

    def test_include_ohne_datei(self):
        self.erwarte(regeln.pfeile, "there is no src/Boden.h", "named from src/ on",
                     src__oben__a_PUNKT_cpp='#include "Boden.h"\n')

    def test_positionen(self):
        for zeile in ("getFeld(satz, 4);", "getFeld(f(g(x), y), 4);", "felder(satz, 5, bis);", "zeile.feld(3);", "antwort(gruppe, 4);",
                      "constexpr int feldEnde = 4;"):
            self.erwarte(regeln.positionen, "src/oben/a.cpp:1: name the position", src__oben__a_PUNKT_cpp=zeile + "\n")

    def test_elemente(self):
        for zeile in ('Auswahlfeld comboOrt{*this, "comboWieder"_t};', 'Textfeld comboOrt{\n    *this, "comboWieder"_t, 3};'):
            self.erwarte(regeln.elemente, 'src/oben/frmDach.h:2: the element comboOrt calls itself "comboWieder"',
                         'write comboOrt{*this, "comboOrt"_t', src__oben__frmDach_PUNKT_h="\n" + zeile + "\n")
        self.assertEqual(self.pruefe(regeln.elemente, src__oben__a_PUNKT_h='Elementreihe<A> triA{*this, "triA"_t, 1, 9};\n'), "")

    def test_einbindung_fehlt(self):
        """Found are a name, one of a namespace, a member of what is declared forward, a class's own header, and the standard's."""
        feld = ("namespace feld::betr {\ninline constexpr int ende = 4;\n}\nnamespace zahl {\n}\ntemplate <class T> class Regal : public Brett {};\n"
                "static_assert(true);\n")
        for datei, ort in (("src__oben__a_PUNKT_cpp", "src/oben/a.cpp"), ("src__oben__a_PUNKT_h", "src/oben/a.h")):
            for text, name, kopf in (("Boden boden;", "Boden", "Boden"), ("std::array<Boden, 1> f(int);", "Boden", "Boden"),
                                     ("int f() { return feld::betr::ende; }", "feld::betr::ende", "Feld"),
                                     ("using namespace feld::betr;", "feld::betr", "Feld"), ("using namespace zahl;", "zahl", "Feld"),
                                     ("Regal<int> regal;", "Regal", "Feld"),
                                     ("struct Boden;\nvoid f() { Boden b; }", "Boden", "Boden"),
                                     ("struct Boden;\nvoid f(Boden& b) { b.lege(); }", "Boden", "Boden"),
                                     ("struct Boden;\nBoden& b(int);\nint f() { return b(3).lege(); }", "Boden", "Boden"),
                                     ("struct Boden;\nvoid f(Boden* b) { g(dynamic_cast<Boden*>(b)); }", "Boden", "Boden")):
                self.erwarte(einbindung, f'{ort}:{text.count(chr(10)) + 4} uses {name} without reaching its header: '
                             f'include "unten/{kopf}.h"', src__unten__Feld_PUNKT_h=feld,
                             **{datei: "/*\n*/\n#include <array>\n" + text + "\n"})
        self.erwarte(einbindung, 'src/oben/Dach.cpp:1 does not know its own header: include "oben/Dach.h"',
                     src__oben__Dach_PUNKT_cpp="int f();\n")
        for datei in ("src__oben__a_PUNKT_cpp", "src__oben__a_PUNKT_h"):
            self.erwarte(einbindung, "does not compile alone: it uses std::string, include <string>",
                         **{datei: "#include <vector>\nstd::string f();\n"})
        self.erwarte(einbindung, "std::jthread: say in STANDARD", src__oben__a_PUNKT_h="#include <thread>\nstd::jthread f();\n")

    def test_einbindung_genuegt(self):
        """Enough are a header of ours that includes the header, a forward declaration, and a name of one's own; what is no
        code uses nothing."""
        vor = {"src__unten__Vor_PUNKT_h": "struct Boden;\nvoid f(Boden& boden);\nstatic_assert(true);\n",
               "src__oben__Klasse_PUNKT_h": "struct Klasse {\n    struct Boden {};\n    Boden f();\n};\n"}
        for text in ('#include "oben/Dach.h"\nBoden boden;', "struct Boden;\nvoid f(Boden& boden);",
                     '#include "unten/Vor.h"\nvoid g(int& boden) { boden.lege(); }', "static_assert(true);",
                     "struct A {\n    struct Boden {};\n    Boden boden;\n};", "enum class A { Boden, Decke };",
                     "void f(int Boden) { g(Boden); }", "void f(const A<int>& Boden) { g(Boden); }",
                     "void f(const A&... Boden) { g(Boden...); }", "void f() { auto [a, Boden] = g(); h(Boden); }",
                     "auto f = [Boden = 3] { return Boden; };", "void f(A a) { a.Boden(); }", "void f(A* a) { a->Boden(); }",
                     "// Boden()", "int a; /* Boden()\nBoden() */", 'auto a = "Boden()";', 'auto a = R"(a" Boden() "b)";'):
            for datei in ("src__oben__a_PUNKT_cpp", "src__oben__a_PUNKT_h"):
                self.assertEqual(self.pruefe(einbindung, **vor, **{datei: text + "\n"}), "")
        klasse = '#include "oben/Klasse.h"\nKlasse::Boden Klasse::f() { return Boden{}; }\n'
        self.assertEqual(self.pruefe(einbindung, **vor, src__oben__Klasse_PUNKT_cpp=klasse), "")

    def test_allein(self):
        """Held to what the folder is compiled with: the name that it defines is one that the header may use."""
        links = LINKS + "platform_qt|platform/qt||windows\nplatform_calc|platform/calc||workbooks\n"
        for ordner in ("qt", "calc"):
            for text, fund in (("Ziegel f();\n", f"src/platform/{ordner}/a.h does not compile alone: include in it what it uses"),
                               (f"int f() {{ return im_ordner_platform_{ordner}; }}\n", "")):
                meldung = self.pruefe(regeln.allein, links, **{f"src__platform__{ordner}__a_PUNKT_h": text})
                self.assertEqual(meldung.split(".\n")[0], fund)

    def test_sauber(self):
        for text in ("a \n", "\ta\n"):
            self.erwarte(regeln.sauber, "README.md:1: a tab, or a blank", README_PUNKT_md=text)
        self.erwarte(regeln.sauber, "README.md: the last line lacks", README_PUNKT_md="a")

    def test_namen(self):
        self.erwarte(regeln.namen, "src/oben/Größe.h: rename it", src__oben__Größe_PUNKT_h="\n")
        self.erwarte(regeln.namen, "src/oben/Dach.h and src/oben/dach.h: rename one", src__oben__dach_PUNKT_h="\n")

    def test_bild(self):
        self.erwarte(leitfaden.bild, "another house", "make abnahme", links=LINKS.replace("the roof", "the attic"))
        self.erwarte(leitfaden.bild, "another house", links=LINKS + "neu|neu||new\n")
        self.erwarte(leitfaden.bild, "no place for the picture", docs__guide_PUNKT_md="# Guide\n")

    def test_wege(self):
        self.erwarte(leitfaden.wege, "CONTRIBUTING.md:1 names `src/oben/Giebel.cpp`, which is not there",
                     CONTRIBUTING_PUNKT_md="`src/oben/Giebel.cpp`\n")
        self.erwarte(leitfaden.wege, "docs/guide.md:1 links anders.md", docs__guide_PUNKT_md="[else](anders.md)\n")

    def test_glossar(self):
        for zeile, wort in (("| Giebel | gable |", "»Giebel«, a word that src/ does not use"), ("| Dach | roof |", "»Dach« twice")):
            self.erwarte(leitfaden.glossar, wort, docs__guide_PUNKT_md=LEITFADEN + zeile + "\n")
        self.erwarte(leitfaden.glossar, "no section", docs__guide_PUNKT_md="# Guide\n")


if __name__ == "__main__":
    unittest.main()
