#include "satz/Diagnosesatz.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/moHelferlein.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

constexpr int diagnosefeldzahl = 245;

std::string leer()
{
    return std::string(diagnosefeldzahl, trenner);
}

/// DSDiag with one field set.
std::string mit(std::string satz, int position, std::string_view text)
{
    return verbinde(felder(satz, 1, position - 1), text, trenner, felder(satz, position + 1, diagnosefeldzahl));
}

std::string mitBlockfeld(int gruppe, int platz, std::string_view text)
{
    return mit(leer(), blockposition(gruppe, platz), text);
}

/// Every field holds its own position, the marks aside.
std::string nummeriert()
{
    std::string satz;
    for (int position = 1; position <= diagnosefeldzahl; ++position) {
        satz += verbinde(alsText(position), trenner);
    }
    return satz;
}

TEST(Diagnosesatz, PositionenFolgenAusDerGruppenzahl)
{
    EXPECT_EQ(blockposition(1, 1), 1);
    EXPECT_EQ(blockposition(29, HDMarke), 232);
    EXPECT_EQ(weitereDiagnose(1), 233);
    EXPECT_EQ(weitereDiagnose(12), 244);
    EXPECT_EQ(bitfeldposition, 245);
}

TEST(Diagnosesatz, LeererSatzHatKeineGruppe)
{
    EXPECT_EQ(getHDGruppenNr(leer()), -1);
    EXPECT_EQ(leseBitfeld(leer()), 0);
    EXPECT_TRUE(vorhandeneGruppen(leer()).empty());
}

TEST(Hauptdiagnose, IstDieNiedrigsteMarkierteGruppe)
{
    EXPECT_EQ(getHDGruppenNr(mitBlockfeld(29, HDMarke, "1")), 29);
    EXPECT_EQ(getHDGruppenNr(mit(mitBlockfeld(29, HDMarke, "1"), blockposition(2, HDMarke), "1")), 2);
}

TEST(Hauptdiagnose, NurDieEinsZählt)
{
    EXPECT_EQ(getHDGruppenNr(mitBlockfeld(3, HDMarke, "0")), -1);
    EXPECT_EQ(getHDGruppenNr(mitBlockfeld(3, HDMarke, " 1")), -1);
    EXPECT_EQ(getHDGruppenNr(mitBlockfeld(3, HDMarke, "ja")), -1);
}

TEST(Hauptdiagnose, MarkeWirdGenommenAntwortenBleiben)
{
    std::string satz = nummeriert();
    nimmHDMarke(satz, 4);
    EXPECT_EQ(satz, mit(nummeriert(), blockposition(4, HDMarke), ""));
}

struct Leerwert {
    int gruppe;
    int platz;
    std::string_view wert;
    bool belegt;
};

class Belegung : public ::testing::TestWithParam<Leerwert> {};

TEST_P(Belegung, EntscheidetSichAnDenLeerwerten)
{
    const Leerwert& fall = GetParam();
    EXPECT_EQ(istGruppeBelegt(mitBlockfeld(fall.gruppe, fall.platz, fall.wert), fall.gruppe), fall.belegt);
}

INSTANTIATE_TEST_SUITE_P(Werte, Belegung,
                         ::testing::Values(Leerwert{1, Konsumart, "0", false}, Leerwert{1, Konsumart, "k.A.", true},
                                           Leerwert{1, TageBeginn, "0", false}, Leerwert{1, TageBeginn, "1", true},
                                           Leerwert{1, TageEnde, "0", false}, Leerwert{1, TageEnde, "30", true},
                                           Leerwert{1, ICDStelle4, "0", false}, Leerwert{1, ICDStelle4, "k.A.", true},
                                           Leerwert{1, ICDStelle4, "9", true}, Leerwert{29, ICDStelle4, "9", false},
                                           Leerwert{29, ICDStelle4, "0", true}, Leerwert{29, ICDStelle4, "99", true},
                                           Leerwert{24, ICDStelle4, "99", false}, Leerwert{24, ICDStelle4, "0", true},
                                           Leerwert{25, ICDStelle4, "99", true}, Leerwert{25, ICDStelle4, "0", false},
                                           Leerwert{28, ICDStelle4, "99", true}, Leerwert{23, ICDStelle4, "99", true},
                                           Leerwert{1, AlterStörung, "0", false}, Leerwert{1, AlterStörung, "12", true},
                                           Leerwert{1, Riskant, "k.A.", false}, Leerwert{1, Riskant, "0", false},
                                           Leerwert{1, Riskant, "nein", true}, Leerwert{29, Riskant, "k.A.", false},
                                           Leerwert{1, AlterErstkonsum, "0", false},
                                           Leerwert{1, AlterErstkonsum, "k.A.", true}, Leerwert{1, HDMarke, "0", false},
                                           Leerwert{1, HDMarke, "1", true}, Leerwert{1, TageBeginn, " ", true}));

