#include "platform/qt/Seitenbau.h"

#include "platform/qt/Anordner.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Elementzeichner.h"
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
    auto zeige = [&element, widgets = std::move(widgets)] {
        for (auto* widget : widgets) {
            widget->setVisible(element.istSichtbar() && !element.text().empty());
        }
    };
    zeige();
    ansicht.abonniere(element.geändert, zeige);
}

void fügeNamen(Ansicht& ansicht, Element& name, QWidget& band, QHBoxLayout& ziel)
{
    auto* strich = new QFrame(&band);
    strich->setProperty("rolle", "bandstrich");
    strich->setFixedSize(1, em(1.1));
    ziel.addSpacing(em(0.1));
    ziel.addWidget(strich);
    ziel.addSpacing(em(0.1));
    auto& text = fügeBandtext(*zeichneElement(name, ansicht, &band), "auf-band", Schriftrolle::Bandname, ziel);
    // a name takes what title and period leave, and is cut before they are
    constexpr double mindestens = 4;
    text.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    text.setMinimumWidth(em(mindestens));
    ziel.setStretchFactor(&text, vielMehr);
    zeigeNurGefüllt(ansicht, name, {strich, &text});
}

/// Read out alone, the value says what it is.
void sprichMitBeschriftung(Ansicht& ansicht, Element& element, const Etikett& vor, Etikett& wert)
{
    const auto benenne = [&vor, &wert] { wert.setAccessibleName(vor.text() + QChar(' ') + wert.text()); };
    benenne();
    ansicht.abonniere(element.geändert, benenne);
}

void fügeWerte(Ansicht& ansicht, const std::vector<Kopfband::Wert>& werte, QWidget& band, QHBoxLayout& ziel)
{
    for (const auto& wert : werte) {
        ziel.addSpacing(em(0.3));
        auto& vor = fügeBandtext(*new Etikett(alsQString(wert.beschriftung), &band), "auf-band-leise",
                                 Schriftrolle::Grund, ziel);
        auto& text = fügeBandtext(*zeichneElement(*wert.element, ansicht, &band), "auf-band", Schriftrolle::Wert, ziel);
        sprichMitBeschriftung(ansicht, *wert.element, vor, text);
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
    auto* zeile = new QHBoxLayout(band);
    zeile->setContentsMargins(em(0.9), em(0.2), em(0.9), em(0.2));
    zeile->setSpacing(em(0.6));
    if (kopf.vortitel != nullptr) {
        fügeBandtext(*zeichneElement(*kopf.vortitel, ansicht, band), "auf-band-leise", Schriftrolle::Bandname, *zeile);
    }
    if (kopf.titel != nullptr) {
        fügeBandtext(*zeichneElement(*kopf.titel, ansicht, band), "auf-band", Schriftrolle::Bandtitel, *zeile);
    }
    if (kopf.name != nullptr) {
        fügeNamen(ansicht, *kopf.name, *band, *zeile);
    }
    zeile->addStretch(1);
    fügeWerte(ansicht, kopf.werte, *band, *zeile);
    if (kopf.knopf != nullptr) {
        zeile->addWidget(zeichneElement(*kopf.knopf, ansicht, band));
    }
    return band;
}

QWidget* baueLeiste(Ansicht& ansicht, QWidget* eltern)
{
    const auto& knöpfe = ansicht.bildschirm().leiste;
    auto* leiste = new QFrame(eltern);
    leiste->setProperty("rolle", "leiste");
    leiste->setMinimumHeight(em(2.55));
    auto* zeile = new QHBoxLayout(leiste);
    zeile->setContentsMargins(em(0.9), em(0.3), em(0.9), em(0.3));
    zeile->setSpacing(em(0.55));
    const auto füge = [&](Element& element) {
        auto* knopf = zeichneElement(element, ansicht, leiste);
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

QScrollArea* baueSeite(Ansicht& ansicht, QWidget* eltern)
{
    auto* wurzel = new QWidget(eltern);
    wurzel->setObjectName(alsQString(ansicht.bildschirm().name()));
    ansicht.setzeWurzel(*wurzel);
    auto* stockwerke = ohneRand(new QVBoxLayout(wurzel));
    auto* band = baueBand(ansicht, wurzel); // before the body: the order in which they are read out
    auto* blatt = new Seitenblatt(wurzel);
    auto* inhalt = new QWidget(blatt->viewport());
    Anordner(ansicht, *inhalt, !ansicht.bildschirm().istKindfenster)
        .baueSeite(ansicht.bildschirm().aufbau, *new QVBoxLayout(inhalt));
    blatt->setWidget(inhalt);
    inhalt->setAutoFillBackground(false);
    stockwerke->addWidget(band);
    stockwerke->addWidget(blatt, 1);
    stockwerke->addWidget(baueLeiste(ansicht, wurzel));
    baueMenü(ansicht, *wurzel);
    if (auto* titel = ansicht.bildschirm().kopfband.titel; titel != nullptr) {
        benenneUnbenannte(*wurzel, alsQString(titel->text()));
        const auto nenneSeite = [wurzel, titel] { wurzel->setAccessibleName(alsQString(titel->text())); };
        nenneSeite();
        ansicht.abonniere(titel->geändert, nenneSeite);
    }
    return blatt;
}
