#include "import/moAnweisungen.h"
#include "hilfen/Abnahme.h"
#include "hilfen/Testumgebung.h"

#include "satz/moData.h"
#include "satz/moHelferlein.h"
#include "satz/moNationen.h"
#include "zustand/Zustand.h"

#include <algorithm>

namespace {

class moAnweisungenTest : public testing::Test {
protected:
    moAnweisungenTest()
    {
        baueProblemKatalog();
        registriereAnweisungen(lauf.stand.ressourcen);
    }

    static std::string ergebnis(const std::vector<Feldanweisung>& anweisungen, int zeile, std::string_view wert)
    {
        std::string ablage;
        return std::string(schlageNach(anweisungen.at(static_cast<std::size_t>(zeile - 1)), wert, ablage));
    }

    Testlauf lauf;
};

TEST_F(moAnweisungenTest, AlleZeilen)
{
    EXPECT_EQ(ladeResText(ressourceBetreuungsanweisungen), "192");
    EXPECT_EQ(ladeResText(ressourceDiagnoseanweisungen), "247");
    std::string ausgabe;
    const auto drucke = [&](int erste, int anzahl) {
        for (int nummer = erste + 1; nummer <= erste + anzahl; ++nummer) {
            const auto zeile = ladeResText(nummer);
            EXPECT_EQ(std::count(zeile.begin(), zeile.end(), trenner), felderJeAnweisung - 1) << nummer;
            ausgabe += std::to_string(nummer) + " " + zeile.substr(0, zeile.find_last_not_of(trenner) + 1) + "\n";
        }
    };
    drucke(ressourceBetreuungsanweisungen, 192);
    drucke(ressourceDiagnoseanweisungen, 247);
    vergleicheMitAbnahme("import/anweisungen.txt", ausgabe);
    EXPECT_EQ(ladeResText(4193), "<leer>");
    EXPECT_EQ(ladeResText(5248), "<leer>");
}

TEST_F(moAnweisungenTest, KurzesJaNein)
{
    EXPECT_EQ(ergebnis(betreuungsanweisungen(), 5, "0"), "k.A.");
    EXPECT_EQ(ergebnis(betreuungsanweisungen(), 5, ""), "");
    EXPECT_EQ(ergebnis(betreuungsanweisungen(), 5, "7"), "'7' nicht gefunden");
}

TEST_F(moAnweisungenTest, GrundDerBetreuungKenntDenLeerenCode)
{
    EXPECT_EQ(ergebnis(betreuungsanweisungen(), 6, ""), "keine Angaben");
    EXPECT_EQ(ergebnis(betreuungsanweisungen(), 6, "0"), "keine Angaben");
    EXPECT_EQ(ergebnis(betreuungsanweisungen(), 6, "3"), "Sonstiges");
}

TEST_F(moAnweisungenTest, SchuldenBehaltenIhrenVerschreiber)
{
    EXPECT_EQ(ergebnis(betreuungsanweisungen(), 149, "2"), "bis10.000 €"_t);
    EXPECT_EQ(ergebnis(betreuungsanweisungen(), 149, "3"), "bis 25.000 €"_t);
}

TEST_F(moAnweisungenTest, Infektionen)
{
    EXPECT_EQ(ergebnis(betreuungsanweisungen(), 157, "0"), "keine Angaben");
    EXPECT_EQ(ergebnis(betreuungsanweisungen(), 159, "4"), "Status unbekannt");
}

TEST_F(moAnweisungenTest, Substanzgruppe)
{
    EXPECT_EQ(ergebnis(diagnoseanweisungen(), 3, "0"), "");
    EXPECT_EQ(ergebnis(diagnoseanweisungen(), 3, "5"), "Andere Arten");
    EXPECT_EQ(ergebnis(diagnoseanweisungen(), 6, ""), "");
    EXPECT_EQ(ergebnis(diagnoseanweisungen(), 6, "21"), "21");
    EXPECT_EQ(ergebnis(diagnoseanweisungen(), 6, "0"), "0");
    EXPECT_EQ(ergebnis(diagnoseanweisungen(), 8, "0"), "k.A.");
}

TEST_F(moAnweisungenTest, Hauptdiagnose)
{
    const auto tabelle = diagnoseanweisungen();
    const auto gruppenMit = [&](std::string_view code) {
        std::vector<int> gruppen;
        for (int gruppe = 1; gruppe <= 29; ++gruppe) {
            std::string ablage;
            const auto text = schlageNach(tabelle.at(static_cast<std::size_t>(9 + 8 * (gruppe - 1))), code, ablage);
            EXPECT_TRUE(text == "0" || text == "1");
            if (text == "1") {
                gruppen.push_back(gruppe);
            }
        }
        return gruppen;
    };
    using Gruppen = std::vector<int>;
    EXPECT_EQ(gruppenMit("102"), Gruppen{1});
    EXPECT_EQ(gruppenMit("11"), Gruppen{2});
    EXPECT_EQ(gruppenMit("131"), Gruppen{8});
    EXPECT_EQ(gruppenMit("142"), Gruppen{10});
    EXPECT_EQ(gruppenMit("15"), Gruppen{12});
    EXPECT_EQ(gruppenMit("161"), Gruppen{15});
    EXPECT_EQ(gruppenMit("551"), Gruppen{22});
    EXPECT_EQ(gruppenMit("630"), Gruppen{24});
    EXPECT_EQ(gruppenMit("508"), Gruppen{29});
    EXPECT_EQ(gruppenMit("0"), Gruppen{});
    EXPECT_EQ(gruppenMit(""), Gruppen{});
}

TEST_F(moAnweisungenTest, SonstUndText)
{
    const Feldanweisung anweisung{'K', 1, Feldart::option, {{"a", "1"}, {"<text>", "<sonst>"}, {"b", "2"}}};
    std::string ablage;
    EXPECT_EQ(schlageNach(anweisung, "1", ablage), "a");
    EXPECT_EQ(schlageNach(anweisung, "2", ablage), "2") << "<sonst> closes the list";
}

} // namespace
