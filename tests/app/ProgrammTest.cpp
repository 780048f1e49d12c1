#include "app/moMain.h"

#include "hilfen/Testumgebung.h"

namespace {

namespace fs = std::filesystem;

class Start : public testing::Test {
protected:
    Testumgebung umgebung;
    Pfade pfade = bildePfade(umgebung.programmordner());

    void schreibeTabellen(const std::vector<std::string>& kern, const std::vector<std::string>& betr) const
    {
        Testlauf::schreibeZeilen(pfade.kernDat, kern);
        Testlauf::schreibeZeilen(pfade.betrDat, betr);
        for (const auto& pfad : {pfade.diagDat, pfade.kernBak, pfade.betrBak, pfade.diagBak}) {
            Testlauf::schreibe(pfad, "");
        }
    }
};

TEST_F(Start, ErstmaligerStartLegtAllesAnUndZeigtDasHauptmenü)
{
    Programm programm(umgebung);
    programm.starte();
    ASSERT_TRUE(programm.zustand().ablauf.läuft());
    EXPECT_TRUE(umgebung.meldungen.empty());
    for (const auto& pfad :
         {pfade.kernDat, pfade.betrDat, pfade.diagDat, pfade.kernBak, pfade.betrBak, pfade.diagBak, pfade.ini}) {
        EXPECT_EQ(Testlauf::lies(pfad), "") << pfad;
    }
    ASSERT_NE(programm.zustand().folge.inGebrauch(), nullptr);
    EXPECT_EQ(programm.zustand().folge.inGebrauch()->name(), "frmHauptmenü"_t);
    EXPECT_TRUE(programm.zustand().rahmen.istSichtbar());
}

TEST_F(Start, FülltDenZustandDesLaufs)
{
    Programm programm(umgebung);
    programm.starte();
    const auto& zustand = programm.zustand();
    EXPECT_EQ(zustand.titel, "Tolvek7 v7.0.0");
    EXPECT_EQ(zustand.rahmen.titel(), zustand.titel);
    EXPECT_EQ(zustand.defaultKernDS, "\xB7\xB7\xB7\xB7\xB7\xB7\xB7\xB7keine Angaben\xB7unbekannt\xB7\xB7");
    EXPECT_EQ(std::count(zustand.defaultBetrDS.begin(), zustand.defaultBetrDS.end(), trenner), 191);
    EXPECT_EQ(zustand.defaultDiagDS, std::string(246, trenner));
    EXPECT_EQ(zustand.anzahlKernFelder, 11);
    EXPECT_EQ(zustand.anzahlBetrFelder, 192);
    for (const int nummer : {1000, 4000, 6000}) {
        EXPECT_TRUE(zustand.ressourcen.finde(nummer)) << nummer;
    }
}

TEST_F(Start, MusterStehtVornImTitel)
{
    umgebung.muster = true;
    Programm programm(umgebung);
    programm.starte();
    EXPECT_EQ(programm.zustand().titel, "MUSTER – Tolvek7 v7.0.0"_t);
    EXPECT_EQ(programm.zustand().rahmen.titel(), programm.zustand().titel);
}

TEST_F(Start, ZweiteInstanzMeldetSichOhneTitelUndRührtNichtsAn)
{
    umgebung.ersteInstanz = false;
    Programm programm(umgebung);
    programm.starte();
    EXPECT_FALSE(programm.zustand().ablauf.läuft());
    EXPECT_EQ(programm.zustand().ablauf.status(), 0);
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen.front().titel, "");
    EXPECT_TRUE(fs::is_empty(umgebung.programmordner()));
}

// The repairs must find the files tested and the globals filled, and must not find a screen to write to yet.
TEST_F(Start, RepariertNachDerDateiprüfungUndVorDemRahmen)
{
    schreibeTabellen({satz({"", "1", "", "Adler", "", "", "", "", "keine Angaben", "", ""})}, {});
    Programm programm(umgebung);
    bool gefragt = false;
    umgebung.beiMeldung = [&](const Meldung& meldung) {
        gefragt = true;
        EXPECT_EQ(meldung.text, "Fehler");
        EXPECT_EQ(meldung.titel, "Tolvek7 v7.0.0");
        EXPECT_TRUE(fs::exists(pfade.ini));
        EXPECT_FALSE(programm.zustand().rahmen.istSichtbar());
        EXPECT_TRUE(programm.zustand().folge.geladene().empty());
        EXPECT_EQ(Testlauf::lies(pfade.kernBak), "");
    };
    programm.starte();
    EXPECT_TRUE(gefragt);
}

TEST_F(Start, SichertNachDenReparaturen)
{
    schreibeTabellen({satz({"", "1", "", "Adler", "", "", "", "", "keine Angaben", "01.02.70", ""})},
                     {satz({"1", "1", "01.01.05", "offen"})});
    Programm programm(umgebung);
    programm.starte();
    const auto kern =
        Testlauf::alsInhalt({satz({"", "1", "o", "Adler", "", "", "", "", "keine Angaben", "01.02.1970", ""})});
    EXPECT_EQ(Testlauf::lies(pfade.kernDat), kern);
    EXPECT_EQ(Testlauf::lies(pfade.kernBak), kern);
    EXPECT_EQ(Testlauf::lies(pfade.betrBak), Testlauf::alsInhalt({satz({"1", "1", "01.01.2005", "offen"})}));
    EXPECT_TRUE(programm.zustand().sitzungGesichert);
}

