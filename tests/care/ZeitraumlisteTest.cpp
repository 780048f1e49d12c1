#include "care/Zeitraumliste.h"

#include "hilfen/Testumgebung.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"

#include <gtest/gtest.h>

namespace {

constexpr Datum heute{2010, 3, 15};

/// All rows count as foreign ones: what a new episode meets.
bool darfBeginnen(const Zeitraumliste& liste, std::string_view tag)
{
    return prüfeVon({liste, {}}, tag);
}

bool darfEnden(const Zeitraumliste& liste, std::string_view von, std::string_view bis)
{
    return prüfeBis({liste, {}}, von, bis);
}

} // namespace

TEST(Zeitraumliste, SortiertNachJahrMonatTag)
{
    Zeitraumliste liste{{"01.02.2011", "offen"}, {"15.01.2010", "20.01.2010"}, {"02.01.2011", "03.01.2011"}};
    sortiereNachBeginn(liste);
    EXPECT_EQ(liste[0].von, "15.01.2010");
    EXPECT_EQ(liste[1].von, "02.01.2011");
    EXPECT_EQ(liste[2].von, "01.02.2011");
}

TEST(Zeitraumliste, GleicheAnfängeBleibenInIhrerFolge)
{
    Zeitraumliste liste{{"02.01.2010", "b"}, {"01.01.2010", "a"}, {"02.01.2010", "c"}};
    sortiereNachBeginn(liste);
    EXPECT_EQ(liste[1].bis, "b");
    EXPECT_EQ(liste[2].bis, "c");
}

TEST(Zeitraumliste, EinBeginnDerKeinDatumIstBeendetDenLauf)
{
    Zeitraumliste liste{{"02.01.2010", "offen"}, {"gestern", "offen"}};
    EXPECT_THROW(sortiereNachBeginn(liste), Laufzeitfehler);
}

TEST(Zeitraumliste, NimmtNurDieBetreuungenDesKlienten)
{
    Testlauf lauf;
    lauf.legeTabellenAn();
    Testlauf::schreibeZeilen(lauf.pfade().betrDat, {satz({"1", "2", "11.03.2010", "offen", "x"}),
                                                    satz({"2", "1", "01.01.2010", "02.01.2010", "x"}),
                                                    satz({"001", "1", "01.03.2010", "10.03.2010", "x"})});
    const auto liste = leseZeitraumListe(1);
    ASSERT_EQ(liste.size(), 2U);
    EXPECT_EQ(liste[0].von, "01.03.2010");
    EXPECT_EQ(liste[0].bis, "10.03.2010");
    EXPECT_TRUE(liste[1].istOffen());
    EXPECT_TRUE(leseZeitraumListe(3).empty());
}

TEST(Zeitraumliste, EinSchlüsselDerKeineZahlIstBeendetDenLauf)
{
    Testlauf lauf;
    lauf.legeTabellenAn();
    Testlauf::schreibeZeilen(lauf.pfade().betrDat, {satz({"eins", "1", "01.01.2010", "02.01.2010"})});
    EXPECT_THROW(leseZeitraumListe(1), Laufzeitfehler);
}

TEST(FreierTag, IstHeuteOhneBetreuungen)
{
    EXPECT_EQ(findeFreienTag({}, heute), "15.03.2010");
}

TEST(FreierTag, IstHeuteWennAlleBetreuungenVorherEndeten)
{
    EXPECT_EQ(findeFreienTag({{"01.01.2010", "14.03.2010"}}, heute), "15.03.2010");
}

TEST(FreierTag, IstHeuteWennDieBetreuungErstKommt)
{
    EXPECT_EQ(findeFreienTag({{"16.03.2010", "offen"}}, heute), "15.03.2010");
}

TEST(FreierTag, LiegtVorDerBetreuungDieHeuteEndet)
{
    EXPECT_EQ(findeFreienTag({{"01.03.2010", "15.03.2010"}}, heute), "28.02.2010");
}

TEST(FreierTag, LiegtVorDerOffenenBetreuung)
{
    EXPECT_EQ(findeFreienTag({{"01.01.2010", "offen"}}, heute), "31.12.2009");
}

TEST(FreierTag, WandertÜberLückenloseBetreuungenZurück)
{
    // ascending rows are met in the wrong order, so each pass takes one step only
    const Zeitraumliste liste{{"01.03.2010", "05.03.2010"}, {"06.03.2010", "10.03.2010"}, {"11.03.2010", "15.03.2010"}};
    EXPECT_EQ(findeFreienTag(liste, heute), "28.02.2010");
}

