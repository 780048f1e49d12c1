#include "store/Pruefung.h"

#include "app/muster/Musterdaten.h"
#include "hilfen/Anzeigepfad.h"
#include "hilfen/Platte.h"
#include "hilfen/Testumgebung.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Diagnosefelder.h"
#include "satz/Diagnosesatz.h"
#include "satz/Satzaufbau.h"
#include "satz/moHelferlein.h"
#include "store/Bestand.h"
#include "store/Niederschrift.h"
#include "store/Vollzugsvermerk.h"
#include "store/moBereinigeBetrOA.h"
#include "store/moBereinigeDatum.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace {

using namespace befundart;

const std::filesystem::path wurzel = "/programm";

/// A facility with one client and one closed episode, without findings. Each test spoils one thing of it and tells
/// every finding that must come of it.
class PruefungTest : public testing::Test {
protected:
    PruefungTest()
    {
        klient = mitFeldern(erstelleDefaultKernDS(), {{2, "1"}, {3, "a"}, {4, "Adler"}});
        betreuung = mitBetreuung("1", "01.01.2005", "31.12.2005");
        diagnose = mitDiagnose("1", {});
    }

    struct Feldwert {
        int feld;
        std::string_view wert;
    };

    /// Field 1 cannot be replaced by `ersetzeFeld`, which no caller needs.
    static std::string mitFeldern(std::string satz, const std::vector<Feldwert>& werte)
    {
        for (const auto& [feld, wert] : werte) {
            satz = feld == 1 ? verbinde(wert, satz.substr(satz.find(trenner))) : ersetzeFeld(satz, feld, wert);
        }
        return satz;
    }
    static std::string mitBetreuung(std::string_view betrID, std::string_view von, std::string_view bis)
    {
        return mitFeldern(erstelleDefaultBetrDS(), {{2, betrID}, {3, von}, {4, bis}});
    }
    static std::string mitDiagnose(std::string_view betrID, const std::vector<Feldwert>& werte)
    {
        auto satz = mitFeldern(verbinde(erstelleDefaultDiagDS(), trenner), werte);
        satz = mitFeldern(std::move(satz), {{1, "1"}, {2, betrID}});
        return satz;
    }

    void lege(std::string_view name, std::string inhalt) { platte.lege(wurzel / "Daten" / name, std::move(inhalt)); }
    void legeTabellen()
    {
        lege("kernDat.txt", Testlauf::alsInhalt({klient}));
        lege("betrDat.txt", Testlauf::alsInhalt({betreuung}));
        lege("diagDat.txt", Testlauf::alsInhalt({diagnose}));
    }
    void klienten(const std::vector<std::string>& zeilen) { lege("kernDat.txt", Testlauf::alsInhalt(zeilen)); }
    void betreuungen(const std::vector<std::string>& zeilen) { lege("betrDat.txt", Testlauf::alsInhalt(zeilen)); }
    void diagnosen(const std::vector<std::string>& zeilen) { lege("diagDat.txt", Testlauf::alsInhalt(zeilen)); }

    Prüfbericht prüfe()
    {
        Dateien dateien(std::make_unique<Plattenzugriff>(platte));
        return prüfeBestand(dateien, pfade);
    }

    struct Erwartet {
        Befundart art;
        std::optional<Tabelle> tabelle;
        std::size_t zeile = 0;
        int feld = 0;
    };
    void erwarte(const std::vector<Erwartet>& erwartete)
    {
        const auto bericht = prüfe();
        std::string zeilen;
        for (const auto& befund : bericht.befunde) {
            zeilen += alsBerichtszeile(befund, pfade) + '\n';
        }
        ASSERT_EQ(bericht.befunde.size(), erwartete.size()) << zeilen;
        for (std::size_t i = 0; i < erwartete.size(); ++i) {
            const auto& befund = bericht.befunde[i];
            EXPECT_EQ(befund.art, erwartete[i].art) << zeilen;
            EXPECT_EQ(befund.ort.tabelle, erwartete[i].tabelle) << zeilen;
            EXPECT_EQ(befund.ort.zeile, erwartete[i].zeile) << zeilen;
            EXPECT_EQ(befund.ort.feld, erwartete[i].feld) << zeilen;
            EXPECT_FALSE(befund.folge.empty()) << zeilen;
        }
    }

