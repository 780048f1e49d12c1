#include "platform/bildschirm/Anordnung.h"

namespace anordnung {

using Wort = Anordnung::Wort;

Anordnung element(Element& e, double breite)
{
    return {.wort = Wort::Element, .element = &e, .breite = breite};
}

Anordnung text(std::string_view text)
{
    return {.wort = Wort::Text, .text = std::string(text)};
}

Anordnung spalte(std::vector<Anordnung> teile)
{
    return {.wort = Wort::Spalte, .teile = std::move(teile)};
}

Anordnung zeile(std::vector<Anordnung> teile)
{
    return {.wort = Wort::Zeile, .teile = std::move(teile)};
}

Anordnung dehnung()
{
    return {.wort = Wort::Dehnung};
}

Anordnung formular(std::vector<Anordnung> zeilen, double beschriftungsbreite)
{
    return {.wort = Wort::Formular, .teile = std::move(zeilen), .breite = beschriftungsbreite};
}

Anordnung feld(std::string_view beschriftung, std::vector<Anordnung> teile)
{
    return {.wort = Wort::Feld, .text = std::string(beschriftung), .teile = std::move(teile)};
}

Anordnung feld(Beschriftung& beschriftung, std::vector<Anordnung> teile)
{
    return {.wort = Wort::Feld, .element = &beschriftung, .teile = std::move(teile)};
}

Anordnung feld(std::string_view beschriftung, Element& e, double breite)
{
    return feld(beschriftung, std::vector{element(e, breite)});
}

Anordnung feld(Beschriftung& beschriftung, Element& e, double breite)
{
    return feld(beschriftung, std::vector{element(e, breite)});
}

Anordnung trennlinie()
{
    return {.wort = Wort::Trennlinie};
}

Anordnung karte(std::string_view titel, Anordnung inhalt, std::vector<Element*> köpfe)
{
    return {.wort = Wort::Karte, .text = std::string(titel), .teile = {std::move(inhalt)}, .köpfe = std::move(köpfe)};
}

Anordnung karte(Beschriftung& titel, Anordnung inhalt)
{
    return {.wort = Wort::Karte, .element = &titel, .teile = {std::move(inhalt)}};
}

Anordnung karten(std::vector<Anordnung> spalten)
{
    return {.wort = Wort::Karten, .teile = std::move(spalten)};
}

Anordnung tabelle(std::string_view titel, std::vector<Tabellenspalte> spalten, std::vector<Anordnung> zeilen)
{
    return {
        .wort = Wort::Tabelle, .text = std::string(titel), .teile = std::move(zeilen), .spalten = std::move(spalten)};
}

Anordnung tabellenzeile(Beschriftung& beschriftung, std::vector<Element*> zellen)
{
    Anordnung a{.wort = Wort::Tabellenzeile, .element = &beschriftung};
    for (auto* zelle : zellen) {
        a.teile.push_back(zelle == nullptr ? text({}) : element(*zelle));
    }
    return a;
}

Anordnung decke(Anordnung darunter, Schaltfläche& decke)
{
    return {.wort = Wort::Decke, .teile = {std::move(darunter), element(decke)}};
}

Anordnung stapel(std::vector<Anordnung> teile)
{
    return {.wort = Wort::Stapel, .teile = std::move(teile)};
}

Anordnung listung(std::vector<Tabellenspalte> spalten, std::string_view überschriftErste,
                  std::string_view überschriftRest, std::vector<Anordnung> zeilen, Bildlaufleiste& leiste,
                  Fläche& vorne, Fläche& hinten)
{
    return {.wort = Wort::Listung,
            .text = verbinde(überschriftErste, '\n', überschriftRest),
            .element = &leiste,
            .teile = std::move(zeilen),
            .spalten = std::move(spalten),
            .köpfe = {&vorne, &hinten}};
}

Anordnung füllend(Anordnung a)
{
    a.füllt = true;
    return a;
}

Anordnung platzhaltend(Anordnung a)
{
    a.behältPlatz = true;
    return a;
}

Anordnung breit(Anordnung a, double breite)
{
    a.breite = breite;
    return a;
}

} // namespace anordnung
