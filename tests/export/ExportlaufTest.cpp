#include "export/Exportlauf.h"
#include "export/Exportsaetze.h"
#include "export/ZeilenweiserExport.h"
#include "hilfen/Stoerzugriff.h"
#include "hilfen/Testumgebung.h"

#include "satz/moData.h"

#include <algorithm>
#include <random>

namespace {

using Texte = std::vector<std::string>;

class ExportlaufTest : public testing::Test {
protected:
    ExportlaufTest() : plan(std::make_shared<Störplan>()), lauf(std::make_unique<Störzugriff>(plan))
    {
        baueProblemKatalog();
        lauf.legeTabellenAn();
        std::filesystem::create_directory(ordner());
    }

    std::filesystem::path ordner() const { return lauf.pfade().programm / "ziel"; }
    std::string kern() const { return Testlauf::lies(ordner() / "Kern.txt"); }
    std::string diagnose() const { return Testlauf::lies(ordner() / "Diagnose.txt"); }
    Texte meldungen() const { return lauf.umgebung.meldungstexte(); }

    void tabellen(const Texte& kernDat, const Texte& betrDat, const Texte& diagDat) const
    {
        Testlauf::schreibeZeilen(lauf.pfade().kernDat, kernDat);
        Testlauf::schreibeZeilen(lauf.pfade().betrDat, betrDat);
        Testlauf::schreibeZeilen(lauf.pfade().diagDat, diagDat);
    }

    std::int32_t exportiere(int jahr) const
    {
        Exportlauf export_(lauf.stand.bestand, jahr, ordner());
        export_.beiKlient = [](std::int32_t) {};
        return export_.führeAus();
    }

    static std::ptrdiff_t zeilenzahl(const std::string& text) { return std::count(text.begin(), text.end(), '\n'); }

    std::shared_ptr<Störplan> plan;
    Testlauf lauf;
};

TEST_F(ExportlaufTest, LeeresJahrGibtLeereDateien)
{
    tabellen({klientensatz(1)}, {betreuungssatz(1, 1)}, {diagnosesatz(1, 1)});
    EXPECT_EQ(exportiere(2005), 0);
    EXPECT_EQ(kern(), "");
    EXPECT_EQ(diagnose(), "");
}

TEST_F(ExportlaufTest, KlientenDannBetreuungenInIhrerFolge)
{
    tabellen({klientensatz(2), klientensatz(1)}, {betreuungssatz(1, 2), betreuungssatz(2, 1), betreuungssatz(1, 1)},
             {diagnosesatz(1, 1), diagnosesatz(2, 1), diagnosesatz(1, 2)});
    EXPECT_EQ(exportiere(2006), 3);
    std::string folge;
    const auto inhalt = diagnose();
    Zeilen jede(inhalt);
    while (const auto zeile = jede.nächste()) {
        folge += spalte(std::string(*zeile), 2) + "-" + spalte(std::string(*zeile), 3) + " ";
    }
    EXPECT_EQ(folge, "2-1 1-2 1-1 ");
    EXPECT_EQ(zeilenzahl(kern()), 3);
}

TEST_F(ExportlaufTest, OhneDiagnosesatzMeldungUndDochGezählt)
{
    tabellen({klientensatz(7)}, {betreuungssatz(7, 1), betreuungssatz(7, 2)}, {diagnosesatz(7, 2)});
    EXPECT_EQ(exportiere(2006), 2);
    EXPECT_EQ(zeilenzahl(kern()), 1);
    EXPECT_EQ(zeilenzahl(diagnose()), 1);
    EXPECT_EQ(meldungen(), Texte{"Fehler im Export: zu 7-1 wurde kein diagDS gefunden"});
}

TEST_F(ExportlaufTest, BetreuungOhneKlientenBleibtDraußen)
{
    tabellen({klientensatz(1)}, {betreuungssatz(9, 1), betreuungssatz(1, 1)}, {diagnosesatz(9, 1), diagnosesatz(1, 1)});
    EXPECT_EQ(exportiere(2006), 1);
    EXPECT_EQ(zeilenzahl(kern()), 1);
}

TEST_F(ExportlaufTest, DerErsteDiagnosesatzGilt)
{
    tabellen({klientensatz(1)}, {betreuungssatz(1, 1)},
             {diagnosesatz(1, 1, {{4, "5"}}), diagnosesatz(1, 1, {{4, "9"}})});
    exportiere(2006);
    EXPECT_EQ(spalte(diagnose(), 5), "5");
}

TEST_F(ExportlaufTest, NummernWerdenAlsZahlenVerglichen)
{
    tabellen({klientensatz(1, {{2, "007"}})}, {betreuungssatz(1, 1, {{1, " 7"}})}, {diagnosesatz(1, 1, {{1, "7"}})});
    EXPECT_EQ(exportiere(2006), 1);
    EXPECT_EQ(spalte(kern(), 2), " 7") << "as stored";
    tabellen({klientensatz(40000)}, {betreuungssatz(40000, 1)}, {diagnosesatz(40000, 1)});
    EXPECT_EQ(exportiere(2006), 1) << "ids are read with 32 bits";
}

TEST_F(ExportlaufTest, OhneKlientenWerdenDieAnderenTabellenNichtGelesen)
{
    std::filesystem::remove(lauf.pfade().betrDat);
    std::filesystem::remove(lauf.pfade().diagDat);
    EXPECT_EQ(exportiere(2006), 0);
}

TEST_F(ExportlaufTest, BeschädigteDiagnosezeileStörtErstWennDieSucheSieErreicht)
{
    tabellen({klientensatz(1)}, {betreuungssatz(1, 1)}, {diagnosesatz(1, 1), "quatsch", diagnosesatz(1, 2)});
    EXPECT_EQ(exportiere(2006), 1);
    tabellen({klientensatz(1)}, {betreuungssatz(1, 1), betreuungssatz(1, 2)},
             {diagnosesatz(1, 1), "quatsch", diagnosesatz(1, 2)});
    EXPECT_THROW(exportiere(2006), Laufzeitfehler);
}

TEST_F(ExportlaufTest, JahrDasKeineZahlIstNenntDieBetreuung)
{
    tabellen({klientensatz(1)}, {betreuungssatz(1, 1), betreuungssatz(4, 3, {{3, "irgendwann"}})},
             {diagnosesatz(1, 1)});
    try {
        exportiere(2006);
        FAIL();
    } catch (const Laufzeitfehler& fehler) {
        EXPECT_NE(fehler.text().find("4-3"), std::string::npos) << fehler.text();
    }
}

TEST_F(ExportlaufTest, FortschrittKommtVorJedemKlienten)
{
    tabellen({klientensatz(1), klientensatz(2)}, {}, {});
    Exportlauf export_(lauf.stand.bestand, 2006, ordner());
    EXPECT_EQ(export_.klientenzahl(), 2);
    std::vector<std::int32_t> nummern;
    export_.beiKlient = [&](std::int32_t nummer) { nummern.push_back(nummer); };
    export_.führeAus();
    EXPECT_EQ(nummern, (std::vector<std::int32_t>{1, 2}));
}

/// Tables as chance gives them, with gaps, repetitions and, on request, damage.
class Zufallstabellen {
public:
    explicit Zufallstabellen(unsigned saat) : m_würfel(saat) {}