    /// One notice, which doesn't count.
    void erwarteHinweis(const Erwartet& erwarteter)
    {
        erwarte({erwarteter});
        EXPECT_TRUE(std::ranges::all_of(prüfe().befunde, &Befund::istHinweis));
    }

    Platte platte;
    Bestandspfade pfade = bildeBestandspfade(wurzel);
    std::string klient;
    std::string betreuung;
    std::string diagnose;
};

TEST_F(PruefungTest, GuteTabellenHabenKeineBefunde)
{
    legeTabellen();
    erwarte({});
    EXPECT_EQ(prüfe().klienten, 1U);
    EXPECT_EQ(prüfe().betreuungen, 1U);
}

TEST_F(PruefungTest, LeereTabellenHabenKeineBefunde)
{
    klienten({});
    betreuungen({});
    diagnosen({});
    erwarte({});
}

TEST_F(PruefungTest, MusterbetriebHatKeineBefunde)
{
    const auto tabellen = erzeugeMusterdaten({.klienten = 100, .episodenJe = 4, .saat = 7});
    lege("kernDat.txt", tabellen.kern);
    lege("betrDat.txt", tabellen.betr);
    lege("diagDat.txt", tabellen.diag);
    erwarte({});
}

TEST_F(PruefungTest, FehlendeTabelleIstNichtLesbar)
{
    legeTabellen();
    Plattenzugriff(platte).lösche(pfade.diagDat);
    EXPECT_THROW(prüfe(), Laufzeitfehler);
}

TEST_F(PruefungTest, Zeilenenden)
{
    legeTabellen();
    lege("kernDat.txt", klient + "\n");
    erwarte({{ZeilenendenFremd, Tabelle::Kern, 1}});
    lege("kernDat.txt", klient);
    erwarte({{ZeilenendeFehlt, Tabelle::Kern, 1}});
    klienten({klient});
    lege("betrDat.txt", betreuung + "\r\n" + mitBetreuung("2", "01.01.2006", "02.01.2006") + "\n");
    diagnosen({diagnose, mitDiagnose("2", {})});
    erwarte({{ZeilenendenGemischt, Tabelle::Betr, 2}});
}

TEST_F(PruefungTest, LeereZeile)
{
    legeTabellen();
    diagnosen({diagnose, ""});
    erwarte({{ZeileLeer, Tabelle::Diag, 2}});
}

TEST_F(PruefungTest, ZuLangeZeile)
{
    legeTabellen();
    const std::string memo(32767 - klient.size(), 'x');
    klienten({klient + memo});
    erwarte({{FelderZuViele, Tabelle::Kern, 1}}); // the twelfth field is no empty one any more
    klienten({klient + memo + 'x'});
    const auto bericht = prüfe();
    ASSERT_FALSE(bericht.befunde.empty());
    EXPECT_EQ(bericht.befunde.front().art, ZeileZuLang);
}

TEST_F(PruefungTest, Felderzahl)
{
    legeTabellen();
    klienten({klient.substr(0, klient.size() - 1)}); // eleven, as the form writes it
    betreuungen({betreuung + trenner});
    diagnosen({diagnose.substr(0, diagnose.size() - 1)});
    erwarte({});
    klienten({klient + trenner});
    betreuungen({betreuung + trenner + "x"});
    diagnosen({diagnose.substr(0, diagnose.size() - 2)});
    erwarte({{FelderZuViele, Tabelle::Kern, 1}, {FelderZuViele, Tabelle::Betr, 1}, {FelderZuWenige, Tabelle::Diag, 1}});
}

TEST_F(PruefungTest, AbgeschnitteneZeileHältDenStartNichtAuf)
{
    legeTabellen();
    klienten({klient, felder(klient, 1, 1) + "2"});
    const auto bericht = prüfe();
    ASSERT_EQ(bericht.befunde.size(), 1U);
    EXPECT_EQ(bericht.befunde[0].art, FelderZuWenige);
    EXPECT_EQ(bericht.befunde[0].folge, "was fehlt, gilt als leer"_t);
}

