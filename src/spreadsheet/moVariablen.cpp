#include "spreadsheet/moVariablen.h"

#include "platform/text/Ressourcen.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace {

/// Rows that share the stem of their name and their first label.
struct Variablengruppe {
    std::string_view stamm;
    int ersteNummer; ///< behind the stem, counted up row by row; 0: the name is the stem alone
    std::string_view erste;
    std::string_view zweite{};                         ///< of a single row
    std::span<const std::string_view> zweiteJeZeile{}; ///< of several rows, one each
    bool überschriftBleibt = false;                    ///< the second table keeps the first label although it repeats
};

constexpr std::array kostenträger{
    "Pauschal/ institutionell finanziert (z.B.ÖGD)"_t,
    "Selbstzahler"_t,
    "Rentenversicherung"_t,
    "Krankenversicherung"_t,
    "Sozialhilfe"_t,
    "Jugendhilfe"_t,
    "Arbeitsargenturen, Jobcenter"_t,
    "Pflegeversicherung"_t,
    "Sonstiges"_t,
};
constexpr std::array bisherigeMaßnahmen{
    "Medizinische Notfallhilfe"_t,
    "Substitutionsbehandlung (Mittelvergabe)"_t,
    "Psychosoziale Begleitbetreuung bei Substitution"_t,
    "Sonstige medizinische Maßnahmen"_t,
    "Entzug / Entgiftung"_t,
    "Ambulante Beratung"_t,
    "Ambulante Entwöhnungsbehandlung (Rehabilitation)"_t,
    "Teilstationäre Entwöhnungsbehandlung (Rehabilitation)"_t,
    "Stationäre Entwöhnungsbehandlung (Rehabilitation)"_t,
    "Kombinationstherapie (Rehabilitation)"_t,
    "Adaptionsbehandlung"_t,
    "Ambulante sozialtherapeutische Maßnahmen"_t,
    "Teilstationäre sozialtherapeutische Maßnahmen"_t,
    "Stationäre sozialtherapeutische Maßnahmen "_t,
    "Psychatrische Behandlung "_t,
    "Psychotherapeutische Behandlung"_t,
    "Regelmäßiger Besuch von Selbsthilfegruppe(n) - Angabe in Jahren"_t,
    "Sonstige Maßnahmen"_t,
};
constexpr std::array mitbewohner{
    "Kind(ern) "_t,
    "Eltern(teil) "_t,
    "Sonstiger/n Bezugsperson/en"_t,
    "Sonstiger/n Person/en "_t,
};
constexpr std::array zeitpunkte{
    "Überwiegend die letzten 6 Monate vor Betreuungsbeginn"_t,
    "Am Tag vor Betreuungsbeginn"_t,
    "Am Tag nach Betreuungsende"_t,
};
constexpr std::array unterhaltsquellen{
    "Lohn, Gehalt, Einkünfte aus freiberuflicher Tätigkeit"_t,
    "Ausbildungsbeihilfe, Unterhalt"_t,
    "Gelegenheitsjobs, unregelmäßige Einkünfte"_t,
    "Krankengeld, Übergangsgeld"_t,
    "Leistungen der Pflegeversicherung"_t,
    "Rente, Pension"_t,
    "Arbeitslosengeld I (SGB III 117)"_t,
    "Arbeitslosengeld II (SGB II 19) / Sozialgeld (SGB II 28)"_t,
    "Sozialhilfe (u.a. staatliche leistungen, z.B AsylbLG)"_t,
    "Angehörige"_t,
    "Vermögen"_t,
    "Sonstiges (z.B. Betteln)"_t,
};
constexpr std::array interneMaßnahmen{
    "Medizinische Notfallhilfe"_t,
    "Substitutionsbehandlung (Mittelvergabe)"_t,
    "Psychosoziale Begleitbetreuung bei Substitution "_t,
    "Sonstige medizinische Maßnahmen"_t,
    "Entgiftung/Entzug"_t,
    "Ambulante Beratung"_t,
    "Ambulante Entwöhnungsbehandlung"_t,
    "Teilstationäre Entwöhnungsbehandlung"_t,
    "Stationäre Entwöhnungsbehandlung"_t,
    "Kombinationstherapie"_t,
    "Adaptionsbehandlung"_t,
    "Ambulante sozialtherapeutische Maßnahmen"_t,
    "Teilstationäre sozialtherapeutische Maßnahmen"_t,
    "Stationäre sozialtherapeutische Maßnahmen"_t,
    "Psychatrische Behandlung"_t,
    "Psychotherapeutische Behandlung"_t,
    "Sonstige Maßnahmen"_t,
};
/// The same measures; one label differs.
constexpr auto externeMaßnahmen = [] {
    auto labels = interneMaßnahmen;
    labels[7] = "Teilstationäre Entwöhnungsbehandlung / Kombinationstherapie"_t;
    return labels;
}();
constexpr std::array kooperationspartner{
    "Familie"_t,
    "Arbeitgeber, Betrieb, Schule"_t,
    "Selbsthilfegruppe"_t,
    "Ärztliche oder psychotherapeutische Praxis"_t,
    "Niedrigschwellige Einrichtung (Notschlafstelle, Konsumraum, Streetwork etc.)"_t,
    "Suchtberatungs- und/oder -behandlungsstelle, Fachambulanz"_t,
    "Institutsambulanz"_t,
    "Ambulantes betreutes Wohnen"_t,
    "Arbeits-und Beschäftigungsprojekt"_t,
    "Krankenhaus / Krankenhausabteilung"_t,
    "Teilstationäre Rehabilitationseinrichtung"_t,
    "Stationäre Rehabilitationseinrichtung"_t,
    "Adaptionseinrichtung"_t,
    "Teilstationäre Einrichtung der Sozialtherapie (Tagesstätte etc.)"_t,
    "Stationäre Einrichtung der Sozialtheraphie "_t,
    "Pflegeheim"_t,
    "Internen oder externen Diensten zur Beratung/Behandlung imStraf-/Maßregelvollzug"_t,
    "Sozialpsychatrischer Dienst"_t,
    "Andere Beratungsdienste (zB. Ehe-, Familie-, Erziehungsberatung, Schuldnerberatung etc.) "_t,
    "Einrichtung der Jugendhilfe / Jugendamt"_t,
    "Soziale Verwaltung (Sozialamt, Wohnungsamt, Gesundheitsamt)"_t,
    "Arbeitsargentur / Arbeitsgemeinschaft (ARGE) / Job-Center (Fallmanager für ALG II etc.)"_t,
    "Straßenverkehrsbehörde / Führerscheinstelle"_t,
    "Justizbehörden / Bewährungshilfe"_t,
    "Kosten-, Leistungsträger"_t,
    "Sonstige"_t,
};
constexpr std::array weitervermittlungen{
    "Selbsthilfegruppe"_t,
    "Ärztliche oder psychotherapeutische Praxis"_t,
    "Niedrigschwellige Einrichtung (Notschlafstelle, Konsumraum, Streetwork etc.)"_t,
    "Beratungs- und/oder Fachambulanz"_t,
    "Institutsambulanz"_t,
    "Ambulant betreutes Wohnen"_t,
    "Arbeits- und Beschäftigungsprojekt"_t,
    "Krankenhaus / Krankenhausabteilung"_t,
    "Teilstationäre Rehabilitationseinrichtung"_t,
    "Stationäre Rehabilitationseinrichtung"_t,
    "Adaptionseinrichtung"_t,
    "Teistationäre Einrichtung der Sozialtherapie (Tagesstätte etc.)"_t,
    "Stationäre Einrichtung der Sozialtheraphie (Wohnheim / Übergangsheim)"_t,
    "Pflegeheim"_t,
    "Internen oder externen Diensten zur Beratung/Behandlung im"_t,
    "Sozialpsychatrischer Dienst"_t,
    "Andere Beratungsdienste (zB. Ehe-, Familie-, Erziehungsberatung, Schuldnerberatung etc.) "_t,
    "Einrichtung der Jugendhilfe / Jugendamt"_t,
    "Soziale Verwaltung (Sozialamt, Wohnungsamt,Gesundheitsamt)"_t,
    "Arbeitsargentur / Arbeitsgemeinschaft (ARGE) /Job-Center (Fallmanager für ALG II etc.)"_t,
    "Justizbehörden / Bewährungshilfe"_t,
    "Kosten-, Leistungsträger"_t,
    "Sonstige"_t,
};

