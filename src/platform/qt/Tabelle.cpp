#include "platform/qt/Tabelle.h"

#include "platform/qt/Ansicht.h"
#include "platform/qt/Antwortfeld.h"
#include "platform/qt/Auswahlbox.h"
#include "platform/qt/Etikett.h"
#include "platform/qt/Knoepfe.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Umschrift.h"
#include "platform/qt/Vorlesen.h"

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QPainter>

#include <algorithm>

namespace {

constexpr std::size_t zeilenInSicht = 12;
constexpr double zeileEng = 1.38;
constexpr double zeileWeit = 1.7;
constexpr double beschriftungMindestens = 18;
constexpr double beschriftungHöchstens = 31;

int zeilenhöhe(const Anordnung& tabelle)
{
    return em(tabelle.teile.size() <= zeilenInSicht ? zeileWeit : zeileEng);
}

/// A choice says its question by its labels, of which some readers follow the first one only.
void benenneZelle(QWidget& zelle, const Tabellenspalte& spalte, const Anordnung& zeile)
{
    const auto trennung = QStringLiteral(", ");
    QStringList köpfe{alsQString(spalte.gruppe), alsQString(spalte.titel)};
    köpfe.removeAll(QString());
    benenne(zelle, gesprochen((QStringList(alsQString(zeile.element->text())) + köpfe).join(trennung)));
    if (dynamic_cast<Optionsknopf*>(&zelle) == nullptr) {
        unterscheide(zelle, köpfe.join(trennung));
    }
}

QWidget* baueZelle(Element& element, int breite, Ansicht& ansicht, QWidget* eltern)
{
    auto* zelle = ansicht.zeichne(element, eltern);
    if (auto* knopf = dynamic_cast<Optionsknopf*>(zelle)) {
        knopf->seiZelle(breite, em(zeileEng) - 1);
    } else if (auto* box = dynamic_cast<Auswahlbox*>(zelle)) {
        box->setProperty("eng", true);
        box->setFixedWidth(std::min(breite, em(box->isEditable() ? 3.9 : 10)));
    }
    return zelle;
}

} // namespace

Antwortzeile::Antwortzeile(const Anordnung& zeile, const Anordnung& tabelle, const Tabellenkopf& kopf, Ansicht& ansicht,
                           QWidget* eltern)
    : QWidget(eltern), m_beschriftung(dynamic_cast<Etikett&>(*ansicht.zeichne(*zeile.element, this)))
{
    setAttribute(Qt::WA_Hover);
    auto* gitter = ohneRand(new QGridLayout(this));
    gitter->setRowMinimumHeight(0, zeilenhöhe(tabelle));
    richteSpaltenEin(*gitter, tabelle);
    // a row without answers in its first columns gives their place to its label
    const auto erste = std::ranges::find_if(zeile.teile, [](const Anordnung& teil) { return teil.element != nullptr; });
    gitter->addWidget(&m_beschriftung, 0, 0, 1, 1 + static_cast<int>(erste - zeile.teile.begin()));
    m_beschriftung.setWordWrap(true);
    m_beschriftung.setContentsMargins(em(0.28), 0, em(0.22), 1);
    for (std::size_t i = 0; i < zeile.teile.size(); ++i) {
        if (auto* element = zeile.teile[i].element) {
            auto* zelle = baueZelle(*element, em(tabelle.spalten[i].breite), ansicht, this);
            gitter->addWidget(zelle, 0, gitterspalte(tabelle, i), Qt::AlignCenter);
            benenneZelle(*zelle, tabelle.spalten[i], zeile);
            beschrifte(*zelle, m_beschriftung); // row and column say together what it asks
            for (auto* etikett : kopf.etiketten(i)) {
                beschrifte(*zelle, *etikett);
            }
        }
    }
}

int Antwortzeile::bevorzugteBeschriftungsbreite() const
{
    return qRound(m_beschriftung.textbreite()) + em(0.8);
}

void Antwortzeile::paintEvent(QPaintEvent* /*ereignis*/)
{
    QPainter maler(this);
    const auto& f = farben();
    if (isAncestorOf(QApplication::focusWidget()) && isEnabled()) {
        maler.fillRect(rect(), f.wahl);
    } else if (underMouse() && isEnabled()) {
        maler.fillRect(rect(), f.zebra);
    }
    maler.fillRect(0, height() - 1, width(), 1, f.linie);
}

Tabelle::Tabelle(const Anordnung& tabelle, Ansicht& ansicht, QWidget* eltern)
    : QScrollArea(eltern), m_kopf(new Tabellenkopf(tabelle, ansicht, this)), m_spaltenbreite(0),
      m_mindesthöhe(static_cast<int>(std::min(zeilenInSicht, tabelle.teile.size())) * zeilenhöhe(tabelle))
{
    auto* blatt = new QWidget(viewport());
    setWidgetResizable(true);
    setWidget(blatt); // while it is empty: the rows would be laid out for a width that they never have
    viewport()->setAutoFillBackground(false);
    blatt->setAutoFillBackground(false);
    auto* zeilen = ohneRand(new QVBoxLayout(blatt));
    for (const auto& zeile : tabelle.teile) {
        m_zeilen.push_back(new Antwortzeile(zeile, tabelle, *m_kopf, ansicht, blatt));
        zeilen->addWidget(m_zeilen.back());
    }
    zeilen->addStretch(1);
    for (const auto& spalte : tabelle.spalten) {
        m_spaltenbreite += em(spalte.breite);
    }
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    setViewportMargins(0, m_kopf->sizeHint().height(), 0, 0);
}

QSize Tabelle::sizeHint() const
{
    int beschriftung = em(beschriftungMindestens);
    for (const auto* zeile : m_zeilen) {
        beschriftung = std::max(beschriftung, zeile->bevorzugteBeschriftungsbreite());
    }
    const int gern = std::min(beschriftung, em(beschriftungHöchstens)) + m_spaltenbreite;
    const int breite = isVisible() ? viewport()->width() : gern;
    return {gern, m_kopf->sizeHint().height() + widget()->heightForWidth(breite)};
}

QSize Tabelle::minimumSizeHint() const
{
    return {em(beschriftungMindestens) + m_spaltenbreite + em(0.75), m_kopf->sizeHint().height() + m_mindesthöhe};
}

void Tabelle::resizeEvent(QResizeEvent* ereignis)
{
    m_kopf->setGeometry(0, 0, viewport()->width(), m_kopf->sizeHint().height());
    QScrollArea::resizeEvent(ereignis);
    updateGeometry(); // the height follows the width
}

bool Tabelle::viewportEvent(QEvent* ereignis)
{
    if (ereignis->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QScrollArea::viewportEvent(ereignis);
}