TEST_F(PruefungTest, HalbeLetzteZeileWirdBeimStartHerausgenommen)
{
    legeTabellen();
    lege("diagDat.txt", Testlauf::alsInhalt({diagnose}) + "1");
    const auto befunde = prüfe().befunde;
    const auto ende = std::ranges::find(befunde, ZeilenendeFehlt, &Befund::art);
    ASSERT_NE(ende, befunde.end());
    EXPECT_NE(ende->folge.find("herausgenommen"_t), std::string::npos) << ende->folge;
}

TEST_F(PruefungTest, Schlüssel)
{
    legeTabellen();
    klienten({klient, mitFeldern(klient, {{2, "drei"}}), mitFeldern(klient, {{2, "32768"}, {3, ""}}),
              mitFeldern(klient, {{2, "0"}, {3, ""}}), mitFeldern(klient, {{2, "04"}, {3, ""}})});
    erwarte({{SchlüsselKeineZahl, Tabelle::Kern, 2, 2},
             {SchlüsselAußerhalb, Tabelle::Kern, 3, 2},
             {SchlüsselAußerhalb, Tabelle::Kern, 4, 2},
             {SchlüsselForm, Tabelle::Kern, 5, 2}});
}

TEST_F(PruefungTest, DoppelteSchlüssel)
{
    legeTabellen();
    klienten({klient, klient});
    betreuungen({betreuung, betreuung});
    diagnosen({diagnose, diagnose});
    erwarte({{SchlüsselDoppelt, Tabelle::Kern, 2},
             {SchlüsselDoppelt, Tabelle::Betr, 2},
             {SchlüsselDoppelt, Tabelle::Diag, 2}});
}

TEST_F(PruefungTest, WasZueinanderGehört)
{
    legeTabellen();
    klienten({});
    erwarte({{BetreuungOhneKlient, Tabelle::Betr, 1}});
    klienten({klient});
    diagnosen({});
    erwarte({{BetreuungOhneDiagnose, Tabelle::Betr, 1}});
    diagnosen({diagnose, mitDiagnose("2", {})});
    erwarte({{DiagnoseOhneBetreuung, Tabelle::Diag, 2}});
}

TEST_F(PruefungTest, Status)
{
    legeTabellen();
    klienten({mitFeldern(klient, {{3, "x"}})});
    erwarte({{StatusUnbekannt, Tabelle::Kern, 1, 3}});
    for (const auto& falsch : {std::string("o"), std::string(), std::string(1, '\0')}) {
        klienten({mitFeldern(klient, {{3, falsch}})});
        erwarteHinweis({StatusVeraltet, Tabelle::Kern, 1, 3});
    }
    betreuungen({mitBetreuung("1", "01.01.2005", "offen")});
    klienten({mitFeldern(klient, {{3, "o"}}), mitFeldern(klient, {{2, "2"}, {3, std::string_view("\0", 1)}}),
              mitFeldern(klient, {{2, "3"}, {3, ""}})});
    erwarte({});
}

TEST_F(PruefungTest, Daten)
{
    legeTabellen();
    klienten({mitFeldern(klient, {{10, "31.02.1970"}}), mitFeldern(klient, {{2, "2"}, {3, ""}, {10, "1.2.70"}}),
              mitFeldern(klient, {{2, "3"}, {3, ""}, {10, ""}}),
              mitFeldern(klient, {{2, "4"}, {3, ""}, {10, "1.2.1970"}})});
    betreuungen({mitBetreuung("1", "offen", "unbekannt")});
    erwarte({{DatumUngültig, Tabelle::Kern, 1, 10},
             {DatumZweistellig, Tabelle::Kern, 2, 10},
             {DatumUngültig, Tabelle::Kern, 3, 10},
             {DatumUngültig, Tabelle::Betr, 1, 3},
             {DatumUngültig, Tabelle::Betr, 1, 4}});
}

TEST_F(PruefungTest, EndeLiegtVorDemBeginn)
{
    legeTabellen();
    betreuungen({mitBetreuung("1", "02.01.2005", "01.01.2005")});
    erwarte({{befundart::EndeVorBeginn, Tabelle::Betr, 1, 4}});
    betreuungen({mitBetreuung("1", "02.01.2005", "02.01.2005")});
    erwarte({});
}

