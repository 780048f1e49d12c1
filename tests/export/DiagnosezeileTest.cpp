#include "export/Diagnosezeile.h"
#include "export/Exportsaetze.h"
#include "hilfen/Testumgebung.h"

#include "satz/Diagnosefelder.h"
#include "satz/moData.h"

#include <algorithm>

namespace {

using Texte = std::vector<std::string>;

constexpr int konsumart = 1;
constexpr int zusatz = 4;
constexpr int riskant = 6;
constexpr int alterErstkonsum = 7;
constexpr int haupt = 8;

class DiagnosezeileTest : public testing::Test {
protected:
    DiagnosezeileTest() { baueProblemKatalog(); }

    std::string zeile(Belegung diagnose, Belegung betreuung = {}) const
    {
        return diagnosezeile(betreuungssatz(1, 2, betreuung), diagnosesatz(1, 2, diagnose), lauf.stand.bestandsmeldung);
    }
    Texte meldungen() const { return lauf.umgebung.meldungstexte(); }

    Testlauf lauf;
};

TEST_F(DiagnosezeileTest, LeererSatz)
{
    const auto text = zeile({});
    EXPECT_EQ(std::count(text.begin(), text.end(), ';'), 177);
    for (int gruppe = 1; gruppe <= 20; ++gruppe) {
        const int c = 4 + 6 * (gruppe - 1);
        EXPECT_EQ(spalte(text, c) + spalte(text, c + 1) + spalte(text, c + 2) + spalte(text, c + 3), "099990");
        EXPECT_EQ(spalte(text, c + 4) + spalte(text, c + 5), "00");
    }
    for (const int c : {125, 126, 129, 130, 133, 134, 137, 138, 141, 142, 145, 146, 149, 150, 153, 154}) {
        EXPECT_EQ(spalte(text, c), " 99") << c;
    }
    EXPECT_EQ(spalte(text, 157), "9");
    EXPECT_EQ(spalte(text, 158), "0");
    EXPECT_EQ(spalte(text, 159), "0");
    EXPECT_EQ(spalte(text, 160), "0");
    EXPECT_EQ(meldungen(), Texte{});
}

TEST_F(DiagnosezeileTest, LeerePolytoxikomanieIstEinFehlgriff)
{
    const auto text = zeile({{feld::diag::antwort(20, riskant), "ja"}}, {{156, ""}});
    EXPECT_EQ(spalte(text, 124), "2");
    EXPECT_EQ(meldungen(), Texte{fehlerHier});
}

TEST_F(DiagnosezeileTest, AntwortKenntNurEineSchreibung)
{
    EXPECT_EQ(spalte(zeile({{feld::diag::antwort(1, riskant), "k.A."}}), 9), "0");
    EXPECT_EQ(meldungen(), Texte{});
    EXPECT_EQ(spalte(zeile({{feld::diag::antwort(1, zusatz), "21"}, {feld::diag::antwort(1, riskant), "K.A."}}), 9),
              "21");
    EXPECT_EQ(meldungen(), Texte{fehlerHier});
}

TEST_F(DiagnosezeileTest, Zusatzziffern)
{
    EXPECT_EQ(spalte(zeile({{feld::diag::antwort(1, zusatz), "21 (Abstinent)"}}), 7), "21");
    EXPECT_EQ(spalte(zeile({{feld::diag::antwort(1, zusatz), "k.A."}}), 7), "0");
    EXPECT_EQ(spalte(zeile({{feld::diag::antwort(1, zusatz), "0"}}), 7), "0");
    EXPECT_EQ(meldungen(), Texte{});
    const auto text =
        zeile({{feld::diag::antwort(1, konsumart), "Injektion"}, {4, "5"}, {feld::diag::antwort(1, zusatz), "12"}});
    EXPECT_EQ(spalte(text, 7), "1") << "days of consumption passed on are no working value";
    EXPECT_EQ(meldungen(), Texte{fehlerHier});
}

TEST_F(DiagnosezeileTest, Essstörung)
{
    const int feld = feld::diag::antwort(29, zusatz);
    EXPECT_EQ(spalte(zeile({{feld, "0 (Anorexia nervosa)"}}), 157), "0");
    EXPECT_EQ(spalte(zeile({{feld, "k.A."}}), 157), "9");
    EXPECT_EQ(spalte(zeile({{feld, "8"}}), 157), "8");
    EXPECT_EQ(meldungen(), Texte{});
    EXPECT_EQ(spalte(zeile({{feld, "6"}, {feld::diag::antwort(28, zusatz), "nein"}}), 157), "1");
    EXPECT_EQ(meldungen(), Texte{fehlerHier});
}

TEST_F(DiagnosezeileTest, Flaggenplatz)
{
    EXPECT_EQ(spalte(zeile({}, {{150, "Falsch"}, {153, "WAHR"}}), 161), "3");
    EXPECT_EQ(spalte(zeile({}, {{151, "Wahr"}, {154, "Wahr"}}), 161), "4");
    EXPECT_EQ(spalte(zeile({}, {{150, "Falsch"}}), 161), "0");
    EXPECT_EQ(spalte(zeile({}, {{163, "wahr"}}), 177), "3");
}

TEST_F(DiagnosezeileTest, Infektionen)
{
    EXPECT_EQ(spalte(zeile({}, {{157, ""}}), 174), "0");
    EXPECT_EQ(spalte(zeile({}, {{158, "Getestet, positiv"}}), 175), "2");
    EXPECT_EQ(spalte(zeile({}, {{159, "Getestet, chronisch"}}), 176), "3");
    EXPECT_EQ(meldungen(), Texte{});
    const auto text = zeile({{feld::diag::antwort(29, zusatz), "3"}, {235, "12.3"}}, {{157, "getestet"}});
    EXPECT_EQ(spalte(text, 174), "3") << "the columns 158 to 173 don't count";
    EXPECT_EQ(meldungen(), Texte{fehlerHier});
}

TEST_F(DiagnosezeileTest, CodeDerHauptdiagnose)
{
    EXPECT_EQ(spalte(zeile({{feld::diag::antwort(1, zusatz), "21"}, {feld::diag::antwort(1, haupt), "1"}}), 159),
              "102");
    EXPECT_EQ(spalte(zeile({{feld::diag::antwort(1, haupt), "1"}}), 159), "10");
    EXPECT_EQ(spalte(zeile({{feld::diag::antwort(1, zusatz), "k.A."}, {feld::diag::antwort(1, haupt), "1"}}), 159),
              "0");
    EXPECT_EQ(spalte(zeile({{feld::diag::antwort(22, zusatz), "k.A."}, {feld::diag::antwort(22, haupt), "1"}}), 159),
              "551");
    EXPECT_EQ(spalte(zeile({{feld::diag::antwort(29, zusatz), "5 (Erbrechen bei sonstigen psychischen Störungen)"_t},
                            {feld::diag::antwort(29, haupt), "1"}}),
                     159),
              "505");
    EXPECT_EQ(spalte(zeile({{feld::diag::antwort(1, haupt), "ja"}}), 159), "0");
    for (int gruppe = 24; gruppe <= 28; ++gruppe) {
        EXPECT_EQ(
            spalte(zeile({{feld::diag::antwort(gruppe, zusatz), "k.A."}, {feld::diag::antwort(gruppe, haupt), "1"}}),
                   159),
            "630");
    }
}

TEST_F(DiagnosezeileTest, AlterBeimErstkonsumDerHauptdiagnose)
{
    EXPECT_EQ(
        spalte(zeile({{feld::diag::antwort(3, alterErstkonsum), "14"}, {feld::diag::antwort(3, haupt), "1"}}), 160),
        "14");
    EXPECT_EQ(
        spalte(zeile({{feld::diag::antwort(3, alterErstkonsum), "k.A."}, {feld::diag::antwort(3, haupt), "1"}}), 160),
        "0");
    EXPECT_EQ(
        spalte(zeile({{feld::diag::antwort(3, alterErstkonsum), "  "}, {feld::diag::antwort(3, haupt), "1"}}), 160),
        "0");
    EXPECT_EQ(spalte(zeile({{feld::diag::antwort(3, alterErstkonsum), "14"}}), 160), "0");
}

TEST_F(DiagnosezeileTest, ZweiHauptdiagnosenCodeDerErstenAlterDerLetzten)
{
    const auto text = zeile({{feld::diag::antwort(2, haupt), "1"},
                             {feld::diag::antwort(2, zusatz), "10"},
                             {feld::diag::antwort(2, alterErstkonsum), "14"},
                             {feld::diag::antwort(18, haupt), "1"},
                             {feld::diag::antwort(18, alterErstkonsum), "20"}});
    EXPECT_EQ(spalte(text, 159), "111");
    EXPECT_EQ(spalte(text, 160), "20");
}

TEST_F(DiagnosezeileTest, WeitereDiagnosen)
{
    const auto text = zeile({{235, "12.3"}, {238, "1"}, {239, "40.2"}, {243, "A01.1"}});
    EXPECT_EQ(spalte(text, 162), "F12.3");
    EXPECT_EQ(spalte(text, 163), "");
    EXPECT_EQ(spalte(text, 165), "F1");
    EXPECT_EQ(spalte(text, 166), "G40.2");
    EXPECT_EQ(spalte(text, 170), "A01.1");
    EXPECT_EQ(spalte(text, 173), "");
}

TEST_F(DiagnosezeileTest, ErsterFehlgriffTrägtNichts)
{
    EXPECT_EQ(spalte(zeile({{feld::diag::antwort(1, konsumart), "Trinken"}}), 4), "");
    EXPECT_EQ(meldungen(), Texte{fehlerHier});
}

} // namespace
