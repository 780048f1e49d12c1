#include "export/frmExport.h"
#include "export/Exportsaetze.h"
#include "hilfen/Testumgebung.h"

#include "satz/moData.h"

namespace {

class Hauptmenü : public Bildschirm {
public:
    Hauptmenü() : Bildschirm("frmHauptmenü"_t) {}
};

class frmExportTest : public testing::Test {
protected:
    frmExportTest()
    {
        baueProblemKatalog();
        lauf.legeTabellenAn();
        lauf.stand.folge.zeige(hauptmenü);
        lauf.stand.folge.öffneÜber(hauptmenü, bildschirm);
        Testlauf::schreibeZeilen(lauf.pfade().kernDat, {klientensatz(1), klientensatz(2)});
        Testlauf::schreibeZeilen(lauf.pfade().betrDat, {betreuungssatz(1, 1), betreuungssatz(2, 1)});
        Testlauf::schreibeZeilen(lauf.pfade().diagDat, {diagnosesatz(2, 1)});
    }

    void exportiere()
    {
        lauf.umgebung.antworten = {Antwort::OK};
        bildschirm.cmdOK.klicke();
    }

    Testlauf lauf;
    Hauptmenü hauptmenü;
    frmExport bildschirm;
};

TEST_F(frmExportTest, WährendDesLaufsWederAbbruchNochEinZweiterLauf)
{
    // the user clicks while the box about the first client stands
    lauf.umgebung.beiMeldung = [this](const Meldung& meldung) {
        if (meldung.text.starts_with("Fehler im Export")) {
            bildschirm.cmdExit.klicke();
            bildschirm.cmdOK.klicke();
            EXPECT_TRUE(bildschirm.ProgressBar1.istSichtbar());
            EXPECT_EQ(bildschirm.ProgressBar1.wert(), 1);
            EXPECT_EQ(bildschirm.ProgressBar1.größtes(), 2);
            EXPECT_EQ(bildschirm.lblMeldung.text(), "Klient 1 / 2");
        }
    };
    exportiere();
    EXPECT_EQ(
        lauf.umgebung.meldungstexte(),
        (std::vector<std::string>{std::string("Es wird der Export der Daten für das Jahr 2006 durchgeführt."_t),
                                  "Fehler im Export: zu 1-1 wurde kein diagDS gefunden",
                                  std::string("Abbruch nicht möglich"_t), std::string("Exportierte Datensätze: 2"_t)}));
    EXPECT_TRUE(lauf.stand.folge.istGeladen(bildschirm));
    EXPECT_EQ(bildschirm.ProgressBar1.wert(), 2);
    EXPECT_FALSE(bildschirm.ProgressBar1.istSichtbar());
}

TEST_F(frmExportTest, JederKlientStehtMitSeinerNummerDa)
{
    std::vector<std::string> klienten;
    std::vector<std::string> betreuungen;
    for (int id = 1; id <= 450; ++id) {
        klienten.push_back(klientensatz(id));
        betreuungen.push_back(betreuungssatz(id, 1));
    }
    Testlauf::schreibeZeilen(lauf.pfade().kernDat, klienten);
    Testlauf::schreibeZeilen(lauf.pfade().betrDat, betreuungen);
    int gleich = 0;
    int boxen = 0;
    lauf.umgebung.beiMeldung = [&](const Meldung& meldung) {
        if (meldung.text.starts_with("Fehler im Export: zu ")) {
            ++boxen;
            const auto nummer = std::to_string(boxen + (boxen >= 2 ? 1 : 0)); // only client 2 has a diagnosis record
            gleich += bildschirm.lblMeldung.text() == "Klient " + nummer + " / 450" &&
                              std::to_string(bildschirm.ProgressBar1.wert()) == nummer
                          ? 1
                          : 0;
        }
    };
    exportiere();
    EXPECT_EQ(boxen, 449);
    EXPECT_EQ(gleich, 449);
}

TEST_F(frmExportTest, NachDemLaufGehtExitWieder)
{
    exportiere();
    bildschirm.cmdExit.klicke();
    EXPECT_FALSE(lauf.stand.folge.istGeladen(bildschirm));
    EXPECT_TRUE(lauf.stand.folge.istFrei(hauptmenü));
}

TEST_F(frmExportTest, NachEinemSchreibfehlerGehtExitWieder)
{
    std::filesystem::create_directories(lauf.pfade().programm / "Exporte/DBDD2006/Kern.txt");
    lauf.umgebung.antworten = {Antwort::OK, Antwort::OK};
    bildschirm.cmdOK.klicke();
    EXPECT_EQ(lauf.umgebung.meldungen.back().symbol, Symbol::Stop);
    EXPECT_EQ(bildschirm.lblMeldung.text(), "Bereit");
    EXPECT_FALSE(bildschirm.ProgressBar1.istSichtbar());
    bildschirm.cmdExit.klicke();
    EXPECT_FALSE(lauf.stand.folge.istGeladen(bildschirm));
}

} // namespace
