#include "ablauf/Anweisungen.h"
#include "ablauf/Mappendatei.h"
#include "ablauf/Vergleich.h"
#include "sprache/Unicode.h"

#include <algorithm>
#include <iterator>

namespace {

const Arbeitsmappe& mappeVon(Lauf& lauf)
{
    const auto* mappe = lauf.umgebung().mappe();
    if (mappe == nullptr) {
        throw Scheitern("eine übergebene Mappe", "keine");
    }
    return *mappe;
}

const Blatt& blattVon(Lauf& lauf, const Anweisung& anweisung)
{
    const std::string name = alsTabellentext(anweisung.argument(0));
    const auto* blatt = mappeVon(lauf).finde(name);
    if (blatt == nullptr) {
        throw Scheitern("das Blatt " + zeige(name), "keines");
    }
    return *blatt;
}

void blätter(Lauf& lauf, const Anweisung& anweisung)
{
    std::vector<std::string> namen;
    std::transform(anweisung.argumente.begin(), anweisung.argumente.end(), std::back_inserter(namen),
                   [](const auto& name) { return alsTabellentext(name); });
    vergleicheListe("Blatt", namen, mappeVon(lauf).blattnamen());
}

std::string_view wortFür(Zellart art)
{
    switch (art) {
    case Zellart::Leer:
        return "leer";
    case Zellart::Text:
        return "text";
    case Zellart::Zahl:
        return "zahl";
    case Zellart::Datum:
        return "datum";
    }
    return {};
}

int alsInt(std::int64_t zahl)
{
    return static_cast<int>(std::clamp<std::int64_t>(zahl, 0, INT32_MAX));
}

void zelle(Lauf& lauf, const Anweisung& anweisung)
{
    const Zellwert wert = blattVon(lauf, anweisung).zelle(alsInt(anweisung.zahl(1)), alsInt(anweisung.zahl(2)));
    vergleicheText("die Zelle", mitEinfachenUmbrüchen(alsTabellentext(anweisung.argument(3))),
                   mitEinfachenUmbrüchen(alsText(wert)));
    if (const auto art = anweisung.optionen.find("art"); art != anweisung.optionen.end()) {
        vergleicheText("die Art", alsTabellentext(art->second), wortFür(wert.art));
    }
}

void kommentar(Lauf& lauf, const Anweisung& anweisung)
{
    const auto* text = blattVon(lauf, anweisung).kommentar(alsInt(anweisung.zahl(1)), alsInt(anweisung.zahl(2)));
    vergleicheText("den Kommentar", mitEinfachenUmbrüchen(alsTabellentext(anweisung.argument(3))),
                   text == nullptr ? std::string() : mitEinfachenUmbrüchen(*text));
}

void fett(Lauf& lauf, const Anweisung& anweisung)
{
    if (!blattVon(lauf, anweisung).istFett(alsInt(anweisung.zahl(1)))) {
        throw Scheitern("die Zeile " + std::to_string(anweisung.zahl(1)) + " fett", "nicht fett");
    }
}

void zeilenanzahl(Lauf& lauf, const Anweisung& anweisung)
{
    vergleicheZahl("Zeilen:", anweisung.zahl(1), blattVon(lauf, anweisung).zeilenanzahl());
}

void spaltenanzahl(Lauf& lauf, const Anweisung& anweisung)
{
    vergleicheZahl("Spalten:", anweisung.zahl(1), blattVon(lauf, anweisung).spaltenanzahl());
}

void sichereMappe(Lauf& lauf, const Anweisung& anweisung)
{
    schreibeMappendatei(mappeVon(lauf), lauf.draußen(anweisung.argument(0)));
}

} // namespace

Handlertafel mappenerwartungen()
{
    return {
        {"erwarte blätter", blätter},           {"erwarte zelle", zelle},
        {"erwarte kommentar", kommentar},       {"erwarte fett", fett},
        {"erwarte zeilenanzahl", zeilenanzahl}, {"erwarte spaltenanzahl", spaltenanzahl},
        {"sichere-mappe", sichereMappe},
    };
}