TEST_F(Start, FehlendeTabelleBeendetMitStatus1)
{
    schreibeTabellen({satz({"", "1", "", "Adler", "", "", "", "", "keine Angaben", "unbekannt", ""})}, {});
    fs::remove(pfade.diagDat);
    Programm programm(umgebung);
    programm.starte();
    EXPECT_FALSE(programm.zustand().ablauf.läuft());
    EXPECT_EQ(programm.zustand().ablauf.status(), 1);
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen.front().symbol, Symbol::Stop);
    EXPECT_EQ(umgebung.meldungen.front().titel, "Tolvek7 v7.0.0");
    EXPECT_NE(umgebung.meldungen.front().text.find("diagDat.txt"), std::string::npos);
    EXPECT_FALSE(fs::exists(pfade.diagDat));
}

class Rahmenregeln : public Start {
protected:
    void SetUp() override { programm.starte(); }

    Programm programm{umgebung};
    Rahmen& rahmen = programm.zustand().rahmen;
};

TEST_F(Rahmenregeln, IstHöchstensSoGroßWieDerBildschirm)
{
    auto& hauptmenü = *programm.zustand().folge.inGebrauch();
    EXPECT_DOUBLE_EQ(rahmen.breite(), hauptmenü.breite + 800);
    EXPECT_DOUBLE_EQ(rahmen.höhe(), hauptmenü.höhe + 250);

    hauptmenü.breite = 100000;
    hauptmenü.höhe = 100000;
    programm.zustand().folge.wirdAktiv.melde(hauptmenü);
    EXPECT_DOUBLE_EQ(rahmen.breite(), umgebung.bildschirmgröße().breite);
    EXPECT_DOUBLE_EQ(rahmen.höhe(), umgebung.bildschirmgröße().höhe);
}

TEST_F(Rahmenregeln, AndereBildschirmeHabenEinenSchmalerenRand)
{
    class frmAnderer : public Bildschirm {
    public:
        frmAnderer() : Bildschirm("frmAnderer") {}
    } anderer;
    anderer.breite = 1000;
    anderer.höhe = 2000;
    anderer.oben = 70;
    anderer.links = 80;
    programm.zustand().folge.wirdAktiv.melde(anderer);
    EXPECT_DOUBLE_EQ(rahmen.breite(), 1500);
    EXPECT_DOUBLE_EQ(rahmen.höhe(), 2250);
    EXPECT_DOUBLE_EQ(anderer.oben, 0);
    EXPECT_DOUBLE_EQ(anderer.links, 0);
}

TEST_F(Rahmenregeln, MaximiertBleibtMaximiert)
{
    Testlauf::schreibe(pfade.ini, "frmHauptmenü.top = 300\r\nfrmHauptmenü.left = 600\r\n"_t);
    rahmen.benutzerMaximiert(true);
    programm.zustand().folge.wirdAktiv.melde(*programm.zustand().folge.inGebrauch());
    EXPECT_TRUE(rahmen.istMaximiert());
    rahmen.benutzerMaximiert(false);
    EXPECT_DOUBLE_EQ(rahmen.oben(), 300);
    EXPECT_DOUBLE_EQ(rahmen.links(), 600);
}

TEST_F(Rahmenregeln, NurDieErsteGrößenänderungNachDemMaximierenPlatziert)
{
    rahmen.benutzerMaximiert(true);
    rahmen.benutzerMaximiert(false);
    rahmen.benutzerVerschiebt(300, 600);
    rahmen.benutzerÄndertGröße(9000, 6000);
    EXPECT_DOUBLE_EQ(rahmen.oben(), 300);
    EXPECT_DOUBLE_EQ(rahmen.breite(), 9000);
}

TEST_F(Rahmenregeln, SchließtNichtÜberDenRand)
{
    EXPECT_FALSE(rahmen.benutzerSchließt());
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen.front().text, "Bitte die Schaltfläche <Exit> zum Beenden klicken"_t);
    EXPECT_TRUE(programm.zustand().ablauf.läuft());
}

TEST_F(Rahmenregeln, LeertDieIniDateiAufWunsch)
{
    Testlauf::schreibe(pfade.ini, "a = 1\r\n");
    moExtras extras(programm.zustand());
    MDIfrm(programm.zustand(), extras).leereIni();
    EXPECT_EQ(Testlauf::lies(pfade.ini), "");
}

TEST_F(Rahmenregeln, EndeVerbirgtDenRahmenUndSchreibtDieLage)
{
    auto* exit = programm.zustand().folge.inGebrauch()->finde("cmdExit");
    rahmen.benutzerVerschiebt(300, 600);
    programm.zustand().ablauf.ereignis([&] { exit->klicke(); });
    EXPECT_FALSE(programm.zustand().ablauf.läuft());
    EXPECT_EQ(programm.zustand().ablauf.status(), 0);
    EXPECT_FALSE(rahmen.istSichtbar());
    EXPECT_TRUE(programm.zustand().folge.geladene().empty());
    EXPECT_EQ(Testlauf::lies(pfade.ini), "frmHauptmenü.top = 300\r\nfrmHauptmenü.left = 600\r\n"_t);
}

} // namespace
