#include "spreadsheet/frmZuExcel.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "spreadsheet/Mappenlauf.h"

#include <algorithm>

namespace {

class FrmZuExcel : public testing::Test {
protected:
    FrmZuExcel()
    {
        baueProblemKatalog();
        lauf.legeTabellenAn();
        lauf.umgebung.beiMappe = [this](Arbeitsmappe& mappe) {
            ++übergaben;
            standBeiÜbergabe = zuExcel.ProgressBar1.wert();
            übergebene = std::move(mappe);
        };
    }

    void öffne()
    {
        lauf.stand.folge.öffneStatt(hauptmenü, zuExcel);
        lauf.stand.folge.führeAktivierungenAus();
    }

    Testlauf lauf;
    Bildschirm hauptmenü{"frmHauptmen\xFC"};
    frmZuExcel zuExcel;
    Arbeitsmappe übergebene;
    int übergaben = 0;
    int standBeiÜbergabe = -1;
};

TEST_F(FrmZuExcel, einLaufFülltDenBalkenUndZeigtFertig)
{
    std::vector<std::pair<int, std::string>> schritte;
    auto beobachtung = zuExcel.ProgressBar1.geändert.abonniere([&] {
        if (schritte.empty() || schritte.back().first != zuExcel.ProgressBar1.wert()) {
            schritte.emplace_back(zuExcel.ProgressBar1.wert(), zuExcel.lblStatus.text());
        }
    });
    zuExcel.ProgressBar1.setzeWert(-1); // so that the first step is a change as well
    schritte.clear();
    öffne();
    EXPECT_EQ(zuExcel.ProgressBar1.wert(), 7);
    EXPECT_EQ(zuExcel.lblStatus.text(), "Fertig");
    EXPECT_EQ(zuExcel.lblText.text(), "bei der Arbeit... (bitte warten)");
    EXPECT_TRUE(zuExcel.cmdFertig.istSichtbar());
    EXPECT_EQ(übergaben, 1);
    EXPECT_EQ(standBeiÜbergabe, 6);
    const std::vector<std::pair<int, std::string>> erwartet{{0, "schreibe KernDat"},          {1, "schreibe BetrDat"},
                                                            {2, "schreibe DiagDat"},          {3, "schreibe DiagDat"},
                                                            {4, "suche Hauptdiagnose-Daten"}, {5, "suche Kern-Daten"},
                                                            {6, "suche Betreuungsdaten"},     {7, "Fertig"}};
    EXPECT_EQ(schritte, erwartet);
}

/// What is drawn follows the time that the work takes, not the number of its steps: it never goes back, moves
/// during the longest step, and is full only at the end.
TEST_F(FrmZuExcel, derBalkenSagtDieWahrheit)
{
    Testlauf::schreibeZeilen(lauf.pfade().diagDat, std::vector<std::string>(300, "1\xB7"
                                                                                 "1"));
    std::vector<double> anteile;
    auto beobachtung =
        zuExcel.ProgressBar1.geändert.abonniere([&] { anteile.push_back(zuExcel.ProgressBar1.anteil()); });
    double beiÜbergabe = -1;
    lauf.umgebung.beiMappe = [&](Arbeitsmappe&) { beiÜbergabe = zuExcel.ProgressBar1.anteil(); };
    öffne();
    EXPECT_TRUE(std::ranges::is_sorted(anteile));
    EXPECT_GT(anteile.size(), 300U);
    EXPECT_LT(beiÜbergabe, 0.9);
    EXPECT_GT(beiÜbergabe, 0.4);
    EXPECT_EQ(zuExcel.ProgressBar1.anteil(), 1.0);
}

TEST_F(FrmZuExcel, dieNummerDesSatzesStehtBeiJedemDa)
{
    Testlauf::schreibeZeilen(lauf.pfade().diagDat, std::vector<std::string>(450, "1\xB7"
                                                                                 "1"));
    int texte = 0;
    std::string letzter;
    auto beobachtung = zuExcel.lblStatus.geändert.abonniere([&] {
        if (zuExcel.lblStatus.text().starts_with("schreibe DS #")) {
            ++texte;
            letzter = zuExcel.lblStatus.text();
        }
    });
    öffne();
    EXPECT_EQ(texte, 450);
    EXPECT_EQ(letzter, "schreibe DS #450");
}

TEST_F(FrmZuExcel, einProgrammDasNichtStartetIstWieKeines)
{
    lauf.umgebung.tabellenprogrammStartet = false;
    öffne();
    ASSERT_EQ(lauf.umgebung.meldungen.size(), 1U);
    EXPECT_EQ(lauf.umgebung.meldungen[0].text,
              "Tolvek7 v7.0.0 konnte Excel nicht finden.\r\nNichts wurde ver\xE4ndert");
    EXPECT_EQ(lauf.umgebung.meldungen[0].symbol, Symbol::Stop);
    EXPECT_TRUE(lauf.stand.folge.istSichtbar(hauptmenü));
    EXPECT_FALSE(lauf.stand.folge.istGeladen(zuExcel));
}

TEST_F(FrmZuExcel, einZweitesAktivwerdenBeginntNichtVonVorn)
{
    öffne();
    lauf.stand.folge.sperre(zuExcel);
    lauf.stand.folge.gibFrei(zuExcel);
    lauf.stand.folge.führeAktivierungenAus();
    EXPECT_EQ(übergaben, 1);
}

TEST_F(FrmZuExcel, ohneTabellenprogrammGleichZurück)
{
    lauf.umgebung.tabellenprogramm = false;
    öffne();
    ASSERT_EQ(lauf.umgebung.meldungen.size(), 1U);
    EXPECT_EQ(lauf.umgebung.meldungen[0].text,
              "Tolvek7 v7.0.0 konnte Excel nicht finden.\r\nNichts wurde ver\xE4ndert");
    EXPECT_EQ(lauf.umgebung.meldungen[0].symbol, Symbol::Stop);
    EXPECT_EQ(übergaben, 0);
    EXPECT_TRUE(lauf.stand.folge.istSichtbar(hauptmenü));
    EXPECT_FALSE(lauf.stand.folge.istGeladen(zuExcel));
}

TEST_F(FrmZuExcel, fertigBringtDasHauptmenü)
{
    öffne();
    zuExcel.cmdFertig.klicke();
    EXPECT_TRUE(lauf.stand.folge.istSichtbar(hauptmenü));
    EXPECT_FALSE(lauf.stand.folge.istGeladen(zuExcel));
}

TEST_F(FrmZuExcel, derRahmenStehtWoDieSchlüsselSagenUndDasFensterInSeinerMitte)
{
    lauf.stand.rahmen.setzeGröße(20000, 12000);
    zuExcel.oben = 300; // as they come from the keys
    zuExcel.links = 600;
    öffne();
    EXPECT_EQ(lauf.stand.rahmen.oben(), 300);
    EXPECT_EQ(lauf.stand.rahmen.links(), 600);
    EXPECT_EQ(zuExcel.oben + zuExcel.höhe / 2, 300 + 6000);
    EXPECT_EQ(zuExcel.links + zuExcel.breite / 2, 600 + 10000);
}

TEST_F(FrmZuExcel, eineFehlendeTabelleIstEinLaufzeitfehler)
{
    std::filesystem::remove(lauf.pfade().betrDat);
    EXPECT_THROW(öffne(), Laufzeitfehler);
    EXPECT_EQ(übergaben, 0);
}

TEST_F(FrmZuExcel, zuVieleSätzeWerdenNichtÜbergeben)
{
    Testlauf::schreibeZeilen(lauf.pfade().diagDat, std::vector<std::string>(32767, "1\xB7"
                                                                                   "1"));
    EXPECT_THROW(öffne(), Laufzeitfehler);
    EXPECT_EQ(übergaben, 0);
}

TEST_F(FrmZuExcel, dieMappeBleibtGanzWennDieTabellenSichÄndern)
{
    Testlauf::schreibeZeilen(lauf.pfade().kernDat, {satz({"", "1", "a", "Adler"})});
    öffne();
    std::filesystem::remove(lauf.pfade().kernDat);
    Testlauf::schreibeZeilen(lauf.pfade().kernDat, {satz({"", "1", "a", "Bussard"})});
    EXPECT_EQ(alsText(übergebene.finde("KernDat")->zelle(4, 3)), "Adler");
}

} // namespace