    Texte klienten()
    {
        return zeilen(8, [this] {
            return klientensatz(1, {{2, nummer()}, {9, eines({"männlich"_t, "keine Angaben", "?"})}});
        });
    }
    Texte betreuungen()
    {
        return zeilen(25, [this] {
            return betreuungssatz(
                1, 1,
                {{1, nummer()},
                 {2, nummer()},
                 {3, eines({"01.01.2005", "31.12.2006", "01.01.2007", schaden("irgendwann", "1.1.2006")})},
                 {4, eines({"offen", "OFFEN", "01.01.2007", "31.12.2006", schaden("", "01.01.2010")})},
                 {5, eines({"ja", "nein", "?"})}});
        });
    }
    Texte diagnosen()
    {
        return zeilen(25, [this] {
            return diagnosesatz(1, 1, {{1, nummer()}, {2, nummer()}, {3, eines({"", "Injektion", "?"})}});
        });
    }

private:
    bool selten() { return std::uniform_int_distribution(0, 60)(m_würfel) == 0; }
    std::string_view schaden(std::string_view beschädigt, std::string_view heil)
    {
        return selten() ? beschädigt : heil;
    }
    std::string_view eines(std::initializer_list<std::string_view> auswahl)
    {
        return auswahl.begin()[std::uniform_int_distribution<std::size_t>(0, auswahl.size() - 1)(m_würfel)];
    }
    std::string_view nummer() { return schaden("x", eines({"1", "2", "3", "4", "04", "5"})); }
    template <class F> Texte zeilen(int höchstens, F zeile)
    {
        Texte alle(std::uniform_int_distribution<std::size_t>(0, static_cast<std::size_t>(höchstens))(m_würfel));
        std::generate(alle.begin(), alle.end(), zeile);
        return alle;
    }

