#include "platform/qt/Anordner.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Etikett.h"
#include "platform/qt/Knoepfe.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Umschrift.h"
#include "platform/qt/Vorlesen.h"

#include <QBoxLayout>
#include <QScopedValueRollback>

#include <algorithm>

// The words of a form: rows of label and field on one grid. Since the labels have a width of their own, every
// row is a layout of its own, and a hidden row closes up.

namespace {

using Wort = Anordnung::Wort;

constexpr double formularzeilenhöhe = 1.9;
constexpr double formularzeilenhöheMindestens = 1.6; ///< where the page would have to scroll otherwise

void sammle(const Anordnung& a, std::vector<Element*>& elemente)
{
    if (a.wort == Wort::Element) {
        elemente.push_back(a.element);
    }
    for (const auto& teil : a.teile) {
        sammle(teil, elemente);
    }
}

bool behältPlatz(const Anordnung& a)
{
    return a.behältPlatz || a.wort == Wort::Stapel || std::ranges::any_of(a.teile, behältPlatz);
}

class Formularzeile : public QWidget {
public:
    explicit Formularzeile(QWidget* eltern) : QWidget(eltern)
    {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    }

    QSize sizeHint() const override
    {
        return (QWidget::sizeHint() + QSize(0, em(0.3))).expandedTo({0, em(formularzeilenhöhe)});
    }
    QSize minimumSizeHint() const override
    {
        return QWidget::minimumSizeHint().expandedTo({0, em(formularzeilenhöheMindestens)});
    }
};

/// The fields of a row; a button is none, its name is its caption.
std::vector<QWidget*> felderIn(const Ansicht& ansicht, const std::vector<Element*>& elemente)
{
    std::vector<QWidget*> felder;
    for (const auto* element : elemente) {
        auto* widget = ansicht.widgetVon(*element);
        if (dynamic_cast<Knopf*>(widget) == nullptr) {
            felder.push_back(widget);
        }
    }
    return felder;
}

/// Fields that share a question are told apart by their number.
void benenneFelder(const std::vector<QWidget*>& felder, const Etikett& beschriftung)
{
    const auto name = gesprochen(beschriftung.text());
    for (std::size_t i = 0; i < felder.size(); ++i) {
        benenne(*felder[i], felder.size() == 1 ? name : name + QStringLiteral(" %1").arg(i + 1));
    }
}

} // namespace

bool Anordner::fügeFormular(const Anordnung& a, QBoxLayout& ziel)
{
    auto* formular = ohneRand(new QVBoxLayout);
    ziel.addLayout(formular);
    bool füllt = a.füllt;
    for (const auto& teil : a.teile) {
        if (teil.wort == Wort::Feld) {
            fügeFeld(teil, a.breite, *formular);
        } else {
            füllt = füge(teil, *formular) || füllt;
        }
    }
    ziel.setStretchFactor(formular, füllt ? 1 : 0);
    return füllt;
}

void Anordner::fügeFeld(const Anordnung& feld, double beschriftungsbreite, QBoxLayout& ziel)
{
    auto* zeile = new Formularzeile(m_eltern);
    const QScopedValueRollback<QWidget*> eltern(m_eltern, zeile);
    auto* layout = ohneRand(new QHBoxLayout(zeile), 0.5);
    auto* beschriftung = feld.element == nullptr ? new Etikett(alsQString(feld.text), m_eltern)
                                                 : dynamic_cast<Etikett*>(m_ansicht.zeichne(*feld.element, m_eltern));
    beschriftung->setzeUmbruchbreite(em(beschriftungsbreite));
    layout->addWidget(beschriftung, 0, Qt::AlignVCenter);
    for (const auto& teil : feld.teile) {
        füge(teil, *layout);
    }
    layout->addStretch(1);
    ziel.addWidget(zeile);
    verbindeFeld(feld, *beschriftung, *zeile);
}

/// The label is the name of its fields; a row whose parts are all hidden goes, unless it keeps its place.
void Anordner::verbindeFeld(const Anordnung& feld, Etikett& beschriftung, QWidget& zeile)
{
    std::vector<Element*> elemente;
    for (const auto& teil : feld.teile) {
        sammle(teil, elemente);
    }
    const auto felder = felderIn(m_ansicht, elemente);
    benenneFelder(felder, beschriftung);
    for (auto* eines : felder) {
        beschrifte(*eines, beschriftung);
    }
    auto regel = zeile.sizePolicy();
    regel.setRetainSizeWhenHidden(std::ranges::any_of(feld.teile, behältPlatz));
    zeile.setSizePolicy(regel);
    auto zeige = [elemente, &zeile, eigene = feld.element] {
        const bool sichtbar = std::ranges::any_of(elemente, [](const Element* e) { return e->istSichtbar(); });
        zeile.setVisible(sichtbar || (eigene != nullptr && eigene->istSichtbar()));
    };
    zeige();
    for (auto* element : elemente) {
        m_ansicht.abonniere(element->geändert, zeige);
    }
    if (feld.element != nullptr) {
        m_ansicht.abonniere(feld.element->geändert, zeige);
        m_ansicht.abonniere(feld.element->geändert, [felder, &beschriftung] { benenneFelder(felder, beschriftung); });
    }
}
