#include "platform/qt/Anordner.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Etikett.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Umschrift.h"
#include "platform/qt/Vorlesen.h"

#include <QAction>
#include <QFrame>
#include <QHBoxLayout>
#include <QScrollArea>

namespace {

/// The body: as high as its content at least, as high as the page where that is more.
class Seitenblatt : public QScrollArea {
public:
    explicit Seitenblatt(QWidget* eltern) : QScrollArea(eltern)
    {
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // no page scrolls sideways
        viewport()->setAutoFillBackground(false);
    }

    QSize sizeHint() const override { return widget()->sizeHint(); }
    QSize minimumSizeHint() const override { return {em(20), em(6)}; }
};

constexpr double periodenbreite = 12; ///< the period is whole, whatever the name
constexpr int vielMehr = 1000;        ///< stretch of what takes all that is left

Etikett& fügeBandtext(QWidget& widget, const char* rolle, Schriftrolle schriftrolle, QHBoxLayout& ziel)
{
    widget.setProperty("rolle", rolle);
    widget.setFont(schrift(schriftrolle));
    ziel.addWidget(&widget);
    return dynamic_cast<Etikett&>(widget);
}

/// A part of the band shows while its element has something to say.
void zeigeNurGefüllt(Ansicht& ansicht, Element& element, std::vector<QWidget*> widgets)
{
    ansicht.folge(element.geändert, [&element, widgets = std::move(widgets)] {
        for (auto* widget : widgets) {
            widget->setVisible(element.istSichtbar() && !element.text().empty());
        }
    });
}

void fügeNamen(Ansicht& ansicht, Element& name, QWidget& band, QHBoxLayout& ziel)
{
    auto* strich = new QFrame(&band);
    strich->setProperty("rolle", "bandstrich");
    strich->setFixedSize(1, em(1.1));
    ziel.addSpacing(em(0.1));
    ziel.addWidget(strich);
    ziel.addSpacing(em(0.1));
    auto& text = fügeBandtext(*ansicht.zeichne(name, &band), "auf-band", Schriftrolle::Bandname, ziel);
    // a name takes what title and period leave, and is cut before they are
    constexpr double mindestens = 4;
    text.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    text.setMinimumWidth(em(mindestens));
    ziel.setStretchFactor(&text, vielMehr);
    zeigeNurGefüllt(ansicht, name, {strich, &text});
}

void fügeWerte(Ansicht& ansicht, const std::vector<Kopfband::Wert>& werte, QWidget& band, QHBoxLayout& ziel)
{
    for (const auto& wert : werte) {
        ziel.addSpacing(em(0.3));
        auto& vor = fügeBandtext(*new Etikett(alsQString(wert.beschriftung), &band), "auf-band-leise",
                                 Schriftrolle::Grund, ziel);
        auto& text = fügeBandtext(*ansicht.zeichne(*wert.element, &band), "auf-band", Schriftrolle::Wert, ziel);
        // read out alone, the value says what it is
        ansicht.folge(wert.element->geändert,
                      [&vor, &text] { text.setAccessibleName(vor.text() + QChar(' ') + text.text()); });
        vor.setzeMindestbreite(periodenbreite);
        text.setzeMindestbreite(periodenbreite);
        zeigeNurGefüllt(ansicht, *wert.element, {&vor, &text});
    }
}

QWidget* baueBand(Ansicht& ansicht, QWidget* eltern)
{
    const auto& kopf = ansicht.bildschirm().kopfband;
    auto* band = new QFrame(eltern);
    band->setProperty("rolle", "band");
    band->setMinimumHeight(em(2.5));
    auto* zeile = ohneRand(new QHBoxLayout(band), 0.6);
    zeile->setContentsMargins(em(0.9), em(0.2), em(0.9), em(0.2));
    if (kopf.vortitel != nullptr) {
        fügeBandtext(*ansicht.zeichne(*kopf.vortitel, band), "auf-band-leise", Schriftrolle::Bandname, *zeile);
    }
    if (kopf.titel != nullptr) {
        fügeBandtext(*ansicht.zeichne(*kopf.titel, band), "auf-band", Schriftrolle::Bandtitel, *zeile);
    }
    if (kopf.name != nullptr) {
        fügeNamen(ansicht, *kopf.name, *band, *zeile);
    }
    zeile->addStretch(1);
    fügeWerte(ansicht, kopf.werte, *band, *zeile);
    if (kopf.knopf != nullptr) {
        zeile->addWidget(ansicht.zeichne(*kopf.knopf, band));
    }
    return band;
}

QWidget* baueLeiste(Ansicht& ansicht, QWidget* eltern)
{
    const auto& knöpfe = ansicht.bildschirm().leiste;
    auto* leiste = new QFrame(eltern);
    leiste->setProperty("rolle", "leiste");
    leiste->setMinimumHeight(em(2.55));
    auto* zeile = ohneRand(new QHBoxLayout(leiste), 0.55);
    zeile->setContentsMargins(em(0.9), em(0.3), em(0.9), em(0.3));
    const auto füge = [&](Element& element) {
        auto* knopf = ansicht.zeichne(element, leiste);
        knopf->setMinimumWidth(em(5.9));
        zeile->addWidget(knopf);
    };
    for (auto* element : knöpfe.links) {
        füge(*element);
    }
    zeile->addStretch(1);
    for (auto* element : knöpfe.rechts) {
        füge(*element);
    }
    leiste->setVisible(!knöpfe.links.empty() || !knöpfe.rechts.empty());
    return leiste;
}

void baueMenü(Ansicht& ansicht, QWidget& wurzel)
{
    for (const auto& menü : ansicht.bildschirm().menü) {
        ansicht.binde(*menü.titel, *new QAction(&wurzel));
        for (auto* eintrag : menü.einträge) {
            auto* aktion = new QAction(&wurzel);
            ansicht.binde(*eintrag, *aktion);
            QObject::connect(aktion, &QAction::triggered, &wurzel,
                             [&ansicht, eintrag] { ansicht.ereignis([&] { eintrag->klicke(); }); });
        }
    }
}

} // namespace

QScrollArea* Ansicht::baueSeite(QWidget* eltern)
{
    m_wurzel = new QWidget(eltern);
    m_wurzel->setObjectName(alsQString(m_bildschirm.name()));
    meldeWurzel(*m_wurzel, *this);
    auto* stockwerke = ohneRand(new QVBoxLayout(m_wurzel));
    auto* band = baueBand(*this, m_wurzel); // before the body: the order in which they are read out
    auto* blatt = new Seitenblatt(m_wurzel);
    auto* inhalt = new QWidget(blatt->viewport());
    blatt->setWidget(inhalt); // while it is empty: what stands in it would be laid out for a size that it never has
    inhalt->setAutoFillBackground(false);
    Anordner(*this, *inhalt, !m_bildschirm.istKindfenster).baueSeite(m_bildschirm.aufbau, *new QVBoxLayout(inhalt));
    stockwerke->addWidget(band);
    stockwerke->addWidget(blatt, 1);
    stockwerke->addWidget(baueLeiste(*this, m_wurzel));
    baueMenü(*this, *m_wurzel);
    if (auto* titel = m_bildschirm.kopfband.titel; titel != nullptr) {
        benenneUnbenannte(*m_wurzel, alsQString(titel->text()));
        folge(titel->geändert, [this, titel] { m_wurzel->setAccessibleName(alsQString(titel->text())); });
    }
    return blatt;
}
