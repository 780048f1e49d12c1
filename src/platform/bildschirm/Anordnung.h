#pragma once

#include "platform/elemente/Elemente.h"

#include <string>
#include <string_view>
#include <vector>

/// The head of a column of a Tabelle: title, the group it stands under (two columns with the same group in
/// a row share it), the "!" that fills the column, and the kind of its cells.
struct Tabellenspalte {
    std::string titel;
    std::string gruppe;
    Schaltfläche* füller = nullptr;
    double breite = 3.7;
    Beschriftung* kopf = nullptr; ///< the element that is the title, where it has a name of its own
};

/// Where the elements of a screen stand, said in a handful of words; the surface turns them into layouts.
/// Lengths are in em, the height of a line of the system's font; 0 lets the surface choose.
///
/// The order of the words is the reading order, and reading order is tab order.
///
///     aufbau = karten({spalte({karte("Kinder:"_t, formular({feld("Anzahl"_t, comboKinder1, 4.6)}))}),
///                      spalte({karte({}, element(lvwKlienten))})});
struct Anordnung {
    enum class Wort {
        Element,    ///< one element
        Text,       ///< a fixed text (heading, unit) that is no element
        Spalte,     ///< parts below each other
        Zeile,      ///< parts side by side
        Formular,   ///< rows of label and field on one grid
        Feld,       ///< a row of a Formular: label (`text`, or the label `element`), then its parts
        Trennlinie, ///< a hairline between groups of a Formular
        Karte,      ///< a titled card; the part may be a list that fills the page
        Karten,     ///< columns (Spalte) of cards, side by side; below each other where they don't fit
        Tabelle,    ///< rows of label and cells under a head that stands still while the rows scroll
        Tabellenzeile,
        Decke,   ///< the first part, covered by the second (a button) while that one is visible
        Stapel,  ///< parts that share one place, at most one visible at a time
        Listung, ///< the diagnosis listing: `element` is the scroll bar, `köpfe` are frameVorne and
                 ///< frameHinten, `text` the two headings, separated by a line feed
        Dehnung, ///< takes the space that is left
    };

    Wort wort = Wort::Spalte;
    std::string text{};         ///< label, title or fixed text
    Element* element = nullptr; ///< Element; label of a Feld or Tabellenzeile; title of a Karte
    std::vector<Anordnung> teile{};
    double breite = 0;                     ///< em: width of an element or label column, of a card at most
    bool füllt = false;                    ///< takes the height (or width) that is left
    bool behältPlatz = false;              ///< a hidden element keeps its place
    std::vector<Tabellenspalte> spalten{}; ///< heads of a Tabelle or Listung
    std::vector<Element*> köpfe{};         ///< elements in the title line of a Karte (the "!")
};

namespace anordnung {

Anordnung element(Element& e, double breite = 0);
Anordnung text(std::string_view text);
Anordnung spalte(std::vector<Anordnung> teile);
Anordnung zeile(std::vector<Anordnung> teile);
Anordnung dehnung();
/// Rows of label and field; `beschriftungsbreite` in em.
Anordnung formular(std::vector<Anordnung> zeilen, double beschriftungsbreite = 16);
Anordnung feld(std::string_view beschriftung, Element& e, double breite = 0);
Anordnung feld(Beschriftung& beschriftung, Element& e, double breite = 0);
Anordnung feld(std::string_view beschriftung, std::vector<Anordnung> teile);
Anordnung feld(Beschriftung& beschriftung, std::vector<Anordnung> teile);
Anordnung trennlinie();
Anordnung karte(std::string_view titel, Anordnung inhalt, std::vector<Element*> köpfe = {});
/// The same with a title that is an element.
Anordnung karte(Beschriftung& titel, Anordnung inhalt);
Anordnung karten(std::vector<Anordnung> spalten);
/// `titel` heads the column of the row labels.
Anordnung tabelle(std::string_view titel, std::vector<Tabellenspalte> spalten, std::vector<Anordnung> zeilen);
/// A cell is nullptr where the row has no answer in that column.
Anordnung tabellenzeile(Beschriftung& beschriftung, std::vector<Element*> zellen);
Anordnung decke(Anordnung darunter, Schaltfläche& decke);
Anordnung stapel(std::vector<Anordnung> teile);
/// The diagnosis listing: `zeilen` are Zeile words of eight labels; the first (row 0) stands under
/// `überschriftErste`, the others move under `überschriftRest` inside `hinten`, by `leiste`.
Anordnung listung(std::vector<Tabellenspalte> spalten, std::string_view überschriftErste,
                  std::string_view überschriftRest, std::vector<Anordnung> zeilen, Bildlaufleiste& leiste,
                  Fläche& vorne, Fläche& hinten);

/// The same arrangement, filling what is left / keeping its place while hidden / at most so wide (em).
Anordnung füllend(Anordnung a);
Anordnung platzhaltend(Anordnung a);
Anordnung breit(Anordnung a, double breite);

} // namespace anordnung
