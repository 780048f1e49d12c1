#include "platform/qt/Listung.h"

#include "platform/qt/Ansicht.h"
#include "platform/qt/Elementzeichner.h"
#include "platform/qt/Etikett.h"
#include "platform/qt/Flaechen.h"
#include "platform/qt/Mass.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Tabelle.h"
#include "platform/qt/Umschrift.h"

#include <QCoreApplication>
#include <QPainter>
#include <QScrollArea>
#include <QWheelEvent>

#include <algorithm>
#include <numeric>

namespace {

constexpr int bewegteZeilenMindestens = 4;
constexpr int bewegteZeilenGern = 6;
constexpr double breiteFrei = 12; ///< least width of a column that shares what is left

Etikett* macheÜberschrift(const QString& text, QWidget* eltern)
{
    auto* überschrift = new Etikett(text, eltern);
    überschrift->setFont(schrift(Schriftrolle::Spaltenkopf));
    überschrift->setProperty("rolle", "kopf");
    return überschrift;
}

/// A row of the listing: labels in columns, a line below unless the row is blank.
class Listungszeile : public QWidget {
public:
    Listungszeile(const Anordnung& zeile, Ansicht& ansicht, QWidget* eltern) : QWidget(eltern)
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

    void ordne(const std::vector<int>& spalten)
    {
        int links = 0;
        for (std::size_t i = 0; i < m_zellen.size(); ++i) {
            m_zellen[i]->setGeometry(links, 0, spalten[i], height() - 1);
            links += spalten[i];
        }
    }

protected:
    void paintEvent(QPaintEvent* /*ereignis*/) override
    {
        const bool leer = std::ranges::all_of(m_zellen, [](const Etikett* zelle) { return zelle->text().isEmpty(); });
        if (!leer) {
            QPainter(this).fillRect(0, height() - 1, width(), 1, farben().linie);
        }
    }

private:
    std::vector<Etikett*> m_zellen;
};

/// The listing without its scroll bar.
class Listungsblatt : public Handfläche {
public:
    Listungsblatt(const Anordnung& listung, Ansicht& ansicht, QWidget* leiste, QWidget* eltern)
        : Handfläche(eltern), m_ansicht(ansicht), m_vorneElement(dynamic_cast<Fläche&>(*listung.köpfe.at(0))),
          m_hintenElement(dynamic_cast<Fläche&>(*listung.köpfe.at(1))), m_leiste(leiste)
    {
        m_hinten = zeichneElement(m_hintenElement, ansicht, this);
        m_vorne = zeichneElement(m_vorneElement, ansicht, m_hinten);
        const auto überschriften = alsQString(listung.text).split(QChar('\n'));
        m_überErste = macheÜberschrift(überschriften.value(0), this);
        m_überRest = macheÜberschrift(überschriften.value(1), this);
        for (const auto& zeile : listung.teile) {
            m_zeilen.push_back(
                new Listungszeile(zeile, ansicht, m_zeilen.empty() ? static_cast<QWidget*>(this) : m_vorne));
        }
        m_kopf = new Tabellenkopf(listung, Tabellenkopf::Form::Listung, ansicht, this);
        for (const auto& spalte : listung.spalten) {
            m_breiten.push_back(spalte.breite);
        }
        ansicht.abonniere(m_vorneElement.geändert, [this] { bewege(); });
    }

    QSize sizeHint() const override { return {minimumSizeHint().width() + em(6), höheFür(bewegteZeilenGern)}; }
    QSize minimumSizeHint() const override
    {
        const double breite = std::accumulate(m_breiten.begin(), m_breiten.end(), 0.0, [](double bisher, double eine) {
            return bisher + (eine > 0 ? eine : breiteFrei);
        });
        return {em(breite), höheFür(bewegteZeilenMindestens)};
    }
    /// Where the moving part begins.
    int obenBewegt() const { return m_kopf->höhe() + 3 * zeilenhöhe(); }

protected:
    void ordne() override
    {
        const auto spalten = spaltenbreiten();
        m_kopf->ordne(width(), spalten);
        const int kopfhöhe = m_kopf->höhe();
        m_überErste->setGeometry(0, kopfhöhe, width(), zeilenhöhe());
        m_zeilen.front()->setGeometry(0, kopfhöhe + zeilenhöhe(), width(), zeilenhöhe());
        m_zeilen.front()->ordne(spalten);
        m_überRest->setGeometry(0, kopfhöhe + 2 * zeilenhöhe(), width(), zeilenhöhe());
        m_hinten->setGeometry(0, obenBewegt(), width(), std::max(0, height() - obenBewegt()));
        m_vorne->resize(width(), zeilenhöhe() * (static_cast<int>(m_zeilen.size()) - 1));
        for (std::size_t i = 1; i < m_zeilen.size(); ++i) {
            m_zeilen[i]->setGeometry(0, zeilenhöhe() * (static_cast<int>(i) - 1), width(), zeilenhöhe());
            m_zeilen[i]->ordne(spalten);
        }
        meldeHöhen();
    }
    void wheelEvent(QWheelEvent* ereignis) override { QCoreApplication::sendEvent(m_leiste, ereignis); }

private:
    static int zeilenhöhe() { return em(1.4); }
    int höheFür(int bewegteZeilen) const
    {
        return std::max(m_kopf->höhe(), em(2.8)) + (3 + bewegteZeilen) * zeilenhöhe();
    }

