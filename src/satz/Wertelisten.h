#pragma once

#include "platform/text/Antworttexte.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The value lists of the core data set: every text that a field can hold, with its code in the yearly
/// export and the import. Each list stands here once; screens, export and import read it. All texts are
/// stored letter for letter, misspellings included.
struct Wertepaar {
    std::string_view text;
    std::string_view code;
    bool frühere = false; ///< an older spelling: records may hold it and the export knows its code, but it is neither
                          ///< offered nor written any more; it stands behind the spelling of today
};

using Werteliste = std::span<const Wertepaar>;

namespace werte {

inline constexpr std::array kurz{
    Wertepaar{antworttext::keine, "0"_t},
    Wertepaar{antworttext::nein, "1"_t},
    Wertepaar{antworttext::ja, "2"_t},
};

inline constexpr std::array lang{
    Wertepaar{"keine Angaben"_t, "0"_t},
    Wertepaar{antworttext::nein, "1"_t},
    Wertepaar{antworttext::ja, "2"_t},
};

inline constexpr std::array geschlecht{
    Wertepaar{"keine Angaben"_t, "0"_t},
    Wertepaar{"männlich"_t, "1"_t},
    Wertepaar{"weiblich"_t, "2"_t},
};

inline constexpr std::array betrGru{
    Wertepaar{"keine Angaben"_t, "0"_t},
    Wertepaar{"Eigene Problematik"_t, "1"_t},
    Wertepaar{"Problematik von Personen im sozialen Umfeld"_t, "2"_t},
    Wertepaar{"Sonstiges"_t, "3"_t},
};

inline constexpr std::array angeho{
    Wertepaar{"keine Angaben"_t, "0"_t}, Wertepaar{"Partner"_t, "1"_t},      Wertepaar{"Kind"_t, "2"_t},
    Wertepaar{"Geschwister"_t, "3"_t},   Wertepaar{"Eltern(teil)"_t, "4"_t}, Wertepaar{"Andere"_t, "5"_t},
};

inline constexpr std::array problem{
    Wertepaar{"keine Angaben"_t, "0"_t}, Wertepaar{"Alkohol"_t, "1"_t},         Wertepaar{"Medikamente"_t, "2"_t},
    Wertepaar{"Cannabis"_t, "3"_t},      Wertepaar{"Sonstige Drogen"_t, "4"_t}, Wertepaar{"Tabak"_t, "5"_t},
    Wertepaar{"Glücksspielen"_t, "6"_t}, Wertepaar{"Essen"_t, "7"_t},
};

inline constexpr std::array vermitt{
    Wertepaar{"keine Angaben"_t, "0"_t},
    Wertepaar{"Keine / Selbstmelder"_t, "1"_t},
    Wertepaar{"Familie"_t, "2"_t},
    Wertepaar{"Arbeitgeber, Betrieb, Schule"_t, "3"_t},
    Wertepaar{"Abstinenz-/Selbsthilfegruppe"_t, "4"_t},
    Wertepaar{"Ärztliche oder psychotherapeutische Praxis"_t, "5"_t},
    Wertepaar{"Niedrigschwellige Einrichtung (Notschlafstelle, Konstumraum, Streetwork)"_t, "6"_t},
    Wertepaar{"Suchtberatungs- und/oder Behandlungsstelle, Fachambulanz"_t, "7"_t},
    Wertepaar{"Institutsambulanz"_t, "8"_t},
    Wertepaar{"Ambulantes betreutes Wohnen"_t, "9"_t},
    Wertepaar{"Arbeits- und Beschäftigungsprojekt"_t, "10"_t},
    Wertepaar{"Krankenhaus / Krankenhausabteilung"_t, "11"_t},
    Wertepaar{"Teilstationäre Rehabilitationseinrichtung"_t, "12"_t},
    Wertepaar{"Stationäre Rehabilitationseinrichtung"_t, "13"_t},
    Wertepaar{"Adaptionseinrichtung"_t, "14"_t},
    Wertepaar{"Teilstationäre Einrichtung der Sozialtherapie (Tagesstätte etc.)"_t, "15"_t},
    Wertepaar{"Stationäre Einrichtung der Sozialtherapie"_t, "16"_t},
    Wertepaar{"Pflegeheim"_t, "17"_t},
    Wertepaar{"Sozialdienst JAV / Maßregelvollzug"_t, "18"_t},
    Wertepaar{"Sozialpsychiatrischer Dienst"_t, "19"_t},
    Wertepaar{"Andere Beratungsdienste (zB. Ehe-, Familien-, Erziehungsberatung)"_t, "20"_t},
    Wertepaar{"Einrichtung der Jugendhilfe / Jugendamt"_t, "21"_t},
    Wertepaar{"Soziale Verwaltung (Sozialamt, Wohnungsamt, Gesundheitsamt)"_t, "22"_t},
    Wertepaar{"Arbeitsagentur, Job-Center, Arbeitsgemeinschaft (ARGE)"_t, "23"_t},
    Wertepaar{"Straßenverkehrsbehörde / Führerscheinstelle"_t, "24"_t},
    Wertepaar{"Justizbehörden / Bewährungshilfe"_t, "25"_t},
    Wertepaar{"Kosten-, Leistungsträger"_t, "26"_t},
    Wertepaar{"Sonstige"_t, "27"_t},
};

inline constexpr std::array auflagen1{
    Wertepaar{"keine Angaben"_t, "0"_t},
    Wertepaar{"Keine gerichtlichen Auflagen"_t, "1"_t},
    Wertepaar{"BtMG"_t, "2"_t},
    Wertepaar{"Psych-KG / Landesunterbringungsgesetz"_t, "3"_t},
    Wertepaar{"andere strafrechtliche Grundlage"_t, "4"_t},
};

inline constexpr std::array auflagen2{
    Wertepaar{"keine Angaben"_t, "0"_t},
    Wertepaar{"Arbeitgeber"_t, "1"_t},
    Wertepaar{"Rentenversicherung, Krankenversicherung"_t, "2"_t},
    Wertepaar{"Arbeitsagentur, Job-Center, (ARGE)"_t, "3"_t},
    Wertepaar{"Straßenverkehrsbehörde / Führerscheinstelle"_t, "4"_t},
    Wertepaar{"Sonstige"_t, "5"_t},
};

inline constexpr std::array substitut{
    Wertepaar{"keine Angaben"_t, "0"_t},
    Wertepaar{"Methadon (Racemat)"_t, "1"_t},
    Wertepaar{"Polamidon (Levomethadonhydrochlorid)"_t, "2"_t},
    Wertepaar{"Subutex (Buprenorphin)"_t, "3"_t},
    Wertepaar{"anderes"_t, "4"_t},
};

inline constexpr std::array famSta{
    Wertepaar{"keine Angaben"_t, "0"_t},
    Wertepaar{"Ledig"_t, "1"_t},
    Wertepaar{"Verheiratet, zusammenlebend"_t, "2"_t},
    Wertepaar{"Verheiratet, getrennt lebend"_t, "3"_t},
    Wertepaar{"Geschieden"_t, "4"_t},
    Wertepaar{"Verwitwet"_t, "5"_t},
};

inline constexpr std::array partner{
    Wertepaar{"keine Angaben"_t, "0"_t},
    Wertepaar{"Alleinstehend"_t, "1"_t},
    Wertepaar{"Zeitweilige Beziehung"_t, "2"_t},
    Wertepaar{"Feste Beziehung"_t, "3"_t},
    Wertepaar{"Sonstige"_t, "4"_t},
};

inline constexpr std::array wohnung{
    Wertepaar{"keine Angaben"_t, "0"_t},
    Wertepaar{"Selbständiges Wohnen (eigene/gemietete Wohnung/Haus)"_t, "1"_t},
    Wertepaar{"Bei anderen Personen"_t, "2"_t},
    Wertepaar{"Ambulant Betreutes Wohnen"_t, "3"_t},
    Wertepaar{"(Fach-)Klinik, stationäre Rehabilitationseinrichtung"_t, "4"_t},
    Wertepaar{"Wohnheim/Übergangswohnheim"_t, "5"_t},
    Wertepaar{"JVA, Maßregelvollzug, Sicherheitsverwahrung"_t, "6"_t},
    Wertepaar{"Notunterkunft, Übernachtungsstelle"_t, "7"_t},
    Wertepaar{"ohne Wohnung"_t, "8"_t},
    Wertepaar{"Sonstiges"_t, "9"_t},
};

inline constexpr std::array schule{
    Wertepaar{"keine Angaben"_t, "0"_t},
    Wertepaar{"Derzeit in Schulausbildung"_t, "1"_t},
    Wertepaar{"ohne Schulabschluss abgegangen"_t, "2"_t},
    Wertepaar{"Sonderschulabschluss"_t, "3"_t},
    Wertepaar{"Hauptschul-/Volksschulabschluss"_t, "4"_t},
    Wertepaar{"Realschulabschluss / Polytechnische Oberschule"_t, "5"_t},
    Wertepaar{"(Fach-)Hochschulreife / Abitur"_t, "6"_t},
    Wertepaar{"Anderer Schulabschluss"_t, "7"_t},
};

inline constexpr std::array ausbild{
    Wertepaar{"keine Angaben"_t, "0"_t},
    Wertepaar{"Derzeit in Hochschul- oder Berufsausbildung"_t, "1"_t},
    Wertepaar{"Keine Hochschul- oder Berufsausbildung abgeschlossen"_t, "2"_t},
    Wertepaar{"Abgeschlossene Lehrausbildung"_t, "3"_t},
    Wertepaar{"Meister / Techniker"_t, "4"_t},
    Wertepaar{"Hochschulabschluss"_t, "5"_t},
    Wertepaar{"Anderer Berufsabschluss"_t, "6"_t},
};

inline constexpr std::array erwerb{
    Wertepaar{"keine Angaben"_t, "0"_t},
    Wertepaar{"Auszubildender"_t, "1"_t},
    Wertepaar{"Arbeiter / Angestellter / Beamter"_t, "2"_t},
    Wertepaar{"Selbständiger / Freiberufler"_t, "3"_t},
    Wertepaar{"Sonstige Erwerbspersonen (z.B. Wehrdienst, Elternzeit, mithelfende Familienangehörige)"_t, "4"_t},
    Wertepaar{"In beruflicher Rehabilitation (Leistung zur Teilhabe am Arbeitsleben)"_t, "5"_t},
    Wertepaar{"Arbeitslos nach SGB III (Bezug von ALG I)"_t, "6"_t},
    Wertepaar{"Arbeitslos nach SGB II (Bezug von ALG II)"_t, "7"_t},
    Wertepaar{"Schüler / Student"_t, "8"_t},
    Wertepaar{"Hausfrau / Hausmann"_t, "9"_t},
    Wertepaar{"Rentner / Pensionär"_t, "10"_t},
    Wertepaar{"Sonstige Nichterwerbspersonen (z.B. SGB XII)"_t, "11"_t},
};

inline constexpr std::array schulden{
    Wertepaar{"keine Angaben"_t, "0"_t}, Wertepaar{"Keine"_t, "1"_t},        Wertepaar{"bis 10.000 €"_t, "2"_t},
    Wertepaar{"bis 25.000 €"_t, "3"_t},  Wertepaar{"bis 50.000 €"_t, "4"_t}, Wertepaar{"Mehr"_t, "5"_t},
};

/// HIV and hepatitis B.
inline constexpr std::array test{
    Wertepaar{"keine Angaben"_t, "0"_t},
    Wertepaar{"Getestet, negativ"_t, "1"_t},
    Wertepaar{"Getestet, positiv"_t, "2"_t},
    Wertepaar{"Status unbekannt"_t, "3"_t},
};

inline constexpr std::array hepatitisC{
    Wertepaar{"keine Angaben"_t, "0"_t},    Wertepaar{"Getestet, negativ"_t, "1"_t},
    Wertepaar{"Getestet, akut"_t, "2"_t},   Wertepaar{"Getestet, chronisch"_t, "3"_t},
    Wertepaar{"Status unbekannt"_t, "4"_t},
};

inline constexpr std::array artEnd1{
    Wertepaar{"keine Angaben"_t, "0"_t},
    Wertepaar{"Regulär nach Beratung / Behandlungsplan"_t, "1"_t},
    Wertepaar{"Vorzeitig auf ärztliche / therapeutische Veranlassung"_t, "2"_t},
    Wertepaar{"Vorzeitig mit ärztlichem / therapeutischem Einverständnis"_t, "3"_t},
    Wertepaar{"Vorzeitig ohne ärztliches / therapeutisches Einverständnis / Abbruch durch Klient"_t, "4"_t},
    Wertepaar{"Disziplinarisch"_t, "5"_t},
    Wertepaar{"Außerplanmäßige Verlegung / außerplanmäßiger Wechsel in andere Einrichtung"_t, "6"_t},
    Wertepaar{"Planmäßiger Wechsel in andere Behandlungsform"_t, "7"_t},
    Wertepaar{"Verstorben"_t, "8"_t},
};

inline constexpr std::array artEnd2{
    Wertepaar{"keine Angaben"_t, "0"_t},
    Wertepaar{"Wohnortwechsel"_t, "1"_t},
    Wertepaar{"Inhaftierung"_t, "2"_t},
    Wertepaar{"Beruf, Erwerbstätigkeit, Ausbildung"_t, "3"_t},
};

inline constexpr std::array problEnde{
    Wertepaar{"keine Angaben"_t, "0"_t}, Wertepaar{"Erfolgreich"_t, "1"_t},    Wertepaar{"Gebessert"_t, "2"_t},
    Wertepaar{"Unverändert"_t, "3"_t},   Wertepaar{"Verschlechtert"_t, "4"_t},
};

inline constexpr std::array konsumart{
    Wertepaar{"keine Angaben"_t, "0"_t},
    Wertepaar{"Injektion"_t, "1"_t},
    Wertepaar{"Rauchen/Inhalieren/Schnüffeln"_t, "2"_t},
    Wertepaar{"Essen/Trinken"_t, "3"_t},
    Wertepaar{"Schnupfen/Sniefen"_t, "4"_t},
    Wertepaar{"Andere Arten"_t, "5"_t},
};

/// Digits 4 and 5 of F10 to F19: texts as the dialogue shows them, without "k.A.". The bracket that 24 lacks has always
/// been missing on the screen.
inline constexpr std::array icdZusatz{
    Wertepaar{"10 (Schädlicher Gebrauch)"_t, "10"_t},
    Wertepaar{"20 (Abhängigkeit: gegenwärtig abstinent)"_t, "20"_t},
    Wertepaar{"21 (Abhängigkeit: gegenwärtig abstinent in schützender Umgebung)"_t, "21"_t},
    Wertepaar{"22 (Abhängigkeit: gegenwärtig Teilnahme an ärztlich überwachtem Ersatzdrogenprogramm)"_t, "22"_t},
    Wertepaar{"23 (Abhängigkeit: gegenwärtig abstinent, aber in Behandlung mit aversiven/hemmenden Mitteln)"_t, "23"_t},
    Wertepaar{"24 (Abhängigkeit: gegenwärtiger Substanzgebrauch"_t, "24"_t},
    Wertepaar{"25 (Abhängigkeit: ständiger Substanzgebrauch)"_t, "25"_t},
    Wertepaar{"26 (Abhängigkeit: episodischer Substanzgebrauch)"_t, "26"_t},
};

/// Digit of F50, without "k.A.".
inline constexpr std::array essstörung{
    Wertepaar{"0 (Anorexia nervosa)"_t, "0"_t},
    Wertepaar{"1 (Atypische Anorexia nervosa)"_t, "1"_t},
    Wertepaar{"2 (Bulimia nervosa)"_t, "2"_t},
    Wertepaar{"3 (Atypische Bulimia nervosa)"_t, "3"_t},
    Wertepaar{"4 (Essattacken bei sonstigen psychischen Störungen)"_t, "4"_t},
    Wertepaar{"5 (Erbrechen bei sonstigen psychischen Störungen)"_t, "5"_t},
    Wertepaar{"8 (sonstige / n.n.b. Essstörungen)"_t, "8"_t},
};

/// The whole numbers that a number field takes beside "k.A.".
struct Zahlenbereich {
    int von;
    int bis;
};

inline constexpr Zahlenbereich maßnahmen{0, 99}; ///< former treatments
inline constexpr Zahlenbereich kinder{0, 98};
inline constexpr int kinderOhneAngabe = 99; ///< code of "k.A." in the export
static_assert(kinder.bis < kinderOhneAngabe, "a number of children would be read as not given");
inline constexpr Zahlenbereich kontakte{1, 999};  ///< a care without any contact is none
inline constexpr Zahlenbereich unterhalt{0, 12};  ///< main livelihood, 0 for none marked
inline constexpr Zahlenbereich konsumtage{0, 30}; ///< of the last thirty
inline constexpr Zahlenbereich alter{1, 99};

/// The texts in order, for the list of a combo box; without older spellings.
std::vector<std::string> texte(Werteliste liste);
/// `vorne`, then the whole numbers of the range: the lists of the number combos.
std::vector<std::string> zahlen(std::string_view vorne, Zahlenbereich bereich);
/// The code of the text (exact comparison), or nullptr.
const std::string_view* codeZu(Werteliste liste, std::string_view text);
/// The text of the code (exact comparison), or nullptr; never an older spelling.
const std::string_view* textZu(Werteliste liste, std::string_view code);
/// The spelling of today for an older one; any other text as it is.
std::string_view heutige(Werteliste liste, std::string_view text);

} // namespace werte
