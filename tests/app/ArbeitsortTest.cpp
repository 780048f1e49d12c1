#include "app/Arbeitsort.h"

#include "hilfen/Testumgebung.h"
#include "platform/umgebung/Laufzeitfehler.h"

#include <algorithm>

namespace {

namespace fs = std::filesystem;

class ArbeitsortTest : public testing::Test {
protected:
    ArbeitsortTest()
    {
        for (const auto& pfad : {orte.programm, orte.person, orte.arbeitsordner}) {
            fs::create_directories(pfad);
        }
    }

    Testordner ordner;
    Dateien dateien;
    Systemorte orte{.programm = ordner.pfad() / "usr" / "bin",
                    .programmBeschreibbar = true,
                    .person = ordner.pfad() / "heim",
                    .arbeitsordner = ordner.pfad() / "hier"};

    fs::path finde(const Aufruf& aufruf = {}) { return findeDatenordner(aufruf, orte, dateien); }
};

TEST_F(ArbeitsortTest, NebenDemProgrammWennDortGeschriebenWerdenDarf)
{
    EXPECT_EQ(finde(), orte.programm);
}

TEST_F(ArbeitsortTest, SonstImOrdnerDerPerson)
{
    orte.programmBeschreibbar = false;
    EXPECT_EQ(finde(), orte.person / "Tolvek7");
    EXPECT_FALSE(fs::exists(orte.person / "Tolvek7")) << "finding makes nothing";
}

TEST_F(ArbeitsortTest, InDenSystemordnernLiegenNieDaten)
{
    fs::create_directories(ordner.pfad() / "usr" / "share" / "tolvek7");
    EXPECT_EQ(finde(), orte.person / "Tolvek7") << "writable though it is, for an administrator";
}

TEST_F(ArbeitsortTest, VorhandeneDatenWerdenNichtVerlassenWeilDerOrdnerSchreibgeschütztIst)
{
    fs::create_directory(orte.programm / "Daten");
    orte.programmBeschreibbar = false;
    EXPECT_EQ(finde(), orte.programm);
}

TEST_F(ArbeitsortTest, EinGenannterOrdnerGehtVor)
{
    EXPECT_EQ(finde({Aufrufart::Arbeiten, ordner.pfad() / "anderswo", {}}), ordner.pfad() / "anderswo");
    EXPECT_EQ(finde({Aufrufart::Prüfung, "da", {}}), orte.arbeitsordner / "da");
}

TEST_F(ArbeitsortTest, EinUnbekannterProgrammordnerWirdNichtDerArbeitsordner)
{
    orte.programm.clear();
    EXPECT_EQ(finde(), orte.person / "Tolvek7");
}

TEST_F(ArbeitsortTest, OhnePersönlichenOrdnerWirdDasGesagt)
{
    orte.programmBeschreibbar = false;
    orte.person.clear();
    EXPECT_THROW(finde(), Laufzeitfehler);
}

TEST_F(ArbeitsortTest, DerFehlendeOrdnerWirdFürDenBesitzerAlleinAngelegt)
{
    orte.programmBeschreibbar = false;
    const Arbeitsort ort({}, orte, dateien);
    ASSERT_FALSE(dateien.istOrdner(ort.laufort().programmordner));
    dateien.legeOrdnerAn(ort.laufort().programmordner);
    EXPECT_TRUE(dateien.istOrdner(ort.laufort().programmordner));
#ifndef _WIN32
    EXPECT_EQ(fs::status(orte.person / "Tolvek7").permissions(), fs::perms::owner_all);
#endif
}

TEST_F(ArbeitsortTest, EineDateiMitDemNamenDesOrdnersWirdGemeldet)
{
    orte.programmBeschreibbar = false;
    Testlauf::schreibe(orte.person / "Tolvek7", "");
    const Arbeitsort ort({}, orte, dateien);
    ASSERT_FALSE(dateien.istOrdner(ort.laufort().programmordner));
    EXPECT_THROW(dateien.legeOrdnerAn(ort.laufort().programmordner), Laufzeitfehler);
}

TEST_F(ArbeitsortTest, DieMitgebrachtenDateien)
{
    EXPECT_EQ(Arbeitsort({}, orte, dateien).laufort().installation, orte.programm);
    const auto system = ordner.pfad() / "usr" / "share" / "tolvek7";
    fs::create_directories(system);
    EXPECT_EQ(Arbeitsort({}, orte, dateien).laufort().installation, system);
    fs::create_directory(orte.programm / "anweisungen");
    EXPECT_EQ(Arbeitsort({}, orte, dateien).laufort().installation, orte.programm / "anweisungen");
}

TEST_F(ArbeitsortTest, DasMusterLiegtInEinemEigenenOrdnerUndVerschwindet)
{
    fs::path muster;
    {
        const Arbeitsort ort({Aufrufart::Muster, std::nullopt, {}}, orte, dateien);
        muster = ort.laufort().programmordner;
        EXPECT_TRUE(ort.laufort().istMuster);
        EXPECT_TRUE(dateien.istOrdner(muster));
        const auto kern = Testlauf::lies(muster / "Daten" / "kernDat.txt");
        EXPECT_EQ(std::count(kern.begin(), kern.end(), '\n'), 60);
        EXPECT_TRUE(fs::is_empty(orte.programm));
        EXPECT_TRUE(fs::is_empty(orte.person));
    }
    EXPECT_FALSE(fs::exists(muster.parent_path()));
}

} // namespace