constexpr Variablengruppe gruppen[]{
    {"tsnr"_t, 0, "Teilstellennummer"_t},
    {"fallnr"_t, 0, "Fallnummer"_t},
    {"betrnr"_t, 0, "Betreuungsnummer"_t},
    {"betbeg"_t, 0, "Datum des Betreuungsbeginns"_t},
    {"betend"_t, 0, "Datum des Betreuungsendes"_t},
    {"betdau"_t, 0, "Dauer der Betreuung"_t, "in Tagen"_t},
    {"alter"_t, 0, "Alter bei Betreuungsbeginn (in Jahren)"_t},
    {"geschl"_t, 0, "Geschlecht"_t},
    {"betrgru"_t, 0, "Betreuungsgrund "_t},
    {"angeho"_t, 0, "Angehöriger kommt als"_t},
    {"problem"_t, 0, "(Vorrangiges) Suchtproblem"_t, "aus Sicht des Angehörigen"_t},
    {"zuvor"_t, 0, "Jemals zuvor suchtbezogene Hilfe beansprucht"_t},
    {"wieder"_t, 0, "Wiederaufnahme in dieser Einrichtung"_t},
    {"vermitt"_t, 0, "Vermittelnde Instanz"_t},
    {"kosten"_t, 1, "Kosten-/ Leistungsträger"_t, {}, kostenträger},
    {"auflagen1"_t, 0, "Auflagen durch Gerichtsbeschluss zur Abwendung freiheitseinschränkender Folgen"_t},
    {"auflagen2"_t, 0, "Weitere Auflagen durch "_t},
    {"zuvor"_t, 1, "Anzahl bisheriger Maßnahmen (inkl. aktuelle)"_t, {}, bisherigeMaßnahmen},
    {"famsta"_t, 0, ""_t},
    {"partner"_t, 0, "Partnerbeziehung "_t},
    {"lebensit"_t, 0, "Lebenssituation"_t, "Alleinlebend"_t},
    {"lebensit"_t, 1, "Lebenssituation"_t, "Partner/in"_t, {}, true},
    {"lebensit"_t, 2, "Zusammenlebend mit"_t, {}, mitbewohner, true},
    {"kinder1"_t, 0, "Anzahl eigener Kinder unter 18 Jahren"_t},
    {"kinder2"_t, 0, "Anzahl Kinder im Haushalt unter 18 Jahren"_t},
    {"nation"_t, 0, "Aktuelle Staatsangehörigkeit des Klienten"_t, "Internationaler Code"_t},
    {"sprache"_t, 0, "Klient ist der Deutschen Sprache mächtig"_t},
    {"migrant1"_t, 0, "Klient ist selbst migriert"_t},
    {"migrant2"_t, 0, "Klient ist als Kind von Migranten geboren"_t},
    {"schule"_t, 0, "Höchster bisher erreichter allg. Schulabschluss"_t},
    {"ausbild"_t, 0, "Höchster Ausbildungsabschluss"_t},
    {"wohnung"_t, 1, "Wohnverhältnis"_t, {}, zeitpunkte, true},
    {"erwerb"_t, 1, "Erwerbssituation"_t, {}, zeitpunkte, true},
    {"lebuntv"_t, 1, "Lebensunterhalt in der Woche vor Betreuungsbeginn"_t, {}, unterhaltsquellen},
    {"lebunterv"_t, 0, "Hauptebensunterhalt"_t, "in der Woche vor Betreuungsbeginn"_t},
    {"lebuntn"_t, 1, "Lebensunterhalt in der Woche nach Betreuungsende"_t, {}, unterhaltsquellen},
    {"lebuntern"_t, 0, "Hauptebensunterhalt"_t, "in der Woche nach Betreuungsende"_t},
    {"schulden"_t, 0, "Problematische Schulden"_t},
    {"masint"_t, 1, "Art der Betreuung (intern)"_t, {}, interneMaßnahmen},
    {"masext"_t, 1, "Art der Betreuung (extern)"_t, {}, externeMaßnahmen},
    {"substitut"_t, 0, "Wenn Substitution welches Mittel"_t},
    {"kooper"_t, 1, "Kooperation während der Betreuung mit"_t, {}, kooperationspartner},
    {"kontakte"_t, 0, "Kontaktzahl"_t},
    {"artend1"_t, 0, "Art der Beendigung"_t},
    {"artend2"_t, 0, "Steht die vorzeitige Beendigung im Zusammenhang mit "_t},
    {"weiter"_t, 0, "Weitervermittlung am Betreuungsende"_t},
    {"vermitt"_t, 1, "Weitervermittlung in / zu"_t, {}, weitervermittlungen},
    {"problende"_t, 0, "Problematik am Tag des Betreuungsendes"_t},
    {"plz"_t, 0, "Postleitzahl der Klientenadresse"_t},
    {"migration"_t, 0, "Migrationsstatus"_t},
    {"aufenthalt"_t, 0, "Aufenthaltsstatus"_t},
    {"hivcode"_t, 0, "HIV-Code"_t},
};