TEST(FreierTag, BleibtInDerLückeStehen)
{
    const Zeitraumliste liste{{"01.03.2010", "05.03.2010"}, {"07.03.2010", "10.03.2010"}, {"11.03.2010", "offen"}};
    EXPECT_EQ(findeFreienTag(liste, heute), "06.03.2010");
}

TEST(Beginn, DarfInKeinerBetreuungLiegen)
{
    const Zeitraumliste liste{{"05.03.2010", "10.03.2010"}};
    EXPECT_TRUE(darfBeginnen(liste, "04.03.2010"));
    EXPECT_FALSE(darfBeginnen(liste, "05.03.2010"));
    EXPECT_FALSE(darfBeginnen(liste, "07.03.2010"));
    EXPECT_FALSE(darfBeginnen(liste, "10.03.2010"));
    EXPECT_TRUE(darfBeginnen(liste, "11.03.2010"));
}

TEST(Beginn, DarfNichtAufOderNachDemAnfangEinerOffenenLiegen)
{
    const Zeitraumliste liste{{"05.03.2010", "offen"}};
    EXPECT_TRUE(darfBeginnen(liste, "04.03.2010"));
    EXPECT_FALSE(darfBeginnen(liste, "05.03.2010"));
    EXPECT_FALSE(darfBeginnen(liste, "01.01.2030"));
}

TEST(Beginn, ÜbergehtDieEigeneZeile)
{
    const Zeitraumliste liste{{"05.03.2010", "10.03.2010"}, {"12.03.2010", "offen"}};
    EXPECT_TRUE(prüfeVon({liste, "05.03.2010"}, "07.03.2010"));
    EXPECT_FALSE(prüfeVon({liste, "05.03.2010"}, "12.03.2010"));
}

TEST(Beginn, DieEigeneZeileIstNurAmGleichenTextKenntlich)
{
    const Zeitraumliste liste{{"05.03.2010", "10.03.2010"}};
    EXPECT_FALSE(prüfeVon({liste, "5.3.2010"}, "07.03.2010"));
    EXPECT_TRUE(prüfeVon({{{"", "offen"}}, ""}, "07.03.2010")); // a begin that is stored empty is a begin, too
    EXPECT_FALSE(prüfeVon({liste, "06.03.2010"}, "07.03.2010"));
}

TEST(Beginn, AlleZeilenMitDemEigenenAnfangWerdenÜbergangen)
{
    const Zeitraumliste liste{{"05.03.2010", "10.03.2010"}, {"05.03.2010", "20.03.2010"}};
    EXPECT_TRUE(prüfeVon({liste, "05.03.2010"}, "15.03.2010"));
}

TEST(Ende, DarfAmTagDesBeginnsLiegenAberNichtDavor)
{
    EXPECT_TRUE(darfEnden({}, "15.03.2010", "15.03.2010"));
    EXPECT_FALSE(darfEnden({}, "15.03.2010", "14.03.2010"));
    EXPECT_TRUE(darfEnden({}, "15.03.2010", "01.01.2030"));
    EXPECT_TRUE(darfEnden({}, "15.03.2010", "offen"));
}

TEST(Ende, DarfDieSpätereBetreuungNichtBerühren)
{
    const Zeitraumliste liste{{"20.03.2010", "25.03.2010"}};
    EXPECT_TRUE(darfEnden(liste, "15.03.2010", "19.03.2010"));
    EXPECT_FALSE(darfEnden(liste, "15.03.2010", "20.03.2010"));
    EXPECT_FALSE(darfEnden(liste, "15.03.2010", "22.03.2010"));
    EXPECT_FALSE(darfEnden(liste, "15.03.2010", "30.03.2010")); // would enclose it
    EXPECT_FALSE(darfEnden(liste, "15.03.2010", "offen"));
}

TEST(Ende, FrühereBetreuungenSindGleichgültig)
{
    const Zeitraumliste liste{{"01.03.2010", "10.03.2010"}};
    EXPECT_TRUE(darfEnden(liste, "15.03.2010", "offen"));
    EXPECT_TRUE(darfEnden(liste, "15.03.2010", "16.03.2010"));
}

TEST(Ende, ÜbergehtDieEigeneZeile)
{
    const Zeitraumliste liste{{"20.03.2010", "25.03.2010"}};
    EXPECT_TRUE(prüfeBis({liste, "20.03.2010"}, "15.03.2010", "30.03.2010"));
    EXPECT_FALSE(prüfeBis({liste, "21.03.2010"}, "15.03.2010", "30.03.2010"));
}

TEST(Ende, NurDerGenaueTextIstOffen)
{
    EXPECT_TRUE(istOffenesEnde("offen"));
    EXPECT_FALSE(istOffenesEnde("Offen"));
    EXPECT_THROW(darfEnden({}, "15.03.2010", "OFFEN"), Laufzeitfehler);
}
