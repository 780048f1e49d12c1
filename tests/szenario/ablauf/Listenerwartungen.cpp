#include "ablauf/Anweisungen.h"
#include "ablauf/Vergleich.h"
#include "sprache/Unicode.h"

#include "platform/text/Eingabe.h"

#include <algorithm>
#include <iterator>

namespace {

template <class E> const E& findeArt(const Lauf& lauf, const Anweisung& anweisung, const std::string& art)
{
    const Element& element = lauf.findeElement(anweisung.argument(0));
    if (const auto* e = dynamic_cast<const E*>(&element)) {
        return *e;
    }
    throw Scheitern(art, "»" + alsUtf8(element.name()) + "«, das keines ist");
}

std::vector<std::string> alsTabellentexte(const std::vector<std::u32string>& zeilen)
{
    std::vector<std::string> texte;
    std::transform(zeilen.begin(), zeilen.end(), std::back_inserter(texte),
                   [](const auto& z) { return alsTabellentext(z); });
    return texte;
}

std::vector<std::string> einträgeVon(const Lauf& lauf, const Anweisung& anweisung)
{
    const Element& element = lauf.findeElement(anweisung.argument(0));
    if (const auto* liste = dynamic_cast<const Liste*>(&element)) {
        return lauf.oberfläche().zeilen(*liste);
    }
    return lauf.oberfläche().einträge(findeArt<Auswahlfeld>(lauf, anweisung, "ein Auswahlfeld"));
}

void liste(Lauf& lauf, const Anweisung& anweisung)
{
    vergleicheListe("Eintrag", alsTabellentexte(anweisung.zeilen), einträgeVon(lauf, anweisung));
}

void eintrag(Lauf& lauf, const Anweisung& anweisung)
{
    const auto einträge = einträgeVon(lauf, anweisung);
    const auto nummer = anweisung.zahl(1);
    const std::string was = "den Eintrag " + std::to_string(nummer);
    if (nummer < 1 || static_cast<std::size_t>(nummer) > einträge.size()) {
        throw Scheitern(was, "nur " + std::to_string(einträge.size()));
    }
    vergleicheText(was, alsTabellentext(anweisung.argument(2)), einträge[static_cast<std::size_t>(nummer) - 1]);
}

void einträge(Lauf& lauf, const Anweisung& anweisung)
{
    vergleicheZahl("Einträge:", anweisung.zahl(1), static_cast<std::int64_t>(einträgeVon(lauf, anweisung).size()));
}

void zeilen(Lauf& lauf, const Anweisung& anweisung)
{
    const auto& element = findeArt<Liste>(lauf, anweisung, "eine Liste");
    vergleicheListe("Zeile", alsTabellentexte(anweisung.zeilen), lauf.oberfläche().zeilen(element));
}

void spaltenköpfe(Lauf& lauf, const Anweisung& anweisung)
{
    const auto& element = findeArt<Liste>(lauf, anweisung, "eine Liste");
    vergleicheListe("Spaltenkopf", alsTabellentexte(anweisung.zeilen), lauf.oberfläche().spaltenköpfe(element));
}

void auswahl(Lauf& lauf, const Anweisung& anweisung)
{
    const auto& element = findeArt<Liste>(lauf, anweisung, "eine Liste");
    vergleicheZahl("die Auswahl", anweisung.zahl(1), static_cast<std::int64_t>(lauf.oberfläche().auswahl(element)));
}

} // namespace

Handlertafel listenerwartungen()
{
    return {
        {"erwarte liste", liste},   {"erwarte eintrag", eintrag},           {"erwarte einträge", einträge},
        {"erwarte zeilen", zeilen}, {"erwarte spaltenköpfe", spaltenköpfe}, {"erwarte auswahl", auswahl},
    };
}
