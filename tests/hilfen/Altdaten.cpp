#include "hilfen/Altdaten.h"

#include "platform/text/Datum.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"

#include <array>
#include <random>
#include <span>

namespace {

constexpr int klientenfelderAlt = 9;
constexpr int betreuungsfelderAlt = 151;

using Texte = std::span<const std::string_view>;

constexpr std::array jaNein{""_t, "nein"_t, "ja"_t};
constexpr std::array jaOderLeer{""_t, "ja"_t};
constexpr std::array eins{""_t, "1"_t};
constexpr std::array anzahl{""_t, "0"_t, "1"_t, "7"_t, "99"_t};
constexpr std::array kontakte{""_t, "0"_t, "1"_t, "25"_t, "999"_t};
constexpr std::array freierText{""_t, "ja"_t, "unklar"_t};
constexpr std::array psychiatrisch{""_t, "."_t, "12"_t, "32.1"_t, "43.22"_t};
constexpr std::array andere{""_t, "."_t, "B18"_t, "K70.3"_t, "Z59.01"_t};
constexpr std::array icdZusatz{""_t, "10"_t, "20"_t, "21"_t, "22"_t, "23"_t, "24"_t, "25"_t, "26"_t};
constexpr std::array essstörung{""_t, "0"_t, "1"_t, "2"_t, "3"_t, "4"_t, "5"_t, "8"_t};
constexpr std::array konsumart{
    ""_t, "Injektion"_t, "Rauchen/Inhalieren/Schnüffeln"_t, "Essen/Trinken"_t, "Schnupfen/Sniefen"_t, "Andere Arten"_t};
constexpr std::array wohnen{""_t,
                            "Selbständiges Wohnen"_t,
                            "Bei anderen Personen"_t,
                            "Ambulant betreutes Wohnen"_t,
                            "Klinik / stationäre Einrichtung"_t,
                            "JVA / Maßregelvollzug"_t,
                            "ohne Wohnung"_t,
                            "Sonstiges"_t};
constexpr std::array betreuungsgrund{""_t, "Eigene Problematik"_t, "Problematik von Personen im sozialen Umfeld"_t,
                                     "Sonstiges"_t};
constexpr std::array vermittlung{""_t,
                                 "Keine / Selbstmelder"_t,
                                 "Familie"_t,
                                 "Arbeitgeber, Betrieb, Schule"_t,
                                 "Krankenhaus / Krankenhausabteilung"_t,
                                 "Suchtberatungs- und/oder Behandlungsstelle, Fachambulanz"_t,
                                 "Abstinenz-/Selbsthilfegruppe"_t,
                                 "Kosten-, Leistungsträger"_t,
                                 "Sonstige"_t,
                                 "Ärztliche oder psychotherapeutische Praxis"_t,
                                 "Stationäre Rehabilitationseinrichtung"_t,
                                 "Andere Beratungsdienste"_t,
                                 "Justizbehörden / Bewährungshilfe"_t};
constexpr std::array auflagen{""_t,
                              "Keine gerichtlichen Auflagen"_t,
                              "BtMG"_t,
                              "andere strafrechtliche Grundlage"_t,
                              "Sonstige Auflagen"_t,
                              "Psych-KG / Landesunterbringungsgesetz"_t};
constexpr std::array familienstand{
    ""_t, "Ledig"_t, "Verheiratet, zusammenlebend"_t, "Verheiratet, getrennt lebend"_t, "Geschieden"_t, "Verwitwet"_t};
constexpr std::array partner{""_t, "Alleinstehend"_t, "Zeitweilige Beziehung"_t, "Feste Beziehung"_t, "Sonstige"_t};
constexpr std::array lebenssituation{""_t,
                                     "alleinlebend"_t,
                                     "mit PartnerIn"_t,
                                     "mit Kindern"_t,
                                     "mit Elternteil"_t,
                                     "mit Freunden / Bekannten"_t,
                                     "mit sonstigen Personen"_t,
                                     "mit PartnerIn und Kind(ern)"_t};
constexpr std::array schule{""_t,
                            "Derzeit in Schulausbildung"_t,
                            "ohne Schulabschluss"_t,
                            "Sonderschulabschluss"_t,
                            "Hauptschul-/Volksschulabschluss"_t,
                            "Realschulabschluss"_t,
                            "Fachhochschulreife"_t,
                            "Abitur"_t,
                            "Anderer Schulabschluss"_t};
constexpr std::array erwerb{""_t,
                            "Auszubildender"_t,
                            "Selbständiger / Freiberufler"_t,
                            "Sonstige Erwerbspersonen"_t,
                            "In beruflicher Rehabilitation"_t,
                            "Arbeitslos"_t,
                            "Schüler / Student"_t,
                            "Hausfrau / Hausmann"_t,
                            "Rentner / Pensionär"_t,
                            "Sonstige Nichterwerbspersonen"_t,
                            "Wechselnd"_t,
                            "Arbeiter"_t,
                            "Angestellter / Beamter"_t};
constexpr std::array artEnde{""_t,
                             "Regulär beendet"_t,
                             "Planmäßiger Wechsel"_t,
                             "Abbruch durch Klient"_t,
                             "Disziplinarisch"_t,
                             "Inhaftierung"_t,
                             "Verstorben"_t,
                             "Nicht bekannt"_t};
constexpr std::array problEnde{""_t,          "Nicht beurteilbar"_t, "Erfolgreich"_t,
                               "Gebessert"_t, "Unverändert"_t,       "Verschlechtert"_t};

/// Fields from `von` to `bis`, every `schritt`th, take one of the texts.
struct Feldvorrat {
    int von;
    int bis;
    Texte texte;
    int schritt = 1;
};

constexpr std::array vorräte{
    Feldvorrat{5, 5, jaNein},
    Feldvorrat{6, 6, betreuungsgrund},
    Feldvorrat{7, 7, vermittlung},
    Feldvorrat{8, 8, auflagen},
    Feldvorrat{9, 14, eins},
    Feldvorrat{15, 15, jaNein},
    Feldvorrat{16, 19, anzahl},
    Feldvorrat{20, 20, familienstand},
    Feldvorrat{21, 21, partner},
    Feldvorrat{22, 22, lebenssituation},
    Feldvorrat{23, 24, wohnen},
    Feldvorrat{25, 25, schule},
    Feldvorrat{26, 26, erwerb},
    Feldvorrat{27, 34, jaNein},
    Feldvorrat{35, 35, kontakte},
    Feldvorrat{36, 36, artEnde},
    Feldvorrat{37, 37, problEnde},
    Feldvorrat{51, 87, icdZusatz, 4},
    Feldvorrat{52, 88, konsumart, 4},
    Feldvorrat{53, 89, anzahl, 4},
    Feldvorrat{54, 90, anzahl, 4},
    Feldvorrat{91, 91, essstörung},
    Feldvorrat{95, 119, jaOderLeer, 4},
    Feldvorrat{123, 123, jaOderLeer},
    Feldvorrat{127, 134, psychiatrisch},
    Feldvorrat{135, 138, andere},
    Feldvorrat{139, 143, freierText},
};

std::string zeileAus(const std::vector<std::string>& felder)
{
    std::string zeile = felder.front();
    for (std::size_t i = 1; i < felder.size(); ++i) {
        zeile.append(1, trenner).append(felder[i]);
    }
    return zeile;
}

void setze(std::vector<std::string>& felder, const Altfelder& neue)
{
    for (const auto& [nummer, text] : neue) {
        felder.at(static_cast<std::size_t>(nummer - 1)) = text;
    }
}

class Zufallswahl {
public:
    explicit Zufallswahl(unsigned saat) : m_würfel(saat) {}

