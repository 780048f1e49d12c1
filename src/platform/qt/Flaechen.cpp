#include "platform/qt/Flaechen.h"

#include "platform/qt/Stil.h"

#include <QEvent>

#include <algorithm>
#include <numeric>

namespace {

constexpr double reihenabstand = 0.5;

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

void Deckfläche::setze(QWidget& darunter, QWidget& decke)
{
    m_darunter = &darunter;
    m_decke = &decke;
    m_decke->raise();
    m_decke->installEventFilter(this);
    Stapelfläche::setze({&darunter, &decke});
    gleicheAb();
}

bool Deckfläche::eventFilter(QObject* objekt, QEvent* ereignis)
{
    if (objekt == m_decke && (ereignis->type() == QEvent::ShowToParent || ereignis->type() == QEvent::HideToParent)) {
        gleicheAb();
    }
    return false;
}

void Deckfläche::gleicheAb()
{
    m_darunter->setEnabled(m_decke->isHidden());
}

void Karte::setzeBreite(int breite)
{
    m_breite = breite;
    setSizePolicy(QSizePolicy::Maximum, sizePolicy().verticalPolicy());
}

QSize Karte::sizeHint() const
{
    const QSize ihre = QGroupBox::sizeHint();
    return m_breite > 0 ? QSize(std::max(m_breite, minimumSizeHint().width()), ihre.height()) : ihre;
}

void Stapelfläche::setze(std::vector<QWidget*> teile)
{
    m_teile = std::move(teile);
    if (!m_teile.empty()) {
        setSizePolicy(m_teile.front()->sizePolicy());
    }
}

QSize Stapelfläche::sizeHint() const
{
    return std::accumulate(m_teile.begin(), m_teile.end(), QSize(), [](QSize größe, const QWidget* teil) {
        return größe.expandedTo(teil->sizeHint()).expandedTo(teil->minimumSize());
    });
}

QSize Stapelfläche::minimumSizeHint() const
{
    return std::accumulate(m_teile.begin(), m_teile.end(), QSize(), [](QSize größe, const QWidget* teil) {
        return größe.expandedTo(teil->minimumSizeHint()).expandedTo(teil->minimumSize());
    });
}

void Stapelfläche::ordne()
{
    for (auto* teil : m_teile) {
        teil->setGeometry(rect());
    }
}

Umbruchreihe::Umbruchreihe(QWidget* eltern) : Handfläche(eltern)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Umbruchreihe::setze(std::vector<QWidget*> teile, std::size_t lücke)
{
    m_teile = std::move(teile);
    m_lücke = lücke;
}

bool Umbruchreihe::istRechts(const QWidget* teil) const
{
    return std::find(m_teile.begin() + static_cast<std::ptrdiff_t>(m_lücke), m_teile.end(), teil) != m_teile.end();
}

std::vector<std::vector<QWidget*>> Umbruchreihe::reihen() const
{
    std::vector<std::vector<QWidget*>> ergebnis(1);
    int breite = 0;
    for (auto* teil : m_teile) {
        if (teil->isHidden()) {
            continue;
        }
        const int seine = teil->sizeHint().width();
        if (!ergebnis.back().empty() && breite + em(reihenabstand) + seine > width()) {
            ergebnis.emplace_back();
            breite = 0;
        }
        breite += seine + (ergebnis.back().empty() ? 0 : em(reihenabstand));
        ergebnis.back().push_back(teil);
    }
    return ergebnis;
}

int Umbruchreihe::reihenhöhe() const
{
    return std::accumulate(m_teile.begin(), m_teile.end(), 0,
                           [](int höhe, const QWidget* teil) { return std::max(höhe, teil->sizeHint().height()); });
}

QSize Umbruchreihe::minimumSizeHint() const
{
    const int breite = std::accumulate(m_teile.begin(), m_teile.end(), 0, [](int breiteste, const QWidget* teil) {
        return std::max(breiteste, teil->sizeHint().width());
    });
    const auto anzahl = static_cast<int>(reihen().size());
    return {breite, anzahl * reihenhöhe() + (anzahl - 1) * em(reihenabstand)};
}

void Umbruchreihe::ordne()
{
    int oben = 0;
    for (const auto& reihe : reihen()) {
        int links = 0;
        int rechts = width();
        for (auto* teil : reihe) {
            if (!istRechts(teil)) {
                teil->setGeometry(links, oben, teil->sizeHint().width(), reihenhöhe());
                links += teil->width() + em(reihenabstand);
            }
        }
        for (auto teil = reihe.rbegin(); teil != reihe.rend() && istRechts(*teil); ++teil) {
            rechts -= (*teil)->sizeHint().width();
            (*teil)->setGeometry(rechts, oben, (*teil)->sizeHint().width(), reihenhöhe());
            rechts -= em(reihenabstand);
        }
        oben += reihenhöhe() + em(reihenabstand);
    }
}

Kartenreihe::Kartenreihe(QWidget* eltern) : Handfläche(eltern)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
}