TEST_F(PruefungTest, Zeiträume)
{
    legeTabellen();
    diagnosen({diagnose, mitDiagnose("2", {}), mitDiagnose("3", {})});
    betreuungen({mitBetreuung("1", "01.01.2005", "31.12.2006"), mitBetreuung("2", "01.02.2005", "01.03.2005"),
                 mitBetreuung("3", "31.12.2006", "01.01.2007")});
    erwarte({{Überschneidung, Tabelle::Betr, 2}, {Überschneidung, Tabelle::Betr, 3}});
    betreuungen({mitBetreuung("1", "01.01.2005", "31.12.2005"), mitBetreuung("2", "01.01.2007", "offen"),
                 mitBetreuung("3", "01.01.2006", "31.12.2006")});
    klienten({mitFeldern(klient, {{3, "o"}})});
    erwarte({});
    betreuungen({mitBetreuung("1", "01.01.2005", "31.12.2005"), mitBetreuung("2", "01.01.2007", "offen"),
                 mitBetreuung("3", "01.01.2008", "offen")});
    erwarte({{Überschneidung, Tabelle::Betr, 3}, {MehrereOffen, Tabelle::Betr, 3, 4}});
}

TEST_F(PruefungTest, WerteDesKlienten)
{
    legeTabellen();
    klienten({mitFeldern(klient, {{1, "x"}, {9, "Fehler in Geschlecht"}})});
    erwarte({{WertUnbekannt, Tabelle::Kern, 1, 1}, {WertUnbekannt, Tabelle::Kern, 1, 9}});
}

/// Every field that has a rule refuses a text that no rule knows, and takes its default.
TEST_F(PruefungTest, WerteDerBetreuung)
{
    legeTabellen();
    std::vector<Erwartet> erwartete;
    auto satz = betreuung;
    for (int feld = 5; feld < static_cast<int>(betreuungsfelder().size()); ++feld) {
        satz = ersetzeFeld(satz, feld, "'7' nicht gefunden"_t);
        erwartete.push_back({WertUnbekannt, Tabelle::Betr, 1, feld});
    }
    betreuungen({satz});
    erwarte(erwartete);
}

TEST_F(PruefungTest, ZahlenDerBetreuung)
{
    const auto prüfeWert = [this](std::string_view name, std::string_view wert, bool gut) {
        const int feld = betreuungsfeld(name);
        legeTabellen();
        betreuungen({ersetzeFeld(betreuung, feld, wert)});
        erwarte(gut ? std::vector<Erwartet>{} : std::vector<Erwartet>{{WertUnbekannt, Tabelle::Betr, 1, feld}});
    };
    const auto prüfeGrenzen = [&](std::string_view name, werte::Zahlenbereich bereich) {
        prüfeWert(name, std::to_string(bereich.von - 1), false);
        prüfeWert(name, std::to_string(bereich.von), true);
        prüfeWert(name, std::to_string(bereich.bis), true);
        prüfeWert(name, std::to_string(bereich.bis + 1), false);
    };
    prüfeGrenzen("Zuvor3"_t, werte::maßnahmen);
    prüfeGrenzen("Kinder1"_t, werte::kinder);
    prüfeGrenzen("Kontakte"_t, werte::kontakte);
    prüfeGrenzen("LebUnterV"_t, werte::unterhalt);
    prüfeWert("Nation"_t, "Deutschland"_t, true);
    prüfeWert("Nation"_t, "DEU"_t, false);
    prüfeWert("HDohne2"_t, "WAHR"_t, true);
    prüfeWert("Schulden"_t, "bis 10.000 €"_t, true);
    prüfeWert("Schulden"_t, "bis10.000 €"_t, false);
}

