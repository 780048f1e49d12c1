#pragma once

#include "platform/bildschirm/Anordnung.h"

class Ansicht;
class Etikett;
class Karte;
class QBoxLayout;
class QVBoxLayout;
class QWidget;

/// Turns the words of an arrangement into layouts. One method for each word; the words nest.
class Anordner {
public:
    /// `istSeite`: cards of a given width stand in the middle, as they do on a page of the frame.
    Anordner(Ansicht& ansicht, QWidget& wurzel, bool istSeite)
        : m_ansicht(ansicht), m_eltern(&wurzel), m_istSeite(istSeite)
    {}

    /// The body of a screen.
    void baueSeite(const Anordnung& a, QVBoxLayout& ziel);

private:
    /// Appends the part to the layout; returns whether it takes what is left of the layout's direction.
    bool füge(const Anordnung& a, QBoxLayout& ziel);
    bool fügeTeile(const Anordnung& a, QBoxLayout& ziel);
    bool fügeElement(const Anordnung& a, QBoxLayout& ziel);
    bool fügeText(const Anordnung& a, QBoxLayout& ziel);
    bool fügeSpalte(const Anordnung& a, QBoxLayout& ziel);
    bool fügeBefehle(const Anordnung& a, QBoxLayout& ziel);
    bool fügeZeile(const Anordnung& a, QBoxLayout& ziel);
    bool fügeFormular(const Anordnung& a, QBoxLayout& ziel);
    bool fügeLinie(QBoxLayout& ziel);
    bool fügeKarte(const Anordnung& a, QBoxLayout& ziel);
    bool fügeKarten(const Anordnung& a, QBoxLayout& ziel);
    bool fügeDecke(const Anordnung& a, QBoxLayout& ziel);
    bool fügeStapel(const Anordnung& a, QBoxLayout& ziel);
    void benenneNachKnopf(const Anordnung& zeile) const;
    bool fügeWidget(QWidget& widget, QBoxLayout& ziel, bool füllt);

    void fügeFeld(const Anordnung& feld, double beschriftungsbreite, QBoxLayout& ziel);
    void verbindeFeld(const Anordnung& feld, Etikett& beschriftung, QWidget& zeile);
    // they tell in `füllt` too whether the part takes what is left
    Karte* macheKarte(const Anordnung& a, bool& füllt);
    /// The part as a widget of its own, what stands in it so many em apart.
    QWidget* macheWidget(const Anordnung& a, bool& füllt, double abstand);
    QWidget* macheElement(const Anordnung& a);

    Ansicht& m_ansicht;
    /// Under which widgets are made. Each is made under its final parent at once, since every move to another
    /// parent makes the style sheet work again for all that lies below.
    QWidget* m_eltern;
    bool m_istSeite;
};
