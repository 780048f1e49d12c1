#include "hilfen/Testumgebung.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/moHelferlein.h"
#include "store/moBereinigeBetrOA.h"
#include "store/moBereinigeDatum.h"

namespace {

using Sätze = std::vector<std::string>;

const std::string leerstatus(1, '\0');

std::string klientMitStatus(std::string_view id, std::string_view status, std::string_view geburt = "unbekannt")
{
    return satz({""_t, id, status, "Adler"_t, ""_t, ""_t, ""_t, ""_t, "keine Angaben"_t, geburt, ""_t});
}

std::string betreuung(std::string_view id, std::string_view beginn, std::string_view ende)
{
    return satz({id, "1"_t, beginn, ende, "k.A."_t});
}

class ReparaturenTest : public testing::Test {
protected:
    ReparaturenTest() { lauf.legeTabellenAn(); }

    void schreibe(const Sätze& klienten, const Sätze& betreuungen) const
    {
        Testlauf::schreibeZeilen(lauf.pfade().kernDat, klienten);
        Testlauf::schreibeZeilen(lauf.pfade().betrDat, betreuungen);
    }
    void erwarteKlienten(const Sätze& zeilen) const
    {
        EXPECT_EQ(Testlauf::lies(lauf.pfade().kernDat), Testlauf::alsInhalt(zeilen));
        EXPECT_FALSE(std::filesystem::exists(lauf.pfade().programm / "Tolvekdummy.txt"));
    }
    void erwarteBetreuungen(const Sätze& zeilen) const
    {
        EXPECT_EQ(Testlauf::lies(lauf.pfade().betrDat), Testlauf::alsInhalt(zeilen));
        EXPECT_FALSE(std::filesystem::exists(lauf.pfade().programm / "Tolvekdummy.txt"));
    }
    /// A year with the text that the repair makes of it.
    void erwarteJahr(const std::string& vorher, const std::string& nachher)
    {
        schreibe({klientMitStatus("1", "", "01.01." + vorher)}, {});
        bereinigeDatum(lauf.stand.bestand);
        erwarteKlienten({klientMitStatus("1", "", "01.01." + nachher)});
    }