void Kartenreihe::füge(QWidget& spalte, int höchstbreite, bool wächst)
{
    m_spalten.push_back({&spalte, höchstbreite});
    if (wächst) {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }
}

bool Kartenreihe::passtNebeneinander(int breite) const
{
    int nötig = -em(0.6);
    for (const auto& spalte : m_spalten) {
        nötig += spalte.widget->minimumSizeHint().width() + em(0.6);
    }
    return nötig <= breite;
}

int summe(const std::vector<int>& werte)
{
    return std::accumulate(werte.begin(), werte.end(), 0);
}

void verenge(std::vector<int>& breiten, const std::vector<int>& mindestens, int fehlt)
{
    int spielraum = 0;
    for (std::size_t i = 0; i < breiten.size(); ++i) {
        spielraum += std::max(0, breiten[i] - mindestens[i]);
    }
    for (std::size_t i = 0; i < breiten.size() && fehlt > 0 && spielraum > 0; ++i) {
        const int eigener = std::max(0, breiten[i] - mindestens[i]);
        const int anteil = std::min(eigener, (fehlt * eigener + spielraum - 1) / spielraum);
        breiten[i] -= anteil;
        fehlt -= anteil;
        spielraum -= eigener;
    }
}

/// Preferred widths first; what is left over is shared in proportion to them, up to the greatest width of each.
std::vector<int> Kartenreihe::verteile(int breite) const
{
    const int frei = breite - em(0.6) * (static_cast<int>(m_spalten.size()) - 1);
    std::vector<int> breiten;
    std::vector<int> mindestens;
    for (const auto& spalte : m_spalten) {
        mindestens.push_back(spalte.widget->minimumSizeHint().width());
        breiten.push_back(
            std::max(std::min(spalte.widget->sizeHint().width(), spalte.höchstbreite), mindestens.back()));
    }
    verenge(breiten, mindestens, summe(breiten) - frei);
    std::vector<bool> fest(m_spalten.size(), false);
    for (std::size_t runde = 0; runde < m_spalten.size(); ++runde) {
        int rest = frei - summe(breiten);
        int beweglich = 0;
        for (std::size_t i = 0; i < breiten.size(); ++i) {
            beweglich += fest[i] ? 0 : breiten[i];
        }
        for (std::size_t i = 0; i < breiten.size() && rest != 0 && beweglich > 0; ++i) {
            if (fest[i]) {
                continue;
            }
            const int anteil = rest * breiten[i] / beweglich;
            const int größte = std::max(mindestens[i], m_spalten[i].höchstbreite);
            beweglich -= breiten[i];
            rest -= anteil;
            const int neu = std::clamp(breiten[i] + anteil, mindestens[i], größte);
            fest[i] = neu != breiten[i] + anteil;
            breiten[i] = neu;
        }
    }
    return breiten;
}

int Kartenreihe::höhe(bool kleinste) const
{
    const bool nebeneinander = passtNebeneinander(width());
    int ergebnis = 0;
    for (const auto& spalte : m_spalten) {
        const int eine = (kleinste ? spalte.widget->minimumSizeHint() : spalte.widget->sizeHint()).height();
        ergebnis = nebeneinander ? std::max(ergebnis, eine) : ergebnis + eine + em(0.6);
    }
    return nebeneinander ? ergebnis : ergebnis - em(0.6);
}

QSize Kartenreihe::sizeHint() const
{
    int breite = -em(0.6);
    for (const auto& spalte : m_spalten) {
        breite += spalte.widget->sizeHint().width() + em(0.6);
    }
    return {breite, höhe(false)};
}

QSize Kartenreihe::minimumSizeHint() const
{
    int breite = 0;
    for (const auto& spalte : m_spalten) {
        breite = std::max(breite, spalte.widget->minimumSizeHint().width());
    }
    return {breite, höhe(true)};
}

void Kartenreihe::ordne()
{
    if (passtNebeneinander(width())) {
        const auto breiten = verteile(width());
        int links = 0;
        for (std::size_t i = 0; i < m_spalten.size(); ++i) {
            m_spalten[i].widget->setGeometry(links, 0, breiten[i], height());
            links += breiten[i] + em(0.6);
        }
        return;
    }
    int oben = 0;
    const int fehlt = sizeHint().height() - height();
    for (const auto& spalte : m_spalten) {
        const auto& kleinste = spalte.widget->minimumSizeHint();
        const int ganze = spalte.widget->sizeHint().height();
        const int eine = fehlt > 0 ? kleinste.height() : ganze;
        spalte.widget->setGeometry(0, oben, std::min(width(), std::max(kleinste.width(), spalte.höchstbreite)), eine);
        oben += eine + em(0.6);
    }
}
