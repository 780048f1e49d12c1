#include "platform/qt/Anordner.h"

#include "platform/qt/Ansicht.h"
#include "platform/qt/Auswahlbox.h"
#include "platform/qt/Etikett.h"
#include "platform/qt/Flaechen.h"
#include "platform/qt/Knoepfe.h"
#include "platform/qt/Listenansicht.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Tabelle.h"
#include "platform/qt/Textbox.h"
#include "platform/qt/Umschrift.h"
#include "platform/qt/Vorlesen.h"

#include <QBoxLayout>
#include <QFrame>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

using Wort = Anordnung::Wort;

constexpr double feldbreite = 24;
constexpr double kartenbreite = 44;
constexpr double kastenabstand = 0.5;
constexpr double seitenabstand = 0.6; ///< between cards

bool istWaagrecht(const QBoxLayout& layout)
{
    return layout.direction() == QBoxLayout::LeftToRight;
}

bool istBefehl(const Anordnung& a)
{
    return a.wort == Wort::Element && dynamic_cast<Schaltfläche*>(a.element) != nullptr && !a.füllt && a.breite <= 0;
}

/// Several commands in a row, perhaps with a gap.
bool sindBefehle(const Anordnung& a)
{
    return std::ranges::count_if(a.teile, istBefehl) > 1 && std::ranges::all_of(a.teile, [](const Anordnung& teil) {
               return istBefehl(teil) || teil.wort == Wort::Dehnung;
           });
}

bool sindOptionen(const Anordnung& a)
{
    return std::ranges::all_of(a.teile, [](const Anordnung& teil) {
        return teil.wort == Wort::Element && dynamic_cast<Optionsfeld*>(teil.element) != nullptr;
    });
}

} // namespace

void Anordner::baueSeite(const Anordnung& a, QVBoxLayout& ziel)
{
    ziel.setContentsMargins(em(0.7), em(0.65), em(0.7), em(0.65));
    ziel.setSpacing(em(seitenabstand));
    if (!füge(a, ziel)) {
        ziel.addStretch(1);
    }
}

bool Anordner::füge(const Anordnung& a, QBoxLayout& ziel)
{
    switch (a.wort) {
    case Wort::Element:
        return fügeElement(a, ziel);
    case Wort::Text:
        return fügeText(a, ziel);
    case Wort::Spalte:
        return fügeSpalte(a, ziel);
    case Wort::Zeile:
    case Wort::Feld:
    case Wort::Tabellenzeile:
        return fügeZeile(a, ziel);
    case Wort::Formular:
        return fügeFormular(a, ziel);
    case Wort::Trennlinie:
        return fügeLinie(ziel);
    case Wort::Karte:
        return fügeKarte(a, ziel);
    case Wort::Karten:
        return fügeKarten(a, ziel);
    case Wort::Tabelle:
        return fügeWidget(*new Tabelle(a, m_ansicht, m_eltern), ziel, false);
    case Wort::Decke:
        return fügeDecke(a, ziel);
    case Wort::Stapel:
        return fügeStapel(a, ziel);
    case Wort::Listung:
        return fügeWidget(*macheListung(a, m_ansicht, m_eltern), ziel, true);
    case Wort::Dehnung:
        ziel.addStretch(1);
        return true;
    }
    return false;
}

bool Anordner::fügeTeile(const Anordnung& a, QBoxLayout& ziel)
{
    bool füllt = false;
    for (const auto& teil : a.teile) {
        füllt = füge(teil, ziel) || füllt;
    }
    return füllt;
}

bool Anordner::fügeWidget(QWidget& widget, QBoxLayout& ziel, bool füllt)
{
    ziel.addWidget(&widget, füllt ? 1 : 0);
    return füllt;
}

QWidget* Anordner::macheElement(const Anordnung& a)
{
    auto* widget = m_ansicht.zeichne(*a.element, m_eltern);
    if (a.behältPlatz) {
        auto regel = widget->sizePolicy();
        regel.setRetainSizeWhenHidden(true);
        widget->setSizePolicy(regel);
    }
    auto* box = dynamic_cast<Auswahlbox*>(widget);
    if (a.breite > 0 && dynamic_cast<Knopf*>(widget) != nullptr) {
        widget->setMinimumWidth(em(a.breite)); // a wide font is not cut
    } else if (auto* liste = dynamic_cast<Listenansicht*>(widget)) {
        liste->setzeMindestbreite(em(a.breite));
    } else if (a.breite > 0) {
        widget->setFixedWidth(em(a.breite));
    } else if (box != nullptr && box->isEditable()) {
        widget->setFixedWidth(em(4.6));
    } else if (box != nullptr || (dynamic_cast<Textzeile*>(widget) != nullptr && !a.füllt)) {
        widget->setMaximumWidth(em(feldbreite));
    }
    return widget;
}

