#include "satz/moHelferlein.h"
#include "hilfen/Testumgebung.h"
#include "platform/umgebung/Laufzeitfehler.h"

namespace {

TEST(GetFeld, SchneidetFelderAus)
{
    const auto zeile = satz({"a"_t, "b"_t, "c"_t});
    EXPECT_EQ(getFeld(zeile, 1), "a");
    EXPECT_EQ(getFeld(zeile, 2), "b");
    EXPECT_EQ(getFeld(zeile, 3), "c");
}

TEST(GetFeld, AusserhalbIstLeer)
{
    const auto zeile = satz({"a"_t, "b"_t, "c"_t});
    EXPECT_EQ(getFeld(zeile, 4), "");
    EXPECT_EQ(getFeld(zeile, 0), "");
    EXPECT_EQ(getFeld(zeile, -3), "");
    EXPECT_EQ(getFeld(""_t, 1), "");
}

TEST(GetFeld, ZeileDieMitDemTrennerBeginnt)
{
    const auto zeile = satz({""_t, "17"_t, ""_t, "Adler"_t});
    EXPECT_EQ(getFeld(zeile, 1), "");
    EXPECT_EQ(getFeld(zeile, 2), "17");
    EXPECT_EQ(getFeld(zeile, 3), "");
    EXPECT_EQ(getFeld(zeile, 4), "Adler");
}

TEST(GetFeld, BehältJedesZeichen)
{
    std::string alle;
    for (int zeichen = 0; zeichen < 256; ++zeichen) {
        if (static_cast<char>(zeichen) != trenner) {
            alle.push_back(static_cast<char>(zeichen));
        }
    }
    EXPECT_EQ(getFeld(satz({"a"_t, alle, "c"_t}), 2), alle);
}

TEST(GetFeld, GrenzeDerZeilenlänge)
{
    const std::string geradeNoch(32767, 'x');
    EXPECT_EQ(getFeld(geradeNoch, 1), geradeNoch);
    const std::string zuLang(32768, 'x');
    EXPECT_THROW(getFeld(zuLang, 1), Laufzeitfehler);
    EXPECT_THROW(getFeld(zuLang, 2), Laufzeitfehler);
}

TEST(GetFeldMit, EigenerTrenner)
{
    EXPECT_EQ(getFeld("a;b;c"_t, 2, ';'), "b");
    EXPECT_EQ(getFeld("a;b;c;"_t, 4, ';'), "");
    EXPECT_EQ(getFeld(";;"_t, 3, ';'), "");
}

TEST(ErsetzeFeld, LeeresFeldZwischenTrennern)
{
    EXPECT_EQ(ersetzeFeld(satz({""_t, "5"_t, ""_t, "Adler"_t}), 3, "o"_t), satz({""_t, "5"_t, "o"_t, "Adler"_t}));
}

TEST(ErsetzeFeld, LetztesFeldBekommtKeinenTrenner)
{
    EXPECT_EQ(ersetzeFeld(satz({"a"_t, "b"_t, "c"_t}), 3, "neu"_t), satz({"a"_t, "b"_t, "neu"_t}));
    EXPECT_EQ(ersetzeFeld(satz({"a"_t, "b"_t, ""_t}), 3, "neu"_t), satz({"a"_t, "b"_t, "neu"_t}));
}

TEST(ErsetzeFeld, Feld1TrifftFeld2)
{
    EXPECT_EQ(ersetzeFeld(satz({"a"_t, "b"_t, "c"_t}), 1, "neu"_t), satz({"a"_t, "neu"_t, "c"_t}));
}

TEST(ErsetzeFeld, ZuWenigTrennerSindEinFehler)
{
    EXPECT_THROW(ersetzeFeld("a"_t, 2, "x"_t), Laufzeitfehler);
    EXPECT_THROW(ersetzeFeld(""_t, 3, "x"_t), Laufzeitfehler);
    EXPECT_THROW(ersetzeFeld(satz({"a"_t, "b"_t}), 3, "x"_t), Laufzeitfehler);
}

TEST(ErsetzeFeld, ÄndertNurDiesesFeld)
{
    const auto zeile = satz({"1"_t, "2"_t, "3"_t, "4"_t, ""_t});
    for (int feld = 2; feld <= 5; ++feld) {
        const auto neu = ersetzeFeld(zeile, feld, "neuer Wert"_t);
        for (int anderes = 1; anderes <= 5; ++anderes) {
            EXPECT_EQ(getFeld(neu, anderes), anderes == feld ? "neuer Wert" : getFeld(zeile, anderes));
        }
    }
}

TEST(AnzahlFelder, TrennerPlusEins)
{
    EXPECT_EQ(anzahlFelder(""_t), 0);
    EXPECT_EQ(anzahlFelder("a"_t), 1);
    EXPECT_EQ(anzahlFelder(satz({""_t, ""_t})), 2);
    EXPECT_EQ(anzahlFelder(std::string(246, trenner)), 247);
    EXPECT_EQ(anzahlFelder(std::string(32766, trenner)), 32767);
    EXPECT_THROW(anzahlFelder(std::string(32767, trenner)), Laufzeitfehler);
    EXPECT_THROW(anzahlFelder(std::string(32768, 'x')), Laufzeitfehler);
}

TEST(MaskiereTrenner, WirdZumUmgekehrtenFragezeichen)
{
    EXPECT_EQ(maskiereTrenner("Muster·mann·"_t), "Muster\xBFmann\xBF");
    EXPECT_EQ(maskiereTrenner(""_t), "");
}

TEST(Felder, BereichMitTrennerHinterJedem)
{
    const auto zeile = satz({"a"_t, "b"_t, "c"_t, "d"_t});
    EXPECT_EQ(felder(zeile, 2, 3), "b·c·"_t);
    EXPECT_EQ(felder(zeile, 1, 4), "a·b·c·d·"_t);
    EXPECT_EQ(felder(zeile, 4, 6), "d···"_t);
    EXPECT_EQ(felder(zeile, 6, 7), "··"_t);
    EXPECT_EQ(felder(zeile, 3, 2), "");
}

TEST(VergleicheDatum, AlleOperatoren)
{
    EXPECT_TRUE(vergleicheDatum("02.08.2007"_t, ">="_t, "02.08.2007"_t));
    EXPECT_TRUE(vergleicheDatum("02.08.2007"_t, "<="_t, "02.08.2007"_t));
    EXPECT_FALSE(vergleicheDatum("02.08.2007"_t, ">"_t, "02.08.2007"_t));
    EXPECT_FALSE(vergleicheDatum("02.08.2007"_t, "<"_t, "02.08.2007"_t));
    EXPECT_TRUE(vergleicheDatum("01.09.2007"_t, ">"_t, "31.08.2007"_t));
    EXPECT_TRUE(vergleicheDatum("31.12.2006"_t, "<"_t, "01.01.2007"_t));
    EXPECT_TRUE(vergleicheDatum("2.8.2007"_t, ">="_t, "02.08.2007"_t));
    EXPECT_FALSE(vergleicheDatum("01.01.2007"_t, "<="_t, "31.12.2006"_t));
    EXPECT_FALSE(vergleicheDatum("01.01.2007"_t, "="_t, "01.01.2007"_t));
    EXPECT_FALSE(vergleicheDatum("01.01.2007"_t, ""_t, "01.01.2007"_t));
}

TEST(VergleicheDatum, TeileDieKeineZahlSind)
{
    for (const auto falsch :
         {""_t, "offen"_t, "1.1"_t, "..2007"_t, "1.x.2007"_t, "1.1.99999"_t, "1.1.2007."_t, "1.1.2007.1.1"_t}) {
        EXPECT_THROW(vergleicheDatum(falsch, ">"_t, "01.01.2007"_t), Laufzeitfehler) << falsch;
        EXPECT_THROW(vergleicheDatum("01.01.2007"_t, ">"_t, falsch), Laufzeitfehler) << falsch;
    }
    EXPECT_TRUE(vergleicheDatum("2.1.2007.5"_t, ">"_t, "1.1.2007"_t));
}

TEST(DatumAusText, OhneZiffernIstNichts)
{
    EXPECT_FALSE(datumAusText(""_t));
    EXPECT_FALSE(datumAusText(".."_t));
    EXPECT_EQ(datumAusText("02.08.2007"_t), (Datum{2007, 8, 2}));
    EXPECT_EQ(datumAusText("2.8.07"_t), (Datum{2007, 8, 2}));
    EXPECT_THROW(datumAusText("offen"_t), Laufzeitfehler);
    EXPECT_THROW(datumAusText("31.02.2007"_t), Laufzeitfehler);
    EXPECT_THROW(datumAusText("2007"_t), Laufzeitfehler);
}

TEST(PfadVon, BisZumLetztenTrennzeichen)
{
    const auto trennung = static_cast<char>(std::filesystem::path::preferred_separator);
    EXPECT_EQ(pfadVon(verbinde("ordner", trennung, "unter", trennung, "datei.txt")),
              verbinde("ordner", trennung, "unter"));
    EXPECT_EQ(pfadVon("c:datei.txt"_t), "c");
    EXPECT_EQ(pfadVon("datei.txt"_t), "");
    EXPECT_EQ(pfadVon(""_t), "");
}

} // namespace
