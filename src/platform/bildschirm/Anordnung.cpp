#include "platform/bildschirm/Anordnung.h"

namespace anordnung {

namespace {

Anordnung wort(Anordnung::Wort w, std::vector<Anordnung> teile = {})
{
    Anordnung a;
    a.wort = w;
    a.teile = std::move(teile);
    return a;
}

} // namespace

Anordnung element(Element& e, double breite)
{
    auto a = wort(Anordnung::Wort::Element);
    a.element = &e;
    a.breite = breite;
    return a;
}

Anordnung text(std::string_view text)
{
    auto a = wort(Anordnung::Wort::Text);
    a.text = text;
    return a;
}

Anordnung spalte(std::vector<Anordnung> teile)
{
    return wort(Anordnung::Wort::Spalte, std::move(teile));
}

Anordnung zeile(std::vector<Anordnung> teile)
{
    return wort(Anordnung::Wort::Zeile, std::move(teile));
}

Anordnung dehnung()
{
    return wort(Anordnung::Wort::Dehnung);
}

Anordnung formular(std::vector<Anordnung> zeilen, double beschriftungsbreite)
{
    auto a = wort(Anordnung::Wort::Formular, std::move(zeilen));
    a.breite = beschriftungsbreite;
    return a;
}

Anordnung feld(std::string_view beschriftung, std::vector<Anordnung> teile)
{
    auto a = wort(Anordnung::Wort::Feld, std::move(teile));
    a.text = beschriftung;
    return a;
}

Anordnung feld(Beschriftung& beschriftung, std::vector<Anordnung> teile)
{
    auto a = wort(Anordnung::Wort::Feld, std::move(teile));
    a.element = &beschriftung;
    return a;
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
    return wort(Anordnung::Wort::Trennlinie);
}

Anordnung karte(std::string_view titel, Anordnung inhalt, std::vector<Element*> köpfe)
{
    auto a = wort(Anordnung::Wort::Karte, {std::move(inhalt)});
    a.text = titel;
    a.köpfe = std::move(köpfe);
    return a;
}

Anordnung karte(Beschriftung& titel, Anordnung inhalt)
{
    auto a = wort(Anordnung::Wort::Karte, {std::move(inhalt)});
    a.element = &titel;
    return a;
}

Anordnung karten(std::vector<Anordnung> spalten)
{
    return wort(Anordnung::Wort::Karten, std::move(spalten));
}

Anordnung tabelle(std::string_view titel, std::vector<Tabellenspalte> spalten, std::vector<Anordnung> zeilen)
{
    auto a = wort(Anordnung::Wort::Tabelle, std::move(zeilen));
    a.text = titel;
    a.spalten = std::move(spalten);
    return a;
}

Anordnung tabellenzeile(Beschriftung& beschriftung, std::vector<Element*> zellen)
{
    auto a = wort(Anordnung::Wort::Tabellenzeile);
    a.element = &beschriftung;
    for (auto* zelle : zellen) {
        a.teile.push_back(zelle == nullptr ? wort(Anordnung::Wort::Text) : element(*zelle));
    }
    return a;
}

Anordnung decke(Anordnung darunter, Schaltfläche& decke)
{
    return wort(Anordnung::Wort::Decke, {std::move(darunter), element(decke)});
}

Anordnung stapel(std::vector<Anordnung> teile)
{
    return wort(Anordnung::Wort::Stapel, std::move(teile));
}

Anordnung listung(std::vector<Tabellenspalte> spalten, std::string_view überschriftErste,
                  std::string_view überschriftRest, std::vector<Anordnung> zeilen, Bildlaufleiste& leiste,
                  Fläche& vorne, Fläche& hinten)
{
    auto a = wort(Anordnung::Wort::Listung, std::move(zeilen));
    a.spalten = std::move(spalten);
    a.element = &leiste;
    a.köpfe = {&vorne, &hinten};
    a.text = verbinde(überschriftErste, '\n', überschriftRest);
    return a;
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
