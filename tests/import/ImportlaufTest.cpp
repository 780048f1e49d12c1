#include "import/Importlauf.h"
#include "hilfen/Abnahme.h"
#include "hilfen/Textdatei.h"
#include "import/Importfall.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/moHelferlein.h"
#include "store/Niederschrift.h"

namespace {

using Texte = std::vector<std::string>;

class ImportlaufTest : public Importfall {
protected:
    Texte kern() const { return zeilen(lauf.pfade().kernDat); }
    Texte betreuungen() const { return zeilen(lauf.pfade().betrDat); }
    Texte diagnosen() const { return zeilen(lauf.pfade().diagDat); }
    std::string tabellen() const
    {
        return Testlauf::lies(lauf.pfade().kernDat) + Testlauf::lies(lauf.pfade().betrDat) +
               Testlauf::lies(lauf.pfade().diagDat);
    }
};

Texte muster(const std::string& name)
{
    return leseTextdatei("tests/import/muster/" + name);
}

// older files and what must come of them, first worked out apart from this program
TEST_F(ImportlaufTest, Muster)
{
    altdaten(muster("kernDatAlt.txt"), muster("betreuungenDatAlt.txt"));
    const auto zahlen = importiere();
    vergleicheMitAbnahme("import/muster/KernDat.txt", kern());
    vergleicheMitAbnahme("import/muster/BetrDat.txt", betreuungen());
    vergleicheMitAbnahme("import/muster/DiagDat.txt", diagnosen());
    EXPECT_EQ(zahlen.klienten, kern().size());
    EXPECT_EQ(zahlen.betreuungen, betreuungen().size());
    Texte texte;
    for (const auto& meldung : meldungen()) {
        texte.push_back(ersetzt(meldung, "\r", "\\r"));
    }
    vergleicheMitAbnahme("import/muster/Meldungen.txt", texte);
    Texte liste;
    for (const auto& zeile : zeilen(lauf.pfade().importListe)) {
        liste.push_back(ersetzt(zeile, "\t", "<tab>"));
    }
    vergleicheMitAbnahme("import/muster/Liste.txt", liste);
    EXPECT_FALSE(std::filesystem::exists(arbeitsordner()));
}

TEST_F(ImportlaufTest, GleicheZeilenBleibenNurEinmal)
{
    altdaten({altKlient(1)}, {altBetreuung(1, 1), altBetreuung(1, 2), altBetreuung(1, 2)});
    importiere();
    EXPECT_EQ(kern().size(), 1U);
    EXPECT_EQ(betreuungen().size(), 2U);
    EXPECT_EQ(diagnosen().size(), 2U);
}

TEST_F(ImportlaufTest, NationUndGrundWerdenGesetzt)
{
    altdaten({altKlient(1), altKlient(2, {{9, "Sonstige"}})},
             {altBetreuung(1, 1, {{6, "Sonstiges"}}), altBetreuung(2, 1), altBetreuung(3, 1)});
    importiere();
    EXPECT_EQ(getFeld(betreuungen().at(0), 9), "Deutschland");
    EXPECT_EQ(getFeld(betreuungen().at(1), 9), "keine Angaben");
    EXPECT_EQ(getFeld(betreuungen().at(2), 9), "keine Angaben") << "no such client in the older file";
    for (const auto& zeile : betreuungen()) {
        EXPECT_EQ(getFeld(zeile, 6), "Eigene Problematik");
        EXPECT_EQ(getFeld(zeile, 192), "Importierter Datensatz");
        EXPECT_EQ(anzahlFelder(zeile), 192);
    }
}

TEST_F(ImportlaufTest, StatusKommtAusDerBestehendenTabelle)
{
    Testlauf::schreibeZeilen(lauf.pfade().betrDat, {"2\xB7"
                                                    "1\xB7"
                                                    "01.01.2000\xB7"
                                                    "01.01.2001",
                                                    "3\xB7"
                                                    "1\xB7"
                                                    "01.01.2000\xB7offen",
                                                    "3\xB7"
                                                    "2\xB7"
                                                    "01.01.2000\xB7"
                                                    "01.01.2001"});
    const Texte erwartet{lauf.stand.bestand.betrStatusVon("1"), lauf.stand.bestand.betrStatusVon("2"),
                         lauf.stand.bestand.betrStatusVon("3")};
    altdaten({altKlient(1), altKlient(2), altKlient(3)}, {altBetreuung(1, 1), altBetreuung(2, 1), altBetreuung(3, 1)});
    importiere();
    Texte gefunden;
    for (const auto& zeile : kern()) {
        gefunden.emplace_back(getFeld(zeile, 3));
    }
    EXPECT_EQ(gefunden, erwartet);
    EXPECT_EQ(gefunden, (Texte{"", "a", "o"}));
}

TEST_F(ImportlaufTest, ArbeitsordnerEinesAbsturzesWirdGeleert)
{
    Testlauf::schreibe(arbeitsordner() / "KernDat.txt", "alt");
    Testlauf::schreibe(arbeitsordner() / "fremd.txt", "alt");
    altdaten({altKlient(1)}, {altBetreuung(1, 1)});
    importiere();
    EXPECT_EQ(kern().size(), 1U);
    EXPECT_FALSE(std::filesystem::exists(arbeitsordner()));
}

TEST_F(ImportlaufTest, LeereZeilenDerAltenDateienWerdenÜbergangen)
{
    altdaten({"", altKlient(1), ""}, {"", altBetreuung(1, 1), ""});
    const auto zahlen = importiere();
    EXPECT_EQ(zahlen.klienten, 1U);
    EXPECT_EQ(zahlen.betreuungen, 1U);
}

TEST_F(ImportlaufTest, LeereDateienGebenLeereTabellen)
{
    altdaten({}, {});
    EXPECT_EQ(importiere().klienten, 0U);
    EXPECT_EQ(tabellen(), "");
    EXPECT_EQ(Testlauf::lies(lauf.pfade().importListe), "kernID\tbetrID\tNachname\tVorname\r\n");
}

TEST_F(ImportlaufTest, UnbrauchbareNummernScheitern)
{
    for (const auto* nummer : {"", "0", "-1", "32768", "eins"}) {
        altdaten({altKlient(1, {{1, nummer}})}, {altBetreuung(1, 1)});
        EXPECT_THROW(importiere(), Laufzeitfehler) << nummer;
        altdaten({altKlient(1)}, {altBetreuung(1, 1, {{1, nummer}})});
        EXPECT_THROW(importiere(), Laufzeitfehler) << nummer;
        altdaten({altKlient(1)}, {altBetreuung(1, 1, {{2, nummer}})});
        EXPECT_THROW(importiere(), Laufzeitfehler) << nummer;
        EXPECT_EQ(tabellen(), "");
        EXPECT_FALSE(std::filesystem::exists(arbeitsordner()));
    }
    altdaten({altKlient(32767)}, {altBetreuung(32767, 32767)});
    EXPECT_EQ(importiere().betreuungen, 1U);
}

// whatever file operation fails: all or nothing, and no personal data left lying about. What fails behind the commit
// record is completed at the next start, and the failure says so.
TEST_F(ImportlaufTest, JedeGescheiterteDateioperationLäßtDieTabellenWieSieWaren)
{
    altdaten({altKlient(1)}, {altBetreuung(1, 1)});
    const auto legeAn = [this] {
        Testlauf::schreibe(lauf.pfade().kernDat, "");
        Testlauf::schreibe(lauf.pfade().betrDat, "9\xB7"
                                                 "1\xB7x\xB7offen\r\n");
        Testlauf::schreibe(lauf.pfade().diagDat, "9\xB7"
                                                 "1\xB7\r\n");
    };
    legeAn();
    const auto vorher = tabellen();
    importiere();
    const auto nachher = tabellen();
    ASSERT_NE(vorher, nachher);
    for (const auto störung : {Störung::KeinPlatz, Störung::EinAusgabe}) {
        int gescheiterte = 0;
        int nachgeholte = 0;
        for (int stelle = 1;; ++stelle) {
            legeAn();
            std::filesystem::remove_all(arbeitsordner());
            plan->störe(stelle, störung);
            bool gescheitert = false;
            bool istGespeichert = false;
            try {
                importiere();
            } catch (const UnvollendeterVorgang&) {
                gescheitert = true;
                istGespeichert = true;
            } catch (const Laufzeitfehler&) {
                gescheitert = true;
            }
            const bool eingetreten = plan->istEingetreten();
            plan->schweige();
            if (!eingetreten) {
                break;
            }
            EXPECT_TRUE(gescheitert) << stelle << " " << plan->operationen.at(static_cast<std::size_t>(stelle - 1));
            vollendeVorgang(lauf.stand.bestand);
            EXPECT_EQ(tabellen(), istGespeichert ? nachher : vorher) << stelle;
            nachgeholte += istGespeichert ? 1 : 0;
            EXPECT_FALSE(std::filesystem::exists(arbeitsordner())) << stelle;
            EXPECT_EQ(zeilen(lauf.pfade().daten / "kernDat.bak").size(), 0U);
            for (const auto* name : {"kernDat.txt.neu", "betrDat.txt.neu", "diagDat.txt.neu"}) {
                EXPECT_FALSE(std::filesystem::exists(lauf.pfade().daten / name)) << stelle << name;
            }
            ++gescheiterte;
        }
        EXPECT_GT(gescheiterte, 60);
        EXPECT_EQ(nachgeholte, 5) << "three renamings, the flush, the removal of the record";
    }
    EXPECT_EQ(meldungen(), Texte{});
}

} // namespace
