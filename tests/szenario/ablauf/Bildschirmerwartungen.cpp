#include "ablauf/Anweisungen.h"
#include "ablauf/Vergleich.h"
#include "sprache/Unicode.h"

#include "platform/text/Eingabe.h"

#include <cmath>

namespace {

void bildschirm(Lauf& lauf, const Anweisung& anweisung)
{
    const auto* hier = lauf.inGebrauch();
    const std::string name = hier != nullptr ? hier->name() : lauf.läuft() ? "keinen" : "kein laufendes Programm";
    vergleicheText("den Bildschirm", alsTabellentext(anweisung.argument(0)), name);
    if (hier != nullptr && !lauf.oberfläche().istOffen(*hier)) {
        throw Scheitern(alsUtf8(name) + " vor Augen", "kein Fenster davon");
    }
}

std::string textVon(const Lauf& lauf, const std::u32string& name)
{
    const Ziel ziel = lauf.finde(name);
    if (ziel.istRahmen) {
        return lauf.oberfläche().rahmentitel();
    }
    if (ziel.element == nullptr && ziel.bildschirm != nullptr) {
        return lauf.oberfläche().titel(*ziel.bildschirm);
    }
    return lauf.oberfläche().text(lauf.findeElement(name));
}

void text(Lauf& lauf, const Anweisung& anweisung)
{
    vergleicheText({}, mitEinfachenUmbrüchen(alsTabellentext(anweisung.argument(1))),
                   mitEinfachenUmbrüchen(textVon(lauf, anweisung.argument(0))));
}

void textMit(Lauf& lauf, const Anweisung& anweisung)
{
    vergleicheTeil({}, mitEinfachenUmbrüchen(alsTabellentext(anweisung.argument(1))),
                   mitEinfachenUmbrüchen(textVon(lauf, anweisung.argument(0))));
}

void fokus(Lauf& lauf, const Anweisung& anweisung)
{
    const Element& element = lauf.findeElement(anweisung.argument(0));
    if (!lauf.oberfläche().hatFokus(element)) {
        const auto* hier = lauf.inGebrauch();
        const auto* anderes = hier == nullptr ? nullptr : hier->fokus();
        throw Scheitern("den Fokus auf " + alsUtf8(element.name()),
                        anderes == nullptr ? "auf keinem Element" : "auf " + alsUtf8(anderes->name()));
    }
}

bool istZuSehen(const Lauf& lauf, const std::u32string& name)
{
    const Ziel ziel = lauf.finde(name);
    if (ziel.istRahmen) {
        return lauf.oberfläche().istRahmenZuSehen();
    }
    if (ziel.element == nullptr && ziel.bildschirm != nullptr) {
        throw Scheitern("ein Element", "den Bildschirm " + alsUtf8(name));
    }
    return ziel.element != nullptr && lauf.oberfläche().istZuSehen(*ziel.element);
}

void erwarteWahr(const std::u32string& name, bool wahr, const std::string& erwartet, const std::string& sonst)
{
    if (!wahr) {
        throw Scheitern(alsUtf8(name) + " " + erwartet, sonst);
    }
}

void sichtbar(Lauf& lauf, const Anweisung& anweisung)
{
    const auto& name = anweisung.argument(0);
    erwarteWahr(name, istZuSehen(lauf, name), "sichtbar", "verborgen");
}

void verborgen(Lauf& lauf, const Anweisung& anweisung)
{
    const auto& name = anweisung.argument(0);
    erwarteWahr(name, !istZuSehen(lauf, name), "verborgen", "sichtbar");
}

void frei(Lauf& lauf, const Anweisung& anweisung)
{
    const auto& name = anweisung.argument(0);
    erwarteWahr(name, lauf.oberfläche().istFrei(lauf.findeElement(name)), "frei", "gesperrt");
}

void gesperrt(Lauf& lauf, const Anweisung& anweisung)
{
    const auto& name = anweisung.argument(0);
    erwarteWahr(name, !lauf.oberfläche().istFrei(lauf.findeElement(name)), "gesperrt", "frei");
}

bool istAn(const Lauf& lauf, const std::u32string& name)
{
    const Element& element = lauf.findeElement(name);
    if (const auto* option = dynamic_cast<const Optionsfeld*>(&element)) {
        return lauf.oberfläche().istAn(*option);
    }
    if (const auto* ankreuzfeld = dynamic_cast<const Ankreuzfeld*>(&element)) {
        return lauf.oberfläche().istAn(*ankreuzfeld);
    }
    throw Scheitern("eine Option oder ein Kontrollkästchen", "»" + alsUtf8(name) + "«, das keines ist");
}

void an(Lauf& lauf, const Anweisung& anweisung)
{
    const auto& name = anweisung.argument(0);
    erwarteWahr(name, istAn(lauf, name), "an", "aus");
}

void aus(Lauf& lauf, const Anweisung& anweisung)
{
    const auto& name = anweisung.argument(0);
    erwarteWahr(name, !istAn(lauf, name), "aus", "an");
}

void hinweis(Lauf& lauf, const Anweisung& anweisung)
{
    const Element& element = lauf.findeElement(anweisung.argument(0));
    vergleicheText("den Hinweis", mitEinfachenUmbrüchen(alsTabellentext(anweisung.argument(1))),
                   mitEinfachenUmbrüchen(lauf.oberfläche().hinweis(element)));
}

void hintergrund(Lauf& lauf, const Anweisung& anweisung)
{
    const Element& element = lauf.findeElement(anweisung.argument(0));
    vergleicheZahl("den Hintergrund", anweisung.zahl(1), lauf.oberfläche().hintergrund(element));
}

void wert(Lauf& lauf, const Anweisung& anweisung)
{
    const Element& element = lauf.findeElement(anweisung.argument(0));
    if (const auto* balken = dynamic_cast<const Fortschrittsbalken*>(&element)) {
        vergleicheZahl("den Wert", anweisung.zahl(1), lauf.oberfläche().wert(*balken));
    } else if (const auto* leiste = dynamic_cast<const Bildlaufleiste*>(&element)) {
        vergleicheZahl("den Wert", anweisung.zahl(1), lauf.oberfläche().wert(*leiste));
    } else {
        throw Scheitern("einen Fortschrittsbalken oder eine Bildlaufleiste",
                        "»" + alsUtf8(element.name()) + "«, das keines ist");
    }
}

Lage lageVon(const Lauf& lauf, const std::u32string& name)
{
    const Ziel ziel = lauf.finde(name);
    if (ziel.istRahmen) {
        return lauf.oberfläche().rahmenlage();
    }
    if (ziel.bildschirm == nullptr || ziel.element != nullptr) {
        throw Scheitern("den Rahmen oder einen geladenen Bildschirm", "»" + alsUtf8(name) + "«");
    }
    return lauf.oberfläche().lage(*ziel.bildschirm);
}

void lage(Lauf& lauf, const Anweisung& anweisung)
{
    const Lage hier = lageVon(lauf, anweisung.argument(0));
    const auto ort = [](auto links, auto oben) { return std::to_string(links) + " " + std::to_string(oben); };
    vergleicheText("die Lage", ort(anweisung.zahl(1), anweisung.zahl(2)),
                   ort(std::llround(hier.links), std::llround(hier.oben)));
}

} // namespace

Handlertafel bildschirmerwartungen()
{
    return {
        {"erwarte bildschirm", bildschirm},
        {"erwarte text", text},
        {"erwarte text-mit", textMit},
        {"erwarte fokus", fokus},
        {"erwarte sichtbar", sichtbar},
        {"erwarte verborgen", verborgen},
        {"erwarte frei", frei},
        {"erwarte gesperrt", gesperrt},
        {"erwarte an", an},
        {"erwarte aus", aus},
        {"erwarte hinweis", hinweis},
        {"erwarte hintergrund", hintergrund},
        {"erwarte wert", wert},
        {"erwarte lage", lage},
    };
}