bool Anordner::fügeElement(const Anordnung& a, QBoxLayout& ziel)
{
    auto* widget = macheElement(a);
    auto regel = widget->sizePolicy();
    if (a.füllt && dynamic_cast<Knopf*>(widget) != nullptr) {
        regel.setHorizontalPolicy(QSizePolicy::Expanding);
        widget->setSizePolicy(regel);
    }
    const bool dehnbar = regel.expandingDirections().testFlag(istWaagrecht(ziel) ? Qt::Horizontal : Qt::Vertical);
    const bool füllt = a.füllt || (dehnbar && !istWaagrecht(ziel));
    // what does not grow stands at the left of a column
    const bool steht = !istWaagrecht(ziel) && (regel.horizontalPolicy() == QSizePolicy::Fixed ||
                                               regel.horizontalPolicy() == QSizePolicy::Maximum);
    ziel.addWidget(widget, füllt || dehnbar ? 1000 : 0, steht ? Qt::AlignLeft : Qt::Alignment());
    return füllt;
}

bool Anordner::fügeText(const Anordnung& a, QBoxLayout& ziel)
{
    auto* text = new Etikett(alsQString(a.text), m_eltern);
    text->setFont(schrift(Schriftrolle::Kartentitel));
    if (a.breite > 0) {
        text->setFixedWidth(em(a.breite));
        text->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    return fügeWidget(*text, ziel, false);
}

bool Anordner::fügeSpalte(const Anordnung& a, QBoxLayout& ziel)
{
    auto* spalte = ohneRand(new QVBoxLayout, sindOptionen(a)                       ? 0
                                             : ziel.spacing() == em(seitenabstand) ? seitenabstand
                                                                                   : kastenabstand);
    ziel.addLayout(spalte);
    const bool füllt = fügeTeile(a, *spalte) || a.füllt;
    ziel.setStretchFactor(spalte, füllt ? 1 : 0);
    return füllt;
}

bool Anordner::fügeBefehle(const Anordnung& a, QBoxLayout& ziel)
{
    auto* reihe = new Umbruchreihe(m_eltern);
    const QScopedValueRollback<QWidget*> eltern(m_eltern, reihe);
    bool rechts = false;
    for (const auto& teil : a.teile) {
        if (teil.wort == Wort::Dehnung) {
            rechts = true;
        } else {
            reihe->füge(*macheElement(teil), rechts);
        }
    }
    return fügeWidget(*reihe, ziel, false);
}

bool Anordner::fügeZeile(const Anordnung& a, QBoxLayout& ziel)
{
    if (a.wort == Wort::Zeile && sindBefehle(a) && !istWaagrecht(ziel)) {
        return fügeBefehle(a, ziel);
    }
    auto* zeile = ohneRand(new QHBoxLayout, kastenabstand);
    ziel.addLayout(zeile);
    if (!fügeTeile(a, *zeile)) {
        zeile->addStretch(1);
    }
    benenneNachKnopf(a);
    return a.füllt;
}

/// A text without a label, beside the button that fills it, is called as the button is.
void Anordner::benenneNachKnopf(const Anordnung& zeile) const
{
    if (zeile.teile.size() != 2 || zeile.teile.front().wort != Wort::Element ||
        zeile.teile.back().wort != Wort::Element) {
        return;
    }
    auto* text = dynamic_cast<Textzeile*>(m_ansicht.widgetVon(*zeile.teile.front().element));
    if (text != nullptr && text->accessibleName().isEmpty()) {
        benenne(*text, gesprochen(alsQString(zeile.teile.back().element->text())));
    }
}

QWidget* Anordner::macheWidget(const Anordnung& a, bool& füllt, double abstand)
{
    if (a.wort == Wort::Element) {
        füllt = a.füllt || füllt;
        return macheElement(a);
    }
    auto* kasten = new QWidget(m_eltern);
    const QScopedValueRollback<QWidget*> eltern(m_eltern, kasten);
    auto* layout = ohneRand(new QVBoxLayout(kasten), abstand);
    if (füge(a, *layout)) {
        füllt = true;
    } else {
        layout->addStretch(1);
    }
    return kasten;
}

bool Anordner::fügeLinie(QBoxLayout& ziel)
{
    auto* linie = new QFrame(m_eltern);
    linie->setProperty("rolle", "linie");
    linie->setFixedHeight(1);
    ziel.addSpacing(em(0.35));
    ziel.addWidget(linie);
    ziel.addSpacing(em(0.45));
    return false;
}

bool Anordner::fügeDecke(const Anordnung& a, QBoxLayout& ziel)
{
    auto* fläche = new Deckfläche(m_eltern);
    const QScopedValueRollback<QWidget*> eltern(m_eltern, fläche);
    bool füllt = a.füllt;
    auto* darunter = macheWidget(a.teile.front(), füllt, kastenabstand);
    auto& element = *a.teile.back().element;
    auto* decke = dynamic_cast<Knopf*>(m_ansicht.zeichne(element, m_eltern));
    if (a.teile.front().wort == Wort::Element) {
        decke->seiWertdecke();
    }
    fläche->füge(*darunter);
    fläche->füge(*decke);
    decke->raise();
    m_ansicht.folge(element.geändert, [darunter, decke] { darunter->setEnabled(decke->isHidden()); });
    return fügeWidget(*fläche, ziel, füllt);
}

bool Anordner::fügeStapel(const Anordnung& a, QBoxLayout& ziel)
{
    auto* fläche = new Stapelfläche(m_eltern);
    const QScopedValueRollback<QWidget*> eltern(m_eltern, fläche);
    bool füllt = a.füllt;
    for (const auto& teil : a.teile) {
        fläche->füge(*macheWidget(teil, füllt, kastenabstand));
    }
    return fügeWidget(*fläche, ziel, füllt);
}

bool Anordner::fügeKarten(const Anordnung& a, QBoxLayout& ziel)
{
    auto* reihe = new Kartenreihe(m_eltern);
    const QScopedValueRollback<QWidget*> eltern(m_eltern, reihe);
    bool füllt = a.füllt;
    for (const auto& teil : a.teile) {
        bool spalteFüllt = teil.füllt;
        auto* spalte =
            teil.wort == Wort::Karte ? macheKarte(teil, spalteFüllt) : macheWidget(teil, spalteFüllt, seitenabstand);
        const bool hatKarten = teil.wort == Wort::Karte || std::ranges::any_of(teil.teile, [](const Anordnung& t) {
                                   return t.wort == Wort::Karte;
                               });
        // a column of buttons is as wide as they are
        const int höchstbreite = teil.breite > 0 ? em(teil.breite)
                                 : hatKarten     ? em(kartenbreite)
                                                 : spalte->sizeHint().width();
        reihe->füge(*spalte, höchstbreite, spalteFüllt);
        füllt = füllt || spalteFüllt;
    }
    return fügeWidget(*reihe, ziel, füllt);
}

bool Anordner::fügeKarte(const Anordnung& a, QBoxLayout& ziel)
{
    bool füllt = a.füllt;
    auto* karte = macheKarte(a, füllt);
    if (a.breite <= 0 || !m_istSeite || istWaagrecht(ziel)) {
        return fügeWidget(*karte, ziel, füllt);
    }
    karte->setzeBreite(em(a.breite));
    ziel.addSpacing(em(0.4));
    auto* mitte = ohneRand(new QHBoxLayout, 0);
    mitte->addStretch(1);
    mitte->addWidget(karte, 1000);
    mitte->addStretch(1);
    ziel.addLayout(mitte, füllt ? 1 : 0);
    return füllt;
}

Karte* Anordner::macheKarte(const Anordnung& a, bool& füllt)
{
    auto* karte = new Karte(m_eltern);
    const QScopedValueRollback<QWidget*> eltern(m_eltern, karte);
    karte->setProperty("rolle", "karte");
    karte->setAccessibleName(alsQString(a.element == nullptr ? a.text : a.element->text()));
    auto* layout = ohneRand(new QVBoxLayout(karte), 0.35);
    const bool geräumig = !m_istSeite || a.breite > 0;
    const int seite = em(geräumig ? 1.2 : 0.55);
    layout->setContentsMargins(seite, em(geräumig ? 0.7 : 0.25), seite, em(geräumig ? 0.9 : 0.45));
    if (!a.text.empty() || a.element != nullptr || !a.köpfe.empty()) {
        auto* zeile = ohneRand(new QHBoxLayout, 0.6);
        auto* titel = a.element == nullptr ? new Etikett(alsQString(a.text), karte)
                                           : dynamic_cast<Etikett*>(m_ansicht.zeichne(*a.element, karte));
        titel->setFont(schrift(Schriftrolle::Kartentitel));
        zeile->addWidget(titel);
        for (auto* kopf : a.köpfe) {
            auto* widget = m_ansicht.zeichne(*kopf, karte);
            if (dynamic_cast<Etikett*>(widget) != nullptr) {
                widget->setProperty("rolle", "kopf");
                zeile->addWidget(widget);
            } else {
                zeile->addStretch(1);
                zeile->addWidget(widget);
                benenneFüller(*widget, a.text);
            }
        }
        zeile->addStretch(1);
        layout->addLayout(zeile);
    }
    füllt = fügeTeile(a, *layout) || füllt;
    benenneUnbenannte(*karte, alsQString(a.text));
    karte->setSizePolicy(QSizePolicy::Expanding, füllt ? QSizePolicy::Expanding : QSizePolicy::Maximum);
    return karte;
}
