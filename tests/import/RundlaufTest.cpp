#include "export/Exportlauf.h"
#include "hilfen/Textdatei.h"
#include "import/Importfall.h"
#include "import/moImp4KDStoMorvek.h"
#include "platform/text/Datum.h"
#include "platform/text/Zahl.h"
#include "satz/Satzaufbau.h"
#include "satz/moHelferlein.h"

#include <map>

namespace {

using Codes = std::map<std::string, std::string, std::less<>>;

const Codes jaNein{{"", "0"}, {"nein", "1"}, {"ja", "2"}};
const Codes wohnen{{"", "0"},
                   {std::string("Selbständiges Wohnen"_t), "1"},
                   {"Bei anderen Personen", "2"},
                   {"Ambulant betreutes Wohnen", "3"},
                   {std::string("Klinik / stationäre Einrichtung"_t), "4"},
                   {std::string("JVA / Maßregelvollzug"_t), "6"},
                   {"ohne Wohnung", "8"},
                   {"Sonstiges", "9"}};
const Codes konsum{{"", "0"},
                   {"Injektion", "1"},
                   {std::string("Rauchen/Inhalieren/Schnüffeln"_t), "2"},
                   {"Essen/Trinken", "3"},
                   {"Schnupfen/Sniefen", "4"},
                   {"Andere Arten", "5"}};

/// An older field whose texts come out of the export as these codes; a text that is not listed comes out as it is.
struct Überlebendes {
    int feld;
    int spalte;
    Codes codes;
};

const std::vector<Überlebendes> kernspaltenAlt{
    {1, 2, {}},
    {2, 3, {}},
    {3, 4, {}},
    {4, 5, {{"OFFEN", "offen"}}},
    {5, 13, jaNein},
    {7,
     14,
     {{"", "0"},
      {"Keine / Selbstmelder", "1"},
      {"Familie", "2"},
      {"Arbeitgeber, Betrieb, Schule", "3"},
      {"Krankenhaus / Krankenhausabteilung", "11"},
      {"Suchtberatungs- und/oder Behandlungsstelle, Fachambulanz", "7"},
      {"Abstinenz-/Selbsthilfegruppe", "4"},
      {std::string("Kosten-, Leistungsträger"_t), "26"},
      {"Sonstige", "27"},
      {std::string("Ärztliche oder psychotherapeutische Praxis"_t), "5"},
      {std::string("Stationäre Rehabilitationseinrichtung"_t), "13"},
      {"Andere Beratungsdienste", "20"},
      {std::string("Justizbehörden / Bewährungshilfe"_t), "25"}}},
    {8,
     24,
     {{"", "0"},
      {"Keine gerichtlichen Auflagen", "1"},
      {"BtMG", "2"},
      {"andere strafrechtliche Grundlage", "4"},
      {"Sonstige Auflagen", "0"},
      {"Psych-KG / Landesunterbringungsgesetz", "3"}}},
    {15, 12, jaNein},
    {16, 30, {}},
    {17, 27, {}},
    {18, 32, {}},
    {19, 34, {}},
    {20,
     44,
     {{"", "0"},
      {"Ledig", "1"},
      {"Verheiratet, zusammenlebend", "2"},
      {"Verheiratet, getrennt lebend", "3"},
      {"Geschieden", "4"},
      {"Verwitwet", "5"}}},
    {21,
     45,
     {{"", "0"}, {"Alleinstehend", "1"}, {"Zeitweilige Beziehung", "2"}, {"Feste Beziehung", "3"}, {"Sonstige", "4"}}},
    {23, 60, wohnen},
    {24, 62, wohnen},
    {25,
     58,
     {{"", "0"},
      {"Derzeit in Schulausbildung", "0"},
      {"ohne Schulabschluss", "2"},
      {"Sonderschulabschluss", "3"},
      {"Hauptschul-/Volksschulabschluss", "4"},
      {"Realschulabschluss", "5"},
      {"Fachhochschulreife", "6"},
      {"Abitur", "6"},
      {"Anderer Schulabschluss", "7"}}},
    {26,
     63,
     {{"", "0"},
      {"Auszubildender", "1"},
      {std::string("Selbständiger / Freiberufler"_t), "3"},
      {"Sonstige Erwerbspersonen", "4"},
      {"In beruflicher Rehabilitation", "5"},
      {"Arbeitslos", "6"},
      {std::string("Schüler / Student"_t), "8"},
      {"Hausfrau / Hausmann", "9"},
      {std::string("Rentner / Pensionär"_t), "10"},
      {"Sonstige Nichterwerbspersonen", "11"},
      {"Wechselnd", "0"},
      {"Arbeiter", "2"},
      {"Angestellter / Beamter", "2"}}},
    {35, 154, {{"0", ""}}},
    {36,
     155,
     {{"", "0"},
      {std::string("Regulär beendet"_t), "1"},
      {std::string("Planmäßiger Wechsel"_t), "7"},
      {"Abbruch durch Klient", "4"},
      {"Disziplinarisch", "5"},
      {"Inhaftierung", "6"},
      {"Verstorben", "8"},
      {"Nicht bekannt", "0"}}},
    {37,
     181,
     {{"", "0"},
      {"Nicht beurteilbar", "0"},
      {"Erfolgreich", "1"},
      {"Gebessert", "2"},
      {std::string("Unverändert"_t), "3"},
      {"Verschlechtert", "4"}}},
};

const Codes ziffern{{"", "0"}};
const std::vector<Überlebendes> diagnosespaltenAlt{
    {1, 2, {}},
    {2, 3, {}},
    {52, 4, konsum},
    {51, 7, ziffern},
    {56, 10, konsum},
    {55, 13, ziffern},
    {60, 34, konsum},
    {59, 37, ziffern},
    {64, 46, konsum},
    {63, 49, ziffern},
    {68, 58, konsum},
    {67, 61, ziffern},
    {72, 70, konsum},
    {71, 73, ziffern},
    {76, 88, konsum},
    {75, 91, ziffern},
    {80, 106, konsum},
    {79, 109, ziffern},
    {84, 112, konsum},
    {83, 115, ziffern},
    {88, 118, konsum},
    {87, 121, ziffern},
    {95, 127, jaNein},
    {99, 131, jaNein},
    {103, 135, jaNein},
    {91, 157, {{"", "9"}}},
    {135, 170, {{".", ""}}},
    {136, 171, {{".", ""}}},
    {137, 172, {{".", ""}}},
    {138, 173, {{".", ""}}},
};

/// Kinds of treatment: the columns that are 2 when all named fields are "ja".
const std::vector<std::pair<int, std::vector<int>>> maßnahmen{
    {94, {30}},  {95, {28, 34}},  {97, {27}},  {98, {28}},  {101, {29}},
    {111, {34}}, {112, {32, 30}}, {114, {31}}, {115, {32}}, {118, {33}},
};

class RundlaufTest : public Importfall {
protected:
    static std::string spalte(const std::string& zeile, int nummer) { return std::string(getFeld(zeile, nummer, ';')); }