TEST_F(PruefungTest, WerteDerDiagnose)
{
    struct Fall {
        int gruppe;
        Blockfeld platz;
        std::string_view wert;
        bool gut;
    };
    for (const auto& [gruppe, platz, wert, gut] :
         {Fall{1, Konsumart, "Injektion"_t, true}, Fall{1, Konsumart, "gespritzt"_t, false},
          Fall{1, TageBeginn, "30"_t, true}, Fall{1, TageEnde, "31"_t, false}, Fall{1, ICDStelle4, "25"_t, true},
          Fall{1, ICDStelle4, "27"_t, false}, Fall{21, ICDStelle4, "ja"_t, true}, Fall{21, ICDStelle4, "25"_t, false},
          Fall{29, ICDStelle4, "8"_t, true}, Fall{29, ICDStelle4, "7"_t, false}, Fall{2, AlterStörung, "99"_t, true},
          Fall{2, AlterStörung, "100"_t, false}, Fall{3, Riskant, "ja"_t, true}, Fall{3, Riskant, "2"_t, false},
          Fall{3, AlterErstkonsum, "x"_t, false}, Fall{3, HDMarke, "1"_t, true}, Fall{3, HDMarke, "2"_t, false},
          Fall{21, Konsumart, "Injektion"_t, false}, Fall{1, TageBeginn, "0"_t, true}}) {
        const int feld = feld::diag::antwort(gruppe, platz);
        legeTabellen();
        diagnosen({mitDiagnose("1", {{feld, wert}})});
        erwarte(gut ? std::vector<Erwartet>{} : std::vector<Erwartet>{{WertUnbekannt, Tabelle::Diag, 1, feld}});
    }
    legeTabellen();
    betreuungen({ersetzeFeld(betreuung, betreuungsfeld("HepatB"_t), "")});
    erwarte({}); // older records leave the infections empty
    constexpr int ersteWeitere = 235;
    diagnosen({mitDiagnose("1", {{ersteWeitere, "32.1"_t}, {ersteWeitere + 1, "F32"_t}})});
    erwarte({{WertUnbekannt, Tabelle::Diag, 1, ersteWeitere + 1}});
}

TEST_F(PruefungTest, Bitfeld)
{
    constexpr int bitfeld = 247;
    const auto belegt = feld::diag::antwort(3, TageBeginn);
    legeTabellen();
    diagnosen({mitDiagnose("1", {{bitfeld, "viele"}})});
    erwarte({{BitfeldKeineZahl, Tabelle::Diag, 1, bitfeld}});
    diagnosen({mitDiagnose("1", {{bitfeld, "1"}})});
    erwarte({{BitfeldFremd, Tabelle::Diag, 1, bitfeld}});
    diagnosen({mitDiagnose("1", {{bitfeld, "1073741824"}})});
    erwarte({{BitfeldFremd, Tabelle::Diag, 1, bitfeld}});
    diagnosen({mitDiagnose("1", {{bitfeld, "-8"}})});
    erwarteHinweis({BitfeldNegativ, Tabelle::Diag, 1, bitfeld});
    diagnosen({mitDiagnose("1", {{belegt, "5"}, {bitfeld, "16"}})});
    erwarteHinweis({BitFehlt, Tabelle::Diag, 1, bitfeld});
    diagnosen({mitDiagnose("1", {{belegt, "5"}, {bitfeld, "8"}})});
    erwarte({});
    diagnosen({mitDiagnose("1", {{belegt, "5"}})}); // as the import leaves it
    erwarte({});
}

TEST_F(PruefungTest, Zeichen)
{
    legeTabellen();
    const auto memo = mitFeldern(klient, {{11, "a\tb"}});
    klienten({memo});
    erwarte({});
    klienten({mitFeldern(klient, {{4, "Ad\tler"}, {11, "a\x01"}, {8, "Ulm\x81"}})});
    erwarte({{Steuerzeichen, Tabelle::Kern, 1, 4},
             {ZeichenUnbelegt, Tabelle::Kern, 1, 8},
             {Steuerzeichen, Tabelle::Kern, 1, 11}});
    klienten({mitFeldern(klient, {{4, std::string_view("\0", 1)}})});
    erwarte({{Steuerzeichen, Tabelle::Kern, 1, 4}});
}