    int zahl(int von, int bis) { return von + static_cast<int>(m_würfel() % static_cast<unsigned>(bis - von + 1)); }
    std::string_view eines(Texte texte) { return texte[m_würfel() % texte.size()]; }
    std::string datum(int vonJahr, int bisJahr)
    {
        return alsDatumstext({zahl(vonJahr, bisJahr), zahl(1, 12), zahl(1, 28)});
    }

private:
    std::mt19937 m_würfel; ///< used raw, since the standard's distributions differ between libraries
};

std::string zufälligeBetreuung(Zufallswahl& zufall, int klient, int nummer)
{
    std::vector<std::string> felder(betreuungsfelderAlt);
    for (const auto& vorrat : vorräte) {
        for (int feld = vorrat.von; feld <= vorrat.bis; feld += vorrat.schritt) {
            felder[static_cast<std::size_t>(feld - 1)] = zufall.eines(vorrat.texte);
        }
    }
    const auto ende = zufall.zahl(0, 3) == 0 ? std::string("OFFEN") : zufall.datum(2005, 2006);
    const auto hauptdiagnose = zufall.zahl(0, 3) == 0 ? std::string() : alsText(zufall.zahl(0, 19));
    const auto beginn = zufall.datum(2003, 2004);
    felder[0] = alsText(klient);
    felder[1] = alsText(nummer);
    felder[2] = beginn;
    felder[3] = ende;
    felder[49] = hauptdiagnose;
    return zeileAus(felder);
}

} // namespace

std::string altKlient(int nummer, const Altfelder& felder)
{
    std::vector<std::string> alle(klientenfelderAlt);
    alle[0] = alsText(nummer);
    setze(alle, {{2, "Muster"_t},
                 {3, "Erika"_t},
                 {4, "Weg 1"_t},
                 {5, "12345"_t},
                 {6, "Stadt"_t},
                 {7, "15.03.1970"_t},
                 {8, "Weiblich"_t},
                 {9, "Deutsche(r)"_t}});
    setze(alle, felder);
    return zeileAus(alle);
}

std::string altBetreuung(int klient, int nummer, const Altfelder& felder)
{
    std::vector<std::string> alle(betreuungsfelderAlt);
    alle[0] = alsText(klient);
    alle[1] = alsText(nummer);
    setze(alle, {{3, "01.02.2005"_t}, {4, "OFFEN"_t}});
    setze(alle, felder);
    return zeileAus(alle);
}

Altdaten erzeugeAltdaten(int klienten, int betreuungenJeKlient, unsigned saat)
{
    constexpr std::array namen{"Amsel"_t, "Bär"_t, "Dachs"_t, "Elster"_t};
    constexpr std::array geschlechter{"Männlich"_t, "Weiblich"_t, ""_t};
    constexpr std::array nationalitäten{"Deutsche(r)"_t, "Bürger eines EU-Landes"_t, "Sonstige"_t};
    Zufallswahl zufall(saat);
    Altdaten daten;
    for (int klient = 1; klient <= klienten; ++klient) {
        const auto geburt = zufall.zahl(0, 9) == 0 ? std::string("unbekannt") : zufall.datum(1940, 1990);
        daten.klienten.push_back(altKlient(klient, {{2, zufall.eines(namen)},
                                                    {7, geburt},
                                                    {8, zufall.eines(geschlechter)},
                                                    {9, zufall.eines(nationalitäten)}}));
        for (int nummer = 1; nummer <= betreuungenJeKlient; ++nummer) {
            daten.betreuungen.push_back(zufälligeBetreuung(zufall, klient, nummer));
        }
    }
    return daten;
}
