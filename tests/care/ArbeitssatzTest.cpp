#include "care/Arbeitssatz.h"

#include "platform/text/Text.h"
#include "satz/moHelferlein.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

/// A record whose fields hold their own numbers.
std::string nummernsatz(int anzahl)
{
    std::string satz = "1";
    for (int i = 2; i <= anzahl; ++i) {
        satz += trenner + std::to_string(i);
    }
    return satz;
}

Arbeitskopie zerlegteKopie()
{
    Arbeitskopie kopie;
    kopie.aktBetrDS = nummernsatz(192);
    kopie.aktDiagDS = nummernsatz(247);
    zerlegeBetrDS(kopie);
    return kopie;
}

auto trennerzahl(const std::string& text)
{
    return std::count(text.begin(), text.end(), trenner);
}

constexpr Betreuungsschlüssel schlüssel{7, 3};

} // namespace

TEST(Arbeitssatz, JedesStückHatSeineFelder)
{
    const auto kopie = zerlegteKopie();
    struct Erwartung {
        const std::string& stück;
        const char* erstes;
        const char* letztes;
        int anzahl;
    };
    const std::vector<Erwartung> erwartungen{{kopie.DSBetrHaupt, "5", "24", 20},   {kopie.DSBetrA, "25", "104", 80},
                                             {kopie.DSBetrB, "105", "117", 13},    {kopie.DSBetrC, "118", "149", 32},
                                             {kopie.DSBetrDiag, "150", "163", 14}, {kopie.DSBetrE, "164", "191", 28},
                                             {kopie.DSDiag, "3", "247", 245}};
    for (const auto& erwartung : erwartungen) {
        EXPECT_EQ(getFeld(erwartung.stück, 1), erwartung.erstes);
        EXPECT_EQ(getFeld(erwartung.stück, erwartung.anzahl), erwartung.letztes);
        EXPECT_EQ(trennerzahl(erwartung.stück), erwartung.anzahl) << erwartung.erstes;
        EXPECT_EQ(erwartung.stück.back(), trenner);
    }
}

TEST(Arbeitssatz, MemosStehenImLetztenFeld)
{
    EXPECT_EQ(memoBAus(nummernsatz(192)), "192");
    EXPECT_EQ(memoKAus(nummernsatz(11)), "11");
    EXPECT_EQ(memoBAus(""), "");
}

TEST(Arbeitssatz, ZerlegtUndGebautIstDerselbeSatz)
{
    const auto kopie = zerlegteKopie();
    const auto satz = baueBetrDS({1, 2}, "3", "4", kopie, memoBAus(kopie.aktBetrDS));
    EXPECT_EQ(satz, kopie.aktBetrDS);
}

TEST(Arbeitssatz, SchlüsselUndZeitraumStehenVorn)
{
    const auto satz = baueBetrDS(schlüssel, "15.03.2010", "offen", zerlegteKopie(), "Notiz");
    EXPECT_EQ(getFeld(satz, 1), "7");
    EXPECT_EQ(getFeld(satz, 2), "3");
    EXPECT_EQ(getFeld(satz, 3), "15.03.2010");
    EXPECT_EQ(getFeld(satz, 4), "offen");
    EXPECT_EQ(getFeld(satz, 192), "Notiz");
    EXPECT_EQ(anzahlFelder(satz), 192);
}

TEST(Arbeitssatz, DerDiagnosesatzEndetMitDemTrenner)
{
    const auto satz = baueDiagDS(schlüssel, zerlegteKopie());
    EXPECT_EQ(getFeld(satz, 1), "7");
    EXPECT_EQ(getFeld(satz, 2), "3");
    EXPECT_EQ(getFeld(satz, 3), "3");
    EXPECT_EQ(getFeld(satz, 247), "247");
    EXPECT_EQ(trennerzahl(satz), 247);
    EXPECT_EQ(satz.back(), trenner);
}

TEST(Arbeitssatz, EinFehlenderSatzGibtLeereFelder)
{
    Arbeitskopie kopie;
    zerlegeBetrDS(kopie);
    EXPECT_EQ(kopie.DSBetrB, std::string(13, trenner));
    EXPECT_EQ(anzahlFelder(baueBetrDS(schlüssel, "", "", kopie, "")), 192);
    EXPECT_EQ(trennerzahl(baueDiagDS(schlüssel, kopie)), 247);
}

TEST(Arbeitssatz, DerKlientensatzBekommtStatusUndMemo)
{
    const auto satz = baueKernDS("·1··Adler·Anna·Amselweg 1·10115·Berlin·weiblich·01.02.1970·alt"_t, "o", "neu");
    EXPECT_EQ(satz, "·1·o·Adler·Anna·Amselweg 1·10115·Berlin·weiblich·01.02.1970·neu"_t);
}

TEST(Arbeitssatz, DerKlientensatzVerliertSeinZwölftesFeld)
{
    const auto satz = baueKernDS("·1··Adler·Anna····keine Angaben·unbekannt··"_t, "", "");
    EXPECT_EQ(anzahlFelder(satz), 11);
    EXPECT_EQ(satz.back(), trenner);
}
