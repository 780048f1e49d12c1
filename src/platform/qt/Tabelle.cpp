#include "platform/qt/Tabelle.h"

#include "platform/qt/Ansicht.h"
#include "platform/qt/Antwortfeld.h"
#include "platform/qt/Auswahlbox.h"
#include "platform/qt/Elementzeichner.h"
#include "platform/qt/Etikett.h"
#include "platform/qt/Flaechen.h"
#include "platform/qt/Knoepfe.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Umschrift.h"
#include "platform/qt/Vorlesen.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr std::size_t zeilenInSicht = 12;
constexpr double zeileEng = 1.38;
constexpr double zeileWeit = 1.7;
constexpr double beschriftungMindestens = 18;
constexpr double beschriftungHöchstens = 31;

std::vector<int> spaltenbreiten(const Anordnung& tabelle)
{
    std::vector<int> breiten;
    for (const auto& spalte : tabelle.spalten) {
        breiten.push_back(em(spalte.breite));
    }
    return breiten;
}

/// What stands over the column.
QStringList köpfeDer(const Tabellenspalte& spalte)
{
    QStringList teile{alsQString(spalte.gruppe), alsQString(spalte.titel)};
    teile.removeAll(QString());
    return teile;
}

/// A choice says its question by its labels, of which some readers follow the first one only.
void benenneZelle(QWidget& zelle, const Tabellenspalte& spalte, const Anordnung& zeile)
{
    const auto trennung = QStringLiteral(", ");
    const auto köpfe = köpfeDer(spalte);
    benenne(zelle, gesprochen((QStringList(alsQString(zeile.element->text())) + köpfe).join(trennung)));
    if (dynamic_cast<Optionsknopf*>(&zelle) == nullptr) {
        unterscheide(zelle, köpfe.join(trennung));
    }
}

QWidget* baueZelle(Element& element, int breite, Ansicht& ansicht, QWidget* eltern)
{
    auto* zelle = zeichneElement(element, ansicht, eltern);
    if (auto* knopf = dynamic_cast<Optionsknopf*>(zelle)) {
        knopf->seiZelle(breite, em(zeileEng) - 1);
    } else if (auto* box = dynamic_cast<Auswahlbox*>(zelle)) {
        box->setProperty("eng", true);
        box->setFixedWidth(std::min(breite, em(box->isEditable() ? 3.9 : 10)));
    }
    return zelle;
}

} // namespace

void Antwortzeile::setze(Etikett& beschriftung, std::vector<QWidget*> zellen)
{
    m_beschriftung = &beschriftung;
    m_beschriftung->setWordWrap(true);
    m_zellen = std::move(zellen);
    setAttribute(Qt::WA_Hover);
}

int Antwortzeile::bevorzugteBeschriftungsbreite() const
{
    return m_beschriftung->fontMetrics().horizontalAdvance(m_beschriftung->text()) + em(0.8);
}

int Antwortzeile::ordne(int breite, const std::vector<int>& spalten, int mindesthöhe)
{
    int links = breite - summe(spalten);
    // a row without answers in its first columns gives their place to its label
    int ende = links;
    for (std::size_t i = 0; i < m_zellen.size() && m_zellen[i] == nullptr; ++i) {
        ende += spalten[i];
    }
    const QRect platz(em(0.28), 0, ende - em(0.5), mindesthöhe);
    int höhe = std::max(mindesthöhe, m_beschriftung->heightForWidth(platz.width()) + 1);
    for (const auto* zelle : m_zellen) {
        höhe = std::max(höhe, zelle == nullptr ? 0 : zelle->sizeHint().height());
    }
    m_beschriftung->setGeometry(platz.x(), 0, platz.width(), höhe - 1);
    for (std::size_t i = 0; i < m_zellen.size(); ++i) {
        if (auto* zelle = m_zellen[i]) {
            const QSize größe = zelle->sizeHint().boundedTo(zelle->maximumSize()).expandedTo(zelle->minimumSize());
            zelle->setGeometry(links + (spalten[i] - größe.width()) / 2, (höhe - größe.height()) / 2, größe.width(),
                               größe.height());
        }
        links += spalten[i];
    }
    return höhe;
}