    static std::string codeVon(const Codes& codes, std::string_view text)
    {
        const auto ort = codes.find(text);
        return ort == codes.end() ? std::string(text) : ort->second;
    }

    static void prüfeFelder(const std::string& alt, const std::string& neu, const std::vector<Überlebendes>& felder)
    {
        for (const auto& [feld, nummer, codes] : felder) {
            EXPECT_EQ(spalte(neu, nummer), codeVon(codes, getFeld(alt, feld)))
                << "field " << feld << " column " << nummer;
        }
    }

    static void prüfeKern(const std::string& klient, const std::string& alt, const std::string& kern)
    {
        prüfeFelder(alt, kern, kernspaltenAlt);
        EXPECT_EQ(spalte(kern, 8),
                  codeVon({{"", "0"}, {std::string("Männlich"_t), "1"}, {"Weiblich", "2"}}, getFeld(klient, 8)));
        EXPECT_EQ(spalte(kern, 9), "1");
        EXPECT_EQ(spalte(kern, 54), getFeld(klient, 9) == "Deutsche(r)" ? "DEU" : "");
        EXPECT_EQ(spalte(kern, 156), getFeld(alt, 36) == "Inhaftierung" ? "2" : "0");
        EXPECT_EQ(spalte(kern, 7).empty(), getFeld(klient, 7) == "unbekannt");
        for (const auto& [nummer, felder] : maßnahmen) {
            bool alle = true;
            for (const int feld : felder) {
                alle = alle && getFeld(alt, feld) == "ja";
            }
            EXPECT_EQ(spalte(kern, nummer), alle ? "2" : "0") << nummer;
        }
        prüfeKosten(alt, kern);
        prüfeLebenssituation(getFeld(alt, 22), kern);
    }

