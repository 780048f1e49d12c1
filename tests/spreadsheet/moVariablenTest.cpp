#include "spreadsheet/moVariablen.h"

#include "hilfen/Abnahme.h"
#include "hilfen/Testumgebung.h"
#include "satz/moHelferlein.h"
#include "zustand/Zustand.h"

namespace {

class MoVariablen : public testing::Test {
protected:
    MoVariablen() { registriereVariablen(lauf.stand.ressourcen); }

    static void prüfeGegenListe(int basis, const std::string& datei)
    {
        EXPECT_EQ(ladeResText(basis), "185");
        std::string text;
        for (int i = 1; i <= 185; ++i) {
            text += verbinde(ladeResText(basis + i), '\n');
        }
        vergleicheMitAbnahme("spreadsheet/" + datei, text);
        EXPECT_EQ(ladeResText(basis + 186), "<leer>");
    }

    Testlauf lauf;
};

TEST_F(MoVariablen, ersteTabelle)
{
    prüfeGegenListe(6000, "Variablen.txt");
}

TEST_F(MoVariablen, zweiteTabelle)
{
    prüfeGegenListe(7000, "VariablenOhneWiederholung.txt");
}

TEST_F(MoVariablen, zweiteTabelleUnterscheidetSichIn126Zeilen)
{
    int anders = 0;
    for (int i = 1; i <= 185; ++i) {
        const std::string erste = ladeResText(6000 + i);
        const std::string zweite = ladeResText(7000 + i);
        EXPECT_EQ(getFeld(erste, 1), getFeld(zweite, 1));
        EXPECT_EQ(getFeld(erste, 3), getFeld(zweite, 3));
        if (erste != zweite) {
            ++anders;
            EXPECT_EQ(getFeld(zweite, 2), "");
        }
    }
    EXPECT_EQ(anders, 126);
}

TEST_F(MoVariablen, dieNamenSindEindeutig)
{
    std::vector<std::string> namen;
    for (int i = 1; i <= 185; ++i) {
        const std::string zeile = ladeResText(6000 + i);
        namen.emplace_back(getFeld(zeile, 1));
    }
    std::sort(namen.begin(), namen.end());
    EXPECT_EQ(std::adjacent_find(namen.begin(), namen.end()), namen.end());
}

} // namespace
