#include "export/Diagnosezeile.h"
#include "export/Kernzeile.h"
#include "import/Anweisungsdatei.h"
#include "import/Importfall.h"
#include "import/Satzbau.h"
#include "import/moImp1TolvekToExport.h"
#include "import/moImp3AltKDStoKDS.h"
#include "import/moImp4KDStoMorvek.h"
#include "import/moimp2TolvekExportTOaltKDS.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/moHelferlein.h"

#include <algorithm>

namespace {

using Texte = std::vector<std::string>;
using Spalten = std::vector<std::pair<int, std::string_view>>;

std::string zeile(int anzahl, char trennzeichen, const Spalten& spalten)
{
    std::vector<std::string> alle(static_cast<std::size_t>(anzahl));
    for (const auto& [nummer, text] : spalten) {
        alle.at(static_cast<std::size_t>(nummer - 1)) = text;
    }
    std::string ergebnis;
    for (const auto& spalte : alle) {
        ergebnis.append(spalte).push_back(trennzeichen);
    }
    return ergebnis;
}

std::string spalten(const std::string& text, int von, int bis, char trennzeichen)
{
    std::string ergebnis;
    for (int i = von; i <= bis; ++i) {
        ergebnis.append(i == von ? "" : ",").append(getFeld(text, i, trennzeichen));
    }
    return ergebnis;
}

// ---- stage 1

class Stufe1Test : public Importfall {
protected:
    void laufe() const
    {
        moImp1TolvekToExport(lauf.stand.bestand.dateien(), kernAlt(), betreuungenAlt(), datei("kernExp.txt"),
                             datei("betreuungenExp.txt"), datei("extraExp.txt"));
    }
    /// The age value of an episode that begins so long after the birth.
    std::string alter(std::string_view geburt, std::string_view beginn) const
    {
        altdaten({altKlient(1, {{7, geburt}})}, {altBetreuung(1, 1, {{3, beginn}})});
        laufe();
        return std::string(getFeld(zeilen(datei("betreuungenExp.txt")).at(0), 152));
    }
};

TEST_F(Stufe1Test, TrenntPersönlichesAb)
{
    altdaten({altKlient(1), altKlient(2, {{7, "UNBEKANNT"}, {8, "Männlich"_t}})}, {});
    laufe();
    EXPECT_EQ(zeilen(datei("kernExp.txt")),
              (Texte{satz({"1", "", "", "", "", "", "1970", "Weiblich", "Deutsche(r)"}),
                     satz({"2", "", "", "", "", "", "unbekannt", "Männlich"_t, "Deutsche(r)"})}));
    EXPECT_EQ(zeilen(datei("extraExp.txt")).at(0),
              satz({"1", "Muster", "Erika", "Weg 1", "12345", "Stadt", "15.03.1970", "Weiblich", "Deutsche(r)", ""}));
}

TEST_F(Stufe1Test, AlterIstAmGeburtstagUmEinsZuKlein)
{
    EXPECT_EQ(alter("15.03.1970", "14.03.2006"), "35");
    EXPECT_EQ(alter("15.03.1970", "15.03.2006"), "35");
    EXPECT_EQ(alter("15.03.1970", "18.03.2006"), "36");
    EXPECT_EQ(alter("01.01.1900", "01.06.2005"), "05") << "wraps at 100";
    EXPECT_EQ(alter("15.03.70", "18.03.06"), "36") << "years of two digits";
    EXPECT_EQ(alter("unbekannt", "18.03.2006"), "unbekannt");
}

TEST_F(Stufe1Test, FehlenderKlientNimmtDieLetzteZeile)
{
    altdaten({altKlient(1), altKlient(2, {{7, "unbekannt"}})}, {altBetreuung(3, 1)});
    laufe();
    EXPECT_EQ(getFeld(zeilen(datei("betreuungenExp.txt")).at(0), 152), "unbekannt");
}

TEST_F(Stufe1Test, UnlesbareDatenScheitern)
{
    altdaten({altKlient(1, {{7, "31.02.1970"}})}, {});
    EXPECT_THROW(laufe(), Laufzeitfehler);
    altdaten({altKlient(1)}, {altBetreuung(1, 1, {{3, "bald"}})});
    EXPECT_THROW(laufe(), Laufzeitfehler);
    altdaten({altKlient(1, {{7, "Unbekannt"}})}, {});
    EXPECT_NO_THROW(laufe());
    altdaten({altKlient(1, {{7, "Unbekannt"}})}, {altBetreuung(1, 1)});
    EXPECT_THROW(laufe(), Laufzeitfehler) << "the care loop knows one spelling only";
    altdaten({}, {altBetreuung(1, 1)});
    EXPECT_THROW(laufe(), Laufzeitfehler);
}

// ---- stage 2

class Stufe2Test : public Importfall {
protected:
    /// The rows for one episode of a client with this line of kernExp.
    void laufe(const std::string& betreuung, const std::string& kernExp) const
    {
        Testlauf::schreibeZeilen(datei("kernExp.txt"), {kernExp});
        Testlauf::schreibeZeilen(datei("betreuungenExp.txt"), {betreuung + std::string(1, trenner) + "34"});
        moimp2TolvekExportTOaltKDS(importort(), datei("kernExp.txt"), datei("betreuungenExp.txt"),
                                   datei("aKDSKern.txt"), datei("aKDSDiagnose.txt"));
    }
    static std::string klient(std::string_view jahr = "1970", std::string_view geschlecht = "Weiblich",
                              std::string_view nation = "Deutsche(r)")
    {
        return satz({"1", "", "", "", "", "", jahr, geschlecht, nation});
    }
    std::string kern(const Altfelder& felder, const std::string& kernExp = klient()) const
    {
        laufe(altBetreuung(1, 1, felder), kernExp);
        return zeilen(datei("aKDSKern.txt")).at(0);
    }
    std::string diagnose(const Altfelder& felder) const
    {
        laufe(altBetreuung(1, 1, felder), klient());
        return zeilen(datei("aKDSDiagnose.txt")).at(0);
    }
    static std::string spalte(const std::string& text, int nummer) { return spalten(text, nummer, nummer, ','); }
};

TEST_F(Stufe2Test, Spaltenzahlen)
{
    const auto kernzeile = kern({});
    const auto diagnosezeile = diagnose({});
    EXPECT_EQ(std::count(kernzeile.begin(), kernzeile.end(), ','), 163);
    EXPECT_EQ(std::count(diagnosezeile.begin(), diagnosezeile.end(), ','), 215);
    EXPECT_EQ(spalte(kernzeile, 1), "2");
    EXPECT_EQ(spalte(diagnosezeile, 1), "2");
}

TEST_F(Stufe2Test, OffeneBetreuungWiederholtDieSpalteVorDerDauer)
{
    const auto text = kern({{37, "Gebessert"}});
    EXPECT_EQ(spalte(text, 5), "");
    EXPECT_EQ(spalte(text, 162), "3");
    EXPECT_EQ(spalte(text, 163), "3");
    EXPECT_EQ(spalte(kern({{4, "02.02.2005"}}), 163), "2");
    EXPECT_EQ(spalte(kern({{4, "irgendwann"}, {37, "Erfolgreich"}}), 163), "2");
    EXPECT_THROW(kern({{3, "31.02.2005"}}), Laufzeitfehler);
}

TEST_F(Stufe2Test, Lebenssituation)
{
    EXPECT_EQ(spalten(kern({}), 63, 74, ','), "0,,0,,0,,0,,0,,0,");
    EXPECT_EQ(spalten(kern({{22, " "}}), 63, 74, ','), "0,,0,,0,,0,,0,,0,");
    EXPECT_EQ(spalten(kern({{22, "mit PartnerIn und Kind(ern)"}}), 63, 74, ','), "1,,2,,2,,1,,1,,1,");
    EXPECT_EQ(meldungen(), Texte{});
    EXPECT_EQ(spalten(kern({{22, "im Heim"}}), 63, 74, ','), "1,,1,,1,,1,,1,,1,");
    EXPECT_EQ(meldungen(), Texte{"ParseFehler: lebSit"});
}

TEST_F(Stufe2Test, GeburtHinterDemBeginnLäßtDasAlterLeer)
{
    EXPECT_EQ(spalte(kern({{3, "30.06.1970"}}), 7), "");
    EXPECT_EQ(spalte(kern({{3, "01.07.1970"}}), 7), "34");
    EXPECT_EQ(spalte(kern({}, klient("unbekannt")), 7), "");
    EXPECT_EQ(spalte(kern({}, klient("")), 7), "");
    EXPECT_EQ(spalte(kern({}, klient(" ")), 7), "");
}

TEST_F(Stufe2Test, GeschlechtUndNationalität)
{
    EXPECT_EQ(spalte(kern({}, klient("1970", "Männlich"_t)), 6), "1");
    EXPECT_EQ(spalte(kern({}, klient("1970", "männlich"_t)), 6), "0");
    EXPECT_EQ(spalte(kern({}, klient("1970", "", "Bürger eines EU-Landes"_t)), 9), "2");
    EXPECT_EQ(spalte(kern({}, klient("1970", "", "Sonstige")), 9), "3");
    EXPECT_EQ(spalte(kern({}, klient("1970", "", "")), 9), "0");
    EXPECT_EQ(spalten(kern({}, satz({"2", "", "", "", "", "", "1970", "Weiblich", "Sonstige"})), 6, 9, ','), "0,,,0");
}

TEST_F(Stufe2Test, KlientenzeileWirdAlsZahlGefunden)
{
    EXPECT_EQ(spalte(kern({}, satz({"001", "", "", "", "", "", "1970", "Weiblich", ""})), 6), "2");
}

TEST_F(Stufe2Test, KostenträgerSpätererSticht)
{
    EXPECT_EQ(spalte(kern({}), 12), "0");
    EXPECT_EQ(spalte(kern({{11, "1"}}), 12), "2");
    EXPECT_EQ(spalte(kern({{11, "1"}, {14, "1"}}), 12), "45");
    EXPECT_EQ(spalte(kern({{14, "1"}, {12, "1"}}), 12), "48");
    EXPECT_EQ(spalte(kern({{12, "1"}, {10, "1"}}), 12), "47");
    EXPECT_EQ(spalte(kern({{10, "1"}, {13, "1"}}), 12), "46");
    EXPECT_EQ(spalte(kern({{13, "1"}, {9, "1"}}), 12), "1");
    EXPECT_EQ(spalte(kern({{9, "ja"}}), 12), "0");
}

TEST_F(Stufe2Test, FehlendeOptionMeldetUndVerkürztDieZeile)
{
    const auto betreuung = altBetreuung(1, 1, {{5, "vielleicht"}});
    laufe(betreuung, klient());
    const auto text = zeilen(datei("aKDSKern.txt")).at(0);
    EXPECT_EQ(std::count(text.begin(), text.end(), ','), 162);
    EXPECT_EQ(spalte(text, 11), "0") << "the cost bearer stands one place too far left";
    EXPECT_EQ(meldungen(), Texte{"Fehler in Optionsparsing ! \r" + betreuung +
                                 "\xB7"
                                 "34\r\rakt.parseSatz: 1\r"
                                 "ebis-Arg#: 11\rTolvek-Arg#: 5\rTolvek: 'vielleicht' nicht gefunden"});
    EXPECT_EQ(lauf.umgebung.meldungen.at(0).symbol, Symbol::Keins);
}

TEST_F(Stufe2Test, EinLeerzeichenGiltAlsLeer)
{
    EXPECT_EQ(spalte(kern({{5, " "}}), 11), "0");
    EXPECT_EQ(meldungen(), Texte{});
}

TEST_F(Stufe2Test, KlassenDerDiagnosen)
{
    const auto text = diagnose({{51, "10"}, {55, "21"}, {59, " "}, {91, "2"}, {111, "ja"}, {123, "ja"}});
    EXPECT_EQ(spalten(text, 5, 17, ','), "1,2,0,0,0,0,0,0,0,0,2,2,2");
    EXPECT_EQ(spalten(diagnose({}), 5, 17, ','), "0,0,0,0,0,0,0,0,0,0,0,0,0");
    for (const int feld : {95, 99, 103, 107, 111, 115, 119}) {
        EXPECT_EQ(spalte(diagnose({{feld, "x"}}), 16), "2") << feld;
    }
}

TEST_F(Stufe2Test, Hauptdiagnose)
{
    const auto haupt = [this](const Altfelder& felder) { return spalte(diagnose(felder), 4); };
    EXPECT_EQ(haupt({}), "0");
    EXPECT_EQ(haupt({{50, "1 Alkohol"}}), "10");
    EXPECT_EQ(haupt({{50, "1"}, {51, "10"}}), "101");
    EXPECT_EQ(haupt({{50, "2"}, {55, "21"}}), "112");
    EXPECT_EQ(haupt({{50, "10"}, {87, "10"}}), "191");
    EXPECT_EQ(haupt({{50, "11"}}), "50");
    EXPECT_EQ(haupt({{50, "11"}, {91, "5"}}), "505");
    EXPECT_EQ(haupt({{50, "13"}}), "551");
    EXPECT_EQ(haupt({{50, "15"}}), "554");
    EXPECT_EQ(haupt({{50, "19"}}), "630");
    EXPECT_EQ(meldungen(), Texte{});
    EXPECT_EQ(haupt({{50, "20"}}), "");
    EXPECT_EQ(haupt({{50, "-1"}}), "");
    EXPECT_EQ(meldungen(), (Texte{"ParseFehler: icd0000", "ParseFehler: icd0000"}));
    EXPECT_THROW(haupt({{50, "32768"}}), Laufzeitfehler);
}

TEST_F(Stufe2Test, WeitereDiagnosenBekommenIhrenBuchstaben)
{
    const auto text = diagnose({{127, "12.3"}, {128, "."}, {131, "40"}, {135, "B18"}, {136, "."}});
    EXPECT_EQ(spalten(text, 204, 215, ','), "F12.3,,,,G40,,,,B18,,,");
}

TEST_F(Stufe2Test, KurzeZeileBehältDieFelderDerZeileDavor)
{
    Testlauf::schreibeZeilen(datei("kernExp.txt"), {klient()});
    Testlauf::schreibeZeilen(datei("betreuungenExp.txt"),
                             {altBetreuung(1, 1, {{35, "12"}}), satz({"1", "2", "01.02.2005", "OFFEN"})});
    moimp2TolvekExportTOaltKDS(importort(), datei("kernExp.txt"), datei("betreuungenExp.txt"), datei("aKDSKern.txt"),
                               datei("aKDSDiagnose.txt"));
    EXPECT_EQ(spalten(zeilen(datei("aKDSKern.txt")).at(1), 160, 160, ','), "12");
}

TEST_F(Stufe2Test, ZuVieleFelderScheitern)
{
    EXPECT_NO_THROW(laufe(altBetreuung(1, 1) + "\xB7", klient())) << "153 fields";
    EXPECT_THROW(laufe(altBetreuung(1, 1) + "\xB7\xB7", klient()), Laufzeitfehler);
}

TEST_F(Stufe2Test, FehlendeAnweisungsdateiScheitert)
{
    std::filesystem::remove(datei("eDiagAnweisung.txt"));
    EXPECT_THROW(kern({}), Laufzeitfehler);
    std::filesystem::remove(datei("eKernAnweisung.txt"));
    EXPECT_THROW(kern({}), Laufzeitfehler);
}

TEST_F(Stufe2Test, OhneEigeneAnweisungsdateiGiltDieMitgebrachte)
{
    const auto mitgebracht = datei("mitgebracht");
    std::filesystem::create_directory(mitgebracht);
    for (const auto* name : {"eKernAnweisung.txt", "eDiagAnweisung.txt"}) {
        std::filesystem::rename(datei(name), mitgebracht / name);
    }
    EXPECT_THROW(kern({}), Laufzeitfehler) << "there is none";
    lauf.umgebung.installationsordner = mitgebracht;
    EXPECT_NO_THROW(kern({}));
    Testlauf::schreibe(datei("eKernAnweisung.txt"), "");
    EXPECT_THROW(kern({}), Laufzeitfehler) << "the facility's own file, useless as it is, goes before";
}

TEST(istNichtNachTest, Datumsvergleich)
{
    EXPECT_TRUE(istNichtNach("1.7.1970", "01.07.1970"));
    EXPECT_TRUE(istNichtNach("01.07.66", "01.07.1966"));
    EXPECT_FALSE(istNichtNach("01.07.65", "01.07.1999")) << "2065";
    EXPECT_FALSE(istNichtNach("02.07.1970", "01.07.1970"));
    EXPECT_FALSE(istNichtNach("31.02.1970", "01.07.1970"));
    EXPECT_FALSE(istNichtNach("01/07.1970", "01.07.1970"));
    EXPECT_FALSE(istNichtNach("01.07.1970", "1,7.1970"));
    EXPECT_FALSE(istNichtNach("", "01.07.1970"));
    EXPECT_FALSE(istNichtNach("01.07.1970.", "01.07.1970"));
}

// ---- instruction files

class AnweisungsdateiTest : public Importfall {
protected:
    std::vector<Spaltenanweisung> lies(std::string_view inhalt, std::size_t anzahl = 1) const
    {
        Testlauf::schreibe(datei("x.txt"), inhalt);
        return leseSpaltenanweisungen(lauf.stand.bestand.dateien(), datei("x.txt"), anzahl);
    }
};

TEST_F(AnweisungsdateiTest, AnführungenUndZeilenenden)
{
    const auto eine = lies(" 7 ,\"option\",\"a \"\"b\"\", c\",\"\"\r\n x ,y\n,1\r" + std::string(21, ','));
    EXPECT_EQ(eine[0].quelle, 7);
    EXPECT_EQ(eine[0].art, Spaltenanweisungsart::Option);
    EXPECT_EQ(eine[0].paare[0].first, "a \"b\", c");
    EXPECT_EQ(eine[0].paare[0].second, "");
    EXPECT_EQ(eine[0].paare[1], (std::pair<std::string, std::string>{"x", "y"}));
    EXPECT_EQ(eine[0].paare[2], (std::pair<std::string, std::string>{"", "1"}));
    EXPECT_EQ(eine[0].paare[12], (std::pair<std::string, std::string>{"", ""}));
}

TEST_F(AnweisungsdateiTest, ZuWenigeWerteScheitern)
{
    EXPECT_NO_THROW(lies("0" + std::string(27, ',')));
    EXPECT_THROW(lies("0" + std::string(26, ',')), Laufzeitfehler);
    EXPECT_THROW(lies("0" + std::string(27, ','), 2), Laufzeitfehler);
    EXPECT_THROW(lies("x" + std::string(27, ',')), Laufzeitfehler);
    EXPECT_THROW(lies("0,\"offen"), Laufzeitfehler);
    EXPECT_THROW(lies("0,\"a\"b" + std::string(26, ',')), Laufzeitfehler);
}

TEST_F(AnweisungsdateiTest, UnbekannteArtSchreibtEinenFehlertext)
{
    EXPECT_EQ(lies("3,\"wort\"" + std::string(26, ','))[0].art, Spaltenanweisungsart::Unbekannt);
    const auto alt = Testlauf::lies(datei("eKernAnweisung.txt"));
    Testlauf::schreibe(datei("eKernAnweisung.txt"), ersetzt(alt, "2,\"wert\"", "2,\"wort\""));
    Testlauf::schreibeZeilen(datei("kernExp.txt"), {});
    Testlauf::schreibeZeilen(datei("betreuungenExp.txt"), {altBetreuung(1, 1)});
    moimp2TolvekExportTOaltKDS(importort(), datei("kernExp.txt"), datei("betreuungenExp.txt"), datei("a.txt"),
                               datei("b.txt"));
    EXPECT_EQ(spalten(zeilen(datei("a.txt")).at(0), 3, 3, ','), "ANWEISUNGSDATENFEHLER!");
}

TEST_F(AnweisungsdateiTest, DieBeigelegtenHabenIhreZahl)
{
    EXPECT_EQ(leseSpaltenanweisungen(lauf.stand.bestand.dateien(), datei("eKernAnweisung.txt"), 163).size(), 163U);
    EXPECT_EQ(leseSpaltenanweisungen(lauf.stand.bestand.dateien(), datei("eDiagAnweisung.txt"), 215).size(), 215U);
    EXPECT_THROW(leseSpaltenanweisungen(lauf.stand.bestand.dateien(), datei("eKernAnweisung.txt"), 164),
                 Laufzeitfehler);
    EXPECT_THROW(leseSpaltenanweisungen(lauf.stand.bestand.dateien(), datei("eDiagAnweisung.txt"), 216),
                 Laufzeitfehler);
}

// ---- stage 3

std::string kernNeu(const Spalten& alt, int von, int bis)
{
    return spalten(kernAltNachNeu(zeile(163, ',', alt)), von, bis, ';');
}
std::string diagNeu(const Spalten& alt, int von, int bis)
{
    return spalten(diagAltNachNeu(zeile(215, ',', alt)), von, bis, ';');
}

TEST(Stufe3Test, Spaltenzahlen)
{
    const auto kern = kernAltNachNeu("");
    const auto diagnose = diagAltNachNeu("");
    EXPECT_EQ(std::count(kern.begin(), kern.end(), ';'), std::ssize(kernspalten()));
    EXPECT_EQ(std::count(diagnose.begin(), diagnose.end(), ';'), std::ssize(diagnosespalten()));
}

TEST(Stufe3Test, Kosten)
{
    EXPECT_EQ(kernNeu({{12, "46"}}, 15, 23), "0,0,2,0,0,0,0,0,0");
    EXPECT_EQ(kernNeu({{12, "1"}}, 15, 23), "2,0,0,0,0,0,0,0,0");
    EXPECT_EQ(kernNeu({{12, "45"}}, 15, 23), "0,0,0,0,0,0,0,0,2");
    EXPECT_EQ(kernNeu({{12, "0"}}, 15, 23), "0,0,0,0,0,0,0,0,0");
}

TEST(Stufe3Test, Codelisten)
{
    EXPECT_EQ(kernNeu({{77, "1"}}, 58, 58), "FEHLER");
    EXPECT_EQ(kernNeu({{77, ""}}, 58, 58), "FEHLER");
    EXPECT_EQ(kernNeu({{77, "7"}}, 58, 58), "6");
    EXPECT_EQ(kernNeu({{78, "14"}}, 63, 63), "0");
    EXPECT_EQ(kernNeu({{78, "16"}}, 63, 63), "2");
    EXPECT_EQ(kernNeu({{17, ""}}, 14, 14), "0");
    EXPECT_EQ(kernNeu({{17, "6"}}, 14, 14), "11");
    EXPECT_EQ(kernNeu({{14, "5"}}, 24, 24), "3");
    EXPECT_EQ(kernNeu({{75, "5"}, {76, "6"}}, 60, 62), "6,0,FEHLER");
    EXPECT_EQ(kernNeu({{162, "5"}}, 181, 181), "4");
}

TEST(Stufe3Test, InhaftierungWirdZuVerlegungMitGrund)
{
    EXPECT_EQ(kernNeu({{161, "8"}}, 155, 156), "6,2");
    EXPECT_EQ(kernNeu({{161, "10"}}, 155, 156), "0,0");
}

TEST(Stufe3Test, KontakteOhneNull)
{
    EXPECT_EQ(kernNeu({{160, " 0 "}}, 154, 154), "");
    EXPECT_EQ(kernNeu({{160, " 25 "}}, 154, 154), "25");
    EXPECT_EQ(kernNeu({{160, "00"}}, 154, 154), "00");
}

TEST(Stufe3Test, Maßnahmen)
{
    EXPECT_EQ(kernNeu({{87, "2"}}, 93, 101), "0,0,0,0,0,2,0,0,0");
    EXPECT_EQ(kernNeu({{87, "2"}, {112, "2"}}, 93, 101), "0,0,2,0,0,2,0,0,0");
    EXPECT_EQ(kernNeu({{93, "2"}, {106, "2"}}, 110, 118), "0,0,2,0,0,2,0,0,0");
    EXPECT_EQ(kernNeu({{84, "2"}, {92, "2"}, {93, "2"}}, 93, 101), "0,2,0,0,2,0,0,0,2");
    EXPECT_EQ(kernNeu({{84, "1"}}, 97, 97), "0");
    EXPECT_EQ(kernNeu({{103, "2"}, {111, "2"}, {112, "2"}}, 110, 118), "0,2,0,0,2,0,0,0,2");
}

TEST(Stufe3Test, LeereUndFesteSpalten)
{
    EXPECT_EQ(kernNeu({{30, "a"}, {25, "b"}, {36, "c"}, {46, "d"}}, 26, 43), ",a,,,b,,c,,d,,,,,,,,,");
    EXPECT_EQ(kernNeu({}, 52, 57), ",,,0,0,0");
    EXPECT_EQ(kernNeu({{63, "1"}, {65, "2"}, {73, "6"}}, 46, 51), "1,2,,,,6");
    EXPECT_EQ(
        kernNeu({{1, "2"}, {2, "7"}, {3, "1"}, {4, "b"}, {5, "e"}, {163, "9"}, {7, "34"}, {6, "1"}, {16, "3"}}, 1, 9),
        "2,7,1,b,e,9,34,1,3");
}

TEST(Stufe3Test, Diagnosezeile)
{
    EXPECT_EQ(diagNeu({{19, "1"}, {21, "22"}}, 4, 9), "1,0,0,22,0,0");
    EXPECT_EQ(diagNeu({{137, "3"}, {139, "10"}}, 118, 123), "3,0,0,10,0,0");
    EXPECT_EQ(diagNeu({{147, "a"}, {153, "b"}, {159, "c"}}, 124, 142), "0,0,0,a,0,0,0,b,0,0,0,c,0,0,0,,0,0,0");
    EXPECT_EQ(diagNeu({{142, "9"}, {4, "101"}}, 157, 161), "9,0,101,,0");
    for (const auto* code : {"553", "554", "555", "556", "558"}) {
        EXPECT_EQ(diagNeu({{4, code}}, 159, 159), "0");
    }
    EXPECT_EQ(diagNeu({{4, "550"}}, 159, 159), "550");
    EXPECT_EQ(
        diagNeu({{204, "F1"}, {205, "F2"}, {206, "F3"}, {208, "G1"}, {209, "G2"}, {212, "a"}, {215, "d"}}, 162, 177),
        "F1,F2,,,G1,G2,,,a,,,d,0,0,0,0");
}

// ---- stage 4

class Stufe4Test : public Importfall {
protected:
    void laufe(const Texte& kern, const Texte& diagnose, const Texte& extra) const
    {
        Testlauf::schreibeZeilen(datei("k.txt"), kern);
        Testlauf::schreibeZeilen(datei("d.txt"), diagnose);
        Testlauf::schreibeZeilen(datei("e.txt"), extra);
        moImp4KDStoMorvek(lauf.stand.bestand.dateien(), datei("k.txt"), datei("d.txt"), datei("K.txt"), datei("B.txt"),
                          datei("D.txt"), datei("e.txt"));
    }
    static std::string kern(int klient, int betr, Spalten mehr = {})
    {
        return beide(181, klient, betr, std::move(mehr));
    }
    static std::string diag(int klient, int betr, Spalten mehr = {})
    {
        return beide(177, klient, betr, std::move(mehr));
    }
    static std::string person(int klient, std::string_view name = "Amsel")
    {
        return satz({alsText(klient), name, "Anna", "Weg", "1", "Ort", "15.03.1970", "Weiblich", "", ""});
    }
    Texte klienten() const { return zeilen(datei("K.txt")); }
    std::string betreuung(std::size_t i = 0) const { return zeilen(datei("B.txt")).at(i); }
    std::string diagnose() const { return zeilen(datei("D.txt")).at(0); }

private:
    static std::string beide(int anzahl, int klient, int betr, Spalten mehr)
    {
        const auto k = alsText(klient);
        const auto b = alsText(betr);
        mehr.insert(mehr.end(), {{2, k}, {3, b}});
        return zeile(anzahl, ';', mehr);
    }
};

TEST_F(Stufe4Test, EinKlientDreiBetreuungen)
{
    laufe({kern(1, 1), kern(1, 2), kern(1, 3)}, {diag(1, 1), diag(1, 2), diag(1, 3)}, {person(1)});
    EXPECT_EQ(klienten().size(), 1U);
    EXPECT_EQ(zeilen(datei("B.txt")).size(), 3U);
    EXPECT_EQ(zeilen(datei("D.txt")).size(), 3U);
}

TEST_F(Stufe4Test, Klientensatz)
{
    laufe({kern(1, 1, {{8, "2"}}), kern(2, 1, {{8, "9"}})}, {diag(1, 1), diag(2, 1)}, {person(1), person(2, "Bär"_t)});
    EXPECT_EQ(
        klienten(),
        (Texte{satz({"", "1", "", "Amsel", "Anna", "Weg", "1", "Ort", "weiblich", "15.03.1970", ""}),
               satz({"", "2", "", "Bär"_t, "Anna", "Weg", "1", "Ort", "Fehler in Geschlecht", "15.03.1970", ""})}));
}

TEST_F(Stufe4Test, KlientKommtMitSeinerErstenVollständigenBetreuung)
{
    laufe({kern(1, 1), kern(1, 2)}, {diag(1, 2)}, {person(1)});
    EXPECT_EQ(klienten().size(), 1U);
    EXPECT_EQ(getFeld(betreuung(), 2), "2");
    laufe({kern(1, 1)}, {}, {person(1)});
    EXPECT_TRUE(klienten().empty());
}

TEST_F(Stufe4Test, OffenerKlientensatzGehtAnDasNächstePaar)
{
    // client 2 has no diagnosis row; the next pair, of a client known already, writes a record once more
    laufe({kern(1, 1), kern(2, 1), kern(1, 2)}, {diag(1, 1), diag(1, 2)}, {person(1), person(2, "Bussard")});
    EXPECT_EQ(klienten().size(), 2U);
    EXPECT_EQ(getFeld(klienten().at(1), 2), "1");
    EXPECT_EQ(getFeld(klienten().at(1), 4), "Bussard");
}

TEST_F(Stufe4Test, FehlendePersonNimmtDieLetzteZeile)
{
    laufe({kern(9, 1)}, {diag(9, 1)}, {person(1), person(2, "Bussard")});
    EXPECT_EQ(getFeld(klienten().at(0), 4), "Bussard");
}

TEST_F(Stufe4Test, ZweiteDiagnosezeileGibtZweiteBetreuung)
{
    laufe({kern(1, 1)}, {diag(1, 1), diag(1, 1)}, {person(1)});
    EXPECT_EQ(zeilen(datei("B.txt")).size(), 2U);
    EXPECT_EQ(klienten().size(), 1U);
}

TEST_F(Stufe4Test, SchlüsselWerdenAlsTextVerglichen)
{
    laufe({kern(1, 1)}, {zeile(177, ';', {{2, "01"}, {3, "1"}})}, {person(1)});
    EXPECT_TRUE(klienten().empty());
}

TEST_F(Stufe4Test, Feldarten)
{
    laufe({kern(1, 1, {{54, "XXX"}, {26, "3"}, {78, "0"}})},
          {diag(1, 1, {{161, "2"}, {177, "1"}, {5, "0"}, {6, "12"}, {162, "F10.2"}, {166, ""}, {170, "B18"}})},
          {person(1)});
    EXPECT_EQ(getFeld(betreuung(), 4), "offen");
    EXPECT_EQ(getFeld(betreuung(), 9), "andere Staaten");
    EXPECT_EQ(getFeld(betreuung(), 61), "3");
    EXPECT_EQ(getFeld(betreuung(), 62), "k.A.");
    EXPECT_EQ(getFeld(betreuung(), 142), "0") << "a number stays 0 in the care record";
    EXPECT_EQ(spalten(betreuung(), 150, 155, trenner), "Falsch,Falsch,Wahr,Falsch,Falsch,Falsch");
    EXPECT_EQ(spalten(betreuung(), 160, 163, trenner), "Falsch,Wahr,Falsch,Falsch");
    EXPECT_EQ(getFeld(betreuung(), 192), "?");
    EXPECT_EQ(getFeld(diagnose(), 4), "") << "and becomes empty in the diagnosis record";
    EXPECT_EQ(getFeld(diagnose(), 5), "12");
    EXPECT_EQ(getFeld(diagnose(), 235), "10.2");
    EXPECT_EQ(getFeld(diagnose(), 239), "");
    EXPECT_EQ(getFeld(diagnose(), 243), "B18");
    EXPECT_EQ(anzahlFelder(diagnose()), 248);
}

TEST_F(Stufe4Test, UnbekannteCodesBleibenAlsText)
{
    laufe({kern(1, 1, {{58, "FEHLER"}, {54, "ABC"}})}, {diag(1, 1)}, {person(1)});
    EXPECT_EQ(getFeld(betreuung(), 144), "'FEHLER' nicht gefunden");
    EXPECT_EQ(getFeld(betreuung(), 9), "konnte Nationencode ABC nicht zuordnen");
}

TEST_F(Stufe4Test, HauptdiagnoseBringtDasAlterBeimErstkonsum)
{
    laufe({kern(1, 1)}, {diag(1, 1, {{159, "102"}, {160, "14"}})}, {person(1)});
    EXPECT_EQ(getFeld(diagnose(), 9), "14");
    EXPECT_EQ(getFeld(diagnose(), 10), "1");
    EXPECT_EQ(getFeld(diagnose(), 17), "");
    for (int gruppe = 2; gruppe <= 29; ++gruppe) {
        EXPECT_EQ(getFeld(diagnose(), 10 + 8 * (gruppe - 1)), "0") << gruppe;
    }
}

} // namespace
