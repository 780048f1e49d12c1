#include "care/frmBetrA.h"

#include "platform/text/Text.h"

#include <array>

namespace {

constexpr std::array maßnahmenarten{
    "Medizinische Notfallhilfe"_t,
    "Substitutionsbehandlung (Mittelvergabe)"_t,
    "Psychosoziale Begleitbetreuung bei Substitution"_t,
    "Sonstige medizinische Maßnahmen"_t,
    "Entzug / Entgiftung"_t,
    "Ambulante Beratung"_t,
    "Ambulante Entwöhungsbehandlung (Rehabitilation)"_t,
    "Teilstationäre Entwöhnungsbehandlung (Rehabitilation)"_t,
    "Stationäre Entwöhungsbehandlung (Rehabitilation)"_t,
    "Kombinationstherapie (Rehabitilation)"_t,
    "Adaptionsbehandlung"_t,
    "Ambulante sozialtherapeutische Maßnahmen"_t,
    "Teilstationäre sozialtherapeutische Maßnahmen"_t,
    "Stationäre sozialtherapeutische Maßnahmen"_t,
    "Psychiatrische Behandlung"_t,
    "Psychotherapeutische Behandlung"_t,
    "Regelmäßiger Besuch von Selbsthilfegruppe(n) - Angabe in Jahren"_t,
    "sonstige Maßnahmen"_t,
};

constexpr std::array kooperationspartner{
    "Familie"_t,
    "Arbeitgeber, Betrieb, Schule"_t,
    "Selbsthilfegruppe"_t,
    "Ärztliche oder psychotherapeutische Praxis"_t,
    "Niedrigschwelige Einrichtung  (Notschlafstelle, Konsumraum, Streetwork etc.)"_t,
    "Beratungs- und/oder Behandlungsstelle, Fachambulanz"_t,
    "Institutsambulanz"_t,
    "Ambulantes betreutes Wohnen"_t,
    "Arbeits- und Beschäftigungsprojekt"_t,
    "Krankenhaus / Krankenhausabteilung"_t,
    "Teilstationäre Rehabilitationseinrichtung"_t,
    "Stationäre Rehabilitationseinrichtung"_t,
    "Adaptionseinrichtung"_t,
    "Teilstationäre Einrichtung der Sozialtherapie (Tagestätte etc.)"_t,
    "Stationäre Einrichung der Sozialtherapie"_t,
    "Pflegeheim"_t,
    "Internen oder externen Diensten zur Beratung/Behandlung im Straf-/Maßregelvollzug"_t,
    "Sozialpsychatrischer Dienst"_t,
    "Andere Beratungsdienste (z.B. Ehe-, Familie-, Erziehungsberatung, Schuldnerberatung etc.)"_t,
    "Einrichtung der Jugendhilfe/Jugendamt"_t,
    "Soziale Verwaltung (Sozialamt, Wohnungsamt, Gesundheitsamt)"_t,
    "Arbeitsagentur / Arbeitsgemeinschaft (ARGE) / Job-Center (Fallmanager für ALG II etc.)"_t,
    "Straßenverkehrsbehörde / Führerscheinstelle"_t,
    "Justizbehörden / Bewährungshilfe"_t,
    "Kosten-, Leistungsträger"_t,
    "Sonstige"_t,
};

/// The rows from top to bottom; the two of the substitution stand behind the self-help groups.
constexpr std::array zeilenfolge{1, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 2, 3, 18};

/// Self-help groups are no measure of a facility: the row has a number of years, but no answers, so the
/// answers of the row behind it are one number lower.
constexpr int zeileSelbsthilfe = 17;

} // namespace

frmBetrA::frmBetrA() : Betreuungsseite("frmBetrA"_t, "Maßnahmen und Interventionen"_t, &Arbeitskopie::DSBetrA)
{
    beschrifte(lblZuvor, maßnahmenarten);
    beschrifte(lblKooper, kooperationspartner);
    baueTafel();
    richteFüllerEin(cmdSchnellFüller(0), triJaNeinMasInt);
    richteFüllerEin(cmdSchnellFüller(1), triJaNeinMasExt);
    richteFüllerEin(cmdSchnellFüller(2), triJaNeinKooper);
    cmdSchnellFüller(3).setzeHinweis("setzt alle \"k.A.\" auf \"0\""_t);
    cmdSchnellFüller(3).beiKlick = [this] { setzeZuvorAufNull(); };
    aufbau = anordnung::karten({anordnung::spalte({maßnahmen()}), anordnung::spalte({kooperationen()})});
}

void frmBetrA::baueTafel()
{
    tafel.füge("Substitut"_t, comboSubstitut);
    tafel.füge("zuvorNULL"_t, comboZuvorNULL);
    tafel.füge("MasInt"_t, triJaNeinMasInt);
    tafel.füge("MasExt"_t, triJaNeinMasExt);
    tafel.füge("Zuvor"_t, comboZuvor);
    tafel.füge("Kooper"_t, triJaNeinKooper);
}

Anordnung frmBetrA::maßnahmen()
{
    using namespace anordnung;
    using anordnung::feld;
    std::vector<Anordnung> zeilen;
    for (const int i : zeilenfolge) {
        const int antwort = i < zeileSelbsthilfe ? i : i - 1;
        const bool hatAntworten = i != zeileSelbsthilfe;
        zeilen.push_back(
            tabellenzeile(lblZuvor(i), {hatAntworten ? &triJaNeinMasInt(antwort) : nullptr,
                                        hatAntworten ? &triJaNeinMasExt(antwort) : nullptr, &comboZuvor(i)}));
    }
    constexpr auto innen = "intern"_t;
    constexpr auto außen = "extern"_t;
    constexpr auto anzahl = "Anzahl bisheriger Maßnahmen (inkl. aktuelle)"_t;
    const std::vector<Tabellenspalte> köpfe{{std::string(innen), {}, &cmdSchnellFüller(0)},
                                            {std::string(außen), {}, &cmdSchnellFüller(1)},
                                            {std::string(anzahl), {}, &cmdSchnellFüller(3), 7.5}};
    return karte({}, spalte({formular({feld("Wenn Substitution, welches Mittel"_t, comboSubstitut),
                                       feld("Jemals zuvor suchtbezogene Hilfe beansprucht"_t, comboZuvorNULL, 10)}),
                             füllend(tabelle("Art der Betreuung"_t, köpfe, zeilen))}));
}

Anordnung frmBetrA::kooperationen()
{
    using namespace anordnung;
    std::vector<Anordnung> zeilen;
    for (int i = lblKooper.von(); i <= lblKooper.bis(); ++i) {
        zeilen.push_back(tabellenzeile(lblKooper(i), {&triJaNeinKooper(i)}));
    }
    return karte({}, tabelle("Kooperation während der Betreuung mit..."_t, {{{}, {}, &cmdSchnellFüller(2)}}, zeilen));
}

void frmBetrA::setzeZuvorAufNull()
{
    for (Auswahlfeld& feld : comboZuvor) {
        if (feld.text() == antworttext::keine) {
            feld.setzeText("0"_t);
        }
    }
}
