#include "platform/qt/Ansicht.h"
#include "platform/qt/Etikett.h"
#include "platform/qt/Flaechen.h"
#include "platform/qt/Mass.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Tabelle.h"
#include "platform/qt/Umschrift.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QPainter>
#include <QScrollArea>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int bewegteZeilenMindestens = 4;
constexpr int bewegteZeilenGern = 6;

int zeilenhöhe()
{
    return em(1.4);
}

Etikett* macheÜberschrift(const QString& text, QWidget* eltern)
{
    auto* überschrift = new Etikett(text, eltern);
    überschrift->setFont(schrift(Schriftrolle::Spaltenkopf));
    überschrift->setProperty("rolle", "kopf");
    überschrift->setFixedHeight(zeilenhöhe());
    return überschrift;
}

/// A row of the listing: labels in columns, a line below unless the row is blank.
class Listungszeile : public QWidget {
public:
    Listungszeile(const Anordnung& zeile, const Anordnung& listung, Ansicht& ansicht, QWidget* eltern) : QWidget(eltern)
    {
        setFixedHeight(zeilenhöhe());
        auto* gitter = ohneRand(new QGridLayout(this));
        gitter->setContentsMargins(0, 0, 0, 1);
        richteSpaltenEin(*gitter, listung);
        for (const auto& teil : zeile.teile) {
            auto* zelle = dynamic_cast<Etikett*>(ansicht.zeichne(*teil.element, this));
            const bool links = istLinksbündig(listung, m_zellen.size());
            zelle->seiListenzelle();
            zelle->setAlignment((links ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter);
            zelle->setIndent(0);
            zelle->setContentsMargins(links ? em(0.45) : 0, 0, 0, 0);
            zelle->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored); // no text decides how wide a column is
            gitter->addWidget(zelle, 0, gitterspalte(listung, m_zellen.size()));
            m_zellen.push_back(zelle);
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
        m_hinten = ansicht.zeichne(m_hintenElement, this);
        m_hinten->setMinimumHeight(bewegteZeilenMindestens * zeilenhöhe());
        m_vorne = ansicht.zeichne(m_vorneElement, m_hinten);
        const auto überschriften = alsQString(listung.text).split(QChar('\n'));
        m_kopf = new Tabellenkopf(listung, ansicht, this);
        auto* stockwerke = ohneRand(new QVBoxLayout(this));
        stockwerke->addWidget(m_kopf);
        stockwerke->addWidget(macheÜberschrift(überschriften.value(0), this));
        stockwerke->addWidget(new Listungszeile(listung.teile.front(), listung, ansicht, this));
        stockwerke->addWidget(macheÜberschrift(überschriften.value(1), this));
        stockwerke->addWidget(m_hinten, 1);
        auto* bewegte = ohneRand(new QVBoxLayout(m_vorne));
        for (std::size_t i = 1; i < listung.teile.size(); ++i) {
            bewegte->addWidget(new Listungszeile(listung.teile[i], listung, ansicht, m_vorne));
        }
        ansicht.abonniere(m_vorneElement.geändert, [this] { bewege(); });
    }

    /// Where the moving part begins.
    int obenBewegt() const { return m_kopf->sizeHint().height() + 3 * zeilenhöhe(); }

protected:
    void ordne() override
    {
        m_vorne->resize(m_hinten->width(), m_vorne->sizeHint().height());
        meldeHöhen();
    }
    void wheelEvent(QWheelEvent* ereignis) override { QCoreApplication::sendEvent(m_leiste, ereignis); }

private:
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
        : Handfläche(eltern), m_rolle(new QScrollArea(this))
    {
        auto* leiste = ansicht.zeichne(*listung.element, this);
        auto* blatt = new Listungsblatt(listung, ansicht, leiste, m_rolle->viewport());
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        sprichZeilen(listung, *leiste, ansicht);
        m_rolle->setFocusPolicy(Qt::NoFocus);
        m_rolle->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_rolle->setWidgetResizable(true);
        m_rolle->setWidget(blatt);
        m_rolle->viewport()->setAutoFillBackground(false);
        blatt->setAutoFillBackground(false);
        auto* gitter = ohneRand(new QGridLayout(this));
        gitter->setHorizontalSpacing(em(0.1));
        gitter->setRowMinimumHeight(0, blatt->obenBewegt());
        gitter->setRowStretch(1, 1);
        gitter->addWidget(m_rolle, 0, 0, 2, 1);
        gitter->addWidget(leiste, 1, 1);
    }

    QSize sizeHint() const override
    {
        const int mehr = (bewegteZeilenGern - bewegteZeilenMindestens) * zeilenhöhe();
        return m_rolle->widget()->minimumSizeHint() + QSize(em(6.85), mehr);
    }
    QSize minimumSizeHint() const override
    {
        const QSize blatt = m_rolle->widget()->minimumSizeHint();
        const bool rolltQuer = isVisible() && m_rolle->width() < blatt.width();
        return {em(24), blatt.height() + (rolltQuer ? em(0.75) : 0)};
    }

private:
    QScrollArea* m_rolle;
};

} // namespace

QWidget* macheListung(const Anordnung& listung, Ansicht& ansicht, QWidget* eltern)
{
    return new Listung(listung, ansicht, eltern);
}
