#include "care/frmBetrB.h"

#include "platform/text/Text.h"

#include <array>

namespace {

constexpr std::array lebenssituationen{
    "Lebenssituation: Alleinlebend"_t, "Lebenssituation: Partner/in"_t, "Kind(ern)"_t, "Eltern(teil)"_t,
    "Sonstiger/n Bezugsperson/en"_t,   "Sonstiger/n Person/en"_t};

constexpr int alleinlebend = 0;

} // namespace

frmBetrB::frmBetrB() : Betreuungsseite("frmBetrB"_t, "Soziodemografische Daten 1"_t, &Arbeitskopie::DSBetrB)
{
    beschrifte(lblLebensit, lebenssituationen);
    baueTafel();
    ordneAn();
    for (Auswahlfeld& feld : comboLebensit) {
        feld.beiWahl = [this] { zeigeLebensit(); };
    }
}

void frmBetrB::baueTafel()
{
    tafel.füge("FamSta"_t, comboFamsta);
    tafel.füge("Partner"_t, comboPartner);
    tafel.füge("LebenSit"_t, comboLebensit);
    tafel.füge("Kinder1"_t, comboKinder1);
    tafel.füge("Kinder2"_t, comboKinder2);
    tafel.füge("Wohnung1"_t, comboWohnung1);
    tafel.füge("Wohnung2"_t, comboWohnung2);
    tafel.füge("Wohnung3"_t, comboWohnung3);
}

void frmBetrB::ordneAn()
{
    using namespace anordnung;
    using anordnung::feld;
    constexpr double kurz = 10;
    std::vector<Anordnung> zusammenlebend;
    for (int i = alleinlebend + 1; i <= lblLebensit.bis(); ++i) {
        zusammenlebend.push_back(feld(lblLebensit(i), {platzhaltend(element(comboLebensit(i), kurz))}));
    }
    aufbau = karten(
        {spalte({karte({}, formular({feld("Familienstand"_t, comboFamsta), feld("Partnerbeziehung"_t, comboPartner)})),
                 karte("Lebenssituation"_t,
                       spalte({formular({feld(lblLebensit(alleinlebend), comboLebensit(alleinlebend), kurz)}),
                               text("Zusammenlebend mit:"_t), formular(zusammenlebend)}))}),
         spalte({karte("Kinder:"_t,
                       formular({feld("Anzahl der eigenen Kinder unter 18 Jahren"_t, comboKinder1, 4.6),
                                 feld("Anzahl der Kinder im Haushalt unter 18 Jahren"_t, comboKinder2, 4.6)})),
                 karte("Wohnverhältnis"_t,
                       formular({feld("Überwiegend in den letzten 6 Monaten vor Betreuungsbeginn"_t, comboWohnung1),
                                 feld("Am Tag vor Betreuungsbeginn"_t, comboWohnung2),
                                 feld("Am Tag nach Betreuungsende"_t, comboWohnung3)}))})});
}

void frmBetrB::zeigeLebensit()
{
    const bool allein = werte::heutige(werte::lang, comboLebensit(alleinlebend).text()) == antworttext::ja;
    for (int i = alleinlebend + 1; i <= comboLebensit.bis(); ++i) {
        comboLebensit(i).zeige(!allein);
    }
}

void frmBetrB::vorSammeln()
{
    for (Auswahlfeld& feld : comboLebensit) {
        if (!feld.istSichtbar()) {
            feld.setzeText(antworttext::nein); // who lives alone lives with nobody else
        }
    }
}