    static void prüfeKosten(const std::string& alt, const std::string& kern)
    {
        int gezahlt = 0;
        for (const auto& [feld, nummer] : {std::pair{11, 16}, {14, 23}, {12, 19}, {10, 18}, {13, 17}, {9, 15}}) {
            gezahlt = getFeld(alt, feld) == "1" ? nummer : gezahlt;
        }
        for (int nummer = 15; nummer <= 23; ++nummer) {
            EXPECT_EQ(spalte(kern, nummer), nummer == gezahlt ? "2" : "0") << nummer;
        }
    }

    static void prüfeLebenssituation(std::string_view text, const std::string& kern)
    {
        const std::map<std::string_view, std::string> flaggen{{"", "000000"},
                                                              {"alleinlebend", "211111"},
                                                              {"mit PartnerIn", "121111"},
                                                              {"mit Kindern", "112111"},
                                                              {"mit Elternteil", "111211"},
                                                              {"mit Freunden / Bekannten", "111121"},
                                                              {"mit sonstigen Personen", "111112"},
                                                              {"mit PartnerIn und Kind(ern)", "122111"}};
        std::string gefunden;
        for (int nummer = 46; nummer <= 51; ++nummer) {
            gefunden += spalte(kern, nummer);
        }
        EXPECT_EQ(gefunden, flaggen.at(text));
    }

    static std::string erwarteteHauptdiagnose(const std::string& alt)
    {
        const auto gruppe = führendeZahl(getFeld(alt, 50));
        if (gruppe >= 1 && gruppe <= 10) {
            const auto zusatz = getFeld(alt, static_cast<int>(47 + 4 * gruppe));
            return std::to_string(9 + gruppe) + std::string(zusatz.substr(0, 1));
        }
        const std::map<std::int64_t, std::string> feste{
            {11, "50" + std::string(getFeld(alt, 91))}, {12, "550"}, {13, "551"}, {14, "552"}, {19, "630"}};
        const auto ort = feste.find(gruppe);
        return ort == feste.end() ? "0" : ort->second;
    }

    static std::string mitBuchstabe(std::string_view text, std::string_view buchstabe)
    {
        return text.empty() || text == "." ? std::string() : verbinde(buchstabe, text);
    }

