#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/moHelferlein.h"
#include "spreadsheet/Mappenlauf.h"

namespace {

std::string klient(std::string_view id, std::string_view nachname)
{
    return satz({"", id, "a", nachname, "Anna", "Weg 1", "10115", "Berlin", "weiblich", "01.02.1970", "geheim"});
}

std::string betreuung(std::string_view id, std::string_view nummer, std::string_view beginn)
{
    return satzMit(192, {{1, id}, {2, nummer}, {3, beginn}, {4, "offen"}, {191, "5-"}, {192, "geheim"}});
}

std::string diagnose(std::string_view id, std::string_view nummer)
{
    return satzMit(247, {{1, id}, {2, nummer}});
}

TEST(Auswertung, kopfzeile)
{
    Mappenlauf lauf;
    lauf.schreibe({klient("1", "Adler")}, {betreuung("1", "1", "01.02.2006")}, {diagnose("1", "1")});
    const std::vector<std::string> namen{
        "fallnr",          "betrnr",  "v_Nachname", "v_Vorname", "v_Strasse", "v_PLZ",   "v_Ort",   "v_Geschlecht",
        "v_Geburtsdatum",  "ICDxxx1", "ICDxxx2",    "ICDxxx3",   "ICDxxx4",   "ICDxxx5", "ICDxxx6", "v_AlterErstkonsum",
        "v_Hauptdiagnose", "BetrBeg", "BetrEnd",    "Wieder"};
    for (std::size_t i = 0; i < namen.size(); ++i) {
        EXPECT_EQ(lauf.text("Auswertung", 1, static_cast<int>(i) + 1), namen[i]);
    }
    EXPECT_EQ(lauf.text("Auswertung", 1, 206), "Vermitt23");
    EXPECT_EQ(lauf.blatt("Auswertung").spaltenanzahl(), 206);
    EXPECT_TRUE(lauf.blatt("Auswertung").istFett(1));
    EXPECT_FALSE(lauf.blatt("Auswertung").sindBreitenAngepasst());
}

TEST(Auswertung, kommentareStehenEineSpalteDaneben)
{
    Mappenlauf lauf;
    lauf.schreibe({}, {}, {});
    const std::vector<std::string> kommentare{"\xDC"
                                              "berwiegende Konsumart letzte 30 Tage vor BetrBeg",
                                              "# KonsumTage 30 Tage am BetrEnd",
                                              "ICD10 4. und 5. Stelle",
                                              "Alter bei St\xF6rungsbeginn",
                                              "Riskanter Konsum",
                                              "Alter Erstkonsum"};
    for (int i = 0; i < 6; ++i) {
        const std::string* kommentar = lauf.blatt("Auswertung").kommentar(1, 10 + i);
        ASSERT_NE(kommentar, nullptr);
        EXPECT_EQ(*kommentar, kommentare[static_cast<std::size_t>(i)]);
    }
    EXPECT_EQ(lauf.blatt("Auswertung").kommentar(1, 16), nullptr);
}

TEST(Auswertung, eineZeileJeDiagnosesatzMitKlientUndBetreuung)
{
    Mappenlauf lauf;
    lauf.schreibe(
        {klient("1", "Adler"), klient("2", "Fink")},
        {betreuung("1", "1", "01.02.2006"), betreuung("2", "1", "02.02.2006"), betreuung("1", "2", "03.02.2006")},
        {diagnose("1", "2"), diagnose("2", "1"), diagnose("1", "1")});
    EXPECT_EQ(lauf.blatt("Auswertung").zeilenanzahl(), 4);
    const char* beginn[]{"03.02.2006", "02.02.2006", "01.02.2006"};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(lauf.text("Auswertung", 2 + i, 18), beginn[i]);
        EXPECT_EQ(lauf.text("Auswertung", 2 + i, 9), "01.02.1970");
    }
    EXPECT_EQ(lauf.text("Auswertung", 2, 3), "Adler");
    EXPECT_EQ(lauf.text("Auswertung", 4, 3), "Adler");
    EXPECT_EQ(lauf.gemeldet, (std::vector<int>{1, 2, 3}));
}

TEST(Auswertung, betreuungsfelderStehenUnterIhremKopf)
{
    std::string zeile = "1\xB7"
                        "1";
    for (int feld = 3; feld <= 192; ++feld) {
        zeile += "\xB7"
                 "f" +
                 std::to_string(feld);
    }
    Mappenlauf lauf;
    lauf.schreibe({}, {zeile}, {diagnose("1", "1")});
    for (int feld = 3; feld <= 191; ++feld) {
        EXPECT_EQ(lauf.text("Auswertung", 2, feld + 15), "f" + std::to_string(feld));
    }
    EXPECT_EQ(lauf.text("Auswertung", 2, 207), "");
}

TEST(Auswertung, minusHintenZähltNurHier)
{
    Mappenlauf lauf;
    lauf.schreibe({}, {betreuung("1", "1", "01.02.2006")}, {diagnose("1", "1")});
    EXPECT_EQ(lauf.text("Auswertung", 2, 206), "-5");
    EXPECT_EQ(lauf.text("BetrDat", 4, 191), "5-");
}

TEST(Auswertung, ohneKlientOderBetreuungBleibenDieSpaltenLeer)
{
    Mappenlauf lauf;
    lauf.schreibe({klient("1", "Adler")}, {betreuung("2", "1", "01.02.2006")},
                  {diagnose("1", "1"), diagnose("2", "1")});
    EXPECT_EQ(lauf.text("Auswertung", 2, 3), "Adler");
    EXPECT_EQ(lauf.text("Auswertung", 2, 18), "");
    EXPECT_EQ(lauf.text("Auswertung", 3, 3), "");
    EXPECT_EQ(lauf.text("Auswertung", 3, 18), "01.02.2006");
}