    Testlauf lauf;
};

TEST_F(ReparaturenTest, JahrhundertgrenzeIstNeun)
{
    erwarteJahr("00", "2000");
    erwarteJahr("07", "2007");
    erwarteJahr("08", "2008");
    erwarteJahr("09", "1909");
    erwarteJahr("10", "1910");
    erwarteJahr("99", "1999");
    erwarteJahr("7", "207");
    erwarteJahr("", "20");
    erwarteJahr("1970", "1970");
    erwarteJahr("970", "970");
    EXPECT_TRUE(lauf.umgebung.meldungen.empty());
}

TEST_F(ReparaturenTest, DatumOhnePunktMeldetFehler)
{
    schreibe({klientMitStatus("1", "", ""), klientMitStatus("2", "", "70"), klientMitStatus("3", "", "unbekannt")}, {});
    bereinigeDatum(lauf.stand.bestand);
    erwarteKlienten(
        {klientMitStatus("1", "", "20"), klientMitStatus("2", "", "1970"), klientMitStatus("3", "", "unbekannt")});
    EXPECT_EQ(lauf.umgebung.meldungstexte(), (Sätze{"Fehler", "Fehler"}));
    EXPECT_EQ(lauf.umgebung.meldungen[0].symbol, Symbol::Keins);
}

TEST_F(ReparaturenTest, BeginnUndEndeDerBetreuungen)
{
    schreibe({klientMitStatus("1", "")},
             {betreuung("1", "01.01.1998", "31.01.1998"), betreuung("1", "01.01.99", "31.01.99"),
              betreuung("1", "01.03.07", "offen"), betreuung("1", "01.01.2005", "31.01.06")});
    bereinigeDatum(lauf.stand.bestand);
    erwarteBetreuungen({betreuung("1", "01.01.1998", "31.01.1998"), betreuung("1", "01.01.1999", "31.01.1999"),
                        betreuung("1", "01.03.2007", "offen"), betreuung("1", "01.01.2005", "31.01.2006")});
    erwarteKlienten({klientMitStatus("1", "")});
}

TEST_F(ReparaturenTest, OhneBedarfWirdKeineTabelleAngefaßt)
{
    schreibe({klientMitStatus("1", "", "15.03.1970")}, {betreuung("1", "01.01.2005", "offen")});
    const auto kern = std::filesystem::last_write_time(lauf.pfade().kernDat);
    const auto betr = std::filesystem::last_write_time(lauf.pfade().betrDat);
    bereinigeDatum(lauf.stand.bestand);
    EXPECT_EQ(std::filesystem::last_write_time(lauf.pfade().kernDat), kern);
    EXPECT_EQ(std::filesystem::last_write_time(lauf.pfade().betrDat), betr);
}

TEST_F(ReparaturenTest, LeererBestandOderLeereErsteZeileWirdNichtRepariert)
{
    schreibe({}, {betreuung("1", "01.01.05", "31.01.05")});
    bereinigeDatum(lauf.stand.bestand);
    erwarteBetreuungen({betreuung("1", "01.01.05", "31.01.05")});
    schreibe({"", klientMitStatus("1", "", "01.01.70")}, {});
    bereinigeDatum(lauf.stand.bestand);
    erwarteKlienten({"", klientMitStatus("1", "", "01.01.70")});
}

TEST_F(ReparaturenTest, ZeileDieVorOderInDemDatumEndetBleibtWieSieIst)
{
    const auto kurze = satz({"", "2", ""});
    const auto mittenImDatum = satz({"", "3", "", "Meise", "", "", "", "", "keine Angaben", "01.01.19"});
    schreibe({klientMitStatus("1", "", "01.01.70"), kurze, mittenImDatum}, {satz({"1", "1", "01.01.05", "31.01.20"})});
    bereinigeDatum(lauf.stand.bestand);
    erwarteKlienten({klientMitStatus("1", "", "01.01.1970"), kurze, mittenImDatum});
    erwarteBetreuungen({satz({"1", "1", "01.01.2005", "31.01.20"})});
    EXPECT_TRUE(lauf.umgebung.meldungen.empty());
}

TEST_F(ReparaturenTest, FehlendeTabelleIstEinLaufzeitfehler)
{
    schreibe({klientMitStatus("1", "")}, {});
    std::filesystem::remove(lauf.pfade().betrDat);
    EXPECT_THROW(bereinigeDatum(lauf.stand.bestand), Laufzeitfehler);
    std::filesystem::remove(lauf.pfade().kernDat);
    EXPECT_THROW(bereinigeDatum(lauf.stand.bestand), Laufzeitfehler);
}

TEST_F(ReparaturenTest, StatusAusDenBetreuungen)
{
    schreibe({klientMitStatus("1", ""), klientMitStatus("2", "x"), klientMitStatus("3", ""), klientMitStatus("4", "o")},
             {betreuung("1", "", "31.01.2005"), betreuung("2", "", "offen"), betreuung("3", "", "31.01.2005"),
              betreuung("1", "", "offen"), betreuung("2", "", "31.01.2005"), betreuung("99", "", "offen")});
    bereinigeBetrOA(lauf.stand.bestand);
    erwarteKlienten({klientMitStatus("1", "o"), klientMitStatus("2", "o"), klientMitStatus("3", "a"),
                     klientMitStatus("4", leerstatus)});
}

TEST_F(ReparaturenTest, StatusLeerenBestandsBleibtLeer)
{
    schreibe({}, {});
    bereinigeBetrOA(lauf.stand.bestand);
    erwarteKlienten({});
}

TEST_F(ReparaturenTest, BeschädigteZeilenBleibenStehen)
{
    const std::string zuLang = satz({"", "5", "", std::string(40000, 'x')});
    schreibe({klientMitStatus("1", ""), klientMitStatus("x", "a"), "", "kurz", satz({"", "1"}), zuLang,
              klientMitStatus("99999", ""), klientMitStatus("2", "")},
             {"", betreuung("y", "", "offen"), betreuung("99999999999", "", "offen"), std::string(40000, 'z'),
              betreuung("2", "", "offen"), betreuung("99999", "", "offen")});
    bereinigeBetrOA(lauf.stand.bestand);
    erwarteKlienten({klientMitStatus("1", leerstatus), klientMitStatus("x", "a"), "", "kurz", satz({"", "1"}), zuLang,
                     klientMitStatus("99999", "o"), klientMitStatus("2", "o")});
    EXPECT_TRUE(lauf.umgebung.meldungen.empty());
}

TEST_F(ReparaturenTest, FehlendeDateiLäßtAllesStehen)
{
    schreibe({klientMitStatus("1", "o")}, {});
    std::filesystem::remove(lauf.pfade().betrDat);
    bereinigeBetrOA(lauf.stand.bestand);
    erwarteKlienten({klientMitStatus("1", "o")});
    std::filesystem::remove(lauf.pfade().kernDat);
    bereinigeBetrOA(lauf.stand.bestand);
    EXPECT_FALSE(std::filesystem::exists(lauf.pfade().kernDat));
}

} // namespace
