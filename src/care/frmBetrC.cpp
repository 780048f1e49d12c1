#include "care/frmBetrC.h"

#include "platform/text/Text.h"

#include <array>

namespace {

constexpr std::array lebensunterhalte{
    "Lehn, Gehalt, Einkünfte aus freiberuflicher Tätigkeit"_t,
    "Ausbildungsbeihilfe, Unterhalt"_t,
    "Gelegenheitsjobs, unregelmäßige Einkünfte"_t,
    "Krankengeld, Übergangsgeld"_t,
    "Leistungen der Pflegeversicherung"_t,
    "Rente, Pension"_t,
    "Arbeitslosengeld I (SGB III 117)"_t,
    "Arbeitslosengeld II (SGB II 19) / Sozialgeld (SGB II 28)"_t,
    "Sozialhilfe (u.a. staatliche Leistungen, z.B. AsylbLG)"_t,
    "Angehörige"_t,
    "Vermögen"_t,
    "Sonstiges (z.B. Betteln)"_t,
};

/// Ties the mark of a row to its answer.
void verbindeZeile(Optionsfeld& haupt, triCtlJaNein& antwort, Optionsgruppe& gruppe)
{
    haupt.trittBei(gruppe);
    haupt.setzePfeileMarkieren(false); // a mark answers as well, so walking over the options must not mark
    haupt.beiKlick = [&haupt, &antwort] {
        if (haupt.istAn()) {
            antwort.setzeText(antworttext::ja);
        }
    };
    haupt.beiDoppelklick = [&haupt] { haupt.setze(false); };
    haupt.beiLöschtaste = [&haupt] { haupt.setze(false); };
    antwort.beiÄnderung = [&haupt, &antwort] {
        if (antwort.text() != antworttext::ja && haupt.istAn()) {
            haupt.setze(false);
        }
    };
}

} // namespace

frmBetrC::frmBetrC() : Betreuungsseite("frmBetrC"_t, "Soziodemografische Daten 2"_t, &Arbeitskopie::DSBetrC)
{
    beschrifte(lblLebUnt, lebensunterhalte);
    baueTafel();
    for (int i = lblLebUnt.von(); i <= lblLebUnt.bis(); ++i) {
        verbindeZeile(optLebunterV(i), triJaNeinLebuntv(i), m_hauptVor);
        verbindeZeile(optLebunterN(i), triJaNeinLebuntn(i), m_hauptNach);
    }
    richteFüllerEin(cmdSchnellFüller(0), triJaNeinLebuntv);
    richteFüllerEin(cmdSchnellFüller(1), triJaNeinLebuntn);
    ordneAn();
}

void frmBetrC::baueTafel()
{
    tafel.füge("LebUntV"_t, triJaNeinLebuntv);
    tafel.füge("LebUntN"_t, triJaNeinLebuntn);
    tafel.füge("LebUnterV"_t, optLebunterV);
    tafel.füge("LebUnterN"_t, optLebunterN);
    tafel.füge("Schule"_t, comboSchule);
    tafel.füge("Ausbild"_t, comboAusbild);
    tafel.füge("Erwerb1"_t, comboErwerb1);
    tafel.füge("Erwerb2"_t, comboErwerb2);
    tafel.füge("Erwerb3"_t, comboErwerb3);
    tafel.füge("Schulden"_t, comboSchulden);
}

void frmBetrC::ordneAn()
{
    using namespace anordnung;
    using anordnung::feld;
    constexpr double breite = 13;
    aufbau = karten(
        {spalte({karte({}, lebensunterhalt())}),
         spalte({karte({}, formular({feld("Höchster bisher erreichter allgemeiner Schulabschluss"_t, comboSchule),
                                     feld("Höchster Ausbildungsabschluss"_t, comboAusbild)},
                                    breite)),
                 karte("Erwerbssituation"_t,
                       formular({feld("Überwiegend die letzten 6 Monate vor Betreuungsbeginn"_t, comboErwerb1),
                                 feld("Am Tag vor Betreuungsbeginn"_t, comboErwerb2),
                                 feld("Am Tag nach Betreuungsende"_t, comboErwerb3)},
                                breite)),
                 karte({}, formular({feld("Problematische Schulden"_t, comboSchulden)}, breite))})});
}

Anordnung frmBetrC::lebensunterhalt()
{
    using namespace anordnung;
    constexpr auto vor = "in der Woche VOR BetreuungsBEGINN"_t;
    constexpr auto nach = "in der Woche NACH BetreuungsENDE"_t;
    constexpr auto einer = "Lebens- unterhalt"_t;
    const std::vector<Tabellenspalte> köpfe{{std::string(einer), std::string(vor), &cmdSchnellFüller(0), 4.6},
                                            {Frame1.text(), std::string(vor), nullptr, 4.6, &Frame1},
                                            {std::string(einer), std::string(nach), &cmdSchnellFüller(1), 4.6},
                                            {Frame2.text(), std::string(nach), nullptr, 4.6, &Frame2}};
    std::vector<Anordnung> zeilen;
    for (int i = lblLebUnt.von(); i <= lblLebUnt.bis(); ++i) {
        zeilen.push_back(tabellenzeile(
            lblLebUnt(i), {&triJaNeinLebuntv(i), &optLebunterV(i), &triJaNeinLebuntn(i), &optLebunterN(i)}));
    }
    return tabelle("Lebensunterhalt"_t, köpfe, zeilen);
}

void frmBetrC::nachLaden()
{
    setzeFokus(&triJaNeinLebuntv(1)); // not the button above it, which fills the whole column
}
