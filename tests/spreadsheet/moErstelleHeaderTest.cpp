#include "spreadsheet/moErstelleHeader.h"

#include "hilfen/Abnahme.h"
#include "hilfen/Testumgebung.h"
#include "satz/moData.h"
#include "satz/moHelferlein.h"

namespace {

class MoErstelleHeader : public testing::Test {
protected:
    MoErstelleHeader() { baueProblemKatalog(); }

    static std::string alsText(const Kopfzeilen& zeilen)
    {
        return verbinde(zeilen[1], '\n', zeilen[2], '\n', zeilen[3], '\n');
    }

    Testlauf lauf;
};

TEST_F(MoErstelleHeader, klienten)
{
    vergleicheMitAbnahme("spreadsheet/abgenommen/KernDat.txt", alsText(erstelleKernHeader()));
}

TEST_F(MoErstelleHeader, betreuungen)
{
    vergleicheMitAbnahme("spreadsheet/abgenommen/BetrDat.txt", alsText(erstelleBetrHeader("excel")));
}

TEST_F(MoErstelleHeader, diagnosen)
{
    vergleicheMitAbnahme("spreadsheet/abgenommen/DiagDat.txt", alsText(erstelleDiagHeader()));
}

TEST_F(MoErstelleHeader, dieSpaltenEntsprechenDenFeldernDerSätze)
{
    const Kopfzeilen betr = erstelleBetrHeader("excel");
    EXPECT_EQ(anzahlFelder(betr[3]), 192);
    EXPECT_EQ(getFeld(betr[3], 1), "KernID");
    EXPECT_EQ(getFeld(betr[3], 192), "memoB");
    // a trailing delimiter: the column behind it is empty
    const Kopfzeilen diag = erstelleDiagHeader();
    for (std::size_t zeile = 2; zeile <= 3; ++zeile) {
        EXPECT_EQ(anzahlFelder(diag[zeile]), 247);
        EXPECT_EQ(getFeld(diag[zeile], 247), "");
    }
    EXPECT_EQ(getFeld(diag[3], 235), "icdpsy1");
    EXPECT_EQ(getFeld(diag[3], 246), "icdand4");
}

TEST_F(MoErstelleHeader, ungenutzteFelderHeissenVoid)
{
    const std::string namen = erstelleDiagHeader()[3];
    std::vector<int> ungenutzt;
    for (int spalte = 1; spalte <= 247; ++spalte) {
        if (getFeld(namen, spalte) == "VOID") {
            ungenutzt.push_back(spalte);
        }
    }
    std::vector<int> erwartet;
    for (int gruppe = 21; gruppe <= 28; ++gruppe) {
        erwartet.push_back(3 + 8 * (gruppe - 1));
        erwartet.push_back(8 + 8 * (gruppe - 1));
    }
    erwartet.insert(erwartet.end(), {227, 228, 229, 232, 233});
    EXPECT_EQ(ungenutzt, erwartet);
}

TEST_F(MoErstelleHeader, dieArtZähltOhneGrossschreibung)
{
    EXPECT_EQ(erstelleBetrHeader("EXCEL"), erstelleBetrHeader("excel"));
}

TEST_F(MoErstelleHeader, fürEinenBriefBleibenDieBezeichnungenLeer)
{
    const Kopfzeilen zeilen = erstelleBetrHeader("word");
    EXPECT_EQ(zeilen[1], "");
    EXPECT_EQ(zeilen[2], "");
    EXPECT_EQ(zeilen[3], "");
}

TEST_F(MoErstelleHeader, dieSucheFindetInBeidenTabellen)
{
    const auto erste = sucheBezeichnungen("Kosten2");
    EXPECT_EQ(erste.erste, "Kosten-/ Leistungstr\xE4ger\xB7");
    EXPECT_EQ(erste.zweite, "Selbstzahler\xB7");
    const auto zweite = sucheBezeichnungen("kosten2", true);
    EXPECT_EQ(zweite.erste, "\xB7");
    EXPECT_EQ(zweite.zweite, "Selbstzahler\xB7");
}

TEST_F(MoErstelleHeader, famstaHatInBeidenTabellenKeineBezeichnung)
{
    for (const bool ohneWiederholung : {false, true}) {
        const auto bezeichnungen = sucheBezeichnungen("FamSta", ohneWiederholung);
        EXPECT_EQ(bezeichnungen.erste, "\xB7");
        EXPECT_EQ(bezeichnungen.zweite, "\xB7");
    }
}

TEST_F(MoErstelleHeader, unbekannteNamenStehenKlein)
{
    const auto bezeichnungen = sucheBezeichnungen("LebenSit0\xB7HDohne0\xB7\xC4nders");
    EXPECT_EQ(bezeichnungen.erste, "lebensit0\xB7hdohne0\xB7\xE4nders\xB7");
    EXPECT_EQ(bezeichnungen.zweite, "\xB7\xB7\xB7");
}

} // namespace
