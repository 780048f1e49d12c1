#include "platform/qt/Listung.h"

#include "platform/qt/Ansicht.h"
#include "platform/qt/Elementzeichner.h"
#include "platform/qt/Etikett.h"
#include "platform/qt/Mass.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Umschrift.h"

#include <QCoreApplication>
#include <QPainter>
#include <QScrollArea>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr int bewegteZeilenMindestens = 4;
constexpr int bewegteZeilenGern = 6;
constexpr std::size_t linksbündigeSpalten = 2;
constexpr double breiteFrei = 12; ///< least width of a column that shares what is left

Etikett* macheKopf(const QString& text, QWidget* eltern)
{
    auto* kopf = new Etikett(text, eltern);
    kopf->setFont(schrift(Schriftrolle::Spaltenkopf));
    kopf->setProperty("rolle", "kopf");
    return kopf;
}

} // namespace

Listungszeile::Listungszeile(const Anordnung& zeile, Ansicht& ansicht, QWidget* eltern) : QWidget(eltern)
{
    for (const auto& teil : zeile.teile) {
        auto* zelle = dynamic_cast<Etikett*>(zeichneElement(*teil.element, ansicht, this));
        const bool links = m_zellen.size() < linksbündigeSpalten;
        zelle->seiListenzelle();
        zelle->setAlignment((links ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter);
        zelle->setIndent(0);
        zelle->setContentsMargins(links ? em(0.45) : 0, 0, 0, 0);
        m_zellen.push_back(zelle);
    }
}

void Listungszeile::ordne(const std::vector<int>& spalten)
{
    int links = 0;
    for (std::size_t i = 0; i < m_zellen.size(); ++i) {
        m_zellen[i]->setGeometry(links, 0, spalten[i], height() - 1);
        links += spalten[i];
    }
}

void Listungszeile::paintEvent(QPaintEvent* /*ereignis*/)
{
    const bool leer =
        std::all_of(m_zellen.begin(), m_zellen.end(), [](const Etikett* zelle) { return zelle->text().isEmpty(); });
    if (!leer) {
        QPainter(this).fillRect(0, height() - 1, width(), 1, farben().linie);
    }
}

Listungsblatt::Listungsblatt(const Anordnung& listung, Ansicht& ansicht, QWidget* leiste, QWidget* eltern)
    : Handfläche(eltern), m_ansicht(ansicht), m_vorneElement(dynamic_cast<Fläche&>(*listung.köpfe.at(0))),
      m_hintenElement(dynamic_cast<Fläche&>(*listung.köpfe.at(1))), m_leiste(leiste)
{
    m_hinten = zeichneElement(m_hintenElement, ansicht, this);
    m_vorne = zeichneElement(m_vorneElement, ansicht, m_hinten);
    const auto überschriften = alsQString(listung.text).split(QChar('\n'));
    m_überErste = macheKopf(überschriften.value(0), this);
    m_überRest = macheKopf(überschriften.value(1), this);
    for (const auto& zeile : listung.teile) {
        m_zeilen.push_back(new Listungszeile(zeile, ansicht, m_zeilen.empty() ? static_cast<QWidget*>(this) : m_vorne));
    }
    baueKopf(listung.spalten);
    ansicht.abonniere(m_vorneElement.geändert, [this] { bewege(); });
}

int Listungsblatt::zeilenhöhe()
{
    return em(1.4);
}

void Listungsblatt::baueKopf(const std::vector<Tabellenspalte>& spalten)
{
    for (const auto& spalte : spalten) {
        const auto i = m_breiten.size();
        m_breiten.push_back(spalte.breite);
        auto* kopf = macheKopf(alsMehrzeiler(spalte.titel), this);
        kopf->brichAmBindestrich();
        kopf->setAlignment((i < linksbündigeSpalten ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignBottom);
        kopf->setIndent(0); // it would lift the text as well
        kopf->setContentsMargins(i < linksbündigeSpalten ? em(0.45) : 0, 0, 0, 0);
        kopf->setWordWrap(true);
        m_köpfe.push_back(kopf);
        if (spalte.gruppe.empty()) {
            continue;
        }
        if (!m_gruppen.empty() && m_gruppen.back().bis + 1 == i && spalten[i - 1].gruppe == spalte.gruppe) {
            m_gruppen.back().bis = i;
        } else {
            auto* titel = macheKopf(alsMehrzeiler(spalte.gruppe), this);
            titel->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
            titel->setWordWrap(true);
            m_gruppen.push_back({titel, i, i});
        }
    }
}

std::vector<int> Listungsblatt::spaltenbreiten() const
{
    std::vector<int> breiten;
    std::transform(m_breiten.begin(), m_breiten.end(), std::back_inserter(breiten),
                   [](double breite) { return em(breite); });
    const int fest = std::accumulate(breiten.begin(), breiten.end(), 0);
    const auto freie = static_cast<int>(std::count(breiten.begin(), breiten.end(), 0));
    if (freie == 0) {
        breiten.front() += std::max(0, width() - fest); // the name of the problem has most to say
        return breiten;
    }
    const int anteil = std::max(em(breiteFrei), (width() - fest) / freie);
    std::replace(breiten.begin(), breiten.end(), 0, anteil);
    return breiten;
}

void Listungsblatt::ordneKopf(const std::vector<int>& spalten)
{
    std::vector<int> links{0};
    int titelhöhe = 0;
    for (std::size_t i = 0; i < spalten.size(); ++i) {
        links.push_back(links.back() + spalten[i]);
        titelhöhe = std::max(titelhöhe, m_köpfe[i]->heightForWidth(spalten[i]));
    }
    m_kopfhöhe = titelhöhe;
    for (const auto& gruppe : m_gruppen) {
        const int breite = links[gruppe.bis + 1] - links[gruppe.von];
        const int eigene = m_köpfe[gruppe.von]->heightForWidth(spalten[gruppe.von]);
        m_kopfhöhe = std::max(m_kopfhöhe, gruppe.titel->heightForWidth(breite) + eigene);
    }
    for (std::size_t i = 0; i < spalten.size(); ++i) {
        m_köpfe[i]->setGeometry(links[i], m_kopfhöhe - titelhöhe, spalten[i], titelhöhe);
    }
    for (const auto& gruppe : m_gruppen) {
        const int eigene = m_köpfe[gruppe.von]->heightForWidth(spalten[gruppe.von]);
        gruppe.titel->setGeometry(links[gruppe.von], 0, links[gruppe.bis + 1] - links[gruppe.von], m_kopfhöhe - eigene);
        for (auto i = gruppe.von; i <= gruppe.bis; ++i) {
            m_köpfe[i]->setGeometry(links[i], m_kopfhöhe - eigene, spalten[i], eigene);
        }
    }
    m_kopfhöhe += em(0.25);
}

void Listungsblatt::ordne()
{
    const auto spalten = spaltenbreiten();
    ordneKopf(spalten);
    m_überErste->setGeometry(0, m_kopfhöhe, width(), zeilenhöhe());
    m_zeilen.front()->setGeometry(0, m_kopfhöhe + zeilenhöhe(), width(), zeilenhöhe());
    m_zeilen.front()->ordne(spalten);
    m_überRest->setGeometry(0, m_kopfhöhe + 2 * zeilenhöhe(), width(), zeilenhöhe());
    m_hinten->setGeometry(0, obenBewegt(), width(), std::max(0, height() - obenBewegt()));
    m_vorne->resize(width(), zeilenhöhe() * (static_cast<int>(m_zeilen.size()) - 1));
    for (std::size_t i = 1; i < m_zeilen.size(); ++i) {
        m_zeilen[i]->setGeometry(0, zeilenhöhe() * (static_cast<int>(i) - 1), width(), zeilenhöhe());
        m_zeilen[i]->ordne(spalten);
    }
    meldeHöhen();
}

/// The range of the scroll bar rests on the real heights.
void Listungsblatt::meldeHöhen()
{
    const double hinten = alsTwips(m_hinten->height());
    const double vorne = alsTwips(m_vorne->height());
    if (m_ansicht.lebt() && isVisible() && (m_hintenElement.höhe() != hinten || m_vorneElement.höhe() != vorne)) {
        m_ansicht.ereignis([&] {
            m_vorneElement.setzeHöhe(vorne);
            m_hintenElement.setzeHöhe(hinten);
        });
    }
    bewege();
}

void Listungsblatt::bewege()
{
    if (m_ansicht.lebt()) {
        m_vorne->move(0, alsPixel(m_vorneElement.oben()));
    }
}

void Listungsblatt::paintEvent(QPaintEvent* /*ereignis*/)
{
    QPainter(this).fillRect(0, m_kopfhöhe - 1, width(), 1, farben().feldrand);
}

void Listungsblatt::wheelEvent(QWheelEvent* ereignis)
{
    QCoreApplication::sendEvent(m_leiste, ereignis);
}

int Listungsblatt::höheFür(int bewegteZeilen) const
{
    return std::max(m_kopfhöhe, em(2.8)) + (3 + bewegteZeilen) * zeilenhöhe();
}

QSize Listungsblatt::sizeHint() const
{
    return {minimumSizeHint().width() + em(6), höheFür(bewegteZeilenGern)};
}

QSize Listungsblatt::minimumSizeHint() const
{
    const double breite = std::accumulate(m_breiten.begin(), m_breiten.end(), 0.0, [](double bisher, double eine) {
        return bisher + (eine > 0 ? eine : breiteFrei);
    });
    return {em(breite), höheFür(bewegteZeilenMindestens)};
}

Listung::Listung(const Anordnung& listung, Ansicht& ansicht, QWidget* eltern)
    : Handfläche(eltern), m_leiste(zeichneElement(*listung.element, ansicht, this)), m_rolle(new QScrollArea(this)),
      m_blatt(new Listungsblatt(listung, ansicht, m_leiste, m_rolle->viewport()))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    sprichZeilen(listung, ansicht);
    m_rolle->setFocusPolicy(Qt::NoFocus);
    m_rolle->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_rolle->setWidgetResizable(true);
    m_rolle->setWidget(m_blatt);
    m_rolle->viewport()->setAutoFillBackground(false);
    m_blatt->setAutoFillBackground(false);
}

/// The scroll bar has the keyboard of the listing, so it is what says which row is marked.
void Listung::sprichZeilen(const Anordnung& listung, Ansicht& ansicht)
{
    const auto name = alsQString(listung.text).section(QChar('\n'), 1);
    std::vector<const Beschriftung*> zeilen;
    for (const auto& zeile : listung.teile) {
        zeilen.push_back(dynamic_cast<const Beschriftung*>(zeile.teile.front().element));
    }
    const auto sprich = [leiste = m_leiste, name, zeilen] {
        const auto markiert = std::find_if(zeilen.begin(), zeilen.end(), [](const Beschriftung* zeile) {
            return zeile->zeilenart() == Beschriftung::Zeilenart::Markiert;
        });
        const auto neu =
            markiert == zeilen.end() ? name : name + QStringLiteral(", markiert: ") + alsQString((*markiert)->text());
        if (leiste->accessibleName() != neu) {
            leiste->setAccessibleName(neu);
        }
    };
    sprich();
    for (const auto& zeile : listung.teile) {
        ansicht.abonniere(zeile.teile.front().element->geändert, sprich);
    }
}

void Listung::ordne()
{
    const int leistenbreite = m_leiste->sizeHint().width();
    m_rolle->setGeometry(0, 0, width() - leistenbreite - em(0.1), height());
    m_leiste->setGeometry(width() - leistenbreite, m_blatt->obenBewegt(), leistenbreite,
                          std::max(0, height() - m_blatt->obenBewegt()));
}

QSize Listung::sizeHint() const
{
    return m_blatt->sizeHint() + QSize(em(0.85), 0);
}

QSize Listung::minimumSizeHint() const
{
    const QSize blatt = m_blatt->minimumSizeHint();
    const bool rolltQuer = isVisible() && m_rolle->width() < blatt.width();
    return {em(24), blatt.height() + (rolltQuer ? em(0.75) : 0)};
}
