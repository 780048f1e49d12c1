#include "care/frmBetrE.h"

#include "platform/text/Text.h"

#include <array>

namespace {

constexpr std::array vermittlungen{
    "Selbsthilfegruppe"_t,
    "Ärztliche oder psychotherapeutische Praxis"_t,
    "Niedrigschwellige Einrichtung (Notschlafstelle, Konsumraum, Streetwork etc.)"_t,
    "Beratungs- und/oder Behandlungsstelle, Fachambulanz"_t,
    "Institutsambulanz"_t,
    "Ambulant betreutes Wohnen"_t,
    "Arbeits- und Beschäftigungsprojekt"_t,
    "Krankenhaus / Krankenhausabteilung"_t,
    "Teilstationäre Rehabilitationseinrichtung"_t,
    "Stationäre Rehabilitationseinrichtung"_t,
    "Adaptionseinrichtung"_t,
    "Teilstationäre Einrichtung der Sozialtherapie (Tagesstätte etc.)"_t,
    "Stationäre Einrichtung der Sozialtherapie (Wohnheim / Übergangsheim)"_t,
    "Pflegeheim"_t,
    "Internen oder externen Diensten zur Beratung / Behandlung im Straf- / Maßregelvollzug"_t,
    "Sozialpsychatrischer Dienst"_t,
    "Andere Beratungsdienste (z.B. Ehe-, Familien-, Erziehungsberatung, Schuldnerberatung etc.)"_t,
    "Einrichtung der Jugendhilfe / Jugendamt"_t,
    "Soziale Verwaltung (Sozialamt, Wohnungsamt, Gesundheitsamt)"_t,
    "Arbeitsagentur / Arbeitsgemeinschaft (ARGE) / Job-Center (Fallmanager für ALG II etc.)"_t,
    "Justizbehörden / Bewährungshilfe"_t,
    "Kosten-, Leistungsträger"_t,
    "Sonstige"_t,
};

} // namespace

frmBetrE::frmBetrE() : Betreuungsseite("frmBetrE"_t, "Daten zu Bereuungsende"_t, &Arbeitskopie::DSBetrE)
{
    beschrifte(lblVermitt, vermittlungen);
    baueTafel();
    richteVermittlungenEin();
    ordneAn();
}

void frmBetrE::baueTafel()
{
    tafel.füge("Kontakte"_t, comboKontakte);
    tafel.füge("ArtEnd1"_t, comboArtEnd1);
    tafel.füge("ArtEnd2"_t, comboArtEnd2);
    tafel.füge("ProblEnde"_t, comboProblEnde);
    tafel.füge("Weiter"_t, comboWeiter);
    tafel.füge("Vermitt"_t, triJaNeinVermitt);
}

void frmBetrE::richteVermittlungenEin()
{
    richteFüllerEin(cmdSchnellFüller, triJaNeinVermitt);
    for (triCtlJaNein& antwort : triJaNeinVermitt) {
        antwort.beiÄnderung = [this, &antwort] {
            if (antwort.text() == antworttext::ja) {
                comboWeiter.setzeText(antworttext::ja); // a named referral is a referral
            }
        };
    }
}

void frmBetrE::ordneAn()
{
    using namespace anordnung;
    using anordnung::feld;
    std::vector<Anordnung> zeilen;
    for (int i = lblVermitt.von(); i <= lblVermitt.bis(); ++i) {
        zeilen.push_back(tabellenzeile(lblVermitt(i), {&triJaNeinVermitt(i)}));
    }
    aufbau =
        karten({spalte({karte({}, formular({feld("Kontaktanzahl"_t, comboKontakte, 4.6),
                                            feld("Art der Beendigung"_t, comboArtEnd1),
                                            feld("Steht die vorzeitige Beendigung im Zusammenhang mit"_t, comboArtEnd2),
                                            feld("Problematik am Tag des Betreuungsendes"_t, comboProblEnde)}))}),
                spalte({karte({}, spalte({formular({feld("Weitervermittlung am Betreuungsende"_t, comboWeiter, 10)}),
                                          füllend(tabelle({}, {{{}, {}, &cmdSchnellFüller}}, zeilen))}))})});
}
