#include "zustand/Comboregeln.h"

#include "hilfen/Testumgebung.h"

namespace {

class ComboTest : public testing::Test {
protected:
    ComboTest() { feld.fülle({"k.A.", "0", "1", "10", "11", "\xC4pfel"}, "k.A."); }

    int tippe(int code)
    {
        ergänzeComboText(feld, code);
        return code;
    }

    Testlauf lauf;
    Bildschirm schirm{"frmProbe"};
    Auswahlfeld feld{schirm, "feld", Auswahlfeld::Art::Tippbar};
};

TEST_F(ComboTest, ErgänztUndSchlucktDieTaste)
{
    feld.setzeSchreibmarke(0);
    EXPECT_EQ(tippe('1'), 0);
    EXPECT_EQ(feld.text(), "1");
    EXPECT_EQ(feld.schreibmarke(), 1U);
    EXPECT_EQ(tippe('1'), 0);
    EXPECT_EQ(feld.text(), "11");
    EXPECT_EQ(feld.schreibmarke(), 2U);
}

TEST_F(ComboTest, WasNichtInDerListeStehtTutNichts)
{
    feld.setzeText("10");
    feld.setzeSchreibmarke(2);
    EXPECT_EQ(tippe('9'), 0);
    EXPECT_EQ(feld.text(), "10");
    EXPECT_EQ(feld.schreibmarke(), 2U);
}

TEST_F(ComboTest, RücktasteNimmtEinZeichenLinksDerMarke)
{
    feld.setzeText("11");
    feld.setzeSchreibmarke(2);
    EXPECT_EQ(tippe(8), 0);
    EXPECT_EQ(feld.text(), "1");
    EXPECT_EQ(feld.schreibmarke(), 1U);
    tippe(8);
    EXPECT_EQ(feld.text(), "k.A.") << "the empty text finds the first entry";
    EXPECT_EQ(feld.schreibmarke(), 0U);
    tippe(8);
    EXPECT_EQ(feld.text(), "k.A.");
}

TEST_F(ComboTest, GroßUndKleinSindGleichAuchBeiUmlauten)
{
    feld.setzeSchreibmarke(0);
    tippe('K');
    EXPECT_EQ(feld.text(), "k.A.");
    EXPECT_EQ(feld.schreibmarke(), 1U);
    feld.setzeSchreibmarke(0);
    tippe(static_cast<unsigned char>('\xE4'));
    EXPECT_EQ(feld.text(), "Äpfel"_t);
}

TEST_F(ComboTest, IstInComboListeVergleichtGenau)
{
    feld.setzeText("10");
    EXPECT_TRUE(istInComboListe(feld));
    feld.setzeText("k.a.");
    EXPECT_FALSE(istInComboListe(feld));
    feld.setzeText("");
    EXPECT_FALSE(istInComboListe(feld));
}

TEST_F(ComboTest, FalscherWertWirdRotGemeldetUndWeiß)
{
    feld.setzeText("99");
    Farbe beiMeldung = 0;
    lauf.umgebung.beiMeldung = [&](const Meldung&) { beiMeldung = feld.hintergrund(); };
    EXPECT_FALSE(prüfeComboWert(feld));
    EXPECT_EQ(beiMeldung, farbe::rot);
    EXPECT_EQ(feld.hintergrund(), farbe::weiß);
    ASSERT_EQ(lauf.umgebung.meldungen.size(), 1U);
    const auto& meldung = lauf.umgebung.meldungen.front();
    EXPECT_EQ(meldung.text, "Der Wert im markierten Feld ist falsch und muß vor dem Speichern korrigiert werden."_t);
    EXPECT_EQ(meldung.symbol, Symbol::Keins);
    EXPECT_EQ(meldung.titel, "Tolvek7 v7.0.0");
}

TEST_F(ComboTest, RichtigerWertZeigtNichts)
{
    feld.setzeText("11");
    EXPECT_TRUE(prüfeComboWert(feld));
    EXPECT_TRUE(lauf.umgebung.meldungen.empty());
    EXPECT_FALSE(feld.hatHintergrund());
}

class Testbildschirm : public Bildschirm {
public:
    Auswahlfeld erstes{*this, "erstes"};
    Auswahlfeld zweites{*this, "zweites"};

    Testbildschirm() : Bildschirm("frmTest") {}
};

TEST(PrüfeComboWert, FalschesFeldBekommtDenFokus)
{
    const Testlauf lauf;
    Testbildschirm bildschirm;
    bildschirm.setzeFokus(&bildschirm.erstes);
    bildschirm.zweites.setzeText("falsch");
    EXPECT_FALSE(prüfeComboWert(bildschirm.zweites));
    EXPECT_EQ(bildschirm.fokus(), &bildschirm.zweites);
}

TEST(LadeResText, FehlendeNummerIstLeerInKlammern)
{
    Testlauf lauf;
    lauf.stand.ressourcen.nimm({1000, 2, [](int zeile) { return "Zeile " + std::to_string(zeile); }});
    EXPECT_EQ(ladeResText(1000), "2");
    EXPECT_EQ(ladeResText(1002), "Zeile 2");
    EXPECT_EQ(ladeResText(1003), "<leer>");
    EXPECT_EQ(ladeResText(999), "<leer>");
}

} // namespace