TEST_F(PruefungTest, GanzerVermerkUndSeineArbeitsdatei)
{
    legeTabellen();
    lege("betrDat.txt.neu", "neu");
    lege("diagDat.txt.neu", "fremd");
    const auto text = alsVermerktext({{Tabelle::Betr, 1, 3, 5}}, pfade);
    lege("Vorgang.txt", text);
    const auto bericht = prüfe();
    ASSERT_EQ(bericht.befunde.size(), 3U);
    EXPECT_EQ(bericht.befunde[0].art, VermerkGanz);
    EXPECT_EQ(bericht.befunde[0].ort.datei, angezeigt("Daten/Vorgang.txt"));
    EXPECT_EQ(bericht.befunde[1].art, befundart::Arbeitsdatei);
    EXPECT_EQ(bericht.befunde[1].folge, "kommt beim nächsten Start an ihre Stelle"_t);
    EXPECT_EQ(bericht.befunde[2].folge, "wird beim nächsten Start entfernt"_t);
    lege("Vorgang.txt", text.substr(0, text.size() - 3));
    EXPECT_EQ(prüfe().befunde[0].art, VermerkUnvollständig);
}

TEST_F(PruefungTest, Reste)
{
    legeTabellen();
    for (const auto* name :
         {"Daten/Vorgang.txt.neu", "dummyFile.txt", "Tolvekdummy.txt", "importDummyVerz/KernDat.txt",
          "Daten/Sicherungen/2007-08-02 10.00.00.neu/kernDat.bak", "Daten/Sicherungen/2007-08-01 10.00.00/kernDat.bak",
          "Daten/Sicherungen/2007-08-01 10.00.00 unvollendet/kernDat.txt"}) {
        platte.lege(wurzel / name, "x");
    }
    std::vector<std::pair<Befundart, std::string>> gefunden;
    for (const auto& befund : prüfe().befunde) {
        gefunden.emplace_back(befund.art, befund.ort.datei);
    }
    const std::vector<std::pair<Befundart, std::string>> erwartet{
        {befundart::Arbeitsdatei, angezeigt("Daten/Vorgang.txt.neu")},
        {AlteArbeitsdatei, "dummyFile.txt"},
        {AlteArbeitsdatei, "Tolvekdummy.txt"},
        {SicherungUnvollendet, angezeigt("Daten/Sicherungen/2007-08-01 10.00.00 unvollendet")},
        {SicherungAngefangen, angezeigt("Daten/Sicherungen/2007-08-02 10.00.00.neu")},
        {Importordner, "importDummyVerz"}};
    EXPECT_EQ(gefunden, erwartet);
}

/// What a finding says of the next start is what the next start does.
class BeimStartTest : public PruefungTest {
protected:
    void starte()
    {
        const Bestandsmeldung keine = [](std::string_view /*text*/, Symbol /*symbol*/) {};
        Dateien dateien(std::make_unique<Plattenzugriff>(platte));
        const Bestand bestand(dateien, pfade, keine);
        vollendeVorgang(bestand);
        bereinigeDatum(bestand);
        bereinigeBetrOA(bestand);
    }
    /// Whether the checker announces the failure that the start ends with.
};

TEST_F(BeimStartTest, WasDerStartBerichtigtIstDanachKeinBefund)
{
    legeTabellen();
    klienten({mitFeldern(klient, {{3, "x"}, {10, "1.2.70"}}), mitFeldern(klient, {{2, "2"}})});
    betreuungen({mitBetreuung("1", "01.01.05", "31.12.2005")});
    lege("diagDat.txt.neu", "halb");
    lege("Vorgang.txt", "halb");
    platte.lege(pfade.sicherungen / "2007-08-02 10.00.00.neu" / "kernDat.bak", "x");
    erwarte({{VermerkUnvollständig, {}},
             {befundart::Arbeitsdatei, {}},
             {SicherungAngefangen, {}},
             {StatusUnbekannt, Tabelle::Kern, 1, 3},
             {DatumZweistellig, Tabelle::Kern, 1, 10},
             {StatusVeraltet, Tabelle::Kern, 2, 3},
             {DatumZweistellig, Tabelle::Betr, 1, 3}});
    starte();
    erwarte({});
}