TEST(Auswertung, dieErsteZeileMitDerNummerGilt)
{
    Mappenlauf lauf;
    lauf.schreibe({klient("1", "Erste"), klient("1", "Zweite")},
                  {betreuung("1", "1", "01.01.2001"), betreuung("1", "1", "02.02.2002")}, {diagnose("1", "1")});
    EXPECT_EQ(lauf.text("Auswertung", 2, 3), "Erste");
    EXPECT_EQ(lauf.text("Auswertung", 2, 18), "01.01.2001");
}

TEST(Auswertung, nummernGehenDurchDieZelle)
{
    Mappenlauf lauf;
    lauf.schreibe({klient("7", "Adler"), klient("a1", "Text")}, {betreuung("7", "1", "01.01.2001")},
                  {diagnose("007", "01"), diagnose("a1", "1")});
    EXPECT_EQ(lauf.text("Auswertung", 2, 1), "7");
    EXPECT_EQ(lauf.text("Auswertung", 2, 3), "Adler");
    EXPECT_EQ(lauf.text("Auswertung", 2, 18), "01.01.2001");
    EXPECT_EQ(lauf.text("Auswertung", 3, 3), "Text");
}

TEST(Auswertung, einSatzOhneNummerBeendetDieSuche)
{
    Mappenlauf lauf;
    lauf.schreibe({klient("1", "Adler")}, {betreuung("1", "1", "01.01.2001")},
                  {diagnose("1", "1"), satzMit(247, {{2, "1"}, {3, "Injektion"}, {10, "1"}}),
                   satzMit(247, {{1, "1"}, {2, "1"}, {10, "1"}})});
    EXPECT_EQ(lauf.text("Auswertung", 2, 18), "01.01.2001");
    EXPECT_EQ(lauf.text("Auswertung", 3, 10), "Injektion");
    EXPECT_EQ(lauf.text("Auswertung", 3, 17), "Alkohol");
    EXPECT_EQ(lauf.text("Auswertung", 4, 1), "1");
    EXPECT_EQ(lauf.text("Auswertung", 4, 17), "Alkohol");
    EXPECT_EQ(lauf.text("Auswertung", 4, 3), "");
    EXPECT_EQ(lauf.text("Auswertung", 4, 18), "");
    EXPECT_EQ(lauf.gemeldet, std::vector<int>{1});
}

TEST(Auswertung, ohneDiagnosenRücktDerKopfUmZweiNachLinks)
{
    Mappenlauf lauf;
    lauf.schreibe({klient("1", "Adler")}, {betreuung("1", "1", "01.02.2006")}, {});
    EXPECT_EQ(lauf.blatt("Auswertung").zeilenanzahl(), 1);
    EXPECT_EQ(lauf.text("Auswertung", 1, 17), "v_Hauptdiagnose");
    EXPECT_EQ(lauf.text("Auswertung", 1, 18), "Wieder");
    EXPECT_EQ(lauf.text("Auswertung", 1, 205), "memoB");
    EXPECT_EQ(lauf.blatt("Auswertung").spaltenanzahl(), 205);
    EXPECT_TRUE(lauf.blatt("Auswertung").istFett(1));
}

TEST(SucheHDBlock, dieErsteGruppeMitEinsGilt)
{
    const std::string zeile =
        satzMit(247, {{10, "0"}, {18, "2"}, {19, "a"}, {20, "b"}, {25, "g"}, {26, "1"}, {34, "1"}});
    const HDBlock block = sucheHDBlock(zeile);
    EXPECT_EQ(block.gruppe, 3);
    EXPECT_EQ(getFeld(block.antworten, 1), "a");
    EXPECT_EQ(getFeld(block.antworten, 2), "b");
    EXPECT_EQ(getFeld(block.antworten, 7), "g");
    EXPECT_EQ(anzahlFelder(block.antworten), 7);
}

TEST(SucheHDBlock, ersteUndLetzteGruppe)
{
    EXPECT_EQ(sucheHDBlock(satzMit(247, {{10, "1"}})).gruppe, 1);
    EXPECT_EQ(sucheHDBlock(satzMit(247, {{234, "1"}})).gruppe, 29);
    EXPECT_EQ(sucheHDBlock(satzMit(247, {{235, "1"}, {242, "1"}})).gruppe, 0);
}

TEST(SucheHDBlock, keineMarkeKeineHauptdiagnose)
{
    EXPECT_EQ(sucheHDBlock("").gruppe, 0);
    EXPECT_EQ(sucheHDBlock(satzMit(247, {{3, "Injektion"}, {10, "ja"}, {2, "1"}})).gruppe, 0);
    EXPECT_EQ(sucheHDBlock(satzMit(9, {{9, "1"}})).gruppe, 0);
}

TEST(SucheHDBlock, eineZuLangeZeileIstEinÜberlauf)
{
    EXPECT_THROW(sucheHDBlock(std::string(32768, 'x')), Laufzeitfehler);
}

TEST(Auswertung, mehrSätzeAlsZeilennummernSindEinÜberlauf)
{
    std::vector<std::string> zeilen(32766, "1\xB7"
                                           "1");
    Mappenlauf passt;
    passt.schreibe({}, {}, zeilen);
    EXPECT_EQ(passt.blatt("Auswertung").zeilenanzahl(), 32767);
    zeilen.emplace_back("1\xB7"
                        "1");
    Mappenlauf zuviel;
    EXPECT_THROW(zuviel.schreibe({}, {}, zeilen), Laufzeitfehler);
}

} // namespace