TEST(IstGruppeBelegt, NullenInAllenFeldernSindNichts)
{
    for (const int gruppe : {1, 21, 25, 28}) {
        std::string satz = leer();
        for (int platz = 1; platz <= felderJeGruppe; ++platz) {
            satz = mit(satz, blockposition(gruppe, platz), "0");
        }
        EXPECT_FALSE(istGruppeBelegt(satz, gruppe)) << gruppe;
    }
}

TEST(IstGruppeBelegt, NachbarblöckeZählenNicht)
{
    const std::string satz = mit(mitBlockfeld(5, HDMarke, "1"), blockposition(7, Konsumart), "Injektion");
    EXPECT_FALSE(istGruppeBelegt(satz, 6));
    EXPECT_EQ(vorhandeneGruppen(satz), (std::vector<int>{5, 7}));
}

TEST(Blockteile, ErgebenZusammenDenSatz)
{
    const std::string satz = nummeriert();
    for (int gruppe = 1; gruppe <= höchsteGruppe; ++gruppe) {
        const Blockteile teile = zerlegeDSDiag(satz, gruppe);
        EXPECT_EQ(verbinde(teile.davor, teile.block, teile.dahinter), satz);
        EXPECT_EQ(teile.block, felder(satz, blockposition(gruppe, 1), blockposition(gruppe, HDMarke)));
    }
}

TEST(Blockteile, FehlendeFelderGebenLeereTeile)
{
    const Blockteile teile = zerlegeDSDiag("a", 2);
    EXPECT_EQ(teile.davor, "a");
    EXPECT_EQ(teile.block, "");
    EXPECT_EQ(teile.dahinter, "");
}

TEST(SchreibeGruppe, ErsetztNurIhrenBlock)
{
    const std::string block = verbinde("A"_t, trenner, std::string(7, trenner));
    for (const int gruppe : {1, 2, 15, 28, 29}) {
        std::string satz = nummeriert();
        schreibeGruppeInDSDiag(satz, gruppe, block);
        EXPECT_EQ(satz, verbinde(felder(nummeriert(), 1, blockposition(gruppe, 1) - 1), block,
                                 felder(nummeriert(), blockposition(gruppe, HDMarke) + 1, diagnosefeldzahl)));
    }
}

TEST(SchreibeGruppe, LässtWeitereDiagnosenUndBitfeld)
{
    std::string satz = nummeriert();
    schreibeGruppeInDSDiag(satz, 29, std::string(8, trenner));
    EXPECT_EQ(felder(satz, weitereDiagnose(1), bitfeldposition),
              felder(nummeriert(), weitereDiagnose(1), bitfeldposition));
}

TEST(Bitfeld, SchreibenLässtAllesDavor)
{
    std::string satz = nummeriert();
    schreibeBitFeldInDSDiag(satz, "2");
    EXPECT_EQ(satz, mit(nummeriert(), bitfeldposition, "2"));
}

TEST(Bitfeld, WasDahinterStehtFälltWeg)
{
    std::string satz = verbinde(nummeriert(), "Rest"_t, trenner, "mehr"_t);
    schreibeBitFeldInDSDiag(satz, "");
    EXPECT_EQ(satz, mit(nummeriert(), bitfeldposition, ""));
}

TEST(Bitfeld, AlleGruppenZusammen)
{
    std::string satz = leer();
    for (int gruppe = 1; gruppe <= höchsteGruppe; ++gruppe) {
        trageGruppeEin(satz, gruppe);
    }
    EXPECT_EQ(getFeld(satz, bitfeldposition), "1073741822");
    EXPECT_EQ(vorhandeneGruppen(satz).size(), 29U);
}

TEST(Bitfeld, EintragenIstWiederholbar)
{
    std::string satz = leer();
    trageGruppeEin(satz, 29);
    trageGruppeEin(satz, 29);
    EXPECT_EQ(getFeld(satz, bitfeldposition), "536870912");
}

TEST(Bitfeld, BlanksUmDieZahlZählenNicht)
{
    EXPECT_EQ(leseBitfeld(mit(leer(), bitfeldposition, " 64 ")), 64);
    EXPECT_EQ(leseBitfeld(mit(leer(), bitfeldposition, " ")), 0);
    EXPECT_EQ(leseBitfeld(mit(leer(), bitfeldposition, "-2")), -2);
}