    std::vector<int> spaltenbreiten() const
    {
        std::vector<int> breiten;
        std::ranges::transform(m_breiten, std::back_inserter(breiten), [](double breite) { return em(breite); });
        const int fest = std::accumulate(breiten.begin(), breiten.end(), 0);
        const auto freie = static_cast<int>(std::ranges::count(breiten, 0));
        if (freie == 0) {
            breiten.front() += std::max(0, width() - fest); // the name of the problem has most to say
            return breiten;
        }
        const int anteil = std::max(em(breiteFrei), (width() - fest) / freie);
        std::ranges::replace(breiten, 0, anteil);
        return breiten;
    }

    /// The range of the scroll bar rests on the real heights.
    void meldeHöhen()
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
    void bewege()
    {
        if (m_ansicht.lebt()) {
            m_vorne->move(0, alsPixel(m_vorneElement.oben()));
        }
    }

    Ansicht& m_ansicht;
    Fläche& m_vorneElement;
    Fläche& m_hintenElement;
    QWidget* m_leiste;
    QWidget* m_vorne;
    QWidget* m_hinten;
    Tabellenkopf* m_kopf;
    std::vector<double> m_breiten; ///< em; 0 shares what is left
    Etikett* m_überErste;
    Etikett* m_überRest;
    std::vector<Listungszeile*> m_zeilen;
};

/// The scroll bar has the keyboard of the listing, so it is what says which row is marked.
void sprichZeilen(const Anordnung& listung, QWidget& leiste, Ansicht& ansicht)
{
    const auto name = alsQString(listung.text).section(QChar('\n'), 1);
    std::vector<const Beschriftung*> zeilen;
    for (const auto& zeile : listung.teile) {
        zeilen.push_back(dynamic_cast<const Beschriftung*>(zeile.teile.front().element));
    }
    const auto sprich = [&leiste, name, zeilen] {
        const auto markiert = std::ranges::find_if(
            zeilen, [](const Beschriftung* zeile) { return zeile->zeilenart() == Beschriftung::Zeilenart::Markiert; });
        const auto neu =
            markiert == zeilen.end() ? name : name + QStringLiteral(", markiert: ") + alsQString((*markiert)->text());
        if (leiste.accessibleName() != neu) {
            leiste.setAccessibleName(neu);
        }
    };
    sprich();
    for (const auto& zeile : listung.teile) {
        ansicht.abonniere(zeile.teile.front().element->geändert, sprich);
    }
}

class Listung : public Handfläche {
public:
    Listung(const Anordnung& listung, Ansicht& ansicht, QWidget* eltern)
        : Handfläche(eltern), m_leiste(zeichneElement(*listung.element, ansicht, this)), m_rolle(new QScrollArea(this)),
          m_blatt(new Listungsblatt(listung, ansicht, m_leiste, m_rolle->viewport()))
    {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        sprichZeilen(listung, *m_leiste, ansicht);
        m_rolle->setFocusPolicy(Qt::NoFocus);
        m_rolle->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_rolle->setWidgetResizable(true);
        m_rolle->setWidget(m_blatt);
        m_rolle->viewport()->setAutoFillBackground(false);
        m_blatt->setAutoFillBackground(false);
    }

    QSize sizeHint() const override { return m_blatt->sizeHint() + QSize(em(0.85), 0); }
    QSize minimumSizeHint() const override
    {
        const QSize blatt = m_blatt->minimumSizeHint();
        const bool rolltQuer = isVisible() && m_rolle->width() < blatt.width();
        return {em(24), blatt.height() + (rolltQuer ? em(0.75) : 0)};
    }

protected:
    void ordne() override
    {
        const int leistenbreite = m_leiste->sizeHint().width();
        m_rolle->setGeometry(0, 0, width() - leistenbreite - em(0.1), height());
        m_leiste->setGeometry(width() - leistenbreite, m_blatt->obenBewegt(), leistenbreite,
                              std::max(0, height() - m_blatt->obenBewegt()));
    }

private:
    QWidget* m_leiste;
    QScrollArea* m_rolle;
    Listungsblatt* m_blatt;
};

} // namespace

QWidget* macheListung(const Anordnung& listung, Ansicht& ansicht, QWidget* eltern)
{
    return new Listung(listung, ansicht, eltern);
}