TEST_F(BeimStartTest, EinGanzerVermerkWirdVollendet)
{
    legeTabellen();
    const auto neu = Testlauf::alsInhalt({mitBetreuung("1", "01.01.2005", "31.12.2006")});
    lege("betrDat.txt.neu", neu);
    lege("Vorgang.txt",
         alsVermerktext({{Tabelle::Betr, betreuung.size() + 2, neu.size(), Prüfsumme::von(neu)}}, pfade));
    erwarte({{VermerkGanz, {}}, {befundart::Arbeitsdatei, {}}});
    starte();
    erwarte({});
    EXPECT_EQ(platte.stand().dateien.at(pfade.betrDat), neu);
}

TEST_F(BeimStartTest, KurzeZeilenHaltenDenStartNichtAuf)
{
    legeTabellen();
    for (const int felderDerZeile : {2, 3, 4, 100}) {
        betreuungen({betreuung, felder(betreuung, 1, felderDerZeile)});
        EXPECT_FALSE(prüfe().befunde.empty()) << felderDerZeile;
        EXPECT_NO_THROW(starte()) << felderDerZeile;
    }
}

TEST_F(PruefungTest, ÄndertNichts)
{
    legeTabellen();
    lege("betrDat.txt.neu", "neu");
    lege("Vorgang.txt", "halb");
    const auto vorher = platte.stand();
    int operationen = 0;
    platte.beiOperation = [&](const std::string& /*name*/) { ++operationen; };
    prüfe();
    EXPECT_EQ(operationen, 0);
    EXPECT_EQ(platte.stand(), vorher);
}

/// The whole way on a real folder: lines, summary, exit status.
class BerichtTest : public testing::Test {
protected:
    int prüfe() { return pruefe(ordner.pfad(), aus); }
    void verdirb(const char* name, std::string_view inhalt) const
    {
        Testlauf::schreibe(ordner.pfad() / "Daten" / name, inhalt);
    }

    Testordner ordner;
    std::ostringstream aus;
};

TEST_F(BerichtTest, OhneBefunde)
{
    schreibeProgrammordner(ordner.pfad(), erzeugeMusterdaten({.klienten = 12, .episodenJe = 2, .saat = 1}));
    EXPECT_EQ(prüfe(), 0);
    EXPECT_EQ(aus.str(), "Keine Befunde: 12 Klienten, 24 Betreuungen.\n");
}

TEST_F(BerichtTest, MitBefunden)
{
    auto tabellen = erzeugeMusterdaten({.klienten = 1, .episodenJe = 1, .saat = 1});
    tabellen.betr = ersetzeFeld(tabellen.betr, betreuungsfeld("Schulden"), "viele"_t);
    schreibeProgrammordner(ordner.pfad(), tabellen);
    verdirb("kernDat.txt.neu", "");
    EXPECT_EQ(prüfe(), 1);
    EXPECT_EQ(aus.str(), angezeigt("Daten/kernDat.txt.neu") +
                             ": Arbeitsdatei einer abgebrochenen Eingabe; wird beim nächsten Start entfernt\n"
                             "betrDat.txt, Zeile 1, Feld 149 (Schulden): diesen Wert hat keine Liste: \"viele\"; wird "
                             "unverändert angezeigt; der Export meldet ihn und hat dort keinen richtigen Wert\n"
                             "2 Befunde in 2 Dateien: 1 Klient, 1 Betreuung.\n");
}

TEST_F(BerichtTest, FehlendeTabelle)
{
    schreibeProgrammordner(ordner.pfad(), {});
    std::filesystem::remove(ordner.pfad() / "Daten" / "diagDat.txt");
    EXPECT_EQ(prüfe(), 2);
    EXPECT_NE(aus.str().find("Nicht lesbar: "), std::string::npos);
    EXPECT_NE(aus.str().find("diagDat.txt"), std::string::npos);
}

TEST_F(BerichtTest, OrdnerAnStelleDerTabelle)
{
    schreibeProgrammordner(ordner.pfad(), {});
    std::filesystem::remove(ordner.pfad() / "Daten" / "betrDat.txt");
    std::filesystem::create_directory(ordner.pfad() / "Daten" / "betrDat.txt");
    EXPECT_EQ(prüfe(), 2);
}

} // namespace