TEST(Bitfeld, EinTextIstEinFehler)
{
    EXPECT_THROW(leseBitfeld(mit(leer(), bitfeldposition, "zwei")), Laufzeitfehler);
    EXPECT_THROW(leseBitfeld(mit(leer(), bitfeldposition, "2,5")), Laufzeitfehler);
}

TEST(Bitfeld, NegativeBitsGeltenAlsZweierkomplement)
{
    EXPECT_FALSE(hatBit(-4, 1));
    for (int gruppe = 2; gruppe <= höchsteGruppe; ++gruppe) {
        EXPECT_TRUE(hatBit(-4, gruppe));
    }
}

TEST(LöscheGruppe, NimmtBitUndAntworten)
{
    std::string satz = mit(mitBlockfeld(6, TageBeginn, "5"), bitfeldposition, "66");
    löscheGruppe(satz, 6);
    EXPECT_EQ(satz, mit(leer(), bitfeldposition, "2"));
}

TEST(LöscheGruppe, MitDerHauptdiagnoseGehtDieMarke)
{
    std::string satz = mit(mitBlockfeld(6, HDMarke, "1"), bitfeldposition, "64");
    löscheGruppe(satz, 6);
    EXPECT_EQ(getHDGruppenNr(satz), -1);
    EXPECT_EQ(getFeld(satz, bitfeldposition), "0");
}

TEST(LöscheGruppe, OhneBitWirdDasFeldNegativ)
{
    std::string satz = mitBlockfeld(2, TageBeginn, "7");
    löscheGruppe(satz, 2);
    EXPECT_EQ(getFeld(satz, bitfeldposition), "-4");
    EXPECT_EQ(vorhandeneGruppen(satz).size(), 28U);
}

TEST(LöscheGruppe, OhneBitStörtEsAndereGruppen)
{
    std::string satz = mit(mitBlockfeld(2, TageBeginn, "7"), bitfeldposition, "8");
    löscheGruppe(satz, 2);
    EXPECT_EQ(getFeld(satz, bitfeldposition), "4"); // group 3 lost its bit, group 2 got one
}

TEST(LöscheGruppe, AmRandDerZahlenLäuftNichtsÜber)
{
    std::string satz = mit(leer(), bitfeldposition, "-9223372036854775808");
    löscheGruppe(satz, 1);
    EXPECT_EQ(getFeld(satz, bitfeldposition), "9223372036854775806");
}

/// A random walk over the writing operations: the record keeps its fields, the further diagnoses stay, and at
/// most one group carries the mark as long as it is moved by the rules.
TEST(Diagnosesatz, BleibtGanzImZufallslauf)
{
    std::mt19937 zufall(20070802);
    const auto gruppe = [&] { return static_cast<int>(zufall() % 29) + 1; };
    const auto wert = [&] { return zufall() % 3 == 0 ? std::string() : std::to_string(zufall() % 40); };
    std::string satz = leer();
    for (int i = 1; i <= anzahlWeitereDiagnosen; ++i) {
        satz = mit(satz, weitereDiagnose(i), verbinde("W"_t, alsText(i)));
    }
    const std::string weitere = felder(satz, weitereDiagnose(1), bitfeldposition - 1);
    for (int schritt = 0; schritt < 2000; ++schritt) {
        const int g = gruppe();
        const int hauptgruppe = getHDGruppenNr(satz);
        const bool wirdHauptdiagnose = zufall() % 4 == 0;
        if (zufall() % 5 == 0) {
            löscheGruppe(satz, g);
            EXPECT_FALSE(istGruppeBelegt(satz, g));
        } else {
            std::string block;
            for (int platz = 1; platz < HDMarke; ++platz) {
                block += verbinde(wert(), trenner);
            }
            schreibeGruppeInDSDiag(satz, g, verbinde(block, wirdHauptdiagnose ? "1"_t : ""_t, trenner));
            if (wirdHauptdiagnose && hauptgruppe > 0 && hauptgruppe != g) {
                nimmHDMarke(satz, hauptgruppe);
            }
            trageGruppeEin(satz, g);
            EXPECT_EQ(zerlegeDSDiag(satz, g).block, verbinde(block, wirdHauptdiagnose ? "1"_t : ""_t, trenner));
            EXPECT_TRUE(hatBit(leseBitfeld(satz), g));
        }
        ASSERT_EQ(anzahlFelder(satz), diagnosefeldzahl + 1);
        ASSERT_EQ(satz.back(), trenner);
        ASSERT_EQ(felder(satz, weitereDiagnose(1), bitfeldposition - 1), weitere);
        int marken = 0;
        for (int i = 1; i <= höchsteGruppe; ++i) {
            marken += blockfeld(satz, i, HDMarke) == "1" ? 1 : 0;
        }
        ASSERT_LE(marken, 1);
    }
}

} // namespace
