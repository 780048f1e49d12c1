#include "platform/text/Datum.h"

#include <gtest/gtest.h>

TEST(Datum, TageszahlZähltAbDem30Dezember1899)
{
    EXPECT_EQ(alsTageszahl({1899, 12, 30}), 0);
    EXPECT_EQ(alsTageszahl({1900, 1, 1}), 2);
    EXPECT_EQ(alsTageszahl({2007, 8, 2}), 39296);
    EXPECT_EQ(ausTageszahl(39296), (Datum{2007, 8, 2}));
    EXPECT_EQ(ausTageszahl(-1), (Datum{1899, 12, 29}));
}

TEST(Datum, TextHatZweiZweiVierStellen)
{
    EXPECT_EQ(alsDatumstext({2007, 8, 2}), "02.08.2007");
    EXPECT_EQ(alsDatumstext({987, 12, 31}), "31.12.0987");
}

TEST(Datum, LiestVierUndZweiStellen)
{
    EXPECT_EQ(leseDatum("2.8.2007"), (Datum{2007, 8, 2}));
    EXPECT_EQ(leseDatum(" 02.08.07 "), (Datum{2007, 8, 2}));
    EXPECT_EQ(leseDatum("01.01.29"), (Datum{2029, 1, 1}));
    EXPECT_EQ(leseDatum("01.01.30"), (Datum{1930, 1, 1}));
    EXPECT_EQ(leseDatum("29.02.2004"), (Datum{2004, 2, 29}));
}

TEST(Datum, AllesAndereIstKeinDatum)
{
    for (const auto* text :
         {"", "unbekannt", "offen", "1.1", "1.1.207", "1.1.20070", "31.02.2007", "29.02.2007", "0.1.2007", "1.13.2007",
          "1.1.2007.", "1..2007", "1/1/2007", "-1.1.2007", "001.1.2007", "1. 1.2007"}) {
        EXPECT_EQ(leseDatum(text), std::nullopt) << text;
    }
}

TEST(Datum, EingabeOhneJahrUndOhnePunkte)
{
    const Datum heute{2007, 8, 2};
    for (const auto& [text, erwartet] :
         {std::pair{"31.12.", Datum{2007, 12, 31}}, std::pair{"1.2", Datum{2007, 2, 1}},
          std::pair{"311225", Datum{2025, 12, 31}}, std::pair{"01022003", Datum{2003, 2, 1}},
          std::pair{"1.1.2025", Datum{2025, 1, 1}}, std::pair{"8.3.74", Datum{1974, 3, 8}}}) {
        EXPECT_EQ(leseDatumseingabe(text, heute), erwartet) << text;
    }
    for (const auto* text :
         {"", ".", "..", "1", "1.", "31.2.2025", "29.2.", "12345", "1234567", "311325", "1.1.2", "1.1.0025"}) {
        EXPECT_EQ(leseDatumseingabe(text, heute), std::nullopt) << text;
    }
    EXPECT_EQ(leseDatumseingabe("29.2.", {2008, 1, 1}), (Datum{2008, 2, 29}));
}

TEST(Datum, OrdnungNachJahrMonatTag)
{
    EXPECT_LT((Datum{2006, 12, 31}), (Datum{2007, 1, 1}));
    EXPECT_LT((Datum{2007, 7, 31}), (Datum{2007, 8, 1}));
    EXPECT_EQ((Datum{2007, 8, 1}), (Datum{2007, 8, 1}));
}
