#include "store/Bruchstuecke.h"

#include "hilfen/Testumgebung.h"

namespace {

namespace fs = std::filesystem;

TEST(BruchstückeTest, NurEineLetzteZeileOhneEndeUndOhneGanzeNummern)
{
    EXPECT_EQ(bruchstückIn(""), "");
    EXPECT_EQ(bruchstückIn("1\r\n"), "") << "a whole line, however short";
    EXPECT_EQ(bruchstückIn(satz({"1", "1", ""})), "") << "both keys are whole";
    EXPECT_EQ(bruchstückIn(satz({"1", "1"})), satz({"1", "1"})) << "it may have been 12";
    EXPECT_EQ(bruchstückIn("1"), "1");
    EXPECT_EQ(bruchstückIn(satz({"1", "1", "x"}) + "\r\n" + satz({"2", ""})), satz({"2", ""}));
    EXPECT_EQ(bruchstückIn(satz({"1", "1", "x"}) + "\n2"), "2");
    EXPECT_EQ(bruchstückIn(satz({"1", "1", "x"}) + "\r2"), "2");
}

TEST(BruchstückeTest, KommtHerausUndDieTabelleWirdAufgehoben)
{
    Testlauf lauf;
    lauf.legeTabellenAn();
    const auto ganze = satz({"1", "1", "01.01.2005", "offen"}) + "\r\n";
    Testlauf::schreibe(lauf.pfade().betrDat, ganze + "12");
    stelleBruchstückeBeiseite(lauf.stand.bestand);
    EXPECT_EQ(Testlauf::lies(lauf.pfade().betrDat), ganze);
    ASSERT_EQ(lauf.umgebung.meldungen.size(), 1U);
    const auto& meldung = lauf.umgebung.meldungen.front();
    EXPECT_EQ(meldung.symbol, Symbol::Warnung);
    EXPECT_NE(meldung.text.find("Zeile 2"), std::string::npos) << meldung.text;
    const auto ordner = fs::directory_iterator(lauf.pfade().sicherungen)->path();
    EXPECT_EQ(Testlauf::lies(ordner / "betrDat.txt"), ganze + "12");
    stelleBruchstückeBeiseite(lauf.stand.bestand);
    EXPECT_EQ(lauf.umgebung.meldungen.size(), 1U) << "once";
}

} // namespace
