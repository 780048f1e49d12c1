#include "platform/qt/Flaechen.h"

#include "platform/qt/Stil.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

constexpr double knopfabstand = 0.5;
constexpr double kartenabstand = 0.6;

} // namespace

void Handfläche::resizeEvent(QResizeEvent* /*ereignis*/)
{
    ordne();
    updateGeometry(); // the height may follow the width
}

void Handfläche::showEvent(QShowEvent* /*ereignis*/)
{
    updateGeometry(); // nobody was told of what changed while it was hidden
}

bool Handfläche::event(QEvent* ereignis)
{
    if (ereignis->type() == QEvent::LayoutRequest) {
        ordne();
        updateGeometry();
    }
    return QWidget::event(ereignis);
}

void Karte::setzeBreite(int breite)
{
    m_breite = breite;
    setSizePolicy(QSizePolicy::Maximum, sizePolicy().verticalPolicy());
}

/// What changes in a card is painted anew with the card behind it, whose round border costs more than the rest.
void Karte::paintEvent(QPaintEvent* ereignis)
{
    constexpr double randbreite = 0.4; // more than the border is round
    const int rand = em(randbreite);
    if (rect().adjusted(rand, rand, -rand, -rand).contains(ereignis->rect())) {
        QPainter(this).fillRect(ereignis->rect(), farben().flaeche);
    } else {
        QGroupBox::paintEvent(ereignis);
    }
}

QSize Karte::sizeHint() const
{
    const QSize ihre = QGroupBox::sizeHint();
    return m_breite > 0 ? QSize(std::max(m_breite, minimumSizeHint().width()), ihre.height()) : ihre;
}

Stapelfläche::Stapelfläche(QWidget* eltern) : QWidget(eltern), m_platz(ohneRand(new QGridLayout(this)))
{}

void Stapelfläche::füge(QWidget& teil)
{
    if (m_platz->isEmpty()) {
        setSizePolicy(teil.sizePolicy());
    }
    QSizePolicy füllend(QSizePolicy::Preferred, QSizePolicy::Preferred);
    füllend.setRetainSizeWhenHidden(true);
    teil.setSizePolicy(füllend);
    m_platz->addWidget(&teil, 0, 0);
}

Umbruchreihe::Umbruchreihe(QWidget* eltern) : Handfläche(eltern)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Umbruchreihe::füge(QWidget& knopf, bool rechts)
{
    m_teile.push_back({&knopf, rechts});
}

std::vector<Umbruchreihe::Reihe> Umbruchreihe::reihen() const
{
    std::vector<Reihe> ergebnis(1);
    for (const auto& teil : m_teile) {
        if (teil.knopf->isHidden()) {
            continue;
        }
        const int breite = teil.knopf->sizeHint().width() + em(knopfabstand);
        if (!ergebnis.back().teile.empty() && ergebnis.back().breite + breite > width() + em(knopfabstand)) {
            ergebnis.emplace_back();
        }
        ergebnis.back().teile.push_back(teil);
        ergebnis.back().breite += breite;
    }
    return ergebnis;
}

QSize Umbruchreihe::größterKnopf() const
{
    QSize größe;
    for (const auto& teil : m_teile) {
        größe = größe.expandedTo(teil.knopf->sizeHint());
    }
    return größe;
}

QSize Umbruchreihe::minimumSizeHint() const
{
    const QSize größe = größterKnopf();
    const auto anzahl = static_cast<int>(reihen().size());
    return {größe.width(), anzahl * größe.height() + (anzahl - 1) * em(knopfabstand)};
}

void Umbruchreihe::ordne()
{
    const int höhe = größterKnopf().height();
    int oben = 0;
    for (const auto& reihe : reihen()) {
        int links = 0;
        int lücke = width() + em(knopfabstand) - reihe.breite;
        for (const auto& teil : reihe.teile) {
            links += teil.rechts ? std::exchange(lücke, 0) : 0;
            teil.knopf->setGeometry(links, oben, teil.knopf->sizeHint().width(), höhe);
            links += teil.knopf->width() + em(knopfabstand);
        }
        oben += höhe + em(knopfabstand);
    }
}

Kartenreihe::Kartenreihe(QWidget* eltern)
    : Handfläche(eltern), m_reihe(ohneRand(new QBoxLayout(QBoxLayout::LeftToRight, this), kartenabstand))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
}

void Kartenreihe::füge(QWidget& spalte, int höchstbreite, bool wächst)
{
    m_spalten.push_back({&spalte, höchstbreite});
    m_reihe->addWidget(&spalte);
    if (wächst) {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }
}

QSize Kartenreihe::minimumSizeHint() const
{
    int breite = 0;
    for (const auto& spalte : m_spalten) {
        breite = std::max(breite, spalte.widget->minimumSizeHint().width());
    }
    return {breite, m_reihe->minimumSize().height()};
}

/// The columns share the width in proportion to what they want, from the least to the greatest width of each.
void Kartenreihe::ordne()
{
    int nötig = -m_reihe->spacing();
    for (const auto& spalte : m_spalten) {
        nötig += spalte.widget->minimumSizeHint().width() + m_reihe->spacing();
    }
    const bool nebeneinander = nötig <= width();
    m_reihe->setDirection(nebeneinander ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    for (int stelle = 0; stelle < m_reihe->count(); ++stelle) {
        const auto& spalte = m_spalten[static_cast<std::size_t>(stelle)];
        const int mindestens = spalte.widget->minimumSizeHint().width();
        const int höchstens = std::max(mindestens, spalte.höchstbreite);
        spalte.widget->setMaximumWidth(höchstens);
        const int gern = std::clamp(spalte.widget->sizeHint().width(), mindestens, höchstens);
        // the layout asks to be laid out again whenever it is told a stretch, the one that it has included
        if (const int anteil = nebeneinander ? gern : 0; m_reihe->stretch(stelle) != anteil) {
            m_reihe->setStretch(stelle, anteil);
        }
    }
}
