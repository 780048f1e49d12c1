#include "ablauf/Anweisungen.h"
#include "ablauf/Vergleich.h"
#include "sprache/Unicode.h"

#include "platform/text/Datum.h"
#include "platform/text/Eingabe.h"

#include <algorithm>
#include <functional>

namespace {

using Handlung = std::function<void(Oberfläche&, Element&)>;

/// Acts on the element, if a person could reach it; `unmöglich` passes exactly when not.
void handle(Lauf& lauf, const Anweisung& anweisung, const Handlung& handlung)
{
    const auto& name = anweisung.argument(0);
    const Ziel ziel = lauf.finde(name);
    if (ziel.element == nullptr && (ziel.istRahmen || ziel.bildschirm != nullptr)) {
        throw Scheitern("ein Element", "»" + alsUtf8(name) + "«");
    }
    const bool erreichbar = ziel.element != nullptr && lauf.läuft() && lauf.oberfläche().istErreichbar(*ziel.element);
    if (erreichbar == anweisung.unmöglich) {
        const std::string zustand = anweisung.unmöglich ? "unerreichbar" : "erreichbar";
        throw Scheitern("»" + alsUtf8(name) + "« " + zustand, erreichbar ? "erreichbar" : "unerreichbar");
    }
    if (erreichbar) {
        handlung(lauf.oberfläche(), *ziel.element);
    }
}

[[noreturn]] void weiseArtAb(const Element& element, const std::string& erwartet)
{
    throw Scheitern(erwartet, "»" + alsUtf8(element.name()) + "«, das keines ist");
}

template <class E> E& als(Element& element, const std::string& art)
{
    if (auto* e = dynamic_cast<E*>(&element)) {
        return *e;
    }
    weiseArtAb(element, art);
}

std::size_t zeileIn(const Oberfläche& oberfläche, const Liste& liste, const Anweisung& anweisung)
{
    const auto zeile = anweisung.zahl(1);
    const auto anzahl = oberfläche.zeilen(liste).size();
    if (zeile < 1 || static_cast<std::size_t>(zeile) > anzahl) {
        throw Scheitern("die Zeile " + std::to_string(zeile), "nur " + std::to_string(anzahl));
    }
    return static_cast<std::size_t>(zeile);
}

/// The row that is meant: the one named, else the selected one of a list; 0 for none.
std::size_t gemeinteZeile(const Oberfläche& oberfläche, Element& element, const Anweisung& anweisung)
{
    if (anweisung.hatArgument(1)) {
        return zeileIn(oberfläche, als<Liste>(element, "eine Liste"), anweisung);
    }
    const auto* liste = dynamic_cast<const Liste*>(&element);
    return liste == nullptr ? 0 : oberfläche.auswahl(*liste);
}

void klicke(Lauf& lauf, const Anweisung& anweisung)
{
    handle(lauf, anweisung, [&](Oberfläche& oberfläche, Element& element) {
        if (const std::size_t zeile = gemeinteZeile(oberfläche, element, anweisung); zeile > 0) {
            oberfläche.klickeZeile(als<Liste>(element, "eine Liste"), zeile);
        } else {
            oberfläche.klicke(element);
        }
    });
}

void doppelklicke(Lauf& lauf, const Anweisung& anweisung)
{
    handle(lauf, anweisung, [&](Oberfläche& oberfläche, Element& element) {
        if (const std::size_t zeile = gemeinteZeile(oberfläche, element, anweisung); zeile > 0) {
            oberfläche.doppelklickeZeile(als<Liste>(element, "eine Liste"), zeile);
        } else {
            oberfläche.doppelklicke(element);
        }
    });
}

void kopf(Lauf& lauf, const Anweisung& anweisung)
{
    handle(lauf, anweisung, [&](Oberfläche& oberfläche, Element& element) {
        auto& liste = als<Liste>(element, "eine Liste");
        const auto spalte = anweisung.zahl(1);
        const auto anzahl = oberfläche.spaltenköpfe(liste).size();
        if (spalte < 1 || static_cast<std::size_t>(spalte) > anzahl) {
            throw Scheitern("die Spalte " + std::to_string(spalte), "nur " + std::to_string(anzahl));
        }
        oberfläche.klickeKopf(liste, static_cast<std::size_t>(spalte));
    });
}

void wähleEintrag(Oberfläche& oberfläche, Auswahlfeld& feld, const std::string& text)
{
    const auto einträge = oberfläche.einträge(feld);
    const auto ort = std::find(einträge.begin(), einträge.end(), text);
    if (ort == einträge.end()) {
        throw Scheitern("den Eintrag " + zeige(text), "keinen solchen unter " + std::to_string(einträge.size()));
    }
    oberfläche.wähleEintrag(feld, static_cast<std::size_t>(ort - einträge.begin()));
}

void wähleDatum(Oberfläche& oberfläche, Datumsfeld& feld, const std::string& text)
{
    const auto datum = leseDatum(text);
    if (!datum) {
        throw Scheitern("ein Datum TT.MM.JJJJ", zeige(text));
    }
    oberfläche.wähleDatum(feld, *datum);
}

void klickeBisWert(Oberfläche& oberfläche, triCtlJaNein& feld, const std::string& wert)
{
    constexpr int werte = 3;
    for (int i = 0; i < werte && oberfläche.text(feld) != wert; ++i) {
        if (!oberfläche.istErreichbar(feld)) {
            break;
        }
        oberfläche.klicke(feld);
    }
    vergleicheText("den Wert", wert, oberfläche.text(feld));
}

void kreuzeAn(Oberfläche& oberfläche, Ankreuzfeld& feld, const std::string& wert)
{
    if (wert != "an" && wert != "aus") {
        throw Scheitern("»an« oder »aus«", zeige(wert));
    }
    if (oberfläche.istAn(feld) != (wert == "an")) {
        oberfläche.klicke(feld);
    }
}

void setzeWert(Oberfläche& oberfläche, Element& element, const std::u32string& text)
{
    if (auto* textfeld = dynamic_cast<Textfeld*>(&element)) {
        oberfläche.ersetzeText(*textfeld, text);
        return;
    }
    const std::string wert = alsTabellentext(text);
    if (auto* auswahl = dynamic_cast<Auswahlfeld*>(&element)) {
        wähleEintrag(oberfläche, *auswahl, wert);
    } else if (auto* datum = dynamic_cast<Datumsfeld*>(&element)) {
        wähleDatum(oberfläche, *datum, wert);
    } else if (auto* antwort = dynamic_cast<triCtlJaNein*>(&element)) {
        klickeBisWert(oberfläche, *antwort, wert);
    } else if (auto* ankreuzfeld = dynamic_cast<Ankreuzfeld*>(&element)) {
        kreuzeAn(oberfläche, *ankreuzfeld, wert);
    } else {
        weiseArtAb(element, "ein Feld, das einen Wert nimmt,");
    }
}

void setze(Lauf& lauf, const Anweisung& anweisung)
{
    handle(lauf, anweisung,
           [&](Oberfläche& oberfläche, Element& element) { setzeWert(oberfläche, element, anweisung.argument(1)); });
}

void tippe(Lauf& lauf, const Anweisung& anweisung)
{
    handle(lauf, anweisung, [&](Oberfläche& oberfläche, Element& element) {
        if (!element.nimmtFokus()) {
            weiseArtAb(element, "ein Element, das Tasten nimmt,");
        }
        oberfläche.tippe(element, *liesTastenfolge(anweisung.argument(1)));
    });
}

void fügeEin(Lauf& lauf, const Anweisung& anweisung)
{
    handle(lauf, anweisung, [&](Oberfläche& oberfläche, Element& element) {
        auto* auswahl = dynamic_cast<Auswahlfeld*>(&element);
        if (auto* textfeld = dynamic_cast<Textfeld*>(&element)) {
            oberfläche.fügeEin(*textfeld, anweisung.argument(1));
        } else if (auswahl != nullptr && auswahl->istTippbar()) {
            oberfläche.fügeEin(*auswahl, anweisung.argument(1));
        } else {
            weiseArtAb(element, "ein Feld, das Eingefügtes nimmt,");
        }
    });
}

void drehe(Lauf& lauf, const Anweisung& anweisung)
{
    handle(lauf, anweisung, [&](Oberfläche& oberfläche, Element& element) {
        oberfläche.dreheRad(element, static_cast<int>(anweisung.zahl(1)));
    });
}

void verlasse(Lauf& lauf, const Anweisung& anweisung)
{
    handle(lauf, anweisung, [](Oberfläche& oberfläche, Element& element) { oberfläche.verlasse(element); });
}

/// Acts on the frame, which a person sees as long as the program runs.
void handleAmRahmen(Lauf& lauf, const std::function<void(Oberfläche&)>& handlung)
{
    if (!lauf.läuft()) {
        throw Scheitern("den Rahmen", "kein laufendes Programm");
    }
    handlung(lauf.oberfläche());
}

void schließe(Lauf& lauf, const Anweisung& /*anweisung*/)
{
    handleAmRahmen(lauf, [](Oberfläche& oberfläche) { oberfläche.schließeRahmen(); });
}

void verschiebe(Lauf& lauf, const Anweisung& anweisung)
{
    const Lage lage{static_cast<double>(anweisung.zahl(1)), static_cast<double>(anweisung.zahl(2))};
    handleAmRahmen(lauf, [&](Oberfläche& oberfläche) { oberfläche.verschiebeRahmen(lage); });
}

void maximiere(Lauf& lauf, const Anweisung& /*anweisung*/)
{
    handleAmRahmen(lauf, [](Oberfläche& oberfläche) { oberfläche.maximiereRahmen(true); });
}

void normalisiere(Lauf& lauf, const Anweisung& /*anweisung*/)
{
    handleAmRahmen(lauf, [](Oberfläche& oberfläche) { oberfläche.maximiereRahmen(false); });
}

} // namespace

Handlertafel elementhandler()
{
    return {
        {"klicke", klicke}, {"doppelklicke", doppelklicke}, {"kopf", kopf},         {"setze", setze},
        {"tippe", tippe},   {"einfügen", fügeEin},          {"verlasse", verlasse}, {"rad", drehe},
    };
}

Handlertafel rahmenhandler()
{
    return {
        {"schließe", schließe}, {"verschiebe", verschiebe}, {"maximiere", maximiere}, {"normalisiere", normalisiere}};
}