std::vector<Variable> baueVariablen()
{
    std::vector<Variable> zeilen;
    for (const Variablengruppe& gruppe : gruppen) {
        int nummer = gruppe.ersteNummer;
        const auto labels = gruppe.zweiteJeZeile.empty() ? std::span(&gruppe.zweite, 1) : gruppe.zweiteJeZeile;
        for (const std::string_view zweite : labels) {
            const bool wiederholt = !zeilen.empty() && zeilen.back().erste == gruppe.erste && !gruppe.überschriftBleibt;
            zeilen.push_back({verbinde(gruppe.stamm, nummer == 0 ? std::string{} : alsText(nummer)), gruppe.erste,
                              zweite, wiederholt});
            ++nummer;
        }
    }
    return zeilen;
}

std::string alsZeile(const Variable& variable, std::string_view überschrift)
{
    return verbinde(variable.name, trenner, überschrift, trenner, variable.zweite);
}

} // namespace

const std::vector<Variable>& variablen()
{
    static const auto zeilen = baueVariablen();
    return zeilen;
}

void registriereVariablen(Ressourcen& ressourcen)
{
    const int zeilen = static_cast<int>(variablen().size());
    const auto variable = [](int zeile) -> const Variable& { return variablen()[static_cast<std::size_t>(zeile - 1)]; };
    ressourcen.nimm({ressourceVariablen, zeilen,
                     [variable](int zeile) { return alsZeile(variable(zeile), variable(zeile).erste); }});
    ressourcen.nimm({ressourceVariablenOhneWiederholung, zeilen, [variable](int zeile) {
                         return alsZeile(variable(zeile), variable(zeile).ersteOhneWiederholung());
                     }});
}