    static void prüfeDiagnose(const std::string& alt, const std::string& diagnose)
    {
        prüfeFelder(alt, diagnose, diagnosespaltenAlt);
        EXPECT_EQ(spalte(diagnose, 159), erwarteteHauptdiagnose(alt)) << getFeld(alt, 50);
        EXPECT_EQ(spalte(diagnose, 162), mitBuchstabe(getFeld(alt, 127), "F"));
        EXPECT_EQ(spalte(diagnose, 163), mitBuchstabe(getFeld(alt, 128), "F"));
        EXPECT_EQ(spalte(diagnose, 166), mitBuchstabe(getFeld(alt, 131), "G"));
        EXPECT_EQ(spalte(diagnose, 167), mitBuchstabe(getFeld(alt, 132), "G"));
    }
};

// what an older facility said of its episodes must stand in the export that follows its import
TEST_F(RundlaufTest, ÜbernommenesKommtImExportWiederHeraus)
{
    constexpr int klienten = 40;
    constexpr int betreuungen = 3;
    const auto alt = erzeugeAltdaten(klienten, betreuungen, 4711);
    altdaten(alt.klienten, alt.betreuungen);
    EXPECT_EQ(importiere().betreuungen, alt.betreuungen.size());

    Exportlauf export_(lauf.stand.bestand, 2004, lauf.pfade().programm);
    export_.beiKlient = [](std::int32_t) {};
    EXPECT_EQ(export_.führeAus(), klienten * betreuungen);
    EXPECT_EQ(meldungen(), std::vector<std::string>{});
    const auto kern = zeilen(datei("Kern.txt"));
    const auto diagnose = zeilen(datei("Diagnose.txt"));
    ASSERT_EQ(kern.size(), alt.betreuungen.size());
    ASSERT_EQ(diagnose.size(), alt.betreuungen.size());
    for (std::size_t i = 0; i < kern.size(); ++i) {
        prüfeKern(alt.klienten[i / betreuungen], alt.betreuungen[i], kern[i]);
        prüfeDiagnose(alt.betreuungen[i], diagnose[i]);
    }
}

/// What a care field reads like after the way through the export and back: the answers lose their case, a state
/// that is none and the text of the debts are what the tables make of them.
std::string nachDemWeg(int feld, std::string_view text)
{
    if (feld == betreuungsfeld("Nation") && text == "Atlantis") {
        return "keine Angaben";
    }
    if (feld == betreuungsfeld("Schulden")) {
        return ersetzt(text, "bis 10.000"_t, "bis10.000"_t);
    }
    if (feld == betreuungsfeld("memoB")) {
        return "?";
    }
    if ((feld == betreuungsfeld("Kinder1") || feld == betreuungsfeld("Kinder2")) && text == "k.A.") {
        return "99"; // the export's code, which the way back does not know
    }
    const auto kleines = klein(text);
    if (kleines == "k.a.") {
        return "k.A.";
    }
    const bool istInfektion = feld >= betreuungsfeld("HIVInfekt") && feld <= betreuungsfeld("HepatC");
    if (istInfektion && text.empty()) {
        return "keine Angaben";
    }
    return kleines == "ja" || kleines == "nein" ? kleines : std::string(text);
}

/// Options of which several are marked come back with one: `Wahr` at the place that the export told.
bool istOption(int feld)
{
    return (feld >= betreuungsfeld("HDohne0") && feld <= betreuungsfeld("HDohne5")) ||
           (feld >= betreuungsfeld("IVKonsum0") && feld <= betreuungsfeld("IVKonsum3"));
}

TEST_F(RundlaufTest, ExportzeilenGebenDieFelderZurück)
{
    const auto muster = leseTextdatei("tests/export/Musterzeilen.txt");
    std::vector<std::string> kern;
    std::vector<std::string> diagnose;
    for (std::size_t i = 0; i < muster.size(); i += 5) {
        kern.push_back(muster[i + 3]);
        diagnose.push_back(muster[i + 4]);
    }
    Testlauf::schreibeZeilen(datei("k.txt"), kern);
    Testlauf::schreibeZeilen(datei("d.txt"), diagnose);
    Testlauf::schreibeZeilen(datei("e.txt"), {altKlient(1)});
    moImp4KDStoMorvek(lauf.stand.bestand.dateien(), datei("k.txt"), datei("d.txt"), datei("K.txt"), datei("B.txt"),
                      datei("D.txt"), datei("e.txt"));
    const auto betreuungen = zeilen(datei("B.txt"));
    const auto diagnosen = zeilen(datei("D.txt"));
    ASSERT_EQ(betreuungen.size(), kern.size());
    for (std::size_t i = 0; i < betreuungen.size(); ++i) {
        for (int feld = 1; feld <= 192; ++feld) {
            if (!istOption(feld)) {
                EXPECT_EQ(getFeld(betreuungen[i], feld), nachDemWeg(feld, getFeld(muster[5 * i + 1], feld)))
                    << "sample " << i + 1 << " field " << feld;
            }
        }
        for (int feld = 235; feld <= 246; ++feld) {
            EXPECT_EQ(getFeld(diagnosen[i], feld), getFeld(muster[5 * i + 2], feld))
                << "sample " << i + 1 << " field " << feld;
        }
    }
}

} // namespace
