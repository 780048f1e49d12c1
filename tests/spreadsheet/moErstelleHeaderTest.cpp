#include "spreadsheet/moErstelleHeader.h"

#include "hilfen/Abnahme.h"
#include "hilfen/Testumgebung.h"
#include "satz/Satzaufbau.h"
#include "satz/moData.h"

namespace {

class MoErstelleHeader : public testing::Test {
protected:
    MoErstelleHeader() { baueProblemKatalog(); }

    /// A header row as the text that it has always been: so many columns, each followed by the delimiter, or joined.
    struct Form {
        std::size_t spalten;
        bool endetMitTrenner = true;
    };

    static std::string alsZeile(const Spaltenköpfe& köpfe, std::string Spaltenkopf::*teil, Form form)
    {
        std::string zeile;
        for (std::size_t spalte = 0; spalte < form.spalten; ++spalte) {
            zeile.append(köpfe.at(spalte).*teil).append(1, trenner);
        }
        return form.endetMitTrenner ? zeile : zeile.substr(0, zeile.size() - 1);
    }

    static std::string alsText(const Spaltenköpfe& köpfe, Form thema, Form frage, Form name)
    {
        return verbinde(alsZeile(köpfe, &Spaltenkopf::thema, thema), '\n', alsZeile(köpfe, &Spaltenkopf::frage, frage),
                        '\n', alsZeile(köpfe, &Spaltenkopf::name, name), '\n');
    }

    Testlauf lauf;
};

TEST_F(MoErstelleHeader, klienten)
{
    vergleicheMitAbnahme("spreadsheet/abgenommen/KernDat.txt", alsText(erstelleKernHeader(), {0}, {11}, {11, false}));
}

TEST_F(MoErstelleHeader, betreuungen)
{
    vergleicheMitAbnahme("spreadsheet/abgenommen/BetrDat.txt",
                         alsText(erstelleBetrHeader("excel"), {192}, {192}, {192, false}));
}

TEST_F(MoErstelleHeader, diagnosen)
{
    vergleicheMitAbnahme("spreadsheet/abgenommen/DiagDat.txt", alsText(erstelleDiagHeader(), {234}, {246}, {246}));
}

TEST_F(MoErstelleHeader, dieSpaltenEntsprechenDenFeldernDerSätze)
{
    EXPECT_EQ(erstelleKernHeader().size(), klientenfelder().size());
    const auto betr = erstelleBetrHeader("excel");
    ASSERT_EQ(betr.size(), betreuungsfelder().size());
    EXPECT_EQ(betr.front().name, "KernID");
    EXPECT_EQ(betr.back().name, "memoB");
    const auto diag = erstelleDiagHeader();
    ASSERT_EQ(diag.size(), diagnosefelder().size());
    EXPECT_EQ(diag.back(), Spaltenkopf{}) << "the bit field";
    EXPECT_EQ(diag[234].name, "icdpsy1");
    EXPECT_EQ(diag[245].name, "icdand4");
}

TEST_F(MoErstelleHeader, ungenutzteFelderHeissenVoid)
{
    const auto köpfe = erstelleDiagHeader();
    std::vector<int> ungenutzt;
    for (int feld = 1; feld <= 247; ++feld) {
        if (köpfe[static_cast<std::size_t>(feld - 1)].name == "VOID") {
            ungenutzt.push_back(feld);
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

TEST_F(MoErstelleHeader, fürEinenBriefBleibtAllesLeer)
{
    EXPECT_EQ(erstelleBetrHeader("word"), Spaltenköpfe{});
}

TEST_F(MoErstelleHeader, eineAndereArtHatNurDieNamen)
{
    const auto köpfe = erstelleBetrHeader("");
    EXPECT_EQ(köpfe.at(2), (Spaltenkopf{"", "", "BetrBeg"}));
}

TEST_F(MoErstelleHeader, dieSucheGehtOhneGrossschreibung)
{
    const Spaltenkopf erwartet{"Kosten-/ Leistungstr\xE4ger", "Selbstzahler", ""};
    EXPECT_EQ(sucheBezeichnungen("Kosten2"), erwartet);
    EXPECT_EQ(sucheBezeichnungen("kosten2"), erwartet);
}

TEST_F(MoErstelleHeader, famstaHatKeineBezeichnung)
{
    EXPECT_EQ(sucheBezeichnungen("FamSta"), Spaltenkopf{});
}

TEST_F(MoErstelleHeader, unbekannteNamenStehenKlein)
{
    EXPECT_EQ(sucheBezeichnungen("\xC4nders"), (Spaltenkopf{"\xE4nders", "", ""}));
}

} // namespace