void Antwortzeile::beschrifteZellen(const Tabellenkopf& kopf)
{
    for (std::size_t i = 0; i < m_zellen.size(); ++i) {
        if (m_zellen[i] == nullptr) {
            continue;
        }
        beschrifte(*m_zellen[i], *m_beschriftung);
        for (auto* etikett : kopf.etiketten(i)) {
            beschrifte(*m_zellen[i], *etikett);
        }
    }
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

/// The rows, all of them.
class Tabelle::Blatt : public Handfläche {
public:
    Blatt(const Anordnung& tabelle, Ansicht& ansicht, QWidget* eltern)
        : Handfläche(eltern), m_spalten(spaltenbreiten(tabelle))
    {
        for (const auto& zeile : tabelle.teile) {
            fügeZeile(zeile, tabelle.spalten, ansicht);
        }
    }

    /// Row and column say together what a cell asks.
    void beschrifteZellen(const Tabellenkopf& kopf)
    {
        for (auto* zeile : m_zeilen) {
            zeile->beschrifteZellen(kopf);
        }
    }
    int höheBei(int breite) const
    {
        int höhe = 0;
        for (auto* zeile : m_zeilen) {
            höhe += zeile->ordne(breite, m_spalten, zeilenhöhe());
        }
        return höhe;
    }
    /// Height of the first rows, as many as must always be in sight.
    int mindesthöhe() const { return static_cast<int>(std::min(zeilenInSicht, m_zeilen.size())) * zeilenhöhe(); }
    int bevorzugteBreite() const
    {
        int beschriftung = em(beschriftungMindestens);
        for (const auto* zeile : m_zeilen) {
            beschriftung = std::max(beschriftung, zeile->bevorzugteBeschriftungsbreite());
        }
        return std::min(beschriftung, em(beschriftungHöchstens)) + summe(m_spalten);
    }
    QSize sizeHint() const override { return size(); }

protected:
    void ordne() override
    {
        int oben = 0;
        for (auto* zeile : m_zeilen) {
            const int höhe = zeile->ordne(width(), m_spalten, zeilenhöhe());
            zeile->setGeometry(0, oben, width(), höhe);
            oben += höhe;
        }
    }

private:
    void fügeZeile(const Anordnung& zeile, const std::vector<Tabellenspalte>& köpfe, Ansicht& ansicht)
    {
        auto* neue = new Antwortzeile(this);
        auto& beschriftung = dynamic_cast<Etikett&>(*zeichneElement(*zeile.element, ansicht, neue)); // read out first
        std::vector<QWidget*> zellen;
        for (std::size_t i = 0; i < zeile.teile.size(); ++i) {
            auto* element = zeile.teile[i].element;
            zellen.push_back(element == nullptr ? nullptr : baueZelle(*element, m_spalten[i], ansicht, neue));
            if (zellen.back() != nullptr) {
                benenneZelle(*zellen.back(), köpfe[i], zeile);
            }
        }
        neue->setze(beschriftung, std::move(zellen));
        m_zeilen.push_back(neue);
    }
    int zeilenhöhe() const { return em(m_zeilen.size() <= zeilenInSicht ? zeileWeit : zeileEng); }

    std::vector<Antwortzeile*> m_zeilen;
    std::vector<int> m_spalten;
};

Tabelle::Tabelle(const Anordnung& tabelle, Ansicht& ansicht, QWidget* eltern)
    : QScrollArea(eltern), m_spalten(spaltenbreiten(tabelle)),
      m_kopf(new Tabellenkopf(tabelle, Tabellenkopf::Form::Tabelle, ansicht, this)),
      m_blatt(new Blatt(tabelle, ansicht, viewport()))
{
    m_blatt->beschrifteZellen(*m_kopf);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    m_kopf->ordne(em(30), m_spalten);
    setViewportMargins(0, m_kopf->höhe(), 0, 0);
    setWidget(m_blatt);
    viewport()->setAutoFillBackground(false);
    m_blatt->setAutoFillBackground(false);
}

QSize Tabelle::sizeHint() const
{
    const int breite = isVisible() ? viewport()->width() : m_blatt->bevorzugteBreite();
    return {m_blatt->bevorzugteBreite(), m_kopf->höhe() + m_blatt->höheBei(breite)};
}

QSize Tabelle::minimumSizeHint() const
{
    return {em(beschriftungMindestens) + summe(m_spalten) + em(0.75), m_kopf->höhe() + m_blatt->mindesthöhe()};
}

void Tabelle::ordne()
{
    const int breite = viewport()->width();
    m_kopf->ordne(breite, m_spalten);
    m_blatt->resize(breite, m_blatt->höheBei(breite));
}

void Tabelle::resizeEvent(QResizeEvent* ereignis)
{
    ordne();
    QScrollArea::resizeEvent(ereignis);
    updateGeometry();
}

bool Tabelle::viewportEvent(QEvent* ereignis)
{
    if (ereignis->type() == QEvent::LayoutRequest) {
        ordne();
        updateGeometry();
    }
    return QScrollArea::viewportEvent(ereignis);
}