    std::mt19937 m_würfel;
};

struct Ausgang {
    std::string kern;
    std::string diagnose;
    std::int32_t exportierte = 0;
    bool abgebrochen = false;
    Texte meldungen;

    bool operator==(const Ausgang&) const = default;
};

TEST_F(ExportlaufTest, GibtWasDerGangZeileFürZeileGäbe)
{
    int abgebrochene = 0;
    for (unsigned saat = 1; saat <= 120; ++saat) {
        Zufallstabellen zufall(saat);
        tabellen(zufall.klienten(), zufall.betreuungen(), zufall.diagnosen());
        Ausgang erwartet;
        Ausgang gefunden;
        lauf.umgebung.meldungen.clear();
        try {
            ZeilenweiserExport plan_;
            const auto lies = [](const auto& pfad) { return Testlauf::lies(pfad); };
            plan_.führeAus(lies(lauf.pfade().kernDat), lies(lauf.pfade().betrDat), lies(lauf.pfade().diagDat), 2006);
            erwartet = {plan_.kern, plan_.diagnose, plan_.exportierte, false, {}};
        } catch (const Laufzeitfehler&) {
            erwartet.abgebrochen = true;
            ++abgebrochene;
        }
        erwartet.meldungen = meldungen();
        lauf.umgebung.meldungen.clear();
        try {
            gefunden.exportierte = exportiere(2006);
            gefunden.kern = kern();
            gefunden.diagnose = diagnose();
        } catch (const Laufzeitfehler&) {
            gefunden.abgebrochen = true;
        }
        gefunden.meldungen = meldungen();
        ASSERT_TRUE(erwartet == gefunden) << "seed " << saat;
    }
    EXPECT_GT(abgebrochene, 10);
    EXPECT_LT(abgebrochene, 110);
}

TEST_F(ExportlaufTest, JedeGescheiterteDateioperationIstEinExportfehler)
{
    tabellen({klientensatz(1)}, {betreuungssatz(1, 1)}, {diagnosesatz(1, 1)});
    const auto vorher = Testlauf::lies(lauf.pfade().betrDat);
    for (const auto störung : {Störung::KeinPlatz, Störung::EinAusgabe, Störung::KeinRecht}) {
        for (int stelle = 1;; ++stelle) {
            plan->störe(stelle, störung);
            bool gemeldet = false;
            try {
                exportiere(2006);
            } catch (const Exportfehler& fehler) {
                gemeldet = true;
                EXPECT_NE(fehler.text.find(".txt"), std::string::npos) << fehler.text;
            }
            if (!plan->istEingetreten()) {
                EXPECT_GT(stelle, 6);
                break;
            }
            EXPECT_TRUE(gemeldet) << stelle;
        }
    }
    plan->schweige();
    EXPECT_EQ(Testlauf::lies(lauf.pfade().betrDat), vorher);
}

TEST(DatumsprüfungTest, BerührtJedesJahrDerBetreuung)
{
    for (const int jahr : {2005, 2006, 2007}) {
        EXPECT_TRUE(berührtJahr("12.12.2005", "03.01.2007", jahr, {})) << jahr;
    }
    EXPECT_FALSE(berührtJahr("12.12.2005", "03.01.2007", 2004, {}));
    EXPECT_FALSE(berührtJahr("12.12.2005", "03.01.2007", 2008, {}));
    EXPECT_TRUE(berührtJahr("31.12.2006", "01.01.2007", 2006, {}));
    EXPECT_TRUE(berührtJahr("31.12.2006", "01.01.2007", 2007, {}));
}

TEST(DatumsprüfungTest, OffeneGehörtZuAllenFolgendenJahren)
{
    EXPECT_TRUE(berührtJahr("01.01.2006", "offen", 2020, {}));
    EXPECT_TRUE(berührtJahr("01.01.2006", "OFFEN", 9999, {}));
    EXPECT_FALSE(berührtJahr("01.01.2006", "offen", 2005, {}));
}

TEST(DatumsprüfungTest, JahrSindDieLetztenVierZeichen)
{
    EXPECT_TRUE(berührtJahr("1.1. 980", "2006", 1990, {}));
    EXPECT_THROW(berührtJahr("1.1.06", "offen", 2006, "1-2"), Laufzeitfehler);
    EXPECT_THROW(berührtJahr("", "offen", 2006, "1-2"), Laufzeitfehler);
    EXPECT_THROW(berührtJahr("01.01.2006", "", 2006, "1-2"), Laufzeitfehler);
    EXPECT_FALSE(berührtJahr("01.01.2007", "quatsch", 2006, "1-2")) << "the end is not looked at";
}

} // namespace
